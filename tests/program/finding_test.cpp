#include <gtest/gtest.h>

#include <algorithm>

#include "calendar/screens/screenrooms.h"
#include "info/search.h"
#include "program/richworld.h"
#include "support/gameonworld.h"

namespace grapplemont::test {
namespace {

class FindingTest : public testing::Test {
 protected:
  FindingTest()
      : Play(RichWorld()
                 .Game("CWA")
                 .Mail("Ruth Vane", "Hello there.")
                 .Mail("Maeve", "Good day.")
                 .Mail("XWF News", "Ink is dry.")
                 .Mail("XWF News", "A tie is bought.")) {
    Play.Desk.Open("frmMainScreen");
  }
  /// Opens the one that is called so.
  void Open(const std::string& name) {
    for (const ui::Finding& one : Play.Desk.NewSearch()(name, 10))
      if (one.Words == name) return Play.Desk.Event(one.Open);
    ADD_FAILURE() << "nothing is called " << name;
  }
  std::string Picked(const std::string& list, std::size_t column = 0) {
    const auto rows = Play.Desk.Rows(list);
    const auto selected = Play.Desk.Selected(list);
    return selected.size() == 1 ? rows[static_cast<std::size_t>(selected[0] - 1)][column] : "";
  }

  GameOnWorld Play;
};

TEST_F(FindingTest, OpensThePageOrTheRowOfWhateverIsFound) {
  ScriptDesk& desk = Play.Desk;
  const struct {
    const char *Name, *Screen, *List;
  } rows[] = {
      {"CWA Hand 7", "frmWorker", ""},
      {"CWA Crown", "frmBelts", "lsttitles"},
      {"The Hands", "frmTagTeams", "lstteams"},
      {"The Firm", "frmStables", "lststables"},
      {"Pen", "frmStaff", "lststaff"},
      {"Free Pen", "frmOtherStaff", "lststaff"},
      {"Nine", "frmViewNetworks", "lstnetworks"},
      {"Chew", "frmFedSponsor", "lstsponsors"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.Name);
    Open(row.Name);
    EXPECT_EQ(desk.TopName(), row.Screen);
    if (*row.List) {
      EXPECT_EQ(Picked(row.List), row.Name);
    }
    desk.Close(*desk.Top());
  }
  Open("Sunday Slam");
  EXPECT_EQ(desk.TopName(), "frmTelevision");
  Open("CWA in March");
  EXPECT_EQ(desk.TopName(), "frmEvent");
  EXPECT_EQ(Picked("lstevents", 1), "CWA in March");
  Open("Hello there.");
  EXPECT_EQ(desk.TopName(), "frmNews");
  EXPECT_EQ(desk.Text("txtbody"), "Hello there.");
  Open("Ink is dry.");
  EXPECT_EQ(desk.Text("txtbody"), "Ink is dry.") << "in the row of its day";
  Open("Heat");
  EXPECT_EQ(desk.TopName(), "frmGlossary");
  EXPECT_EQ(Picked("lstterms"), "Heat");
}

TEST_F(FindingTest, OpensPagesThatNoSideBarHasAndSaysWhatStandsAgainstOne) {
  const std::pair<const char*, const char*> pages[] = {{"Awards", "frmAwards"},
                                                       {"Loan", "frmLoan"},
                                                       {"Drafts", "frmDrafts"},
                                                       {"Merchandising", "frmFedMerch"},
                                                       {"Compare", "frmCompare"}};
  for (const auto& [page, screen] : pages) {
    Open(page);
    EXPECT_EQ(Play.Desk.TopName(), screen) << page;
  }
  Play.Desk.ExpectSay("Not now", "No show has been held yet.");
  Open("The morning after");
  Play.Desk.ExpectSay("Not now", kAnyText);
  Open("Load Game");
  EXPECT_EQ(Play.Desk.TopName(), "frmCompare");
  EXPECT_EQ(Play.Desk.NewSearch()("bank", 1).front().Words, "Loan") << "by another word for it";
}

TEST_F(FindingTest, LeadsOnWhoSaysItInWordsOfTheirOwn) {
  const std::pair<const char*, const char*> pages[] = {{"raise ticket price", "Ticket Prices"},
                                                       {"turn heel", "Turns"},
                                                       {"a bank loan", "Loan"},
                                                       {"auto booker", "Drafts"}};
  for (const auto& [typed, page] : pages) {
    const auto found = Play.Desk.NewSearch()(typed, 1);
    EXPECT_EQ(found.empty() ? "" : found.front().Words, page) << typed;
  }
  const auto terms = Play.Desk.NewSearch()("momentom", 5);
  EXPECT_TRUE(std::ranges::any_of(terms, [](const ui::Finding& one) {
    return one.Heading == "Glossary" && one.Words == "Momentum";
  })) << "a slip in a term";
  const std::pair<const char*, std::string_view> rooms[] = {{"sign somebody", "Other Workers"},
                                                            {"hire", "Other Workers"},
                                                            {"sack", "Roster"},
                                                            {"how do I fire someone", "Roster"},
                                                            {"tv deal", "Television"},
                                                            {"schedule", "Events"},
                                                            {"new champion", "Titles"},
                                                            {"hire a writer", "Other Staff"},
                                                            {"create a stable", "Stables"},
                                                            {"injured", "Roster"}};
  for (const auto& [typed, room] : rooms) {
    const auto fit = [typed = typed](const HubCommand& command) {
      const int is = FitOfName(command.Caption, command.Also, typed);
      return is < 0 ? 100 : is;
    };
    const HubCommand& best = *std::ranges::min_element(kHubCommands, {}, fit);
    EXPECT_EQ(fit(best) < kSureFit ? best.Caption : "", room) << typed;
  }
}

TEST_F(FindingTest, LeavesASheetAlone) {
  Play.Desk.Open("frmBooking");
  Play.Desk.ExpectSay("Not now", kAnyText);
  Open("Pen");
  EXPECT_EQ(Play.Desk.TopName(), "frmBooking");
  Open("CWA Hand 7");
  EXPECT_EQ(Play.Desk.TopName(), "frmWorker") << "who somebody is may be read at any time";
}

TEST_F(FindingTest, SaysWhatIsNotThereAnyMore) {
  const auto found = Play.Desk.NewSearch()("free pen", 1);
  ASSERT_FALSE(found.empty());
  Play.World().AllStaff().Keep([](const Staff& person) { return person.Name != "Free Pen"; });
  Play.Desk.ExpectSay("Gone", "Free Pen is not there any more.");
  Play.Desk.Event(found[0].Open);
}

}  // namespace
}  // namespace grapplemont::test
