#include "desktop/settings.h"

#include <algorithm>
#include <iterator>

#include "desktop/look.h"

namespace grapplemont::desktop {

namespace {

constexpr auto kColours = "window/colours";
const QString kSchemes[] = {"system", "dark", "light", "contrast"};  // in the order of Scheme
constexpr int kLeastScale = 75, kMostScale = 300;

QString KeyKey(const std::string& command) {
  return "keys/" + Shown(command);
}

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
  const auto kept = std::ranges::find(kSchemes, Read(kColours).toString());
  return kept == std::end(kSchemes) ? Scheme::System
                                    : static_cast<Scheme>(kept - std::begin(kSchemes));
}

void Settings::SetColours(Scheme scheme) {
  Write(kColours, kSchemes[static_cast<std::size_t>(scheme)]);
}

int Settings::Scale() const {
  const int percent = Read(kScale).toInt();
  return percent == 0 ? 100 : std::clamp(percent, kLeastScale, kMostScale);
}

QString Settings::Key(const std::string& command, const std::string& usual) const {
  const QVariant kept = Read(KeyKey(command));
  return kept.isValid() ? kept.toString() : Shown(usual);
}

void Settings::SetKey(const std::string& command, const QString& key) {
  Write(KeyKey(command), key);
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
