#include "tools/officework.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <set>

#include "booking/auto/autobooker.h"
#include "booking/sheet.h"
#include "business/finance.h"
#include "calendar/advanceday.h"
#include "info/results.h"
#include "records/checks/checkworld.h"
#include "records/fields/charset.h"
#include "records/fields/fields.h"
#include "rivals/rivals.h"
#include "session/newgame.h"
#include "show/holdshow.h"
#include "show/recap.h"
#include "storylines/lineages.h"
#include "support/defaultworld.h"
#include "support/gameonworld.h"
#include "support/randomworld.h"

// Careers that nobody watches, in the world that comes with the game.

namespace grapplemont::test {
namespace {

using std::chrono::year;
using tools::PlayDays;
using tools::Shows;

World Begun(int promotionUid, std::uint64_t seed) {
  World world = CopyOf(DefaultWorld());
  world.SetChance(std::make_unique<SeededDraws>(seed));
  NewGameChoice choice;
  choice.PlayerName = "Pat Lee";
  choice.PromotionUid = promotionUid;
  choice.Difficulty = kEasy + static_cast<int>(seed % 4);
  choice.Start = year{2026} / 3 / 1;
  choice.SaveName = "First";
  NewGame(world, choice);
  return world;
}

/// A career in the chair of a promotion. The world that is opened draws by the seed.
struct Career {
  Career(World world, std::uint64_t seed) : Play(std::move(world)) {
    Play.World().SetChance(std::make_unique<SeededDraws>(seed));
  }
  World& TheWorld() { return Play.World(); }
  GameOnWorld Play;
};

void ExpectSound(const World& world) {
  for (const Fault& fault : CheckWorld(world))
    ADD_FAILURE() << IsoDate(world.Today()) << ": " << ToUtf8(fault.Line());
}

/// Days of it, with a look at everything at every month's beginning.
void PlayYear(int uid, std::uint64_t seed, Shows shows) {
  Career career(Begun(uid, seed), seed);
  SCOPED_TRACE(career.TheWorld().Player().Initials + ", seed " + std::to_string(seed));
  int months = 0;
  const auto end = PlayDays(career.Play.Play, 365, shows, [&](int) {
    if (!IsFirstOfMonth(career.TheWorld().Today())) return;
    ++months;
    ExpectSound(career.TheWorld());
  });
  ExpectSound(career.TheWorld());
  EXPECT_EQ(months, end.EndCode == 0 ? 12 : months);
  EXPECT_EQ(end.Days, end.EndCode == 0 ? 365 : end.Days);
  EXPECT_EQ(end.EndCode, career.TheWorld().Game().EndCode);
}

// Twenty seeds from every chair where that takes half a minute; where it would take twenty, as with
// the sanitizers, two.
#if defined(__OPTIMIZE__) && !defined(__SANITIZE_ADDRESS__)
constexpr std::uint64_t kSeeds = 20;
#else
constexpr std::uint64_t kSeeds = 2;
#endif

void PlayYears(Shows shows) {
  for (std::uint64_t seed = 1; seed <= kSeeds; ++seed)
    for (const Promotion& promotion : DefaultWorld().Promotions())
      PlayYear(promotion.Uid, 100 * seed + static_cast<std::uint64_t>(promotion.Uid), shows);
}

TEST(Careers, KeepTheWorldSoundFromEveryChair) {
  PlayYears(Shows::Auto);
}

TEST(Careers, KeepTheWorldSoundWhenAllShowsAreCalledOff) {
  PlayYears(Shows::Cancel);
}

template <class T>
std::set<std::string> NamesIn(const Records<T>& records) {
  std::set<int> uids;
  std::set<std::string> names;
  for (const T& record : records) {
    EXPECT_TRUE(uids.insert(record.Uid).second) << record.Uid;
    EXPECT_TRUE(names.insert(record.Name.Str()).second) << record.Name.Str();
  }
  return names;
}

std::size_t NewIn(std::set<std::string> now, const std::set<std::string>& then) {
  return std::erase_if(now, [&](const std::string& name) { return !then.contains(name); });
}

/// CheckWorld, which knows every link to a worker or a member of staff, finds none to the gone. One
/// step of the day alone makes the file of workers longer: new talent, where the rivals leave too
/// few free.
TEST(Careers, ReplaceWhoeverRetiresForTenYears) {
  for (const bool nearTheLastUid : {false, true}) {
    World world = Begun(5, 9);
    // Somebody whom no record knows: the last made up for the market.
    if (nearTheLastUid) {
      world.Workers()[world.Workers().Count()].Uid = 32760;
      world.YearEnds().Change(world.YearEnds().Count()).Worker = 32760;
    }
    const int staff = world.AllStaff().Count();
    const auto workersThen = NamesIn(world.Workers()), staffThen = NamesIn(world.AllStaff());
    int before = world.Workers().Count();
    std::string last;
    const auto watch = [&](std::string_view step) {
      const int all = world.Workers().Count();
      if (last != "DiscoverFreeAgents") {
        EXPECT_EQ(all, before) << last << ", " << IsoDate(world.Today());
      }
      last = step;
      before = all;
    };
    for (int day = 0; day < 3653; ++day) {
      tools::PlayDay(world, nearTheLastUid ? Shows::Cancel : Shows::Auto, watch);
      if (IsFirstOfMonth(world.Today())) ExpectSound(world);
    }
    EXPECT_EQ(world.AllStaff().Count(), staff);
    EXPECT_GT(NewIn(NamesIn(world.Workers()), workersThen), 40u);
    EXPECT_GT(NewIn(NamesIn(world.AllStaff()), staffThen), 40u);
  }
}

TEST(Careers, FinishAShowThatWasCutOff) {
  Career career(Begun(5, 9), 9);
  Game& game = career.Play.Play;
  while (DayKindToday(career.TheWorld(), [] { return true; }) != DayKind::Television)
    PlayDays(game, 1, Shows::Cancel, [](int) {});
  World& world = career.TheWorld();
  EmptySheet(world, false);
  TakeCard(world, AutoBook(world, false, TermsOf(world, false).OpenRows));
  StartShow(world, false, TvTeam(world));
  RunNextSegment(world, nullptr);
  RunNextSegment(world, nullptr);
  const int told = ShowUnderWay(world)->Current;
  ASSERT_GT(NextSegment(world), told);
  game.Commit();
  const std::vector<Segment> before(world.Segments().begin(), world.Segments().begin() + told);
  const Day today = world.Today();
  const std::string show = ShowName(world, false);
  const int last = Named(world.Shows(), show).Rating3;
  career.Play.Reopen();

  PlayDays(game, 1, Shows::Cancel, [](int) {});
  const World& after = career.TheWorld();
  EXPECT_EQ(after.ShowRuns().Count(), 0);
  EXPECT_EQ(after.Today(), today + std::chrono::days{1});
  EXPECT_NE(Named(after.Shows(), show).Rating3, last) << "it has been on air";
  for (int number = 1; number <= after.Segments().Count(); ++number) {
    const Segment& now = after.Segments()[number];
    if (number <= told) {
      EXPECT_EQ(now.Rating, before[static_cast<std::size_t>(number - 1)].Rating);
    } else {
      EXPECT_EQ(now.Rating > 0, now.Kind != kEmptySegment) << number;
    }
  }
}

/// Day by day; an Event called off and a loan's payment pass the books by, so Event days and
/// debtors are left out, and so is whoever has as much money as anybody can.
TEST(Careers, BookEveryDollarOfAYear) {
  for (const int uid : {4, 8, 12, 15}) {
    World world = Begun(uid, 30 + static_cast<std::uint64_t>(uid));
    int moved = 0;
    for (int day = 0; day < 365 && tools::EndCodeOf(world) == 0; ++day) {
      const std::vector<Promotion> then(world.Promotions().begin(), world.Promotions().end());
      const Day today = world.Today();
      tools::PlayDay(world, Shows::Auto);
      for (const Promotion& was : then) {
        const Promotion* now = world.FindPromotion(was.Uid);
        if (!now || IsEventDay(today) || was.LoanAmount > 0 || now->LoanAmount > 0) continue;
        if (std::abs(now->Money) == 90000000) continue;
        const bool closed = IsFirstOfMonth(world.Today());
        const long long booked = Balance(closed ? now->LastMonth : now->ThisMonth);
        ASSERT_EQ(now->Money - was.Money, booked - Balance(was.ThisMonth))
            << now->Initials.Str() << " on " << IsoDate(today);
        moved += now->Money != was.Money;
      }
    }
    EXPECT_GT(moved, 100);
  }
}

/// Every Title's last reign is the one that its record tells, and no other lasts.
void ExpectReignsOfToday(const World& world) {
  int lasting = 0, titles = 0;
  for (const TitleReign& reign : world.Reigns()) lasting += reign.End == kReignLasts;
  for (const Title& title : world.Titles()) {
    if (title.Owner <= 0) continue;
    ++titles;
    const auto reigns = ReignsOf(world, {title.Name.Str(), title.Owner, "", true});
    ASSERT_FALSE(reigns.empty()) << title.Name.View();
    EXPECT_EQ(reigns[0]->Worker, title.Holder) << title.Name.View();
    EXPECT_EQ(reigns[0]->Partner, title.Partner) << title.Name.View();
    EXPECT_EQ(Day(reigns[0]->From), Day(title.Reigns[0].Won)) << title.Name.View();
  }
  EXPECT_EQ(lasting, titles);
}

TEST(Careers, KeepWhatTheyHaveBeenForTwoYears) {
  World world = Begun(5, 9);
  for (int day = 0; day < 730; ++day) {
    tools::PlayDay(world, Shows::Auto);
    if (!IsFirstOfMonth(world.Today())) continue;
    ExpectSound(world);
    UpdateReigns(world);  // as pages do that show them: the office may have signed a champion since
    ExpectReignsOfToday(world);
  }
  std::set<Day> held, fought;
  for (const HistoryEntry* show : PastCards(world)) {
    EXPECT_TRUE(held.insert(Day(show->On)).second) << "one row a show";
    EXPECT_EQ(MatchesOf(world, *show).empty(), bool(show->CalledOff)) << IsoDate(show->On);
  }
  int parts = 0, counted = 0;
  for (const HeldMatch& match : world.Bouts()) {
    fought.insert(Day(match.On));
    for (const Word& uid : match.Worker) parts += uid != 0;
  }
  for (const MatchTally& tally : world.Tallies())
    if (tally.Worker != 0) counted += tally.Won + tally.Lost + tally.Drawn;
  EXPECT_EQ(parts, counted) << "everybody in a match has it in their record";
  EXPECT_TRUE(std::includes(held.begin(), held.end(), fought.begin(), fought.end()));
  const auto kept = ShowsInTheColumn(world);
  ASSERT_EQ(static_cast<int>(kept.size()), kKeptShows);
  for (const KeptShow& show : kept) EXPECT_TRUE(fought.contains(show.On)) << show.Name;
  EXPECT_EQ(YearsOfAwards(world), (std::vector<int>{2027, 2026}));
  for (const int kind :
       {kWrestlerOfTheYear, kWomanOfTheYear, kMatchOfTheYear, kShowOfTheYear, kMostImproved})
    EXPECT_EQ(AwardsOf(world, 2027, kind).size(), 1u) << AwardName(kind);
}

TEST(Careers, GoesOnElsewhereWhereAnotherJobIsWanted) {
  for (const auto after : {tools::AfterTheEnd::Stop, tools::AfterTheEnd::AnotherJob}) {
    GameOnWorld play(SmallWorld()
                         .Promotion("CWA", kRegional, [](Promotion& p) { p.Money = -3000000; })
                         .Promotion("BIG", kGlobal)
                         .Promotion("XWF", kSmall)
                         .Game("CWA", year{2026} / 3 / 31));
    const auto end = PlayDays(
        play.Play, 40, Shows::Cancel, [](int) {}, after);
    const Day ended{year{2026} / 4 / 1};
    EXPECT_EQ(end.Reasons, (std::vector{std::pair(2, ended)}));
    const bool goesOn = after == tools::AfterTheEnd::AnotherJob;
    EXPECT_EQ(end.EndCode, goesOn ? 0 : 2);
    EXPECT_EQ(end.Days, goesOn ? 40 : 1);
    EXPECT_EQ(play.World().Player().Initials.Str(), goesOn ? "XWF" : "CWA");
    EXPECT_EQ(play.World().Game().Jobs[1].Promotion.Str(), goesOn ? "CWA Wrestling" : "None");
    ExpectSound(play.World());
  }
}

TEST(Careers, LookForTheClassAboveWhereARiseIsNear) {
  for (const bool near : {false, true}) {
    World world = SmallWorld()
                      .Promotion("CWA", kRegional, [&](Promotion& p) { p.Image = near ? 75 : 74; })
                      .Crew(17)
                      .OnTheMarket()
                      .Worker("Star", kMainEvent, 65)
                      .Game("CWA", year{2026} / 3 / 2);
    for (int week = 0; week < 50; ++week) tools::WorkInTheOffice(world);
    EXPECT_EQ(Named(world.Workers(), "Star").Employer, near ? 1 : 0);
    EXPECT_EQ(Rosters(world).Of(1), near ? 18 : 17);
  }
}

// Numbers at the ends of their ranges: what the check lets pass stops no day.

constexpr std::uint64_t kSeed = 17;

/// A number with a range and nothing more: no code, no uid.
bool IsPlainNumber(const Field& field) {
  const bool isNumber = field.Kind == FieldKind::Word || field.Kind == FieldKind::Percent ||
                        field.Kind == FieldKind::Long;
  return isNumber && field.Words.empty() && field.To == Refers::Nothing && !field.IsKey;
}

Bytes BytesOf(const Table& table) {
  return Bytes(table.Contents().begin(), table.Contents().end());
}

/// Whether a number goes to the upper end of its range.
using ToTheTop = bool (*)(Dice&);

/// How many numbers have been set to an end of their range.
int PushToTheEnds(World& world, ToTheTop toTheTop) {
  Dice dice(kSeed);
  int pushed = 0;
  for (Table* table : world.Tables()) {
    if (!table->Layout()) continue;
    Bytes bytes = BytesOf(*table);
    const auto size = static_cast<std::size_t>(table->Layout()->Size);
    for (std::size_t at = 0; at < bytes.size(); at += size)
      for (const Field& field : table->Layout()->Fields)
        for (int index = 0; IsPlainNumber(field) && index < field.Count; ++index, ++pushed)
          SetFieldNumber(field, bytes.data() + at, index, toTheTop(dice) ? field.Max : field.Min);
    table->Load(bytes);
  }
  return pushed;
}

/// Gives back its old bytes to what the check finds fault with, in the one record or in all.
void TakeBack(World& world, const World& before, const Fault& fault, bool inAll) {
  for (std::size_t i = 0; i < world.Tables().size(); ++i) {
    Table& table = *world.Tables()[i];
    if (table.File() != fault.File || fault.Record == 0) continue;
    const Bytes old = BytesOf(*before.Tables()[i]);
    Bytes bytes = BytesOf(table);
    const auto size = static_cast<std::size_t>(table.Layout()->Size);
    const std::size_t only = static_cast<std::size_t>(fault.Record - 1) * size;
    for (std::size_t record = inAll ? 0 : only; record < (inAll ? bytes.size() : only + size);
         record += size)
      for (const Field& field : table.Layout()->Fields)
        for (int index = 0; index < field.Count; ++index)
          if (fault.Field.empty() || FieldName(field, index) == fault.Field)
            std::memcpy(bytes.data() + record + field.Offset + index * field.Stride,
                        old.data() + record + field.Offset + index * field.Stride,
                        static_cast<std::size_t>(field.Width));
    table.Load(bytes);
  }
}

/// What one gives back may clash with what another has; then all of them do.
void TakeBackFaults(World& world, const World& before) {
  for (const bool inAll : {false, false, true, true})
    for (const Fault& fault : CheckWorld(world)) TakeBack(world, before, fault, inAll);
}

TEST(NumbersAtTheEndsOfTheirRanges, StopNoDayOfAYear) {
  World before = Begun(1, kSeed);
  // With a spring behind it feuds, the past and the news hold something.
  for (int day = 0; day < 60; ++day) tools::PlayDay(before, Shows::Auto);
  const struct {
    const char* What;
    ToTheTop Top;
  } ends[] = {{"least", [](Dice&) { return false; }},
              {"most", [](Dice&) { return true; }},
              {"either", [](Dice& dice) { return dice.OneIn(2); }},
              {"mostly least", [](Dice& dice) { return dice.OneIn(8); }},
              {"mostly most", [](Dice& dice) { return !dice.OneIn(8); }}};
  for (const auto& end : ends) {
    SCOPED_TRACE(end.What);
    World world = CopyOf(before);
    world.SetChance(std::make_unique<SeededDraws>(kSeed));
    EXPECT_GT(PushToTheEnds(world, end.Top), 10000);
    TakeBackFaults(world, before);
    ASSERT_EQ(CheckWorld(world).size(), 0u) << CheckWorld(world)[0].Line();
    for (int day = 0; day < 366; ++day) {
      try {
        tools::PlayDay(world, Shows::Auto);
      } catch (const FieldOverflow& fault) {
        FAIL() << IsoDate(world.Today()) << ": " << world.Explain(fault);
      }
      world.Game().EndCode = 0;  // whoever has no chair left plays on
      if (!IsFirstOfMonth(world.Today())) continue;
      const auto faults = CheckWorld(world);
      ASSERT_TRUE(faults.empty()) << IsoDate(world.Today()) << ": " << faults[0].Line();
    }
  }
}

}  // namespace
}  // namespace grapplemont::test
