#pragma once

#include <QSettings>
#include <QString>
#include <functional>
#include <map>
#include <memory>
#include <string>

#include "desktop/dates.h"
#include "desktop/look.h"
#include "ui/arrangedtable.h"
#include "ui/screen.h"

namespace grapplemont::desktop {

/// The game that is being played: its slot and the id of its world; empty for none.
struct OpenGame {
  QString Slot, World;
};

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
  /// The key of a command of the side bar, where the player has set none the usual one.
  QString Key(const std::string& command, const std::string& usual) const;
  void SetKey(const std::string& command, const QString& key);
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
