#include "words/wordstext.h"

#include "records/fields/charset.h"
#include "words/units.h"

namespace grapplemont {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF", kHeading = "==";

void TakeLine(WordsText& words, std::string_view line) {
  if (line.empty() || line == "#" || line.starts_with("# ")) return;
  const auto text = FromUtf8(line);
  if (!text)
    words.Mistakes.push_back(
        {words.Last, "the program has no such letter: " + FirstForeignLetter(line)});
  else if (line.starts_with(kHeading))
    words.Sections.push_back(
        {{words.Last, std::string(Trimmed(std::string_view(*text).substr(kHeading.size())))}, {}});
  else if (words.Sections.empty())
    words.Mistakes.push_back({words.Last, "a line before the first heading (\"== ...\")"});
  else
    words.Sections.back().Lines.push_back({words.Last, *text});
}

}  // namespace

WordsText ReadWordsText(std::string_view utf8) {
  if (utf8.starts_with(kByteOrderMark)) utf8.remove_prefix(kByteOrderMark.size());
  WordsText words;
  for (int number = 1; !utf8.empty(); ++number) {
    words.Last = number;
    const auto end = utf8.find('\n');
    TakeLine(words, Trimmed(utf8.substr(0, end)));
    utf8.remove_prefix(end == std::string_view::npos ? utf8.size() : end + 1);
  }
  return words;
}

}  // namespace grapplemont
