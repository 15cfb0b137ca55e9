#include "desktop/nodisplay.h"

#include <qlogging.h>
#include <unistd.h>

#include <QString>
#include <QtGlobal>
#include <cstdlib>
#include <iostream>

#include "session/faultlog.h"

namespace grapplemont::desktop {

namespace {

struct Watched {
  FaultLog* Log = nullptr;
  WithoutDisplay Without;
  bool HasDisplay = false;
  std::string Last;  // what Qt reported before it gave up
};
Watched watched;

bool IsDisplayNamed() {
  for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
    if (!qEnvironmentVariableIsEmpty(name)) return true;
  return false;
}

[[noreturn]] void GoOnWithout() {
  const WithoutDisplay& without = watched.Without;
  const std::string why = !IsDisplayNamed() ? "There is no display"
                          : watched.Last.empty()
                              ? "No window can be opened on this display"
                              : "No window can be opened on this display (" + watched.Last + ")";
  const bool turns = without.MayTurn && access(without.Console.c_str(), X_OK) == 0;
  std::cerr << "grapplemont: " << why
            << (turns             ? ": here is the console instead of the window." + without.Then
                : without.MayTurn ? ", and " + without.Console + " is not there to serve instead."
                                  : ".")
            << std::endl;
  if (turns) {
    std::vector<std::string> words{without.Console};
    words.insert(words.end(), without.Arguments.begin(), without.Arguments.end());
    std::vector<char*> pointers;
    for (std::string& word : words) pointers.push_back(word.data());
    pointers.push_back(nullptr);
    execv(without.Console.c_str(), pointers.data());
  }
  std::_Exit(1);
}

void Take(QtMsgType type, const QMessageLogContext& context, const QString& text) {
  if (type == QtDebugMsg || type == QtInfoMsg) return;
  const std::string whole = qFormatLogMessage(type, context, text).toStdString();
  watched.Log->Note(whole);
  if (watched.HasDisplay) {
    std::cerr << whole << std::endl;
  } else if (type == QtFatalMsg) {
    GoOnWithout();
  } else {
    watched.Last = text.simplified().toStdString();
  }
}

}  // namespace

void WatchQt(FaultLog& log, WithoutDisplay without) {
  watched.Log = &log;
  watched.Without = std::move(without);
  qInstallMessageHandler(Take);
}

void DisplayIsThere() {
  watched.HasDisplay = true;
}

}  // namespace grapplemont::desktop
