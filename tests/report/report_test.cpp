#include "report/report.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "records/angles.h"
#include "records/segments.h"
#include "support/randomworld.h"
#include "support/smallworld.h"

namespace grapplemont {
namespace {

using test::Dice;
using test::SmallWorld;

constexpr int kRoster = 34;  // workers 1 to 30 fight, 31 to 34 run in

std::string NameOf(int number) {
  return "Aab" + std::string(1, static_cast<char>('a' + number / 10)) +
         std::string(1, static_cast<char>('a' + number % 10)) + " Zulu" + std::to_string(number);
}

World Roster() {
  SmallWorld small;
  small.Promotion("CWA");
  for (int i = 1; i <= kRoster; ++i)
    small.Worker(NameOf(i), [i](Worker& w) {
      w.ShortName = "Zulu" + std::to_string(i);
      w.Gender = i % 3 != 0;
      w.Brawl = i * 3;
      w.Technical = 100 - i * 3;
      w.Speed = (i * 37) % 100;
      w.TurnPending = i % 2 == 0;
      w.Finisher1 = "Harbor Lights";
    });
  small.Team("Dock Rats", NameOf(1), NameOf(2)).Stable("The Fog");
  small.Title("Harbor", NameOf(1));
  return small.Game("CWA");
}

Segment Match(int style, int type) {
  Segment segment = EmptySegment();
  segment.Kind = kMatch;
  segment.Style = style;
  segment.MatchType = type;
  for (int place = 1; place <= EntrantsOf(segment); ++place)
    segment.Worker[static_cast<std::size_t>(place - 1)] = place;
  return segment;
}

/// The faults that no report may have, whatever it is about.
void ExpectSound(const World& world, const Segment& segment, const std::string& text) {
  const std::string what = "style " + std::to_string(segment.Style) + ", type " +
                           std::to_string(segment.MatchType) + ", finish " +
                           std::to_string(segment.Finish) + ", aftermath " +
                           std::to_string(segment.Aftermath) + ":\n" + text;
  for (const char* fault : {"  ", "{", "}", " .", " ,", "\n\n", "None"})
    ASSERT_EQ(text.find(fault), std::string::npos) << "'" << fault << "' in " << what;
  ASSERT_FALSE(text.ends_with(' ')) << what;
  for (const Worker& worker : world.Workers())
    if (!TakesPart(segment, worker.Uid)) {
      const std::string name = worker.ShortName.Str();
      for (auto at = text.find(name); at != std::string::npos; at = text.find(name, at + 1))
        ASSERT_TRUE(at + name.size() < text.size() && isdigit(text[at + name.size()]))
            << name << " in " << what;
    }
}

std::string Last(const std::string& text, std::size_t paragraphs) {
  std::size_t at = text.size();
  for (std::size_t i = 0; i < paragraphs && at != std::string::npos && at > 0; ++i)
    at = text.rfind('\n', at - 1);
  return at == std::string::npos ? text : text.substr(at);
}

class VoiceReport : public testing::TestWithParam<int> {};
INSTANTIATE_TEST_SUITE_P(Each, VoiceReport, testing::Values(kLamplighter, kTolland, kQvd));

std::string Report(World& world, const Segment& segment) {
  LineMemory memory;
  return WriteReport(world, segment, {}, memory);
}

void BookDecision(Segment& segment) {
  const int entrants = EntrantsOf(segment);
  segment.Winner = 1;
  const int perSide = FindMatchStyle(segment.Style)->PerSide;
  segment.Loser = segment.Style == kSpecial ? 2 : perSide + 1;
  if (segment.Style == kFourOnFour && segment.MatchType == kSurvivor) {
    Word* places[] = {&segment.Loser,  &segment.Place3, &segment.Place4, &segment.Place5,
                      &segment.Place6, &segment.Place7, &segment.Place8};
    const int order[] = {5, 2, 6, 3, 7, 8, 0};
    for (int i = 0; i < 7; ++i) *places[i] = order[i];
  } else if (segment.MatchType == kElimination && segment.Style <= kFourTeams) {
    if (perSide * 2 < entrants) segment.Place3 = perSide * 2 + 1;
    if (perSide * 3 < entrants) segment.Place4 = perSide * 3 + 1;
  }
}

TEST_P(VoiceReport, TellsEveryBookableMatchWithItsResultAndItsPeopleAlone) {
  World world = Roster();
  world.Game().Reporter = GetParam();
  for (const MatchTypeRow& type : kMatchTypes) {
    const Phrases finishes = FinishesOf(type.Style), aftermaths = AftermathsOf(type.Style);
    for (std::size_t f = 0; f < std::max<std::size_t>(finishes.size(), 1); ++f)
      for (std::size_t a = 0; a < std::max<std::size_t>(aftermaths.size(), 1); ++a) {
        Segment segment = Match(type.Style, type.Code);
        BookDecision(segment);
        segment.Finish = finishes.empty() ? 0 : finishes[f].Code;
        segment.Aftermath = aftermaths.empty() ? 0 : aftermaths[a].Code;
        if (!finishes.empty()) {
          segment.Other1 = 31;
          segment.Other2 = 32;
          segment.Other3 = 33;
          segment.Other4 = 34;
        }
        const std::string text = Report(world, segment);
        ExpectSound(world, segment, text);
        if (HasFatalFailure()) return;
        EXPECT_NE(Last(text, 3).find("Zulu1"), std::string::npos) << text;
      }
  }
}

/// The uid 1, which also says that nobody is named, is somebody's.
TEST_P(VoiceReport, NamesTheFirstWorkerWhenHeLoses) {
  World world = Roster();
  world.Game().Reporter = GetParam();
  for (const MatchTypeRow& type : kMatchTypes) {
    if (type.Style != kSingles && type.Style != kTag && type.Style != kThreeWay) continue;
    Segment segment = Match(type.Style, type.Code);
    segment.Winner = type.Style == kTag ? 3 : 2;
    segment.Loser = 1;
    if (type.Style == kThreeWay && type.Code == kElimination) segment.Place3 = 3;
    segment.Finish = FinishesOf(type.Style).empty() ? 0 : int(kClean);
    const std::string text = Report(world, segment);
    ExpectSound(world, segment, text);
    EXPECT_NE(Last(text, 3).find("Zulu1"), std::string::npos) << text;
  }
}

TEST_P(VoiceReport, TellsDrawsWithoutAWinner) {
  World world = Roster();
  world.Game().Reporter = GetParam();
  for (const int style : {kSingles, kTag, kThreeOnThree, kFourOnFour})
    for (const Phrase& finish : FinishesOf(style)) {
      Segment segment = Match(style, 1);
      segment.Loser = kNoLoser;
      segment.Finish = finish.Code;
      if (style <= kTag) segment.Other1 = 31;
      const std::string text = Report(world, segment);
      ExpectSound(world, segment, text);
      for (const char* claim : {"Zulu1 wins", "Zulu2 wins", "Zulu1 defeats", "Zulu2 defeats"})
        EXPECT_EQ(text.find(claim), std::string::npos) << text;
    }
}

TEST_P(VoiceReport, TellsEveryInterviewAndAngle) {
  World world = Roster();
  world.Game().Reporter = GetParam();
  for (const InterviewStyleRow& style : kInterviewStyles)
    for (int purpose = kVerbalAttack; purpose <= kTalkNone; ++purpose)
      for (const int targets : {0, style.Targets}) {
        Segment segment = EmptySegment();
        segment.Kind = kInterview;
        segment.Style = style.Code;
        segment.Purpose = purpose;
        for (int place = 1; place <= style.Speakers + targets; ++place)
          segment.Worker[static_cast<std::size_t>(place - 1)] = place;
        const std::string text = Report(world, segment);
        EXPECT_FALSE(text.empty());
        ExpectSound(world, segment, text);
        if (HasFatalFailure()) return;
      }
  for (const Angle& angle : AllAngles())
    for (const bool withAll : {true, false}) {
      Segment segment = EmptySegment();
      segment.Kind = kAngle;
      segment.Style = angle.Number;
      for (const Role& role : angle.Roles)
        if (role.Place > 0 && (withAll || !role.Optional))
          segment.Worker[static_cast<std::size_t>(role.Place - 1)] = role.Place;
      if (HasStableRole(angle)) segment.Text = "The Fog";
      if (angle.Number == kAwardSingles || angle.Number == kAwardTag) segment.TitleName = "Harbor";
      const std::string text = Report(world, segment);
      EXPECT_GT(text.size(), 60U) << angle.Says;
      ExpectSound(world, segment, text);
      if (HasFatalFailure()) return;
      for (const Role& role : angle.Roles) {
        if (role.Place == 0 || (role.Optional && !withAll)) continue;
        const std::string name = "Zulu" + std::to_string(role.Place);
        EXPECT_TRUE(text.find(name) != std::string::npos ||
                    text.find("Dock Rats") != std::string::npos)
            << angle.Says << ": " << text;
      }
      EXPECT_EQ(text.find("The Fog") != std::string::npos, HasStableRole(angle)) << text;
    }
}

TEST(Report, OfAnySegmentIsSound) {
  World world = Roster();
  Dice dice(7);
  for (int i = 0; i < 4000; ++i) {
    Segment segment = EmptySegment();
    segment.Kind = dice.From(1, 3);
    segment.Style = dice.From(0, segment.Kind == kAngle ? 80 : 10);
    segment.MatchType = dice.From(0, 20);
    segment.Finish = dice.From(0, 14);
    segment.Aftermath = dice.From(0, 28);
    segment.Purpose = dice.From(0, 42);
    for (Word* field : {&segment.Winner, &segment.Loser, &segment.Place3, &segment.Place4,
                        &segment.Place5, &segment.Place6, &segment.Place7, &segment.Place8,
                        &segment.Other1, &segment.Other2, &segment.Other3, &segment.Other4})
      *field = dice.From(0, kRoster + 2);
    for (Word& worker : segment.Worker) worker = dice.From(0, kRoster + 2);
    if (dice.OneIn(2)) segment.TitleName = "Harbor";
    world.Game().Reporter = dice.From(0, 3);
    LineMemory memory;
    const std::string text =
        WriteReport(world, segment, {false, dice.From(0, 5), dice.From(0, 5)}, memory);
    for (const char* fault : {"  ", "{", "}", " .", " ,", "\n\n"})
      ASSERT_EQ(text.find(fault), std::string::npos) << fault << "\n" << text;
  }
}

TEST(IronMan, EndsItsBoutBeforeTheFallsAreSummedUp) {
  World world = Roster();
  Segment segment = Match(kSingles, kIronMan);
  BookDecision(segment);
  segment.Finish = kClean;
  const std::string text = Report(world, segment);
  const auto marker = text.find("END OF BOUT. ");
  ASSERT_NE(marker, std::string::npos) << text;
  EXPECT_NE(text.find("Zulu1 ", marker), std::string::npos) << text;
}

TEST(Survivor, EliminatesInTheBookedOrder) {
  World world = Roster();
  Segment segment = Match(kFourOnFour, kSurvivor);
  BookDecision(segment);
  segment.Finish = kClean;
  const std::string text = Report(world, segment);
  std::size_t at = text.find('\n');
  for (const int out : {5, 2, 6, 3, 7, 8}) {
    const std::size_t end = text.find('\n', at + 1);
    ASSERT_NE(end, std::string::npos) << text;
    const std::string paragraph = text.substr(at, end - at);
    EXPECT_NE(paragraph.find("Zulu" + std::to_string(out)), std::string::npos) << paragraph;
    at = end;
  }
}

}  // namespace
}  // namespace grapplemont
