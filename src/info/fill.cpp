#include "info/fill.h"

#include <algorithm>
#include <cctype>

namespace grapplemont {

std::string FillLine(std::string_view line, const LineWords& words) {
  std::string text;
  while (!line.empty()) {
    const std::size_t open = line.find('{');
    text += line.substr(0, open);
    if (open == std::string_view::npos) break;
    const std::size_t close = line.find('}', open);
    const std::string_view name = line.substr(open + 1, close - open - 1);
    const auto found = std::find_if(words.begin(), words.end(),
                                    [=](const auto& word) { return word.first == name; });
    if (found == words.end())
      text += line.substr(open, close - open + 1);
    else
      text += found->second;
    line.remove_prefix(close + 1);
  }
  if (!text.empty()) text[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(text[0])));
  return text;
}

std::string WithArticle(std::string_view name) {
  constexpr std::string_view kArticle = "The ";
  if (name.starts_with(kArticle)) name.remove_prefix(kArticle.size());
  return "the " + std::string(name);
}

}  // namespace grapplemont
