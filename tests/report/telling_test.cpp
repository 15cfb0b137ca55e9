#include <gtest/gtest.h>

#include "records/angles.h"
#include "records/segmentparts.h"
#include "records/segments.h"
#include "report/report.h"
#include "report/ring.h"
#include "report/teller.h"
#include "report/tenworkers.h"
#include "support/randomworld.h"

// What a report says beside the bout itself.

namespace grapplemont {
namespace {

using test::HasWord;
using test::Match;
using test::Ten;

class Telling : public testing::TestWithParam<int> {
 protected:
  std::string Tell(World& world, const Segment& segment, Scene scene = {}) {
    world.Game().Reporter = GetParam();
    memory_ = {};
    scene.Feuds = FeudsAtTheBell(world);
    if (PurposeOf(segment).Does == Aim::EndsFeud) scene.Ends = scene.Feuds.back();
    return WriteReport(world, segment, scene, memory_);
  }
  /// Expects that lines of this band were drawn, and of no other of the family.
  void ExpectBand(const std::string& text, Family family, int band, int bands) {
    for (int each = 0; each < bands; ++each) {
      const Block* block = BlockOf(GetParam(), family, each);
      bool isDrawn = false;
      for (std::size_t line = 0; line < block->Lines.size(); ++line)
        isDrawn |= memory_.Used(block, static_cast<int>(line));
      EXPECT_EQ(isDrawn, each == band) << HeadingOf(family) << " " << each << " in\n" << text;
    }
  }

  bool Drawn(const Block* block, int line) const { return memory_.Used(block, line); }

 private:
  LineMemory memory_;
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
           {1, kClean, 2, kDefended, kNewChampion},
           {1, kCountOut, 2, kDefended, kKeptThoughBeaten},
           {0, kDoubleCountOut, 2, kDefended, kKeptByDraw},
           {1, kClean, 0, kVacant, kVacancyFilled},
           {1, kCountOut, 0, kVacant, kNothing},
           {1, kClean, 5, kChampionAway, kWonInAbsence},
           {1, kCountOut, 5, kChampionAway, kNothing},
       }) {
    Segment segment = Match(kSingles);
    segment.TitleName = "Harbor Crown";
    segment.Winner = each.Winner;
    segment.Loser = each.Winner == 0 ? kNoLoser : 2;
    segment.Finish = each.Finish;
    segment.Other1 = 9;
    const std::string text = Tell(world, segment, {each.Champion, 0});
    ExpectBand(text, Family::TitleOpening, each.Stake, kTitleStakes);
    ExpectBand(text, Family::TitleEnding, each.Outcome, kTitleOutcomes);
    EXPECT_EQ(text.find("Eex"), std::string::npos) << text;
  }
}

TEST_P(Telling, TellsFeudsInEveryStyle) {
  struct Case {
    const char* Rival;
    int Style, Heat, Purpose;
    int Opening, Ending;
  };
  for (const Case& c : {Case{"Boe Bbx", kSingles, 50, 0, kBoils, kFeudGoesOn},
                        {"Boe Bbx", kThreeWay, 49, 0, kSimmers, kFeudGoesOn},
                        {"Coe Ccx", kTag, 0, 0, kSimmers, kFeudGoesOn},
                        {"Eoe Eex", kFourOnFour, 90, 0, kBoils, kFeudGoesOn},
                        {"Boe Bbx", kSingles, 49, purpose1::kEndFeud, kSimmers, kFeudIsOver},
                        {"Coe Ccx", kSingles, 50, 0, kNothing, kNothing}}) {
    World world =
        Ten().Game("CWA").Feud("Aoe Aax", c.Rival, [&](Feud& feud) { feud.Heat = c.Heat; });
    Segment segment = Match(c.Style);
    segment.Purpose = c.Purpose;
    const std::string text = Tell(world, segment);
    ExpectBand(text, Family::FeudOpening, c.Opening, kBoils + 1);
    ExpectBand(text, Family::FeudEnding, c.Ending, kFeudIsOver + 1);
  }
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
                                  {kTag, purpose2::kPutWorker4Over, kPutOverTold},
                                  {kTag, purpose2::kDebutOthers12, kRunInDebutTold}}) {
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
  const char* Becomes;
  int Told;
};

TEST_P(Telling, TellsATurnByWhatItMakesOfTheTurner) {
  for (const TurnCase& each :
       {TurnCase{"H", kTurnsHeel}, {"F", kTurnsFace}, {"T", kTurnsTweener}, {"", kBaffling}}) {
    World world = Ten().Game("CWA");
    Segment match = Match(kSingles);
    match.Purpose = purpose1::kTurnWinner;
    Segment talk = EmptySegment();
    talk.Kind = kInterview;
    talk.Style = kSingleTalk;
    talk.Purpose = kTalkTurn;
    talk.Worker[0] = 1;
    for (const Segment& segment : {match, talk}) {
      ExpectBand(Tell(world, segment, {0, 0, {{1, each.Becomes}}}), Family::Turn, each.Told,
                 kTurnsTold);
      ExpectBand(Tell(world, segment), Family::Turn, kNothing, kTurnsTold);  // no occasion
    }
  }
}

/// The team feud ends; that of two in it stands in an earlier place, and goes on.
TEST_P(Telling, TellsTheFeudAsOverThatIs) {
  World world = Ten()
                    .Game("CWA")
                    .Feud("Aoe Aax", "Coe Ccx")
                    .TagFeud("Aoe Aax", "Boe Bbx", "Coe Ccx", "Doe Ddx");
  Segment match = Match(kTag);
  match.Purpose = purpose2::kEndFeud;
  const std::string text = Tell(world, match), last = text.substr(text.rfind('\n'));
  ExpectBand(text, Family::FeudEnding, kFeudIsOver, kFeudIsOver + 1);
  for (const char* name : {"Aax", "Bbx", "Ccx", "Ddx"}) EXPECT_TRUE(HasWord(last, name)) << last;
}

TEST_P(Telling, TellsATurnAsTheCrowdTakesIt) {
  World world = Ten().Game("CWA");
  Segment angle = EmptySegment();
  angle.Kind = kAngle;
  angle.Style = kFaceTurnAngle;
  angle.Worker[0] = 1;
  angle.Worker[1] = 2;
  const Turning hit{.Uid = 1, .Becomes = "F"}, flat{.Uid = 1, .Becomes = "F", .FellFlat = true},
      soon{.Uid = 1, .Becomes = "H", .CameTooSoon = true};
  for (const auto& [turning, told] :
       {std::pair(hit, kTurnsFace), {flat, kFellFlat}, {soon, kTooSoon}}) {
    const std::string text = Tell(world, angle, {.Turns = {turning}});
    ExpectBand(text, Family::Turn, told, kTurnsTold);
    EXPECT_EQ(text.find("  "), std::string::npos) << text;
  }
}

TEST_P(Telling, TellsAFeudAsTheirsWhoHaveIt) {
  World world = Ten().Game("CWA").Feud("Aoe Aax", "Boe Bbx");
  const std::string partners = Tell(world, Match(kFourOnFour));
  ExpectBand(partners, Family::FeudPartners, 0, 1);
  ExpectBand(partners, Family::FeudOpening, kNothing, kBoils + 1);
  ExpectBand(partners, Family::FeudEnding, kNothing, kFeudIsOver + 1);
  Segment apart = Match(kFourOnFour);
  std::swap(apart.Worker[1], apart.Worker[4]);
  const std::string text = Tell(world, apart);
  ExpectBand(text, Family::FeudPartners, kNothing, 1);
  const std::string ending = text.substr(text.rfind('\n'));
  for (const char* name : {"Ccx", "Ddx", "Eex", "Ffx", "Ggx", "Hhx"})
    EXPECT_FALSE(HasWord(ending, name)) << ending;
}

TEST_P(Telling, PraisesByTheRating) {
  World world = Ten().Game("CWA");
  Segment match = Match(kSingles);
  match.Purpose = purpose1::kGoodMatch;
  for (const auto& [overall, tag] :
       {std::pair(45, kLowTag), {46, kMidTag}, {80, kMidTag}, {81, kHighTag}})
    for (int i = 0; i < 20; ++i) {
      Scene scene;
      scene.Overall = overall;
      const std::string text = Tell(world, match, scene);
      const Block* block = BlockOf(GetParam(), Family::PurposeEnding, kGoodMatchTold);
      for (std::size_t line = 0; line < block->Lines.size(); ++line) {
        if (Drawn(block, static_cast<int>(line)))
          EXPECT_NE(ReadTags(block->Lines[line]).Tags & tag, 0U) << block->Lines[line];
      }
    }
}

TEST_P(Telling, EndsEveryRowWithTheBookedTwo) {
  World world = Ten().Game("CWA");
  world.Game().Reporter = GetParam();
  for (const MatchTypeRow& type : kMatchTypes) {
    const BoutRow* bout = FindBout(type.Style, type.Code);
    if (type.Style == kSpecial) continue;
    const Segment match = Match(type.Style, type.Code);
    for (const int winner : PeopleOf(match))
      for (const int loser : PeopleOf(match)) {
        if (SideOf(match, winner) == SideOf(match, loser)) continue;
        for (const Script row : bout->Rows) {
          const Scene scene;
          LineMemory memory;
          Teller teller(world, match, scene, memory);
          Ring ring(teller);
          Person *top = teller.cast.Find(world, winner), *under = teller.cast.Find(world, loser);
          ring.Play(row, bout->Spot, top, under);
          EXPECT_EQ(teller.cast.First('a'), top) << row << "\n" << teller.Text();
          EXPECT_EQ(teller.cast.First('d'), under) << row << "\n" << teller.Text();
        }
      }
  }
}

TEST_P(Telling, WritesOneStopBehindANameThatEndsInOne) {
  World world = Ten().Game("CWA");
  for (Worker& worker : world.Workers()) worker.ShortName = worker.ShortName.Str() + " Jr.";
  for (const MatchTypeRow& type : kMatchTypes) {
    const std::string text = Tell(world, Match(type.Style, type.Code));
    for (auto at = text.find("Jr.."); at != std::string::npos; at = text.find("Jr..", at + 1))
      EXPECT_EQ(text.substr(at, 5), "Jr...") << text;
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
      EXPECT_EQ(WrongSex(Tell(world, segment, {dice.From(0, 3), 0}), men), "");
    }
  }
}

}  // namespace
}  // namespace grapplemont
