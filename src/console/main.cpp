#include <algorithm>
#include <iostream>

#include "console/run.h"
#include "console/typing.h"
#include "records/store/machine.h"

namespace {

using namespace grapplemont;

console::Settings Terminal() {
  console::Settings settings;
  settings.Prompt = IsTerminal(Stream::In) && IsTerminal(Stream::Out);
  if (settings.Prompt) settings.Ask = console::TerminalTypist();
  if (const int columns = TerminalColumns(); settings.Prompt && columns > 0)
    settings.Width = std::clamp(columns, 60, 160);
  return settings;
}

}  // namespace

int main(int count, char** words) {
  std::ios::sync_with_stdio(false);
  return console::RunConsole(WordsOf(count, words), {std::cin, std::cout, std::cerr}, Terminal());
}
