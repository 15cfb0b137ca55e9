#include <unistd.h>

#include <algorithm>
#include <iostream>
#include <string>
#include <vector>

#include "tools/tool.h"

int main(int count, char** words) {
  std::ios::sync_with_stdio(false);
  const std::vector<std::string> arguments(words + std::min(count, 1), words + count);
  return grapplemont::tools::RunWorldTool(
      arguments, {std::cout, std::cerr, isatty(STDOUT_FILENO) && isatty(STDERR_FILENO)});
}
