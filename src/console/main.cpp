#include <sys/ioctl.h>
#include <unistd.h>

#include <algorithm>
#include <iostream>
#include <string>
#include <vector>

#include "console/run.h"
#include "console/typing.h"

namespace {

grapplemont::console::Settings Terminal() {
  grapplemont::console::Settings settings;
  settings.Prompt = isatty(STDIN_FILENO) && isatty(STDOUT_FILENO);
  if (settings.Prompt) settings.Ask = grapplemont::console::TerminalTypist();
  winsize size{};
  if (settings.Prompt && ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0)
    settings.Width = std::clamp<int>(size.ws_col, 60, 160);
  return settings;
}

}  // namespace

int main(int count, char** words) {
  std::ios::sync_with_stdio(false);
  const std::vector<std::string> arguments(words + std::min(count, 1), words + count);
  return grapplemont::console::RunConsole(arguments, {std::cin, std::cout, std::cerr}, Terminal());
}
