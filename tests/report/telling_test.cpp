#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <regex>

#include "records/angles.h"
#include "records/segments.h"
#include "report/report.h"
#include "report/voices.h"
#include "support/randomworld.h"
#include "support/smallworld.h"

// What a report says beside the bout itself.

namespace grapplemont {
namespace {

using test::Change;
using test::SmallWorld;

/// Eight fighters and two to run in, all named of one letter: "Ann Aa" to "Jann Jj".
SmallWorld Ten(bool men = true) {
  SmallWorld small;
  small.Promotion("CWA");
  for (char letter = 'a'; letter <= 'j'; ++letter)
    small.Worker(std::string(1, static_cast<char>(letter - 32)) + "oe " +
                     std::string(1, static_cast<char>(letter - 32)) + letter + "x",
                 [letter, men](Worker& w) {
                   w.ShortName = std::string(1, static_cast<char>(letter - 32)) + letter + "x";
                   w.Gender = men;
                   w.Finisher1 = "Harbor Lights";
                 });
  return small;
}

Segment Match(int style, int type = 1) {
  Segment segment = EmptySegment();
  segment.Kind = kMatch;
  segment.Style = style;
  segment.MatchType = type;
  for (int place = 1; place <= 8; ++place)
    segment.Worker[static_cast<std::size_t>(place - 1)] = place;
  segment.Winner = 1;
  segment.Loser = style == kSingles || style == kThreeWay || style == kFourWay ? 2
                  : style == kTag || style == kThreeTeams                      ? 3
                                                                               : 5;
  segment.Finish = FinishesOf(style).empty() ? 0 : kClean;
  return segment;
}

constexpr std::size_t kLongestName = 80;

/// Whether a slot could have become this.
bool CouldBe(std::string_view slot, std::string_view words) {
  const Hole hole = ReadHole(slot);
  if (hole.Is == Hole::Word || hole.Is == Hole::ThingWord) {
    const Sexed& row = kSexed[hole.Number];
    return words == row.Man || words == row.Woman || words == row.Several ||
           (!words.empty() &&
            std::string(1, static_cast<char>(words[0] + 32)) + std::string(words.substr(1)) ==
                row.Man);
  }
  if (hole.Is == Hole::Thing)
    return words.ends_with("Crown") || words.ends_with("Titles") || words == "CWA Wrestling";
  return words.ends_with("x") || words.ends_with("team");  // everybody's name ends so
}

bool Matches(std::string_view line, std::string_view text) {
  if (line.empty()) return true;
  if (line[0] != '{')
    return !text.empty() && line[0] == text[0] && Matches(line.substr(1), text.substr(1));
  const auto close = line.find('}');
  const std::string_view slot = line.substr(1, close - 1), rest = line.substr(close + 1);
  for (std::size_t size = 0; size <= std::min(kLongestName, text.size()); ++size) {
    if (CouldBe(slot, text.substr(0, size)) && Matches(rest, text.substr(size))) return true;
    if (size < text.size() && std::string_view(".!?:").find(text[size]) != std::string_view::npos)
      return false;
  }
  return false;
}

/// Whether the text has a line of this band in it.
bool Has(const std::string& text, int voice, Family family, int band) {
  for (const Line& line : BlockOf(voice, family, band)->All()) {
    std::string_view words = line.Text;
    while (words.ends_with(' ')) words.remove_suffix(1);
    for (std::size_t at = 0; at < text.size(); ++at)
      if ((at == 0 || text[at - 1] == ' ' || text[at - 1] == '\n') &&
          Matches(words, std::string_view(text).substr(at)))
        return true;
  }
  return false;
}

/// Whether it has this word, in this case of letters.
bool HasWord(const std::string& text, std::string_view word) {
  const auto isLetter = [&](std::size_t at) {
    return at < text.size() && std::isalpha(static_cast<unsigned char>(text[at])) != 0;
  };
  for (auto at = text.find(word); at != std::string::npos; at = text.find(word, at + 1))
    if (!(at > 0 && isLetter(at - 1)) && !isLetter(at + word.size())) return true;
  return false;
}

class Telling : public testing::TestWithParam<int> {
 protected:
  std::string Tell(World& world, const Segment& segment, const Scene& scene = {}) {
    world.Game().Reporter = GetParam();
    LineMemory memory;
    return WriteReport(world, segment, scene, memory);
  }
  /// Expects a line of this band; where nothing is to be said, no line of the family. A short voice
  /// may use the same words for two outcomes, so that the other bands prove nothing.
  void ExpectBand(const std::string& text, Family family, int band, int bands) {
    const std::string where = std::string(RowOf(family).Name) + " in\n" + text;
    if (band >= 0) {
      EXPECT_TRUE(Has(text, GetParam(), family, band)) << band << " " << where;
      return;
    }
    for (int each = 0; each < bands; ++each)
      EXPECT_FALSE(Has(text, GetParam(), family, each)) << each << " " << where;
  }
};
INSTANTIATE_TEST_SUITE_P(Each, Telling, testing::Values(kLamplighter, kTolland, kQvd));

constexpr int kNothing = -1;

struct TitleCase {
  int Winner, Finish, Champion;
  int Stake, Outcome;
};

TEST_P(Telling, SaysWhatIsAtStakeAndWhatBecomesOfIt) {
  World world = Ten().Title("Harbor Crown").Game("CWA");
  for (const TitleCase& each : {
           TitleCase{1, kClean, 1, kDefended, kRetained},
           {1, kCountOut, 1, kDefended, kRetained},
           {1, kClean, 2, kDefended, kNewChampion},
           {1, kCheating, 2, kDefended, kNewChampion},
           {1, kInterference, 2, kDefended, kNewChampion},
           {1, kCountOut, 2, kDefended, kKeptThoughBeaten},
           {1, kDqThroughInterference, 2, kDefended, kKeptThoughBeaten},
           {0, kDoubleCountOut, 2, kDefended, kKeptByDraw},
           {1, kClean, 0, kVacant, kVacancyFilled},
           {1, kCountOut, 0, kVacant, kNothing},
           {0, kDoubleDq, 0, kVacant, kNothing},
           {1, kClean, 5, kChampionAway, kWonInAbsence},
           {1, kCountOut, 5, kChampionAway, kNothing},
       }) {
    Segment segment = Match(kSingles);
    segment.TitleName = "Harbor Crown";
    segment.Winner = each.Winner;
    segment.Loser = each.Winner == 0 ? kNoLoser : 2;
    segment.Finish = each.Finish;
    segment.Other1 = 9;
    const std::string text = Tell(world, segment, {false, each.Champion, 0});
    ExpectBand(text, Family::TitleOpening, each.Stake, kTitleStakes);
    ExpectBand(text, Family::TitleEnding, each.Outcome, kTitleOutcomes);
    EXPECT_EQ(text.find("Eex"), std::string::npos) << text;
  }
}

TEST_P(Telling, SpeaksOfSeveralTitlesAsSeveral) {
  World world = Ten().Title("Tide Titles", "Aoe Aax", "Boe Bbx").Game("CWA");
  Segment segment = Match(kTag);
  segment.TitleName = "Tide Titles";
  for (int i = 0; i < 8; ++i) {
    const std::string text = Tell(world, segment, {false, 1, 2});
    for (const char* verb : {"is", "has", "stays", "belongs", "changes", "goes", "does"})
      EXPECT_FALSE(HasWord(text, std::string("Tide Titles ") + verb)) << text;
  }
}

TEST_P(Telling, MentionsChampionsOfBothKinds) {
  World world =
      Ten().Title("Harbor Crown", "Aoe Aax").Title("Tide Titles", "Coe Ccx", "Doe Ddx").Game("CWA");
  for (const auto& [first, second, style, told] : {std::tuple(1, 2, kSingles, "Harbor Crown"),
                                                   {2, 5, kSingles, ""},
                                                   {3, 2, kSingles, ""},
                                                   {2, 1, kThreeWay, "Harbor Crown"}}) {
    Segment segment = Match(style);
    segment.Worker[0] = first;
    segment.Worker[1] = second;
    segment.Worker[2] = 6;
    segment.Winner = first;
    segment.Loser = second;
    const std::string text = Tell(world, segment);
    EXPECT_EQ(Has(text, GetParam(), Family::ChampionNote, 0), *told != 0) << text;
    EXPECT_NE(text.find(told), std::string::npos) << text;
  }
  Segment tag = Match(kTag);
  for (const int place : {0, 1}) tag.Worker[static_cast<std::size_t>(place)] = 5 + place;
  tag.Winner = 5;
  EXPECT_NE(Tell(world, tag).find("the Tide Titles"), std::string::npos);
  tag.Worker[3] = 7;  // one half of them is not both
  EXPECT_EQ(Tell(world, tag).find("Tide Titles"), std::string::npos);
}

TEST_P(Telling, TellsFeudsInEveryStyle) {
  for (const auto& [style, heat] : {std::pair(kSingles, 50),
                                    {kThreeWay, 49},
                                    {kFourWay, 90},
                                    {kTag, 0},
                                    {kThreeOnThree, 50},
                                    {kFourOnFour, 10}}) {
    const int rival = style == kThreeOnThree || style == kFourOnFour ? 5 : style == kTag ? 3 : 2;
    const std::string other(1, static_cast<char>('A' + rival - 1));
    World world =
        Ten()
            .Game("CWA")
            .Feud("Aoe Aax", other + "oe " + other + static_cast<char>('a' + rival - 1) + "x",
                  [heat](Feud& feud) { feud.Heat = heat; })
            .Build();
    const std::string text = Tell(world, Match(style));
    ExpectBand(text, Family::FeudOpening, heat >= 50 ? kBoils : kSimmers, kBoils + 1);
    EXPECT_TRUE(Has(text, GetParam(), Family::FeudEnding, kFeudGoesOn)) << text;
  }
  World world = Ten().Game("CWA").Feud("Aoe Aax", "Boe Bbx").Build();
  Segment last = Match(kSingles);
  last.Purpose = purpose1::kEndFeud;
  ExpectBand(Tell(world, last), Family::FeudEnding, kFeudIsOver, kFeudIsOver + 1);
  World friends = Ten().Game("CWA").Feud("Aoe Aax", "Coe Ccx").Build();
  const std::string text = Tell(friends, Match(kSingles));
  EXPECT_FALSE(Has(text, GetParam(), Family::FeudOpening, kSimmers)) << text;
  EXPECT_FALSE(Has(text, GetParam(), Family::FeudEnding, kFeudGoesOn)) << text;
}

struct PurposeCase {
  int Style, Purpose, Told;
};

TEST_P(Telling, SaysWhatAMatchWasBookedFor) {
  World world = Ten().Game("CWA");
  for (const PurposeCase& each : {PurposeCase{kSingles, purpose1::kNone, kNothing},
                                  {kSingles, purpose1::kGoodMatch, kGoodMatchTold},
                                  {kSingles, purpose1::kPutWinnerOver, kPutOverTold},
                                  {kSingles, purpose1::kPutRunIn2Over, kPutOverTold},
                                  {kSingles, purpose1::kPutBothOver, kBothOverTold},
                                  {kSingles, purpose1::kEyeCandy, kEyeCandyTold},
                                  {kSingles, purpose1::kDebutRunIn, kRunInDebutTold},
                                  {kSingles, purpose1::kDebutFirst, kNothing},
                                  {kTag, purpose2::kGoodMatch, kGoodMatchTold},
                                  {kTag, purpose2::kPutWorker4Over, kPutOverTold},
                                  {kTag, purpose2::kPutBothOver, kBothOverTold},
                                  {kTag, purpose2::kDebutOthers12, kRunInDebutTold},
                                  {kTag, purpose2::kNone, kNothing}}) {
    Segment segment = Match(each.Style);
    segment.Purpose = each.Purpose;
    segment.Other1 = 9;
    segment.Other2 = 10;
    const std::string text = Tell(world, segment);
    ExpectBand(text, Family::PurposeEnding, each.Told, kPurposesTold);
    EXPECT_EQ(Has(text, GetParam(), Family::DebutOpening, 0),
              each.Style == kSingles && each.Purpose == purpose1::kDebutFirst)
        << text;
  }
}

struct TurnCase {
  const char* Disposition;
  bool Pending;
  int Told;
};

TEST_P(Telling, TellsATurnByWhereTheTurnerStands) {
  for (const TurnCase& each : {TurnCase{"F", true, kTurnsHeel},
                               {"H", true, kTurnsFace},
                               {"T", true, kTweenerTurns},
                               {"F", false, kBaffling},
                               {"T", false, kBaffling}}) {
    World world = Ten().Game("CWA");
    world.Workers()[1].Disposition = each.Disposition;
    world.Workers()[1].TurnPending = each.Pending;
    Segment match = Match(kSingles);
    match.Purpose = purpose1::kTurnWinner;
    Segment talk = EmptySegment();
    talk.Kind = kInterview;
    talk.Style = kSingleTalk;
    talk.Purpose = kTalkTurn;
    talk.Worker[0] = 1;
    for (const Segment& segment : {match, talk}) {
      ExpectBand(Tell(world, segment, {false, 0, 0, {1}}), Family::Turn, each.Told, kTurnsTold);
      ExpectBand(Tell(world, segment), Family::Turn, kNothing, kTurnsTold);  // no occasion
    }
  }
}

TEST(Aftermath, SetsThreeOnWhomTheRunInAttacked) {
  for (const auto& [finish, victim] :
       {std::pair(kInterference, "Ccx"), std::pair(kDqThroughInterference, "Aax")}) {
    World world = Ten().Game("CWA");
    world.Game().Reporter = kQvd;
    Segment match = Match(kTag);
    match.Finish = finish;
    match.Aftermath = after2::kThreeOnTwo;
    match.Other1 = 9;
    LineMemory memory;
    const std::string text = WriteReport(world, match, {}, memory);
    std::smatch beaten;
    ASSERT_TRUE(std::regex_search(text, beaten, std::regex("([\\w ]*) (buried|outnumbered)\\.")))
        << text;
    EXPECT_NE(beaten.str(1).find(victim), std::string::npos) << text;
  }
}

/// Words for a man in a report of women alone, or the reverse; empty for none.
std::string WrongSex(std::string text, bool men) {
  // The one who goes down here is the referee.
  const std::string referee = "as he goes down after accidentally getting caught";
  for (auto at = text.find(referee); at != std::string::npos; at = text.find(referee))
    text.erase(at, referee.size());
  constexpr const char* kOfWomen[] = {"she", "her", "hers", "herself", "She", "Her"};
  constexpr const char* kOfMen[] = {"he", "him", "his", "himself", "He", "His"};
  for (const char* word : men ? kOfWomen : kOfMen)
    if (HasWord(text, word)) return std::string(word) + " in " + text;
  return "";
}

TEST_P(Telling, SpeaksOfWomenAsWomenAndOfMenAsMen) {
  test::Dice dice(GetParam() + 1);
  for (const bool men : {true, false}) {
    World world = Ten(men).Title("Harbor Crown", "Aoe Aax").Game("CWA");
    for (Worker& worker : world.Workers()) worker.TurnPending = worker.Uid % 2 == 0;
    for (int i = 0; i < 500; ++i) {
      Segment segment = EmptySegment();
      segment.Kind = dice.From(1, 3);
      if (segment.Kind == kMatch) {
        const MatchTypeRow& type =
            kMatchTypes[dice.From(0, static_cast<int>(std::size(kMatchTypes)) - 1)];
        segment = Match(type.Style, type.Code);
        segment.Finish = dice.From(1, 13);
        segment.Aftermath = dice.From(1, 27);
        if (dice.OneIn(3)) segment.TitleName = "Harbor Crown";
      } else {
        segment.Style = dice.From(1, segment.Kind == kInterview ? 4 : 79);
      }
      segment.Purpose = dice.From(1, segment.Kind == kInterview ? 6 : 41);
      for (int place = 1; place <= 8; ++place)
        segment.Worker[static_cast<std::size_t>(place - 1)] = place;
      segment.Other1 = 9;
      segment.Other2 = 10;
      EXPECT_EQ(WrongSex(Tell(world, segment, {false, dice.From(0, 3), 0}), men), "");
    }
  }
}

}  // namespace
}  // namespace grapplemont
