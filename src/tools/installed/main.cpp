#include <filesystem>

#include "console/run.h"
#include "records/store/machine.h"
#include "tools/tool.h"

// The console and the tool for worlds as one file of two names: installed apart, each would bring
// the whole game along.

int main(int count, char** words) {
  using namespace grapplemont;
  const bool isTool = count > 0 && std::filesystem::path(words[0]).stem() == "grapplemont-world";
  const auto given = WordsOf(count, words);
  return isTool ? tools::RunWorldToolHere(given) : console::RunConsoleHere(given);
}
