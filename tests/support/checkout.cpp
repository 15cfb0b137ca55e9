#include "support/checkout.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string_view>

namespace grapplemont::test {

std::string Checkout(const std::string& name) {
  return CHECKOUT + name;
}

std::set<std::string> ScreenNames() {
  constexpr std::string_view kBefore = "\"frm";
  std::set<std::string> names;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(Checkout("/src"))) {
    if (entry.path().extension() != ".cpp") continue;
    std::ifstream in(entry.path());
    const std::string text{std::istreambuf_iterator<char>(in), {}};
    for (auto at = text.find(kBefore); at != text.npos; at = text.find(kBefore, at + 1)) {
      std::string name = text.substr(at + 1, text.find('"', at + 1) - at - 1);
      if (name.size() > 3 &&
          std::all_of(name.begin(), name.end(), [](char c) { return std::isalnum(c); }))
        names.insert(std::move(name));
    }
  }
  return names;
}

}  // namespace grapplemont::test
