#pragma once

#include <span>
#include <string_view>

#include "tools/tool.h"

namespace grapplemont::tools {

/// One command of the tool.
struct Command {
  std::string_view Name;
  std::string_view Takes;    // words that are no options: "TABLES DATA"
  std::string_view Summary;  // one line for --help
  std::span<const OptionKind> Options;
  int (*Run)(const Arguments& arguments, Shell& shell);
};

// Worlds as tables and as files.
extern const Command kBuild, kExport, kCheck;
// Games without a window.
extern const Command kNew, kRun, kTell, kBook, kSoak, kLivingWorld, kReplay;
// Pages of docs/.
extern const Command kFormats, kColumns, kBalance;

}  // namespace grapplemont::tools
