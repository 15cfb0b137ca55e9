#include "storylines/titles.h"

#include <gtest/gtest.h>

#include "records/checks/checkworld.h"
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
              [](Worker& worker) {
                worker.Weight = "L";
                worker.Gender = false;
              })
      .Worker("Hurt Hank", kMidcard, 70,
              [](Worker& worker) {
                worker.Status = "Inj";
                worker.StatusMonths = 2;
              })
      .Worker("Max Mouth", kManager, 50)
      .Worker("Young Yan", kDevelopmentDeal, 20)
      .Team("The Floats", "Cal Drift", "Dee Light")
      .Title("CWA Crown", "Bram Okafor", {}, [](Title& title) { title.Image = 60; })
      .Title("CWA Roses", {}, {}, [](Title& title) { title.Woman = true; })
      .Title("CWA Feathers", {}, {}, [](Title& title) {
        title.Singles = false;
        title.Lightweight = true;
      });
  return small;
}

int UidOf(const World& world, std::string_view name) {
  return Named(world.Workers(), name).Uid;
}

std::string Names(const std::vector<const Worker*>& people) {
  std::string names;
  for (const Worker* worker : people) names += worker->Name + ";";
  return names;
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
  const struct {
    const char* Name;
    const char* Why;
  } rows[] = {{"", "Type a name first."},
              {"  ", "Type a name first."},
              {"None", "\"None\" stands for nothing at all and cannot be a name."},
              {" Vacant ", "\"Vacant\" has a meaning of its own and cannot be a name."},
              {"To Be Deleted", "\"To Be Deleted\" has a meaning of its own and cannot be a name."},
              {"CWA Crown", "There is a Title called CWA Crown already."},
              {"NEW Crown", "There is a Title called NEW Crown already."},
              {"A Belt Of Twenty-One.", "A name has at most 20 letters. This one has 21."},
              {"\xA0", "Type a name first."},
              {"CWA\xA0Ring", ""},
              {"\xA0 CWA Crown\xA0", "There is a Title called CWA Crown already."},
              {"Ring\x7F", "A name is one line of plain text."},
              {"Ring\x81", "A name is one line of plain text."},
              {"A Belt Of Twenty It.", ""},
              {"cwa crown", ""}};
  for (const auto& row : rows) EXPECT_EQ(WhyNotTitleName(world, row.Name), row.Why) << row.Name;
}

TEST(Titles, BeginVacantAndSmall) {
  World world = Belts().Game("CWA");
  const int number = CreateTitle(world, {"  CWA Anvil ", false, true, true});
  EXPECT_EQ(number, 5);
  const Title& made = world.Titles()[number];
  EXPECT_EQ(made.Name.View(), "CWA Anvil");
  EXPECT_EQ(KindText(made), "Women's Tag, light");
  EXPECT_EQ(made.Owner, world.PlayerUid());
  EXPECT_EQ(made.Image, 20);
  EXPECT_FALSE(made.Suspended);
  EXPECT_EQ(made.Reigns[0].Holder.View(), "Vacant");
  EXPECT_EQ(Day(made.Reigns[0].Won), kGameStart);
  EXPECT_EQ(made.Reigns[1].Holder.View(), "None");
  EXPECT_TRUE(CheckWorld(world).empty());
}

TEST(Titles, MayBeHeldByFitWrestlersTheyAreFor) {
  const World world = Belts().Game("CWA");
  const auto names = [&](const char* title) {
    return Names(Contenders(world, Named(world.Titles(), title)));
  };
  EXPECT_EQ(names("CWA Crown"), "Bram Okafor;Ilya Marsh;Cal Drift;Dee Light;");
  EXPECT_EQ(names("CWA Roses"), "Ilya Marsh;Dee Light;");
  EXPECT_EQ(names("CWA Feathers"), "Cal Drift;Dee Light;");
}

TEST(Titles, AreAwardedOnlyToWhomTheyFitWhileVacant) {
  World world = Belts().Game("CWA");
  const struct {
    const char* Title;
    const char* Holder;
    const char* Partner;
    const char* Why;
  } rows[] = {
      {"NEW Crown", "Ilya Marsh", "", "This Title is not yours to give."},
      {"CWA Crown", "Ilya Marsh", "", "It has a holder. Vacate it first."},
      {"CWA Roses", "", "", "Choose somebody first."},
      {"CWA Roses", "Bram Okafor", "", "Bram Okafor is not eligible for this title!"},
      {"CWA Roses", "Ilya Marsh", "Dee Light", "A singles Title has one holder. Choose one."},
      {"CWA Roses", "Ilya Marsh", "", ""},
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
              std::string(unfit) + " is no fit wrestler of yours.");
  }
}

TEST(Titles, AreRenamedWithWhatIsBooked) {
  World world = Belts().Game("CWA");
  Book(world, "CWA Crown");
  Book(world, "CWA Roses");
  Book(world, "CWA Crown", 70);
  RenameTitle(world, 2, "CWA Throne");
  EXPECT_EQ(world.Titles()[2].Name.View(), "CWA Throne");
  EXPECT_EQ(world.Segments()[1].TitleName.View(), "CWA Throne");
  EXPECT_EQ(world.Segments()[2].TitleName.View(), "CWA Roses");
  EXPECT_EQ(world.Segments()[3].TitleName.View(), "CWA Crown") << "a show that was held stays";
}

TEST(Titles, AreNotCreatedInAFullFileButRenamed) {
  World world = Belts().Game("CWA");
  world.Titles().Rewrite(std::vector<Title>(5000));
  EXPECT_EQ(WhyNotCreate(world, {"CWA Anvil"}), "No more Titles can be kept.");
  EXPECT_EQ(WhyNotTitleName(world, "CWA Anvil"), "");
}

TEST(Titles, TellWhatKeepsTheHolderFromDefending) {
  struct Case {
    void (*Happens)(Worker& worker);
    const char* Why;
  };
  constexpr Case kCases[] = {{[](Worker&) {}, ""},
                             {[](Worker& w) { w.Status = "Inj"; }, "injured"},
                             {[](Worker& w) { w.Status = "Sus"; }, "suspended"},
                             {[](Worker& w) { w.Status = "Reh"; }, "in rehab"},
                             {[](Worker& w) { w.Status = "Hom"; }, "sitting out"},
                             {[](Worker& w) { w.Position = kNonWrestler; }, "no wrestler"},
                             {[](Worker& w) { w.Position = kManager; }, "no wrestler"},
                             {[](Worker& w) { w.Position = 83; }, "sent away"},
                             {[](Worker& w) { w.Position = kTrainingCamp; }, "sent away"},
                             {[](Worker& w) { w.Weight = "H"; }, "not eligible"}};
  for (const Case& c : kCases)
    for (const char* one : {"Cal Drift", "Dee Light"}) {
      World world = Belts().Game("CWA");
      Title& feathers = Named(world.Titles(), "CWA Feathers");
      EXPECT_EQ(WhyNoDefence(world, feathers), "") << "vacant";
      Crown(world, feathers, UidOf(world, "Cal Drift"), UidOf(world, "Dee Light"));
      c.Happens(Named(world.Workers(), one));
      EXPECT_EQ(WhyNoDefence(world, feathers), c.Why) << one;
    }
}

TEST(TitleScreen, MarksAHolderWhoCannotDefend) {
  GameOnWorld play(Belts().Game("CWA"));
  play.Desk.Open("frmBelts");
  EXPECT_EQ(play.Desk.Rows("lsttitles")[0][5], "");
  play.Desk.Click("cmdback");
  Named(play.World().Workers(), "Bram Okafor").Position = kNonWrestler;
  play.Desk.Open("frmBelts");
  EXPECT_EQ(play.Desk.Rows("lsttitles")[0][5], "Holder no wrestler");
  play.Desk.Click("cmdsuspend");
  EXPECT_EQ(play.Desk.Rows("lsttitles")[0][5], "Suspended");
}

TEST(Titles, GoWithWhatIsBookedAndNotHeld) {
  World world = Belts().Game("CWA");
  Book(world, "CWA Crown");
  Book(world, "CWA Roses");
  Book(world, "CWA Crown", 70);
  EXPECT_EQ(BookedForTitle(world, world.Titles()[2]), 1);
  DissolveTitle(world, 2);
  ASSERT_EQ(world.Titles().Count(), 3);
  EXPECT_EQ(world.Titles()[2].Name.View(), "CWA Roses");
  EXPECT_EQ(world.Segments()[1].Kind, kEmptySegment);
  EXPECT_EQ(world.Segments()[2].Kind, kMatch);
  EXPECT_EQ(world.Segments()[3].Kind, kMatch) << "a show that was held stays as it was";
}

TEST(TitleScreen, ShowsThePlayersTitlesAndTheWorlds) {
  GameOnWorld play(Belts().Game("CWA"));
  ScriptDesk& desk = play.Desk;
  desk.Open("frmBelts");
  using Column = std::vector<std::string>;
  EXPECT_EQ(desk.FirstColumn("lsttitles"), (Column{"CWA Crown", "CWA Roses", "CWA Feathers"}));
  EXPECT_EQ(desk.Text("lblfacts"), "3 Titles, 2 vacant");
  EXPECT_EQ(desk.Rows("lsttitles")[1][1], "Women's Singles");
  EXPECT_EQ(desk.FirstColumn("lsthistory"), (Column{"Bram Okafor"}));
  desk.Pick("cmbwhose", "All Titles");
  EXPECT_EQ(desk.FirstColumn("lsttitles"),
            (Column{"NEW Crown", "CWA Crown", "CWA Roses", "CWA Feathers"}));
  EXPECT_EQ(desk.Rows("lsttitles")[0][3], "NEW");
  desk.Pick("lsttitles", "NEW Crown");
  for (const char* button : {"cmdrename", "cmdvacate", "cmdsuspend", "cmddissolve", "cmdaward"}) {
    EXPECT_FALSE(desk.Enabled(button)) << button;
    EXPECT_EQ(desk.Tip(button), "This Title is not yours.");
  }
  EXPECT_TRUE(desk.Rows("lstwres").empty());
}

TEST(TitleScreen, MakesNamesSuspendsAndAwards) {
  GameOnWorld play(Belts().Game("CWA"));
  ScriptDesk& desk = play.Desk;
  desk.Open("frmBelts");
  desk.Type("txtname", "Vacant");
  desk.ExpectSay("Error!", "\"Vacant\" has a meaning of its own and cannot be a name.");
  desk.Click("cmdcreate");
  desk.Type("txtname", "CWA Anvil");
  desk.Pick("cmbkind", "Tag Team");
  desk.Check("chkwoman");
  desk.Click("cmdcreate");
  EXPECT_EQ(desk.Selected("lsttitles"), std::vector<int>{4});
  EXPECT_FALSE(desk.Enabled("cmdvacate"));
  EXPECT_EQ(desk.Tip("cmdaward"), "Choose two workers first.");
  desk.Pick("lstwres", "Ilya Marsh");
  EXPECT_FALSE(desk.Enabled("cmdaward"));
  desk.Pick("lstwres", "Dee Light");
  desk.Click("cmdaward");
  EXPECT_EQ(desk.Rows("lsttitles")[3][2], "Ilya Marsh \\ Dee Light");
  EXPECT_EQ(desk.FirstColumn("lsthistory"), (std::vector<std::string>{"Marsh \\ Light", "Vacant"}));
  EXPECT_EQ(desk.Tip("cmdaward"), "It has a holder. Vacate it first.");
  desk.Type("txtname", "CWA Hammer");
  desk.Click("cmdrename");
  desk.Click("cmdsuspend");
  EXPECT_EQ(desk.Rows("lsttitles")[3][5], "Suspended");
  play.Reopen();
  const Title& kept = play.World().Titles()[5];
  EXPECT_EQ(kept.Name.View(), "CWA Hammer");
  EXPECT_TRUE(kept.Suspended && kept.Woman && !kept.Singles);
  EXPECT_EQ(kept.Partner, UidOf(play.World(), "Dee Light"));
  EXPECT_TRUE(CheckWorld(play.World()).empty());
  desk.Open("frmBelts");
  desk.Pick("lsttitles", "CWA Hammer");
  desk.Click("cmdsuspend");
  EXPECT_FALSE(play.World().Titles()[5].Suspended);
}

TEST(TitleScreen, StripsAndDissolvesAfterAsking) {
  GameOnWorld play(Belts().Game("CWA"));
  ScriptDesk& desk = play.Desk;
  const char* const kStrip =
      "Are you sure you wish to strip Bram Okafor of the CWA Crown? It will lose 20 image.";
  Book(play.World(), "CWA Crown");
  desk.Open("frmBelts");
  desk.ExpectAsk("Vacate?", kStrip, false, ui::Default::No);
  desk.Click("cmdvacate");
  EXPECT_NE(play.World().Titles()[2].Holder, 0);
  desk.ExpectAsk("Vacate?", kStrip, true);
  desk.Click("cmdvacate");
  EXPECT_EQ(play.World().Titles()[2].Holder, 0);
  EXPECT_EQ(play.World().Titles()[2].Image, 40);
  EXPECT_EQ(desk.FirstColumn("lsthistory"), (std::vector<std::string>{"Vacant", "Bram Okafor"}));
  const char* const kDissolve =
      "Are you sure you wish to dissolve the CWA Crown? What is booked for it (1 segment) will be "
      "removed.";
  desk.ExpectAsk("Dissolve?", kDissolve, false, ui::Default::No);
  desk.Click("cmddissolve");
  desk.ExpectAsk("Dissolve?", kDissolve, true);
  desk.Click("cmddissolve");
  EXPECT_EQ(desk.FirstColumn("lsttitles"), (std::vector<std::string>{"CWA Roses", "CWA Feathers"}));
  EXPECT_EQ(play.World().Segments()[1].Kind, kEmptySegment);
}

}  // namespace
}  // namespace grapplemont::test
