#include <gtest/gtest.h>

#include "chronicle/screens/chroniclescreens.h"
#include "storylines/lineages.h"
#include "support/gameonworld.h"

namespace grapplemont::test {
namespace {

TEST(TheChronicle, LeadsFromAChapterToTheRecordsBehindASentence) {
  GameOnWorld play(
      SmallWorld().Promotion("CWA").Crew(6).Title("CWA Crown", "CWA Hand 1").Game("CWA"));
  UpdateReigns(play.World());
  play.Play.Commit();
  play.Desk.Open("frmChronicle");
  EXPECT_NE(play.Desk.Text("txtchapter").find("CWA"), std::string::npos);
  play.Desk.Pick("cmbkind", "Titles");
  play.Desk.Pick("lstsubjects", "CWA Crown");
  const std::string told = play.Desk.Text("txtchapter");
  play.Desk.Pick("cmbvoice", "QVD");
  EXPECT_NE(play.Desk.Text("txtchapter"), told) << "another voice, other words";
  ASSERT_GT(play.Desk.Rows("lstproof").size(), 1U);
  play.Desk.OpenRow("lstproof", 2);
  ASSERT_EQ(play.Desk.TopName(), "frmProof");
  EXPECT_EQ(play.Desk.Rows("lstrecords")[0][0], "reigns.dat");
  bool names = false;
  for (const auto& row : play.Desk.Rows("lstfields")) names |= row[1] == "CWA Hand 1";
  EXPECT_TRUE(names);
  play.Desk.Click("cmdback");
  EXPECT_EQ(play.Desk.TopName(), "frmChronicle");
  EXPECT_FALSE(play.Desk.Enabled("cmdpdf"));
}

TEST(TheChronicle, IsReachedFromTheWorkersPage) {
  GameOnWorld play(SmallWorld().Promotion("CWA").Crew(3).Game("CWA"));
  play.Play.OpenWorker(play.World().Workers()[2].Uid);
  play.Desk.Click("cmdchronicle");
  ASSERT_EQ(play.Desk.TopName(), "frmChronicle");
  EXPECT_NE(play.Desk.Text("txtchapter").find("CWA Hand 2"), std::string::npos);
}

TEST(TheChronicle, IsWrittenAsABookWhereThePlayerWants) {
  GameOnWorld play(SmallWorld().Promotion("CWA").Crew(3).Game("CWA"));
  play.Desk.Open("frmChronicle");
  play.Desk.ExpectPrompt("The book", test::kAnyText, "book.html", "chronicle.html");
  play.Desk.Click("cmdbook");
  EXPECT_NE(play.Desk.Text("lblfacts").find("book.html"), std::string::npos);
}

}  // namespace
}  // namespace grapplemont::test
