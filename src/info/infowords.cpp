#include "info/infowords.h"

#include <algorithm>
#include <cctype>

#include "records/fields/wording.h"

namespace grapplemont {

namespace {

/// A name that ends with a full stop needs none behind it; three are a pause.
std::string WithoutSecondStops(std::string text) {
  for (std::size_t at = 0; (at = text.find("..", at)) != text.npos;) {
    const std::size_t end = std::min(text.find_first_not_of('.', at), text.size());
    if (end - at == 2) text.erase(at, 1);
    at = end;
  }
  return text;
}

}  // namespace

std::string FillLine(std::string_view line, const LineWords& words) {
  std::string text = WithoutSecondStops(FillHoles(line, [&](std::string_view slot) {
    const auto counted = ReadCounted(slot);
    const std::string_view name = counted ? counted->Name : slot;
    const auto found = std::find_if(words.begin(), words.end(),
                                    [=](const auto& word) { return word.first == name; });
    if (found == words.end()) return "{" + std::string(slot) + "}";
    if (!counted) return found->second;
    const std::string form(found->second == "1" ? counted->One : counted->Many);
    return counted->SaysCount ? found->second + " " + form : form;
  }));
  if (!text.empty()) text[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(text[0])));
  return text;
}

std::string WithArticle(std::string_view name) {
  constexpr std::string_view kArticle = "The ";
  if (name.starts_with(kArticle)) name.remove_prefix(kArticle.size());
  return "the " + std::string(name);
}

}  // namespace grapplemont
