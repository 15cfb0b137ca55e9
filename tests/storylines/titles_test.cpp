#include "storylines/titles.h"

#include <gtest/gtest.h>

#include "records/modWresCheck.h"
#include "records/segments.h"
#include "support/gameonworld.h"

namespace grapplemont::test {
namespace {

/// CWA with a Title that is held, a vacant one for women, a vacant one for lightweight teams, and a
/// rival's.
SmallWorld Belts() {
  SmallWorld small;
  small.Promotion("NEW")
      .Worker("Al Other")
      .Title("NEW Crown", "Al Other")
      .Promotion("CWA")
      .Worker("Bram Okafor", kMainEvent, 80)
      .Worker("Ilya Marsh", kMidcard, 60, [](Worker& worker) { worker.Gender = false; })
      .Worker("Cal Drift", kOpener, 40, [](Worker& worker) { worker.Weight = "L"; })
      .Worker("Dee Light", kOpener, 30,
              [](Worker& worker) { worker.Weight = "L", worker.Gender = false; })
      .Worker("Hurt Hank", kMidcard, 70,
              [](Worker& worker) { worker.Status = "Inj", worker.StatusMonths = 2; })
      .Worker("Max Mouth", kManager, 50)
      .Worker("Young Yan", kDevelopmentDeal, 20)
      .Team("The Floats", "Cal Drift", "Dee Light")
      .Title("CWA Crown", "Bram Okafor", {}, [](Title& title) { title.Image = 60; })
      .Title("CWA Roses", {}, {}, [](Title& title) { title.Woman = true; })
      .Title("CWA Feathers", {}, {},
             [](Title& title) { title.Singles = false, title.Lightweight = true; });
  return small;
}

int UidOf(const World& world, std::string_view name) {
  return Named(world.Workers(), name).Uid;
}

void Book(World& world, std::string_view title, int rating = 0) {
  Segment segment = EmptySegment();
  segment.Kind = kMatch;
  segment.Style = kSingles;
  segment.TitleName = title;
  segment.Rating = rating;
  world.Segments().Append(segment);
}

TEST(Titles, RefuseNamesThatCannotBe) {
  World world = Belts().Game("CWA");
  const std::pair<const char*, const char*> kNames[] = {
      {"\xA0", "Type a name first."},
      {"None", "\"None\" stands for nothing at all and cannot be a name."},
      {" Vacant ", "\"Vacant\" has a meaning of its own and cannot be a name."},
      {"To Be Deleted", "\"To Be Deleted\" has a meaning of its own and cannot be a name."},
      {"\xA0 NEW Crown\xA0", "There is a Title called NEW Crown already."},
      {"A Belt Of Twenty-One.", "A name has at most 20 letters. This one has 21."},
      {"Ring\x81", "A name is one line of plain text."},
      {"CWA\xA0Ring", ""},
      {"A Belt Of Twenty It.", ""}};
  for (const auto& [name, why] : kNames) EXPECT_EQ(WhyNotTitleName(world, name), why) << name;
  world.Titles().Rewrite(std::vector<Title>(5000));
  EXPECT_EQ(WhyNotCreate(world, {"CWA Anvil"}), "No more Titles can be kept.");
}

TEST(Titles, AreAwardedOnlyToWhomTheyFitWhileVacant) {
  World world = Belts().Game("CWA");
  const struct {
    const char *Title, *Holder;
    const char *Partner, *Why;
  } rows[] = {
      {"NEW Crown", "Ilya Marsh", "", "This Title is not yours to give."},
      {"CWA Crown", "Ilya Marsh", "", "It has a holder. Vacate it first."},
      {"CWA Roses", "", "", "Choose somebody first."},
      {"CWA Roses", "Bram Okafor", "", "Bram Okafor is not eligible for this title!"},
      {"CWA Roses", "Ilya Marsh", "Dee Light", "A singles Title has one holder. Choose one."},
      {"CWA Feathers", "Cal Drift", "", "Choose two workers first."},
      {"CWA Feathers", "Cal Drift", "Bram Okafor", "Bram Okafor is not eligible for this title!"},
      {"CWA Feathers", "Cal Drift", "Cal Drift", "You have selected the same worker twice!"},
      {"CWA Feathers", "Cal Drift", "Dee Light", ""}};
  for (const auto& row : rows) {
    const auto uid = [&](std::string_view name) { return name.empty() ? 0 : UidOf(world, name); };
    EXPECT_EQ(
        WhyNotAward(world, Named(world.Titles(), row.Title), uid(row.Holder), uid(row.Partner)),
        row.Why);
  }
  Title& roses = Named(world.Titles(), "CWA Roses");
  for (const char* unfit : {"Hurt Hank", "Max Mouth", "Young Yan", "Al Other"}) {
    Named(world.Workers(), unfit).Gender = false;
    EXPECT_EQ(WhyNotAward(world, roses, UidOf(world, unfit), 0),
              std::string(unfit) + " is not a wrestler of yours who is fit.");
  }
}

TEST(Titles, AreRenamedAndGoWithWhatIsBookedAndNotHeld) {
  World world = Belts().Game("CWA");
  Book(world, "CWA Crown");
  Book(world, "CWA Roses");
  Book(world, "CWA Crown", 70);
  RenameTitle(world, 2, " CWA Throne ");
  EXPECT_EQ(world.Titles()[2].Name.View(), "CWA Throne");
  const auto booked = [&](int record) { return world.Segments()[record].TitleName.Str(); };
  EXPECT_EQ(booked(1) + booked(2) + booked(3), "CWA ThroneCWA RosesCWA Crown");
  EXPECT_EQ(BookedForTitle(world, world.Titles()[2]), 1);
  DissolveTitle(world, 2);
  EXPECT_EQ(world.Titles()[2].Name.View(), "CWA Roses");
  EXPECT_EQ(world.Segments()[1].Kind, kEmptySegment);
  EXPECT_EQ(world.Segments()[2].Kind, kMatch);
  EXPECT_EQ(world.Segments()[3].Kind, kMatch) << "a show that was held stays as it was";
}

TEST(Titles, TellWhatKeepsTheHolderFromDefending) {
  constexpr struct {
    void (*Happens)(Worker& worker);
    const char* Why;
  } kCases[] = {{[](Worker&) {}, ""},
                {[](Worker& w) { w.Status = "Inj"; }, "injured"},
                {[](Worker& w) { w.Status = "Sus"; }, "suspended"},
                {[](Worker& w) { w.Status = "Reh"; }, "in rehab"},
                {[](Worker& w) { w.Status = "Hom"; }, "sitting out"},
                {[](Worker& w) { w.Position = kManager; }, "no wrestler"},
                {[](Worker& w) { w.Position = 83; }, "sent away"},
                {[](Worker& w) { w.Weight = "H"; }, "not eligible"}};
  for (const auto& c : kCases)
    for (const char* one : {"Cal Drift", "Dee Light"}) {
      World world = Belts().Game("CWA");
      Title& feathers = Named(world.Titles(), "CWA Feathers");
      EXPECT_EQ(WhyNoDefence(world, feathers), "") << "vacant";
      Crown(world, feathers, UidOf(world, "Cal Drift"), UidOf(world, "Dee Light"));
      c.Happens(Named(world.Workers(), one));
      EXPECT_EQ(WhyNoDefence(world, feathers), c.Why) << one;
    }
}

TEST(TitleScreen, ShowsThePlayersTitlesAndTheWorlds) {
  GameOnWorld play(Belts().Game("CWA"));
  ScriptDesk& desk = play.Desk;
  desk.Open("frmBelts");
  EXPECT_EQ(desk.Text("lblfacts"), "3 Titles, 2 vacant");
  EXPECT_EQ(desk.FirstColumn("lsthistory"), std::vector<std::string>{"Bram Okafor"});
  desk.Pick("cmbwhose", "All Titles");
  EXPECT_EQ(desk.Rows("lsttitles")[0][2], "NEW");
  desk.Pick("lsttitles", "NEW Crown");
  for (const char* button : {"cmdrename", "cmdvacate", "cmdsuspend", "cmddissolve", "cmdaward"})
    EXPECT_EQ(desk.Tip(button), "This Title is not yours.");
  EXPECT_TRUE(desk.Rows("lstwres").empty());
}

TEST(TitleScreen, MakesNamesAwardsAndSuspends) {
  GameOnWorld play(Belts().Game("CWA"));
  ScriptDesk& desk = play.Desk;
  using Row = std::vector<std::string>;
  desk.Open("frmBelts");
  desk.Type("txtname", " CWA Anvil ");
  desk.Pick("cmbkind", "Tag Team");
  desk.Check("chkwoman");
  desk.Click("cmdcreate");
  EXPECT_EQ(desk.Rows("lsttitles")[3], (Row{"CWA Anvil", "Vacant", "", "20", "Women's Tag", ""}));
  EXPECT_EQ(desk.FirstColumn("lstwres"), (Row{"Ilya Marsh", "Dee Light"}));
  desk.Pick("lstwres", "Ilya Marsh");
  EXPECT_EQ(desk.Tip("cmdaward"), "Choose two workers first.");
  desk.Pick("lstwres", "Dee Light");
  desk.Click("cmdaward");
  EXPECT_EQ(desk.Rows("lsttitles")[3][1], "Ilya Marsh \\ Dee Light");
  EXPECT_EQ(desk.FirstColumn("lsthistory"), (Row{"Marsh \\ Light", "Vacant"}));
  EXPECT_EQ(desk.Tip("cmdaward"), "It has a holder. Vacate it first.");
  ExpectSound(play.World());
  Named(play.World().Workers(), "Dee Light").Position = kNonWrestler;
  desk.Click("cmdsuspend");
  EXPECT_EQ(desk.Rows("lsttitles")[3][5], "Suspended");
  desk.Click("cmdsuspend");
  EXPECT_EQ(desk.Rows("lsttitles")[3][5], "Holder no wrestler");
  const Title& made = play.World().Titles()[5];
  EXPECT_TRUE(made.Woman && !made.Singles);
  EXPECT_EQ(Day(made.Reigns[0].Won), kGameStart);
}

TEST(TitleScreen, AsksBeforeItStripsAndDissolves) {
  GameOnWorld play(Belts().Game("CWA"));
  ScriptDesk& desk = play.Desk;
  Book(play.World(), "CWA Crown");
  desk.Open("frmBelts");
  desk.ExpectAsk(
      "Vacate?",
      "Are you sure you wish to strip Bram Okafor of the CWA Crown? It will lose 20 image.", false,
      ui::Default::No);
  desk.Click("cmdvacate");
  desk.ExpectAsk("Dissolve?",
                 "Are you sure you wish to dissolve the CWA Crown? What is booked for it (1 "
                 "segment) will be removed.",
                 false, ui::Default::No);
  desk.Click("cmddissolve");
  EXPECT_EQ(desk.Rows("lsttitles")[0][1], "Bram Okafor");
}

}  // namespace
}  // namespace grapplemont::test
