#include "report/voices.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>

#include "report/report.h"

namespace grapplemont {
namespace {

/// "Lamplighter OffenceA band 3".
std::string At(const VoiceTable& voice, const FamilyRow& row, int band) {
  return std::string(voice.Name) + ", " + std::string(row.Name) + ", band " + std::to_string(band);
}

std::set<char> PartsIn(std::string_view text) {
  std::set<char> parts;
  for (auto open = text.find('{'); open != std::string_view::npos; open = text.find('{', open)) {
    const auto close = text.find('}', open);
    const Hole hole = ReadHole(text.substr(open + 1, close - open - 1));
    if (hole.Part != 0) parts.insert(hole.Part);
    open = close;
  }
  return parts;
}

class VoiceTest : public testing::TestWithParam<int> {
 protected:
  const VoiceTable& Voice() const { return AllVoices()[static_cast<std::size_t>(GetParam())]; }
  std::vector<const Block*> Blocks() const {
    std::vector<const Block*> blocks;
    for (const auto& table :
         {Voice().Offence, Voice().Bouts, Voice().Finishes, Voice().Talk, Voice().Angles})
      for (const Block& block : table) blocks.push_back(&block);
    return blocks;
  }
};

std::string VoiceShort(const testing::TestParamInfo<int>& info) {
  constexpr const char* kShort[] = {"Lamplighter", "Tolland", "Qvd"};
  return kShort[info.param];
}

INSTANTIATE_TEST_SUITE_P(Each, VoiceTest, testing::Values(kLamplighter, kTolland, kQvd),
                         VoiceShort);

TEST_P(VoiceTest, HasEveryBandOfEveryFamilyWithTheRightNumberOfLines) {
  std::string missing;
  for (const FamilyRow& row : AllFamilies()) {
    if (row.Shared && GetParam() != kLamplighter) continue;
    for (int band = row.First; band <= row.Last; ++band) {
      if (!row.Has(band)) continue;
      const Block* block = OwnBlock(GetParam(), row.Of, band);
      if (!block)
        missing += At(Voice(), row, band) + "\n";
      else if (row.Exact)
        EXPECT_EQ(static_cast<int>(block->All().size()), row.Lines) << At(Voice(), row, band);
      else
        EXPECT_GE(static_cast<int>(block->All().size()), row.Lines) << At(Voice(), row, band);
    }
  }
  EXPECT_EQ(missing, "");
}

TEST_P(VoiceTest, NamesOnlyThePartsOfAFamilyAndAllThatItMust) {
  for (const Block* block : Blocks()) {
    const FamilyRow& row = RowOf(block->Of);
    for (const Line& line : block->All()) {
      const auto parts = PartsIn(line.Text);
      for (const char part : parts)
        EXPECT_NE(row.Parts.find(part), std::string_view::npos)
            << At(Voice(), row, block->Band) << " does not know {" << part << "}: " << line.Text;
      for (const char part : row.Must)
        EXPECT_EQ(parts.count(part), 1U)
            << At(Voice(), row, block->Band) << " needs {" << part << "}: " << line.Text;
    }
  }
}

TEST_P(VoiceTest, HoldsEachBlockOnceAndNoLineTwice) {
  std::set<std::pair<Family, int>> seen;
  std::map<std::string_view, std::string> lines;
  for (const Block* block : Blocks()) {
    const FamilyRow& row = RowOf(block->Of);
    EXPECT_TRUE(row.Has(block->Band)) << At(Voice(), row, block->Band);
    EXPECT_TRUE(seen.insert({block->Of, block->Band}).second) << At(Voice(), row, block->Band);
    for (const Line& line : block->All())
      EXPECT_TRUE(lines.emplace(line.Text, At(Voice(), row, block->Band)).second)
          << At(Voice(), row, block->Band) << " repeats " << lines[line.Text] << ": " << line.Text;
  }
}

/// A plain "he" in a line is right for half of all workers: sexed words stand in slots.
TEST_P(VoiceTest, WritesNoSexedWordIntoALine) {
  for (const Block* block : Blocks())
    for (const Line& line : block->All())
      for (const std::string_view word : {" herself", " himself"})
        EXPECT_EQ(line.Text.find(word), std::string_view::npos) << line.Text;
}

/// The slot of who loses, in whatever form, never stands where a line says who has won.
TEST_P(VoiceTest, LetsNoLoserWin) {
  for (const Block* block : Blocks())
    for (const Line& line : block->All())
      for (const char* slot : {"{l}", "{l:full}", "{l:short}", "{L}", "{L:members}"}) {
        for (const char* claim : {" wins", " win{", " defeats ", " beats {", " has won", " has it",
                                  " retain", " gets the duke", " is the winner", " gets the hand"})
          EXPECT_EQ(line.Text.find(std::string(slot) + claim), line.Text.npos) << line.Text;
        for (const char* claim : {"inner : ", "Winner ", "Win for ", "Music for ", "goes to "})
          EXPECT_EQ(line.Text.find(std::string(claim) + slot), line.Text.npos) << line.Text;
      }
}

TEST(Voices, TogetherHoldFifteenHundredDistinctLines) {
  std::set<std::string_view> lines;
  for (const VoiceTable& voice : AllVoices())
    for (const auto& table : {voice.Offence, voice.Bouts, voice.Finishes, voice.Talk, voice.Angles})
      for (const Block& block : table)
        for (const Line& line : block.All()) lines.insert(line.Text);
  EXPECT_GE(lines.size(), 1500U);
}

struct Mistake {
  const char* Text;
  bool IsLine;
};

TEST(Lines, AreSoundOrTheCompilerRefusesThem) {
  for (const Mistake& each : {Mistake{"{a} hits {d}. ", true},
                              {"{a} hits {d}.", false},
                              {"{a}  hits {d}. ", false},
                              {"{a hits. ", false},
                              {"a} hits. ", false},
                              {"{z} hits. ", false},
                              {"{a:hee} hits. ", false},
                              {"{a:himself} hits. ", true},
                              {"{?o}{o} looks on. {.}", true},
                              {"{?o}{o} looks on. ", false},
                              {"{o} looks on. {.}", false},
                              {"{?o}{?p}both. {.}", false},
                              {"{title} is at stake. ", true},
                              {"{titel} is at stake. ", false},
                              {"{title} {title:is} at stake. ", true},
                              {"{title:iss} at stake. ", false},
                              {"{titel:is} at stake. ", false}})
    EXPECT_EQ(WhyNoLine(each.Text) == nullptr, each.IsLine) << each.Text;
}

}  // namespace
}  // namespace grapplemont
