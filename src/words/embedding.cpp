#include "words/embedding.h"

#include <algorithm>
#include <sstream>

#include "records/fields/wording.h"
#include "words/tables/schema.h"
#include "words/units.h"
#include "words/wordscheck.h"

namespace grapplemont {

namespace {

namespace fs = std::filesystem;

/// "lamplighter-finishes.cpp" of "lamplighter/finishes.txt".
std::string UnitOf(const std::string& path) {
  std::string name = fs::path(path).replace_extension(".cpp").generic_string();
  std::replace(name.begin(), name.end(), '/', '-');
  return name;
}

/// In a report the next line follows on this one.
std::string AsSaid(const std::string& text, const Heading& heading) {
  return heading.IsReport && !text.ends_with(" {.}") ? text + " " : text;
}

/// The compile unit of a sound file.
std::string CodeOf(const WordsFile& file, const WordsText& text) {
  std::ostringstream lines, blocks, out;
  std::size_t first = 0;
  for (const WordSection& section : text.Sections) {
    const Heading& heading = *FindHeading(file, section.Heading.Text);
    blocks << "    {" << heading.Number << ", " << heading.Band << ", kAll.subspan(" << first
           << ", " << section.Lines.size() << ")},\n";
    for (const NumberedLine& line : section.Lines)
      lines << "    " << Quoted(AsSaid(line.Text, heading)) << ",\n";
    first += section.Lines.size();
  }
  out << "// Made by the build from words/" << file.Path
      << ".\n#include \"records/fields/wording.h\"\n\n"
      << "namespace grapplemont::" << file.Module << " {\n\nnamespace {\n\n"
      << "constexpr std::string_view kLines[] = {\n"
      << lines.str() << "};\n"
      << "constexpr std::span<const std::string_view> kAll = kLines;\n"
      << "constexpr Block kBlocks[] = {\n"
      << blocks.str() << "};\n\n}  // namespace\n\n"
      << "Blocks " << file.Function << "() {\n  return kBlocks;\n}\n\n"
      << "}  // namespace grapplemont::" << file.Module << "\n";
  return out.str();
}

/// Files that nobody reads: a slip in a name would hide one.
void CheckNames(const fs::path& words, const std::vector<WordsFile>& files, WordsCheck& check) {
  std::vector<std::string_view> known;
  for (const WordsFile& file : files) known.push_back(file.Path);
  for (const TableFile& file : AllTableFiles()) known.push_back(file.Path);
  std::vector<std::string> strangers;
  for (const auto& entry : fs::recursive_directory_iterator(words)) {
    const std::string path = entry.path().lexically_relative(words).generic_string();
    if (entry.path().extension() == ".txt" &&
        std::find(known.begin(), known.end(), path) == known.end())
      strangers.push_back(path);
  }
  std::sort(strangers.begin(), strangers.end());
  for (const std::string& path : strangers)
    check.Report(path, 1, "the program reads no such file" + DidYouMean(path, known));
}

}  // namespace

std::vector<std::string> EmbedWords(const fs::path& words, const fs::path& out) {
  const auto files = AllWordsFiles();
  WordsCheck check(words.filename().generic_string());
  std::vector<WordsText> texts;
  for (const WordsFile& file : files) {
    const auto bytes = BytesOf(words / file.Path);
    texts.push_back(ReadWordsText(bytes.value_or("")));
    if (bytes)
      check.Check(file, texts.back());
    else
      check.Report(file.Path, 1, "this file is missing");
  }
  CheckNames(words, files, check);
  if (!check.Mistakes().empty()) return check.Mistakes();
  fs::create_directories(out);
  for (std::size_t i = 0; i < files.size(); ++i)
    WriteIfNew(out / UnitOf(files[i].Path), CodeOf(files[i], texts[i]));
  return {};
}

}  // namespace grapplemont
