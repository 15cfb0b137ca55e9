#include <iostream>

#include "records/store/machine.h"
#include "tools/tool.h"

int main(int count, char** words) {
  using namespace grapplemont;
  std::ios::sync_with_stdio(false);
  return tools::RunWorldTool(
      WordsOf(count, words),
      {std::cout, std::cerr, IsTerminal(Stream::Out) && IsTerminal(Stream::Errors)});
}
