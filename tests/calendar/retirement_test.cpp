#include <gtest/gtest.h>

#include "calendar/advanceday.h"
#include "records/modWresCheck.h"
#include "records/segments.h"
#include "roster/market.h"
#include "roster/names.h"
#include "support/newsof.h"
#include "support/scripteddraws.h"
#include "support/smallworld.h"
#include "words/names.h"

namespace grapplemont::test {
namespace {

/// Every place in the world that names the uid as one of this kind.
std::string Mentions(const World& world, Refers to, int uid) {
  std::string places;
  for (const Table* table : world.Tables()) {
    if (!table->Layout()) continue;
    const RecordLayout& layout = *table->Layout();
    const ByteSpan bytes = table->RecordBytes();
    for (std::size_t at = 0; at < bytes.size(); at += static_cast<std::size_t>(layout.Size))
      for (const Field& field : layout.Fields)
        for (int i = 0; i < field.Count && field.To == to; ++i)
          if (FieldNumber(field, bytes.data() + at, i) == uid)
            places += std::string(layout.File) + " " + FieldName(field, i) + "\n";
  }
  return places;
}

using Script = std::vector<ScriptedDraw>;

Script Then(Script first, const Script& next) {
  first.insert(first.end(), next.begin(), next.end());
  return first;
}

constexpr int kFebruary = 2;  // the month whose birthdays 1 March keeps

/// Whoever comes next works for this one of the player's CWA and its rival NEW, or for nobody.
void Houses(SmallWorld& small, std::string_view employer) {
  const bool isRivals = employer == "NEW";
  small.Promotion(isRivals ? "CWA" : "NEW", isRivals ? kRegional : kBackyard);
  small.Promotion(isRivals ? "NEW" : "CWA", isRivals ? kBackyard : kRegional);
  if (employer.empty()) small.OnTheMarket();
}

/// "Sol Varga", whose birthday it is, at the player's CWA, at its rival NEW or on the market.
World With(std::string_view employer, const Change<Worker>& change = {}) {
  SmallWorld small;
  Houses(small, employer);
  return small
      .Worker("Sol Varga",
              [&](Worker& worker) {
                worker.BirthMonth = kFebruary;
                if (change) change(worker);
              })
      .Game("CWA");
}

Worker& Sol(World& world) {
  return Named(world.Workers(), "Sol Varga");
}

const ScriptedDraw kSkillsStay{5, 3};

TEST(Retirement, IsDrawnByAgeAndToldByTheOptionTheShortlistAndOnesOwn) {
  constexpr std::string_view kFree =
      "Retiring!: Sol Varga has announced she will retire in one month.\n";
  constexpr std::string_view kRival =
      "Retirement!: Sol Varga has announced he will retire from NEW in one month.\n";
  const struct {
    int AgeBefore;
    Script Draws;  // after the skills
    bool Announces;
    std::string_view Employer = "CWA";
    int Option = 2;  // NEW is smaller than CWA
    bool Listed = false;
    std::string_view Mail =
        "Retirement!: Sol Varga has announced he will retire from CWA in one "
        "month.\n";
  } kCases[] = {{33, {}, false},
                {34, {{40, 1}}, true},
                {34, {{40, 2}}, false},
                {44, {{15, 1}}, true},
                {50, {{3, 1}}, true},
                {64, {{3, 2}}, false},
                {65, {}, true},
                {65, {}, true, "", 0, false, kFree},
                {65, {}, true, "", 1, false, ""},
                {65, {}, true, "", 2, true, kFree},
                {65, {}, true, "NEW", 0, false, kRival},
                {65, {}, true, "NEW", 1, false, ""},
                {65, {}, true, "NEW", 2, true, kRival}};
  for (const auto& c : kCases) {
    SCOPED_TRACE(c.AgeBefore);
    World world = With(c.Employer, [&](Worker& worker) {
      worker.Age = c.AgeBefore;
      worker.Gender = !c.Employer.empty();
      worker.Position = kNonWrestler;
    });
    world.Game().MailRetirement = c.Option;
    world.Session.StartSize = world.Player().Size;
    if (c.Listed) AddToShortlist(world, Sol(world).Uid);
    ScriptDraws(world, Then({kSkillsStay}, c.Draws));
    AgeAndRetire(world);
    EXPECT_EQ(Sol(world).RetiringSoon, c.Announces);
    EXPECT_EQ(NewsOf(world), c.Announces ? c.Mail : "");
  }
}

TEST(Retirement, WaitsForTheMonthAfterABirthdayEvenIfAnnouncedBefore) {
  for (const int drawn : {1, 2}) {
    World world = With("CWA", [](Worker& worker) { worker.Age = 36, worker.RetiringSoon = true; });
    const int uid = Sol(world).Uid;
    ScriptDraws(world, Then({kSkillsStay}, {{40, drawn}}));
    AgeAndRetire(world);
    EXPECT_EQ(Sol(world).Uid, uid) << "not gone in their own month";
    EXPECT_TRUE(Sol(world).RetiringSoon);
    EXPECT_EQ(world.News().Count(), drawn == 1 ? 1 : 0);
  }
}

// The rookie's draws: name, attributes, market, moods. A brawler of the middle tier, Over 20.
Script Rookie() {
  const int moves =
      static_cast<int>(std::count_if(FinisherMoves.begin(), FinisherMoves.end(),
                                     [](const FinisherMove& move) { return move.Kind == 'B'; }));
  return {{300, 1}, {303, 1}, {4, 2},  {60, 10}, {60, 20},   {95, 30},   {45, 5},
          {45, 6},  {10, 1},  {6, 2},  {25, 10}, {moves, 1}, {moves, 2}, {30, 30},
          {20, 3},  {20, 4},  {15, 5}, {12, 7},  {2, 2},     {35, 1},    {20, 2},
          {70, 1},  {70, 2},  {14, 1}, {14, 14}, {30, 3},    {30, 29},   {30, 30}};
}

TEST(Retirement, LeavesNoLinkBehind) {
  World world =
      SmallWorld()
          .Network("Nine")
          .Promotion("NEW")
          .Show("Monday Mire", "Monday", "Nine")
          .Promotion("CWA")
          .Crew(3)
          .Worker("Sol Varga", kMainEvent, 80, [](Worker& worker) { worker.RetiringSoon = true; })
          .Team("The Hands", "CWA Hand 1", "CWA Hand 2")
          .Team("Two and Sol", "CWA Hand 2", "Sol Varga")
          .Stable("The Firm", {"Sol Varga", "CWA Hand 3"})
          .Title("CWA Crown", "Sol Varga")
          .Title("CWA Pair", "CWA Hand 1", "Sol Varga")
          .Show("Friday Fire", "Friday", "Nine")
          .Game("CWA")
          .Feud("CWA Hand 1", "Sol Varga")
          .Feud("CWA Hand 2", "CWA Hand 3");
  const int uid = Sol(world).Uid;
  for (Title& title : world.Titles()) title.Image = 50;
  for (Show& show : world.Shows()) {
    show.Colour = uid;
    show.ColourIsWorker = true;
    show.Announcer = 0;
  }
  world.Player().Commissioner = uid;
  world.Player().HeadTrainer = uid;  // a member of staff who has the same number
  Named(world.Workers(), "CWA Hand 1").Manager = uid;
  AddToShortlist(world, uid);
  for (const int type : {4, 6}) {
    Incident incident;
    incident.Type = type;
    incident.Uid = uid;
    world.Incidents().Append(incident);
  }
  constexpr struct {
    int Style;
    std::size_t Place;  // where they stand
    bool RunsIn, Stays;
  } kBooked[] = {{kSingles, 1, false, false},
                 {kTag, 3, false, false},
                 {kSingles, 0, true, false},
                 {kSingles, 0, false, true}};
  for (const auto& row : kBooked) {
    Segment segment = EmptySegment();
    segment.Kind = kMatch;
    segment.Style = row.Style;
    for (std::size_t place = 0; place < 4; ++place) segment.Worker[place] = 1;
    if (row.Place != 0) segment.Worker[row.Place] = uid;
    if (row.RunsIn) segment.Other2 = uid;
    world.Segments().Append(segment);
  }
  ScriptDraws(world, Rookie());
  AgeAndRetire(world);
  EXPECT_EQ(Mentions(world, Refers::Worker, uid), "");
  EXPECT_EQ(Mentions(world, Refers::Commentator, uid), "");
  EXPECT_EQ(world.Player().HeadTrainer, uid);
  ASSERT_EQ(world.Teams().Count(), 1);
  EXPECT_EQ(world.Teams()[1].Name.View(), "The Hands");
  EXPECT_EQ(world.Titles()[1].Image, 45);
  EXPECT_EQ(world.Titles()[1].Reigns[1].Holder.View(), "Sol Varga");
  EXPECT_EQ(world.Feuds()[1].Worker1, 0);
  EXPECT_NE(world.Feuds()[2].Worker1, 0);
  EXPECT_EQ(world.Incidents()[1].Type, 0);
  EXPECT_EQ(world.Incidents()[2].Type, 6) << "a job offer names a promotion";
  int number = 0;
  for (const auto& row : kBooked)
    EXPECT_EQ(world.Segments()[++number].Kind, row.Stays ? kMatch : kEmptySegment) << number;
}

/// "Pen Ward" of the age, whose birthday it is.
World WithStaff(std::string_view employer, int position, int age, int option = 0) {
  SmallWorld small;
  Houses(small, employer);
  return small
      .Staff("Pen Ward", position, 50,
             [&](Staff& staff) { staff.BirthMonth = kFebruary, staff.Age = age; })
      .Game("CWA", kGameStart, [&](GameInfo& game) { game.MailStaffRetire = option; });
}

/// Name, age, talent, wage of an Owner, backstage, birthday, booker, morale, loyalty.
Script Newcomer(int position) {
  Script script{{300, 1}, {192, 162}, {35, 5}, {100, 60}};
  if (position == kOwner) script.push_back({6, 3});
  return Then(script,
              {{65, 10}, {12, 11}, {position == kAnnouncer ? 5 : 35, 1}, {40, 40}, {30, 1}});
}

TEST(StaffRetirement, IsDrawnByAgeAndAtOnce) {
  const struct {
    int AgeBefore;
    Script Draws;
    bool Retires;
    std::string_view Employer = "CWA";
    int Option = 2;
    const char* From = " from CWA";  // nullptr: untold
  } kCases[] = {{48, {}, false},
                {49, {{10, 1}}, true},
                {58, {{10, 2}}, false},
                {59, {{3, 1}}, true},
                {65, {{2, 1}}, true},
                {72, {{2, 2}}, false},
                {73, {}, true},
                {73, {}, true, "NEW", 0, " from NEW"},
                {73, {}, true, "NEW", 1, nullptr},
                {73, {}, true, "", 0, ""},
                {73, {}, true, "", 1, nullptr}};
  for (const auto& c : kCases) {
    SCOPED_TRACE(c.AgeBefore);
    World world = WithStaff(c.Employer, kMedical, c.AgeBefore, c.Option);
    world.Session.StartSize = kRegional;
    const int uid = world.AllStaff()[1].Uid;
    ScriptDraws(world, c.Retires ? Then(c.Draws, Newcomer(kMedical)) : c.Draws);
    AgeAndRetire(world);
    EXPECT_EQ(world.AllStaff()[1].Uid, c.Retires ? uid + 1 : uid);
    EXPECT_EQ(world.AllStaff()[1].Age, c.Retires ? 30 : c.AgeBefore + 1);
    EXPECT_EQ(NewsOf(world),
              c.Retires && c.From
                  ? "Retirement!: Staff member Pen Ward has retired" + std::string(c.From) + "!\n"
                  : "");
  }
}

TEST(StaffRetirement, LeavesItsChairsToNobody) {
  World world = WithStaff("CWA", kAnnouncer, 80);
  const int uid = world.AllStaff()[1].Uid;
  world.Player().HeadTrainer = uid;
  world.Player().DevBooker = uid;
  Show show;
  show.Announcer = show.Colour = uid;
  for (const Promotion& owner : world.Promotions()) {
    show.Owner = owner.Uid;
    world.Shows().Append(show);
  }
  show.ColourIsWorker = true;
  show.Announcer = 0;
  world.Shows().Append(show);
  ScriptDraws(world, Newcomer(kAnnouncer));
  AgeAndRetire(world);
  EXPECT_EQ(world.AllStaff()[1].Position, kAnnouncer);
  EXPECT_EQ(world.AllStaff()[1].Employer, 0);
  EXPECT_EQ(Mentions(world, Refers::Staff, uid), "");
  EXPECT_EQ(Mentions(world, Refers::Commentator, uid), "tv.dat Colour\n")
      << "a worker of the same number speaks on";
}

}  // namespace
}  // namespace grapplemont::test
