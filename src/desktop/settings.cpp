#include "desktop/settings.h"

#include <algorithm>
#include <iterator>

#include "desktop/look.h"

namespace grapplemont::desktop {

namespace {

constexpr auto kColours = "window/colours";
const QString kSchemes[] = {"system", "dark", "light", "contrast"};  // in the order of Scheme
constexpr int kLeastScale = 75, kMostScale = 300;

// Where a command's key is kept, and what the command is called.
constexpr auto kKeys = "keys", kKeyWords = "keywords";

QString PlaceIn(const char* group, const std::string& id) {
  return QString(group) + "/" + Shown(id);
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

int Settings::Volume() const {
  constexpr int kUsualVolume = 50;
  const QVariant percent = Read(kVolume);
  return percent.isValid() ? std::clamp(percent.toInt(), 0, 100) : kUsualVolume;
}

DateForm Settings::Dates() const {
  const std::string kept = Read(kDates).toString().toStdString();
  const auto form =
      std::ranges::find_if(kDateForms, [&](const auto& named) { return kept == named.Key; });
  return form == std::end(kDateForms) ? DateForm::Game
                                      : static_cast<DateForm>(form - std::begin(kDateForms));
}

void Settings::SetDates(DateForm form) {
  Write(kDates, kDateForms[static_cast<std::size_t>(form)].Key);
}

QString Settings::Key(const std::string& id, const std::string& usual) const {
  const QVariant kept = Read(PlaceIn(kKeys, id));
  return kept.isValid() ? kept.toString() : Shown(usual);
}

void Settings::SetKey(const KeyedCommand& command, const QString& key) {
  Write(PlaceIn(kKeys, command.Id), key);
  Write(PlaceIn(kKeyWords, command.Id), QStringList{Shown(command.Caption), Shown(command.Where)});
}

void Settings::ResetKey(const std::string& id) {
  for (const char* group : {kKeys, kKeyWords}) {
    if (file_) file_->remove(PlaceIn(group, id));
    kept_.erase(PlaceIn(group, id));
  }
}

std::vector<KeyedCommand> Settings::KeysSet() const {
  std::vector<KeyedCommand> set;
  for (const QString& id : NamesIn(kKeys)) {
    const QStringList words = Read(PlaceIn(kKeyWords, Keep(id).Text)).toStringList();
    set.push_back(
        {Keep(id).Text, Keep(words.value(0, id)).Text, Keep(words.value(1)).Text, std::string()});
  }
  return set;
}

std::string Settings::KeyIdOf(const ui::Button& button) {
  return (button.Key.empty() ? button.Parent().Name() : std::string("page")) + "." + button.Name();
}

QStringList Settings::NamesIn(const QString& group) const {
  QStringList names;
  const auto add = [&](const QString& place) {
    if (place.startsWith(group + "/")) names << place.mid(group.size() + 1);
  };
  if (file_) {
    for (const QString& place : file_->allKeys()) add(place);
  } else {
    for (const auto& entry : kept_) add(entry.first);
  }
  return names;
}

int Settings::Zoom() const {
  return std::clamp(Read(kZoom).toInt(), kSmallestText - kLargestText,
                    kLargestText - kSmallestText);
}

void Settings::Erase(const QString& group) {
  if (file_) {
    file_->remove(group);
  } else {
    std::erase_if(kept_, [&](const auto& entry) { return entry.first.startsWith(group + "/"); });
  }
}

QString Settings::PassingOf(const ui::Screen& screen) {
  return QString("%1/").arg(reinterpret_cast<quintptr>(&screen));
}

QString Settings::PlaceOf(const ui::ListBox& list) {
  const ui::Screen& screen = list.Parent();
  const ui::Role role = screen.Is();
  if (role != ui::Role::Page && role != ui::Role::Hub)
    return PassingOf(screen) + Shown(list.Name());
  const OpenGame game = Game ? Game() : OpenGame();
  const QString group = "tables-" + (game.Slot.isEmpty() ? "program" : game.Slot);
  if (Read(group + "/world").toString() != game.World) {
    Erase(group);
    Write(group + "/world", game.World);
  }
  return group + "/" + Shown(screen.Name() + "." + list.Name());
}

ui::TableState Settings::Table(const QString& place) const {
  if (const auto passing = passing_.find(place); passing != passing_.end()) return passing->second;
  return ui::ReadTableState(Keep(Read(place).toString()).Text);
}

void Settings::SetTable(const QString& place, const ui::TableState& state) {
  if (!place.startsWith("tables-")) {
    passing_[place] = state;
    return;
  }
  const QString line = Shown(ui::Written(state));
  if (Read(place).toString() != line) Write(place, line);
}

void Settings::Forget(const ui::Screen& screen) {
  std::erase_if(passing_, [group = PassingOf(screen)](const auto& entry) {
    return entry.first.startsWith(group);
  });
}

}  // namespace grapplemont::desktop
