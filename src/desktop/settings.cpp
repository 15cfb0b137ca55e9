#include "desktop/settings.h"

#include <algorithm>

#include "desktop/look.h"

namespace grapplemont::desktop {

namespace {

constexpr auto kColours = "window/colours";

QString TableKey(const std::string& list) {
  return "tables/" + Shown(list);
}

}  // namespace

Settings::Settings(const QString& file) {
  if (!file.isEmpty()) file_ = std::make_unique<QSettings>(file, QSettings::IniFormat);
}

QVariant Settings::Read(const QString& key) const {
  if (file_) return file_->value(key);
  const auto found = kept_.find(key);
  return found == kept_.end() ? QVariant() : found->second;
}

void Settings::Write(const QString& key, const QVariant& value) {
  if (file_) {
    file_->setValue(key, value);
  } else {
    kept_[key] = value;
  }
}

Scheme Settings::Colours() const {
  const QString name = Read(kColours).toString();
  if (name == "dark") return Scheme::Dark;
  return name == "light" ? Scheme::Light : Scheme::System;
}

void Settings::SetColours(Scheme scheme) {
  Write(kColours, scheme == Scheme::Dark ? "dark" : scheme == Scheme::Light ? "light" : "system");
}

int Settings::Zoom() const {
  return std::clamp(Read(kZoom).toInt(), kSmallestText - kLargestText,
                    kLargestText - kSmallestText);
}

ui::TableState Settings::Table(const std::string& list) {
  const Keepable kept = Keep(Read(TableKey(list)).toString());
  return ui::ReadTableState(kept.Text);
}

void Settings::SetTable(const std::string& list, const ui::TableState& state) {
  const QString line = Shown(ui::Written(state));
  if (Read(TableKey(list)).toString() != line) Write(TableKey(list), line);
}

}  // namespace grapplemont::desktop
