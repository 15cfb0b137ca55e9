#pragma once

#include <QSettings>
#include <QString>
#include <map>
#include <memory>
#include <string>

#include "desktop/look.h"
#include "ui/arrangedtable.h"

namespace grapplemont::desktop {

/// What the player has set about the window; it has nothing to do with any world.
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
  /// The key of a command of the side bar, where the player has set none the usual one.
  QString Key(const std::string& command, const std::string& usual) const;
  void SetKey(const std::string& command, const QString& key);
  QByteArray Place() const { return Read(kPlace).toByteArray(); }  // of the window
  void SetPlace(const QByteArray& place) { Write(kPlace, place); }

  /// By the list's name: "frmRoster.lstwres".
  ui::TableState Table(const std::string& list);
  void SetTable(const std::string& list, const ui::TableState& state);

 private:
  static constexpr auto kZoom = "window/zoom", kPlace = "window/place", kScale = "window/scale",
                        kStill = "window/still";
  QVariant Read(const QString& key) const;
  void Write(const QString& key, const QVariant& value);

  std::unique_ptr<QSettings> file_;
  std::map<QString, QVariant> kept_;
};

}  // namespace grapplemont::desktop
