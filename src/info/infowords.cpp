#include "info/infowords.h"

#include <algorithm>
#include <cctype>

#include "records/fields/wording.h"

namespace grapplemont {

std::string FillLine(std::string_view line, const LineWords& words) {
  std::string text = FillHoles(line, [&](std::string_view name) {
    const auto found = std::find_if(words.begin(), words.end(),
                                    [=](const auto& word) { return word.first == name; });
    return found == words.end() ? "{" + std::string(name) + "}" : found->second;
  });
  if (!text.empty()) text[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(text[0])));
  return text;
}

std::string WithArticle(std::string_view name) {
  constexpr std::string_view kArticle = "The ";
  if (name.starts_with(kArticle)) name.remove_prefix(kArticle.size());
  return "the " + std::string(name);
}

}  // namespace grapplemont
