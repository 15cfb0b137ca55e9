#include "words/wordscheck.h"

#include <algorithm>
#include <map>

#include "records/fields/wording.h"
#include "words/linecheck.h"

namespace grapplemont {

namespace {

std::string NoSuchHeading(const WordsFile& file, const std::string& name) {
  std::vector<std::string_view> names;
  for (const Heading& heading : file.Headings) names.push_back(heading.Name);
  return "there is no heading \"" + name + "\" in this file" + DidYouMean(name, names);
}

/// "4 lines; 3 are needed"; empty where the number is right.
std::string WrongCount(int count, const Heading& heading) {
  if (count >= heading.Least && count <= heading.Most) return {};
  const bool isLess = count < heading.Least;
  const std::string bound = heading.Least == heading.Most ? "" : isLess ? "at least " : "at most ";
  return std::to_string(count) + " lines under this heading; needed are " + bound +
         std::to_string(isLess ? heading.Least : heading.Most);
}

}  // namespace

const Heading* FindHeading(const WordsFile& file, std::string_view name) {
  const auto found = std::find_if(file.Headings.begin(), file.Headings.end(),
                                  [&](const Heading& heading) { return heading.Name == name; });
  return found == file.Headings.end() ? nullptr : &*found;
}

void WordsCheck::Report(const std::string& path, int line, const std::string& what) {
  mistakes_.push_back(root_ + "/" + path + ":" + std::to_string(line) + ": " + what);
}

void WordsCheck::Check(const WordsFile& file, const WordsText& text) {
  for (const NumberedLine& mistake : text.Mistakes) Report(file.Path, mistake.Number, mistake.Text);
  std::map<std::string, int> seen;
  for (const Section& section : text.Sections) {
    const auto& [line, name] = section.Heading;
    const Heading* heading = FindHeading(file, name);
    const auto [first, isNew] = seen.emplace(name, line);
    if (!heading)
      Report(file.Path, line, NoSuchHeading(file, name));
    else if (!isNew)
      Report(file.Path, line,
             "this heading stands already in line " + std::to_string(first->second));
    else
      CheckSection(file, section, *heading);
  }
  for (const Heading& heading : file.Headings)
    if (!seen.contains(heading.Name))
      Report(file.Path, text.Last, "the heading \"" + heading.Name + "\" is missing");
}

void WordsCheck::CheckSection(const WordsFile& file, const Section& section,
                              const Heading& heading) {
  const std::string count = WrongCount(static_cast<int>(section.Lines.size()), heading);
  if (!count.empty()) Report(file.Path, section.Heading.Number, count);
  for (const NumberedLine& line : section.Lines) {
    const std::string why = WhyNoLine(line.Text, heading);
    if (!why.empty()) Report(file.Path, line.Number, why);
    CheckIsNew(file, line, heading);
  }
}

/// A voice never repeats itself; elsewhere two headings may share words.
void WordsCheck::CheckIsNew(const WordsFile& file, const NumberedLine& line,
                            const Heading& heading) {
  const std::string& whole = heading.IsReport ? file.Module : heading.Name;
  const std::string place = file.Path + ":" + std::to_string(line.Number);
  const auto [first, isNew] = said_.emplace(whole + "\n" + line.Text, place);
  if (!isNew) Report(file.Path, line.Number, "the same line stands in " + first->second);
}

}  // namespace grapplemont
