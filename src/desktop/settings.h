#pragma once

#include <QSettings>
#include <QString>
#include <QStringList>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "desktop/dates.h"
#include "desktop/look.h"
#include "ui/arrangedtable.h"
#include "ui/screen.h"

namespace grapplemont::desktop {

/// The game that is being played: its slot and the id of its world; empty for none.
struct OpenGame {
  QString Slot, World;
};

/// Something that a key does: what the key is kept under, how it is called and where it stands, and
/// the key that it has unless the player sets another; that may be none.
struct KeyedCommand {
  std::string Id, Caption, Where, Usual;
};

// The keys that are told where the window's commands are.
inline constexpr const char *kSearchKeyId = "window.search", *kSearchKey = "Ctrl+K";

/// What the player has set about the window, and what the tables keep; nothing of any world.
class Settings {
 public:
  /// An empty file name keeps nothing beyond the program's run.
  explicit Settings(const QString& file);

  Scheme Colours() const;
  void SetColours(Scheme scheme);
  /// The player's step above or below the desktop's size of text, in pixels.
  int Zoom() const;
  void SetZoom(int zoom) { Write(kZoom, zoom); }
  /// How much larger the whole window is, in percent; counts from the next start on.
  int Scale() const;
  void SetScale(int percent) { Write(kScale, percent); }
  /// Nothing moves by itself: the cursor does not blink.
  bool Still() const { return Read(kStill).toBool(); }
  void SetStill(bool still) { Write(kStill, still); }
  /// Bell and crowd, off until the player turns them on; the volume is in percent.
  bool Sounds() const { return Read(kSounds).toBool(); }
  void SetSounds(bool on) { Write(kSounds, on); }
  int Volume() const;
  void SetVolume(int percent) { Write(kVolume, percent); }
  DateForm Dates() const;
  void SetDates(DateForm form);
  /// The key of a command, where the player has set none the usual one; empty for none.
  QString Key(const std::string& id, const std::string& usual) const;
  QString KeyOn(const ui::Button& button) const { return Key(KeyIdOf(button), button.Key); }
  void SetKey(const KeyedCommand& command, const QString& key);
  void ResetKey(const std::string& id);
  /// Those whose keys the player has set, with no usual ones.
  std::vector<KeyedCommand> KeysSet() const;
  /// Of a button of a page: one that comes with a key has the same on whatever page it stands.
  static std::string KeyIdOf(const ui::Button& button);
  QByteArray Place() const { return Read(kPlace).toByteArray(); }  // of the window
  void SetPlace(const QByteArray& place) { Write(kPlace, place); }

  /// What is being played; without it there is no game.
  std::function<OpenGame()> Game;

  /// Where the state of a table is kept: of a page with the open game, each slot by itself and
  /// forgotten with its world; of anything else until its screen is closed.
  QString PlaceOf(const ui::ListBox& list);
  ui::TableState Table(const QString& place) const;
  void SetTable(const QString& place, const ui::TableState& state);
  /// The screen is closed: what it comes up with next time is new.
  void Forget(const ui::Screen& screen);

 private:
  static QString PassingOf(const ui::Screen& screen);
  void Erase(const QString& group);
  QStringList NamesIn(const QString& group) const;
  static constexpr auto kZoom = "window/zoom", kPlace = "window/place", kScale = "window/scale",
                        kStill = "window/still", kSounds = "sound/on", kVolume = "sound/volume",
                        kDates = "window/dates";
  QVariant Read(const QString& key) const;
  void Write(const QString& key, const QVariant& value);

  std::map<QString, ui::TableState> passing_;
  std::unique_ptr<QSettings> file_;
  std::map<QString, QVariant> kept_;
};

}  // namespace grapplemont::desktop
