#include <algorithm>

#include "fuzz/target.h"
#include "records/fields/wording.h"
#include "report/line.h"
#include "words/headings.h"
#include "words/tables/schema.h"
#include "words/tables/tablecheck.h"
#include "words/wordscheck.h"

// A file of words/, which the first byte names; and every line of it that passes is said.

namespace grapplemont::fuzz {
namespace {

void SayLine(const std::string& said, const Heading& heading) {
  const auto sound = [&](std::string_view slot) {
    const auto counted = ReadCounted(slot);
    const std::string name(counted ? counted->Name : slot);
    return heading.IsReport ? ReadHole(slot).Is != Hole::Bad
                            : std::ranges::find(heading.Slots, name) != heading.Slots.end();
  };
  ReadHoles(
      said,
      [&](std::string_view words) {
        Require(words.find_first_of("{}[]") == words.npos, "a bracket is said: " + said);
      },
      [&](std::string_view slot) { Require(sound(slot), "a slot is unknown: " + said); });
  FillHoles(said, [](std::string_view slot) { return std::string(slot); });
}

void SayAll(const WordsFile& file, const WordsText& text) {
  for (const WordSection& section : text.Sections) {
    const Heading* heading = FindHeading(file, section.Heading.Text);
    if (!heading) continue;
    for (const NumberedLine& line : section.Lines) {
      if (!WhyNoLine(line.Text, *heading).empty()) continue;
      const std::string_view bare = ReadTags(line.Text).Text;
      for (int way = 0; way <= WaysToSay(bare); ++way) SayLine(SaidIn(bare, way), *heading);
    }
  }
}

/// Brackets and braces of any kind are taken as they stand.
void SayAnything(std::string_view line) {
  WhyNoWays(line);
  for (int way = 0; way < std::min(WaysToSay(line), 8); ++way) SaidIn(line, way);
  std::string pieces;
  ReadHoles(
      line, [&](std::string_view words) { pieces += words; },
      [&](std::string_view slot) {
        pieces += "{" + std::string(slot) + "}";
        ReadHole(slot);
        ReadCounted(slot);
      });
  Require(pieces == line, "a line is more than its pieces");
}

void Read(ByteSpan bytes) {
  static const std::vector<WordsFile> files = AllWordsFiles();
  static const std::vector<TableFile>& tables = AllTableFiles();
  Input in(bytes);
  const auto which = static_cast<std::size_t>(in.Byte()) % (files.size() + tables.size());
  const std::string_view utf8 = TextOf(in.Rest());
  const WordsText text = ReadWordsText(utf8);
  for (const WordSection& section : text.Sections)
    for (const NumberedLine& line : section.Lines) SayAnything(line.Text);
  if (which < files.size()) {
    WordsCheck check("words");
    check.Check(files[which], text);
    SayAll(files[which], text);
  } else {
    std::vector<std::string> mistakes;
    ReadTables(tables[which - files.size()], text, mistakes);
  }
}

const Registered kWords({.Name = "words", .Run = Read, .Cases = 300, .Most = 1024});

}  // namespace
}  // namespace grapplemont::fuzz
