#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <regex>
#include <set>

#include "records/angles.h"
#include "records/segments.h"
#include "report/holds.h"
#include "report/report.h"
#include "report/ring.h"
#include "report/teller.h"
#include "support/randomworld.h"
#include "support/smallworld.h"

// What a report says beside the bout itself.

namespace grapplemont {
namespace {

using test::Change;
using test::Holds;
using test::Result;
using test::SmallWorld;

/// Fighters all named of one letter: "Aoe Aax" to "Joe Jjx", and behind the alphabet "Aoe Abx".
SmallWorld Crew(int count, bool men = true) {
  SmallWorld small;
  small.Promotion("CWA");
  for (int i = 0; i < count; ++i) {
    const std::string first(1, static_cast<char>('A' + i % 26));
    const std::string last = first + static_cast<char>('a' + (i + i / 26) % 26) + "x";
    small.Worker(first + "oe " + last, [&](Worker& w) {
      w.ShortName = last;
      w.Gender = men;
      w.Finisher1 = "Harbor Lights";
    });
  }
  return small;
}

/// Eight to fight and two to run in.
SmallWorld Ten(bool men = true) {
  return Crew(10, men);
}

Segment Match(int style, int type = 1) {
  Segment segment = EmptySegment();
  segment.Kind = kMatch;
  segment.Style = style;
  segment.MatchType = type;
  for (int place = 1; place <= std::max(8, EntrantsOf(segment)); ++place)
    segment.Worker[static_cast<std::size_t>(place - 1)] = place;
  segment.Winner = 1;
  segment.Loser = style == kSingles || style == kThreeWay || style == kFourWay ? 2
                  : style == kTag || style == kThreeTeams                      ? 3
                                                                               : 5;
  segment.Finish = FinishesOf(style).empty() ? 0 : kClean;
  return segment;
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
    memory_ = {};
    return WriteReport(world, segment, scene, memory_);
  }
  /// The lines of a band that the last report has drawn.
  std::vector<std::string_view> Drawn(Family family, int band) const {
    std::vector<std::string_view> drawn;
    const Block* block = BlockOf(GetParam(), family, band);
    for (std::size_t line = 0; line < block->Lines.size(); ++line)
      if (memory_.Used(block, static_cast<int>(line))) drawn.push_back(block->Lines[line]);
    return drawn;
  }
  /// Expects lines of this band and of no other of the family, and all of them in the text.
  void ExpectBand(const std::string& text, Family family, int band, int bands) {
    for (int each = 0; each < bands; ++each)
      EXPECT_EQ(!Drawn(family, each).empty(), each == band)
          << HeadingOf(family) << " " << each << " in\n"
          << text;
    if (band >= 0) ExpectLines(text, family, band, {});
  }
  /// Expects all lines of the band that were drawn in the text.
  void ExpectLines(const std::string& text, Family family, int band, const Result& result) {
    for (const std::string_view line : Drawn(family, band))
      EXPECT_TRUE(Holds(text, line, result)) << line << "\nis not in\n" << text;
  }

 private:
  LineMemory memory_;
};
INSTANTIATE_TEST_SUITE_P(Each, Telling, testing::Values(kLamplighter, kTolland, kQvd));

constexpr int kNothing = -1;

/// Books the order in which the sides, of a Survivor match the people, go behind the booked loser.
/// Gives who goes last.
int BookTheRest(Segment& segment, BoutShape shape) {
  if (shape != BoutShape::Elimination && shape != BoutShape::Survivor) return segment.Loser;
  Word* places[] = {&segment.Place3, &segment.Place4, &segment.Place5};
  std::set<int> gone = {SideOf(segment, segment.Winner)};
  if (shape == BoutShape::Elimination) gone.insert(SideOf(segment, segment.Loser));
  int booked = 0, last = segment.Loser;
  for (const int uid : PeopleOf(segment)) {
    if (uid == segment.Loser || gone.contains(SideOf(segment, uid))) continue;
    if (shape == BoutShape::Elimination) gone.insert(SideOf(segment, uid));
    *places[booked++] = last = uid;
  }
  return last;
}

/// The lines that end a match name the one who is booked to win as the winner and the other as the
/// loser, whichever way round it is booked.
TEST_P(Telling, SaysWhoHasWon) {
  World world = Crew(30).Game("CWA");
  for (const MatchTypeRow& type : kMatchTypes)
    for (const bool turnedRound : {false, true})
      for (int i = 0; i < 4; ++i) {  // for as many lines of a band
        Segment segment = Match(type.Style, type.Code);
        segment.Loser = type.Style == kSpecial ? 2 : FindMatchStyle(type.Style)->PerSide + 1;
        if (turnedRound) std::swap(segment.Winner, segment.Loser);
        const int last = BookTheRest(segment, FindBout(type.Style, type.Code)->Shape);
        const Result result = {world.FindWorker(segment.Winner)->ShortName.Str(),
                               world.FindWorker(last)->ShortName.Str()};
        const std::string text = Tell(world, segment);
        const int bout = Bout(type.Style, type.Code);
        EXPECT_FALSE(Drawn(Family::Closer, bout).empty()) << type.Says << ": " << text;
        for (const auto& [family, band] : {std::pair(Family::SinglesFinish, int(kClean)),
                                           {Family::TagFinish, kClean},
                                           {Family::ThreeCount, 0},
                                           {Family::TapOut, 0},
                                           {Family::LastTwo, 0},
                                           {Family::Closer, bout},
                                           {Family::IronSum, 0}})
          ExpectLines(text, family, band, result);
      }
}

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
    ExpectBand(text, Family::ChampionNote, *told != 0 ? 0 : kNothing, 1);
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
    ExpectBand(text, Family::FeudEnding, kFeudGoesOn, kFeudIsOver + 1);
  }
  World world = Ten().Game("CWA").Feud("Aoe Aax", "Boe Bbx").Build();
  Segment last = Match(kSingles);
  last.Purpose = purpose1::kEndFeud;
  ExpectBand(Tell(world, last), Family::FeudEnding, kFeudIsOver, kFeudIsOver + 1);
  World friends = Ten().Game("CWA").Feud("Aoe Aax", "Coe Ccx").Build();
  const std::string text = Tell(friends, Match(kSingles));
  ExpectBand(text, Family::FeudOpening, kNothing, kBoils + 1);
  ExpectBand(text, Family::FeudEnding, kNothing, kFeudIsOver + 1);
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
    const bool debut = each.Style == kSingles && each.Purpose == purpose1::kDebutFirst;
    ExpectBand(text, Family::DebutOpening, debut ? 0 : kNothing, 1);
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
