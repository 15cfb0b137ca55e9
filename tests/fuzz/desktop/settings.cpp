#include <QFile>
#include <QTemporaryDir>

#include "desktop/settings.h"
#include "fuzz/quietdesk.h"
#include "fuzz/target.h"
#include "support/samplescreen.h"

// The file of the window's settings. It is read by Qt from a file; what it says may be anything.

namespace grapplemont::fuzz {
namespace {

using desktop::Settings;

/// Qt remembers files that it has read a while ago: each case has another for long enough.
QString NextPath() {
  static const QTemporaryDir folder;
  static int number = 0;
  number = (number + 1) % 256;
  return folder.filePath(QString("settings-%1.ini").arg(number));
}

void LookAt(Settings& settings, const ui::ListBox& list) {
  Require(settings.Scale() >= 75 && settings.Scale() <= 300, "a window of another size");
  Require(settings.Volume() >= 0 && settings.Volume() <= 100, "a sound of another volume");
  const QString key = settings.Key("page.cmddoit", "F2");
  settings.Colours();
  settings.Dates();
  settings.Zoom();
  settings.Still();
  settings.Sounds();
  settings.Place();
  for (const desktop::KeyedCommand& command : settings.KeysSet()) settings.ResetKey(command.Id);
  const ui::Table table(list, settings.Table(settings.PlaceOf(list)));
  settings.SetTable(settings.PlaceOf(list), table.State());
}

void Read(ByteSpan bytes) {
  static QuietDesk desk;
  static std::vector<std::string> log;
  static const ui::ListBox& list = test::SampleScreen::On(desk, log).lstpeople;
  const QString path = NextPath();
  QFile file(path);
  Require(file.open(QIODevice::WriteOnly | QIODevice::Truncate), "no file can be written");
  file.write(reinterpret_cast<const char*>(bytes.data()), std::ssize(bytes));
  file.close();
  Settings settings(path);
  LookAt(settings, list);
}

const Registered kSettings({.Name = "settings", .Run = Read, .Cases = 150, .Most = 1024});

}  // namespace
}  // namespace grapplemont::fuzz
