#include "report/report.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <set>
#include <sstream>

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

bool IsLetter(char letter) {
  return std::isalpha(static_cast<unsigned char>(letter)) != 0;
}

/// Everybody whom the text names, in full ("Aabab Zulu11") or in short ("Zulu11").
std::set<int> NamedIn(const std::string& text) {
  std::set<int> named;
  for (auto at = text.find("Zulu"); at != std::string::npos; at = text.find("Zulu", at + 1))
    named.insert(std::atoi(text.c_str() + at + 4));
  for (auto at = text.find("Aab"); at != std::string::npos; at = text.find("Aab", at + 1)) {
    const int number = (text[at + 3] - 'a') * 10 + text[at + 4] - 'a';
    EXPECT_EQ(text.substr(at, NameOf(number).size()), NameOf(number));
    named.insert(number);
  }
  return named;
}

std::set<int> PeopleAnywhereIn(const Segment& s) {
  std::set<int> people = {s.Winner, s.Loser,  s.Place3, s.Place4, s.Place5, s.Place6,
                          s.Place7, s.Place8, s.Other1, s.Other2, s.Other3, s.Other4};
  people.insert(s.Worker.begin(), s.Worker.end());
  return people;
}

/// Where the text has the wrong letter at the beginning of a word; npos for nowhere. Words in
/// capitals and names may stand within a sentence, pronouns and articles may not.
std::size_t WrongCapital(const std::string& text) {
  for (std::size_t i = 2; i + 1 < text.size(); ++i) {
    if (!IsLetter(text[i]) || (text[i - 1] != ' ' && text[i - 1] != '\n')) continue;
    const char before = text[i - 2];
    const bool begins = text[i - 1] == '\n' || before == '!' || before == '?' ||
                        (before == '.' && (i < 3 || text[i - 3] != '.'));
    if (begins && std::islower(static_cast<unsigned char>(text[i]))) return i;
    if (begins || std::string_view(".\"):").find(before) != std::string_view::npos) continue;
    std::size_t end = i;
    while (end < text.size() && IsLetter(text[end])) ++end;
    const std::string word = text.substr(i, end - i);
    for (const char* each : {"He", "She", "They", "Him", "Her", "Them", "His", "Their", "Himself",
                             "Herself", "Is", "Are", "Has", "Have"})
      if (word == each) return i;
  }
  return std::string::npos;
}

/// The faults that no report may have, whatever it is about.
void ExpectSound(const Segment& segment, const std::string& text) {
  const std::string what = "style " + std::to_string(segment.Style) + ", type " +
                           std::to_string(segment.MatchType) + ", finish " +
                           std::to_string(segment.Finish) + ", aftermath " +
                           std::to_string(segment.Aftermath) + ":\n" + text;
  for (const char* fault : {"  ", "{", "}", " .", " ,", " !", " 's", "\"\"", "( ", "\n\n", "\n ",
                            " \n", "None", "<Error>"})
    ASSERT_EQ(text.find(fault), std::string::npos) << "'" << fault << "' in " << what;
  ASSERT_FALSE(text.ends_with(' ')) << what;
  const std::size_t wrong = WrongCapital(text);
  ASSERT_EQ(wrong, std::string::npos) << text.substr(wrong, 20) << " in " << what;
  const auto people = PeopleAnywhereIn(segment);
  for (const int named : NamedIn(text))
    ASSERT_TRUE(people.count(named)) << "Zulu" << named << " in " << what;
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
    // Each finish and each aftermath at least once; what they have to do with each other is little.
    for (std::size_t i = 0; i < std::max({finishes.size(), aftermaths.size(), std::size_t{1}});
         ++i) {
      Segment segment = Match(type.Style, type.Code);
      BookDecision(segment);
      segment.Finish = finishes.empty() ? 0 : finishes[i % finishes.size()].Code;
      segment.Aftermath = aftermaths.empty() ? 0 : aftermaths[i % aftermaths.size()].Code;
      if (!finishes.empty()) {
        segment.Other1 = 31;
        segment.Other2 = 32;
        segment.Other3 = 33;
        segment.Other4 = 34;
      }
      const std::string text = Report(world, segment);
      ExpectSound(segment, text);
      if (HasFatalFailure()) return;
      EXPECT_NE(Last(text, 3).find("Zulu1"), std::string::npos) << text;
      if (type.Style > kTag || i != 0) continue;
      // The uid 1, which also says that nobody is named, is somebody's.
      std::swap(segment.Winner, segment.Loser);
      EXPECT_NE(Last(Report(world, segment), 3).find("Zulu1"), std::string::npos) << text;
    }
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
      ExpectSound(segment, text);
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
        ExpectSound(segment, text);
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
      ExpectSound(segment, text);
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
  for (int i = 0; i < 10000; ++i) {
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
    if (dice.OneIn(3)) segment.Text = "The Fog";
    world.Game().Reporter = i % 3;
    LineMemory memory;
    const std::string text =
        WriteReport(world, segment, {dice.From(0, 5), dice.From(0, 5)}, memory);
    ExpectSound(segment, text);
    if (HasFatalFailure()) return;
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

/// The paragraphs between the opening and the end.
std::vector<std::string> Paragraphs(const std::string& text) {
  std::vector<std::string> paragraphs;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) paragraphs.push_back(line);
  return paragraphs;
}

struct OrderCase {
  int Style, Type;
  std::vector<int> Out;  // first to last; the last one ends the match
};

TEST_P(VoiceReport, EliminatesInTheBookedOrder) {
  World world = Roster();
  world.Game().Reporter = GetParam();
  for (const OrderCase& each : {OrderCase{kFourOnFour, kSurvivor, {5, 2, 6, 3, 7, 8}},
                                {kThreeWay, kElimination, {3, 2}},
                                {kThreeWay, kElimination, {2, 3}},
                                {kThreeTeams, kElimination, {6, 4}},
                                {kFourWay, kElimination, {4, 2, 3}},
                                {kFourTeams, kElimination, {7, 3, 6}}}) {
    Segment segment = Match(each.Style, each.Type);
    segment.Winner = 1;
    Word* places[] = {&segment.Loser,  &segment.Place3, &segment.Place4,
                      &segment.Place5, &segment.Place6, &segment.Place7};
    for (std::size_t i = 0; i < each.Out.size(); ++i) *places[i] = each.Out[i];
    segment.Finish = kClean;
    const auto told = Paragraphs(Report(world, segment));
    // An opening, one for each who goes, and the end, in which the last one is beaten.
    ASSERT_GE(told.size(), each.Out.size() + 1);
    for (std::size_t i = 0; i < each.Out.size(); ++i) {
      const auto sentence = told[i + 1].rfind("Zulu" + std::to_string(each.Out[i]));
      EXPECT_NE(sentence, std::string::npos) << told[i + 1];
      for (std::size_t gone = 0; gone < i; ++gone)
        EXPECT_EQ(NamedIn(told[i + 1]).count(each.Out[gone]), 0U)
            << "somebody who has gone is back: " << told[i + 1];
    }
    EXPECT_EQ(NamedIn(told.back()).count(1) + NamedIn(told[each.Out.size() + 1]).count(1) > 0, true)
        << told.back();
  }
}

int NumberAfter(const std::string& text, std::size_t at) {
  return std::atoi(text.c_str() + at);
}

TEST_P(VoiceReport, BringsInThirtyAndThrowsOutTwentyNine) {
  World world = Roster();
  world.Game().Reporter = GetParam();
  for (const auto& [type, entrants] :
       {std::pair(kRoyalRumble, 30), {kTwentyMan, 20}, {kTenMan, 10}})
    for (const auto& [winner, loser] : {std::pair(1, 2), {30 % entrants + 3, 5}, {2, entrants}}) {
      Segment segment = Match(kSpecial, type);
      segment.Winner = winner;
      segment.Loser = loser;
      const std::string text = Report(world, segment);
      int entries = 2, out = 0;
      for (auto at = text.find('#'); at != std::string::npos; at = text.find('#', at + 1)) {
        const int number = NumberAfter(text, at + 1);
        if (number <= 2 || text.substr(at - 3, 3) == "on ") continue;  // "(Elimination #"
        EXPECT_EQ(number, ++entries) << text;
      }
      EXPECT_EQ(entries, type == kRoyalRumble ? 30 : 2) << text;
      for (auto at = text.find("(Elimination #"); at != std::string::npos;
           at = text.find("(Elimination #", at + 1)) {
        EXPECT_EQ(NumberAfter(text, at + 14), ++out) << text;
        // All who are left have yet to go or to win; nobody who has gone is named again, but for
        // the runner-up once it is over.
        if (out < entrants - 1) {
          EXPECT_EQ(static_cast<int>(NamedIn(text.substr(at)).size()), entrants - out) << text;
        }
      }
      EXPECT_EQ(out, entrants - 1) << text;
      const std::string last = Last(text, 1);
      EXPECT_EQ(NamedIn(last).count(winner), 1U) << last;
      for (const int each : NamedIn(last)) EXPECT_TRUE(each == winner || each == loser) << last;
    }
}

}  // namespace
}  // namespace grapplemont
