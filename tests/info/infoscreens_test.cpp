#include <gtest/gtest.h>

#include "business/past.h"
#include "info/mailbox.h"
#include "records/modVar.h"
#include "records/readmail.h"
#include "support/gameonworld.h"
#include "support/smallworld.h"
#include "ui/acts.h"

namespace grapplemont::test {
namespace {

SmallWorld Plain() {
  SmallWorld small;
  small.Promotion("CWA").Game("CWA");
  return small;
}

TEST(frmOptions, OffersAndKeepsEveryChoice) {
  GameOnWorld play(Plain());
  play.Desk.Open("frmOptions");
  // A different pattern of choices in each control, so that no two of them can be mixed up.
  const int kChoices[] = {2, 0, 1, 0, 2, 1, 1, 2, 0, 0, 1, 2, 2, 0};
  for (std::size_t i = 0; i < kMailOptionTable.size(); ++i) {
    const MailOption& option = kMailOptionTable[i];
    EXPECT_EQ(play.Desk.FirstColumn(option.Control),
              option.TwoWay ? Names({"Always", "Never"})
                            : Names({"Always", "Only for direct rivals or above", "Never"}));
    play.Desk.Pick(option.Control, std::string(Says(kMailOptions, kChoices[i])));
  }
  EXPECT_EQ(play.Desk.FirstColumn("cmbreport"), (Names{"The Lamplighter", "Rafe Tolland", "QVD"}));
  EXPECT_EQ(play.Desk.Text("cmbreport"), "Rafe Tolland");
  play.Desk.Pick("cmbreport", "QVD");
  EXPECT_EQ(play.Desk.FirstColumn("cmbload").front(), "Graphics Set Default");
  play.Desk.Pick("cmbload", "Graphics Set 3");
  play.Desk.Click("cmddone");
  EXPECT_TRUE(play.Desk.Empty());
  play.Reopen();
  const GameInfo& game = play.World().Game();
  const int kStored[] = {game.MailOwners,     game.MailWorkerHire, game.MailWorkerFire,
                         game.MailStaffHire,  game.MailStaffFire,  game.MailTv,
                         game.MailRetirement, game.MailOtherFed,   game.MailSponsor,
                         game.MailShows,      game.MailTvShow,     game.MailStaffRetire,
                         game.MailDev,        game.MailTrain};
  for (std::size_t i = 0; i < kMailOptionTable.size(); ++i)
    EXPECT_EQ(kStored[i], kChoices[i]) << kMailOptionTable[i].Control;
  EXPECT_EQ(game.Reporter, 2);
  EXPECT_EQ(game.LoadingSet, 3);
}

TEST(frmOptions, SetsAllAtOnce) {
  const std::tuple<const char*, const char*, int> kCases[] = {
      {"cmdnever", "Never", kMailNever},
      {"cmddirect", "Only for direct rivals or above", kMailAlways},
      {"cmdalways", "Always", kMailAlways}};
  GameOnWorld play(Plain());
  play.Desk.Open("frmOptions");
  for (const auto& [button, choice, twoWay] : kCases) {
    play.Desk.Click(button);
    for (const MailOption& option : kMailOptionTable)
      EXPECT_EQ(play.Desk.Text(option.Control), option.TwoWay ? Says(kMailOptions, twoWay) : choice)
          << button << " " << option.Control;
    EXPECT_EQ(play.World().Game().MailTrain, twoWay);
  }
}

TEST(frmOptions, ShowsStrayWordsWithoutChangingThem) {
  GameOnWorld play(
      SmallWorld()
          .Promotion("CWA")
          .Game("CWA", kGameStart,
                [](GameInfo& game) { game.MailDev = 1, game.MailTv = 7, game.Reporter = -3; })
          .BuildUnchecked());
  play.Desk.Open("frmOptions");
  EXPECT_EQ(play.Desk.Text("cmbdev"), "Always");
  EXPECT_EQ(play.Desk.Text("cmbtv"), "");
  play.Desk.Click("cmdview");
  EXPECT_EQ(play.Desk.TopName(), "frmLoadingScreens");
  play.Desk.Click("cmdback");
  play.Desk.Click("cmddone");
  EXPECT_EQ(play.World().Game().MailTv, 7);
  EXPECT_EQ(play.World().Game().Reporter, -3);
}

SmallWorld SixMails() {
  SmallWorld small = Plain();
  for (const char* body : {"1", "2", "3", "4"}) small.Mail("Maeve", body);
  small.Mail("Bram Okafor", "5").Mail("Maeve", "6");
  return small;
}

/// The bodies in the order shown, and the one that is open.
void ExpectMails(ScriptDesk& desk, const Names& bodies, const std::string& open) {
  Names shown;
  for (const auto& row : desk.Rows("lstnews")) shown.push_back(row.at(1));
  EXPECT_EQ(shown, bodies);
  EXPECT_EQ(desk.Text("txtbody"), open);
}

TEST(frmNews, ShowsTheNewestFirstAndKeepsItsPlaceAfterADelete) {
  GameOnWorld play(SixMails());
  play.Desk.Open("frmNews");
  ExpectMails(play.Desk, {"6", "5", "4", "3", "2", "1"}, "6");
  play.Desk.Pick("lstnews", 2);
  EXPECT_EQ(play.Desk.Text("lblfrom"), "Bram Okafor");
  EXPECT_EQ(play.Desk.Text("lbldate"), play.World().News()[5].Date.Str());
  play.Desk.Pick("lstnews", 3);
  play.Desk.Click("cmddelete");
  ExpectMails(play.Desk, {"6", "5", "3", "2", "1"}, "3");
  EXPECT_EQ(play.Desk.Selected("lstnews"), std::vector{3});
  play.Desk.Pick("lstnews", 5);
  play.Desk.Click("cmddelete");
  ExpectMails(play.Desk, {"6", "5", "3", "2"}, "2");
  EXPECT_EQ(ui::PickRows(play.Desk, *play.Desk.Top(), "lstnews", {1, 3}), "");
  EXPECT_EQ(play.Desk.Text("cmddelete"), "Delete (2)");
  play.Desk.Click("cmddelete");
  ExpectMails(play.Desk, {"5", "2"}, "5");
  for (int left = 2; left > 0; --left) play.Desk.Click("cmddelete");
  ExpectMails(play.Desk, {}, "");
  EXPECT_FALSE(play.Desk.Enabled("cmddelete"));
  EXPECT_EQ(play.Desk.Tip("cmddelete"), "Pick a mail first.");
  EXPECT_EQ(play.Desk.Tip("cmdempty"), "There is no mail to delete.");
  EXPECT_EQ(play.Desk.Text("lblfacts"), "0 mails.");
  play.Reopen();
  EXPECT_EQ(play.World().News().Count(), 0);
}

TEST(frmNews, FiltersBySender) {
  GameOnWorld play(SixMails());
  play.Desk.Open("frmNews");
  EXPECT_EQ(play.Desk.FirstColumn("cmbfrom"), (Names{"Everybody", "Bram Okafor", "Maeve"}));
  play.Desk.Pick("cmbfrom", "Maeve");
  ExpectMails(play.Desk, {"6", "4", "3", "2", "1"}, "6");
  EXPECT_EQ(play.Desk.Text("lblfacts"), "5 of 6 mails.");
  play.Desk.Pick("lstnews", 2);
  play.Desk.Click("cmddelete");
  ExpectMails(play.Desk, {"6", "3", "2", "1"}, "3");
  EXPECT_EQ(play.Desk.Text("cmbfrom"), "Maeve");
  // The filter goes with its sender's last mail.
  play.Desk.Pick("cmbfrom", "Bram Okafor");
  ExpectMails(play.Desk, {"5"}, "5");
  play.Desk.Click("cmddelete");
  EXPECT_EQ(play.Desk.Text("cmbfrom"), "Everybody");
  ExpectMails(play.Desk, {"6", "3", "2", "1"}, "6");
}

TEST(frmNews, KeepsWhatWasReadAndGathersTheNewsOfOthers) {
  SmallWorld mails = SixMails();
  mails.Mail("NEW News", "A signing.").Mail("Maeve", "7").Mail("OLD News", "A firing.");
  GameOnWorld play(std::move(mails));
  play.Desk.Open("frmMainScreen");
  EXPECT_EQ(play.Desk.Badge("cmdnews"), "8") << "a day's news of others are one";
  EXPECT_EQ(play.Desk.Rows("lstmail").size(), 7u) << "what is for the player alone";
  EXPECT_NE(play.Desk.Text("lblworld").find("2 items from 2 promotions"), std::string::npos);
  play.Desk.Click("cmdworld");
  ExpectMails(play.Desk, {"7", "6", "5", "4", "3", "2", "1", "2 items from 2 promotions"},
              "A firing.");
  EXPECT_EQ(play.Desk.Badge("cmdread"), "7") << "the others have not been shown";
  play.Desk.Pick("lstdigest", 2);
  EXPECT_EQ(play.Desk.Text("txtbody"), "A signing.");
  play.Desk.Pick("lstnews", 1);
  EXPECT_EQ(play.Desk.Badge("cmdread"), "6");
  play.Desk.Click("cmdback");
  play.Desk.CloseAll();
  play.Reopen();
  play.Desk.Open("frmMainScreen");
  EXPECT_EQ(play.Desk.Badge("cmdnews"), "6");
  play.Desk.Click("cmdnews");
  play.Desk.Check("chkdigest", false);
  ExpectMails(play.Desk, {"A firing.", "7", "A signing.", "6", "5", "4", "3", "2", "1"},
              "A firing.");
  play.Desk.Click("cmdread");
  EXPECT_FALSE(play.Desk.Enabled("cmdread"));
  play.Desk.Check("chkdigest");
  play.Desk.Pick("lstnews", 8);
  play.Desk.Click("cmddelete");
  EXPECT_EQ(play.World().News().Count(), 7) << "the whole digest";
}

TEST(frmNews, LeadsFromANewsToWhomItIsAbout) {
  SmallWorld small;
  small.Promotion("CWA").Promotion("NEW").Game("CWA");
  GameOnWorld play(small.Mail("NEW News", "NEW have risen to Cult level.").Mail("Maeve", "Well."));
  play.Desk.Open("frmNews");
  EXPECT_EQ(play.Desk.Tip("cmdsubject"), "Nobody in this mail has a page.");
  play.Desk.Pick("lstnews", 2);
  EXPECT_EQ(play.Desk.Text("cmdsubject"), "Open NEW");
  play.Desk.OpenRow("lstdigest", 1);
  EXPECT_EQ(play.Desk.TopName(), "frmPromotion");
}

TEST(Mails, AreThePlayersOwnOrNewsOfOthers) {
  constexpr struct {
    const char *From, *Body;
    bool IsOwn;
  } kCases[] = {
      {"TV News", "CWA's Fire has been renewed for a further 25 weeks!", true},
      {"TV News", "Fire has been dropped by Nine!", true},
      {"TV News", "Late Fire has been dropped by Nine!", true},
      {"TV News", "Nine are not happy with the risky nature of our last show.", true},
      {"TV News", "NEW have a new TV show on Mondays!", false},
      {"Retirement!", "Old Hand has retired from CWA!", true},
      {"Retirement!", "Old Hand has announced he will retire from CWA in one month.", true},
      {"Retirement!", "Old Hand has retired from NEW!", false},
      {"Retiring!", "Watched has announced he will retire in one month.", true},
      {"Retiring!", "Somebody has announced he will retire in one month.", false},
      {"News Desk", "Bo Crane has taken over control of CWA Wrestling!", true},
      {"News Desk", "Bo Crane has taken over control of NEW Wrestling!", false},
      {"News Desk", "Gulp have become our sponsor.", true},
      {"New Promotion", "A new promotion, Fresh, has opened.", false},
      {"Roster News", "Old Hand has returned from injury.", true},
      {"CWA News", "Owner Bo Crane has quit CWA.", true},
      {"NEW News", "NEW have stolen Dan Dale from CWA!", true},
      {"NEW News", "NEW have stolen Dan Dale from OLD!", false},
      {"NEW News", "NEW have risen to Cult level.", false}};
  SmallWorld small;
  small.Network("Nine").Promotion("CWA").Show("Fire", "Friday", "Nine").Promotion("NEW");
  World world = small.OnTheMarket().Worker("Watched").Game("CWA").Build();
  world.Game().Shortlist[0] = Named(world.Workers(), "Watched").Uid;
  HistoryEntry gone = EntryOf(world, world.Player(), kPastTv);
  gone.Name = "Late Fire";
  Remember(world, gone);
  for (const auto& c : kCases) {
    world.News().Rewrite({});
    AddNews(world, c.From, c.Body);
    const Unread unread = UnreadOf(world);
    EXPECT_EQ(unread.Own.size(), c.IsOwn ? 1u : 0u) << c.From << c.Body;
    EXPECT_EQ(unread.Days, c.IsOwn ? 0 : 1) << c.From << c.Body;
  }
}

TEST(Mails, OfADayAreGatheredUnderWhatTheyTell) {
  SmallWorld small;
  small.Promotion("CWA").Promotion("NEW").Promotion("OLD").Game("CWA");
  World world = small.Mail("NEW News", "NEW have signed Al Bo!")
                    .Mail("NEW News", "NEW have stolen Cy Do from OLD!")
                    .Mail("OLD News", "OLD have fired Ed Fu!")
                    .Mail("OLD News", "Well.")
                    .Build();
  EXPECT_EQ(DigestsOf(world).at(0).Words, "4 items from 2 promotions (1 departure, 2 signings)");
}

TEST(frmNews, EmptiesTheMailboxAfterAsking) {
  GameOnWorld play(SixMails());
  play.Desk.Open("frmMainScreen");
  EXPECT_EQ(play.Desk.Text("imgmail"), "6 mails in all");
  play.Desk.Click("cmdnews");
  const std::string question = "Are you sure you want to delete all 6 mails?";
  play.Desk.ExpectAsk("Empty?", question, false, ui::Default::No);
  play.Desk.Click("cmdempty");
  EXPECT_EQ(play.World().News().Count(), 6);
  play.Desk.Pick("cmbfrom", "Bram Okafor");
  play.Desk.ExpectAsk("Empty?", question, true);
  play.Desk.Click("cmdempty");
  ExpectMails(play.Desk, {}, "");
  EXPECT_EQ(play.Desk.FirstColumn("cmbfrom"), (Names{"Everybody"}));
  play.Desk.Click("cmdback");
  EXPECT_EQ(play.Desk.Text("imgmail"), "0 mails in all");
  EXPECT_FALSE(play.Desk.Enabled("imgmail"));
}

/// A game whose commits fail while its disk is full.
class FullDisk : public ui::Work {
 public:
  explicit FullDisk(GameOnWorld& play) : game_(play.Play) { play.Desk.SetWork(this); }
  ~FullDisk() override { game_.Desk().SetWork(&game_); }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;
  bool Full = true;

  void Commit() override {
    if (Full && !game_.World().Changes().empty())
      throw DiskError("notes.dat", "write to", "no space is left");
    game_.Commit();
  }
  void Rollback() override { game_.Rollback(); }
  std::string Explain(const std::exception& fault) const override { return game_.Explain(fault); }

 private:
  Game& game_;
};

TEST(frmNotepad, KeepsWhatIsTypedHoweverItCloses) {
  GameOnWorld play(Plain());
  play.Desk.Open("frmNotepad");
  EXPECT_EQ(play.Desk.Text("txtnotes"), "Notepad");
  const std::string notes =
      "Push Bram.\r\n\tDrop Ilya.\n\n  caf\xE9 \x80"
      "5\n";
  play.Desk.Type("txtnotes", notes);
  play.Desk.CloseAll();
  play.Reopen();
  EXPECT_EQ(play.World().Notes().Text(), notes);
  play.Desk.Open("frmNotepad");
  EXPECT_EQ(play.Desk.Text("txtnotes"), notes);
  play.Desk.Type("txtnotes", "");
  play.Desk.Click("cmdback");
  EXPECT_TRUE(play.Desk.Empty());
  play.Reopen();
  EXPECT_EQ(play.World().Notes().Text(), "");
}

TEST(frmNotepad, RefusesMoreThanItHolds) {
  GameOnWorld play(Plain());
  play.Desk.Open("frmNotepad");
  std::string notes(1 << 20, 'n');
  play.Desk.Type("txtnotes", notes);
  EXPECT_EQ(play.World().Notes().Text(), notes);
  play.Desk.ExpectSay("Error!",
                      "The notepad holds 1048576 letters at most. Your notes are as they were "
                      "before.");
  play.Desk.Type("txtnotes", notes + "n");
  EXPECT_EQ(play.Desk.Text("txtnotes"), notes);
  EXPECT_EQ(play.World().Notes().Text(), notes);
}

TEST(frmNotepad, LosesNothingToAFullDisk) {
  GameOnWorld play(Plain());
  play.Desk.Open("frmNotepad");
  EXPECT_FALSE(play.Desk.Visible("cmdrevert"));

  FullDisk disk(play);
  play.Desk.ExpectSay("Error!", kAnyText);
  play.Desk.Type("txtnotes", "A long letter.");
  play.Desk.ExpectSay("Error!", kAnyText);
  play.Desk.Click("cmdback");
  EXPECT_EQ(play.Desk.TopName(), "frmNotepad");
  EXPECT_EQ(play.Desk.Text("txtnotes"), "A long letter.");
  EXPECT_EQ(play.Desk.Text("lblfacts"), "The last change is not saved yet.");
  EXPECT_EQ(play.World().Notes().Text(), "Notepad");
  play.Desk.Click("cmdrevert");
  EXPECT_EQ(play.Desk.Text("txtnotes"), "Notepad") << "what is saved can be gone back to";
  play.Desk.ExpectSay("Error!", kAnyText);
  play.Desk.Type("txtnotes", "A long letter.");

  disk.Full = false;
  play.Desk.Click("cmdback");
  EXPECT_TRUE(play.Desk.Empty());
  play.Reopen();
  EXPECT_EQ(play.World().Notes().Text(), "A long letter.");
}

}  // namespace
}  // namespace grapplemont::test
