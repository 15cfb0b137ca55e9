#include <gtest/gtest.h>
#include "words/segments.h"

#include "booking/ring.h"

namespace grapplemont::test {
namespace {

/// Man 1 and Man 3 against Man 2, who wins, and Man 4; Man 5 to Man 8 run in.
TEST(Phrases, NameWhomTheyAreAbout) {
  const World world = BookingRoster()
                          .Team("Odd Men", "Man 1", "Man 3")
                          .Team("The Law", "Man 5", "Man 6")
                          .Game("CWA");
  Segment match = MatchOf(world, kTag, kPlainTag, {"Man 1", "Man 3", "Man 2", "Man 4"});
  match.Winner = 2;
  match.Loser = 1;
  match.Other1 = 5;
  match.Other2 = 6;
  match.Other3 = 7;
  match.Other4 = 8;
  match.Finish = kInterference;
  const std::pair<const char*, const char*> kPhrases[] = {
      {"{W} over {L}", "Man 2 over Man 1"},
      {"{P} beside {L}", "Man 3 beside Man 1"},
      {"{WT} over {LT}", "Man 2 \\ Man 4 over Odd Men"},
      {"{12} and {34}", "Odd Men and Man 2 \\ Man 4"},
      {"{OO} on {AT}", "The Law on Odd Men"},
      {"{PP}, {O1}, {O2}, {O3}, {O4}", "Man 7 \\ Man 8, Man 5, Man 6, Man 7, Man 8"},
      {"{1}{2}{3}{4}", "Man 1Man 3Man 2Man 4"},
      {"{9} {X}", "<Error> <Error>"}};
  for (const auto& [phrase, words] : kPhrases)
    EXPECT_EQ(FillPhrase(world, match, phrase), words) << phrase;
  match.Finish = kDqThroughInterference;
  EXPECT_EQ(FillPhrase(world, match, "{AT}"), "Man 2 \\ Man 4");
  match.Other2 = 0;
  EXPECT_EQ(FillPhrase(world, match, "{OO}"), "Man 5") << "one alone";
  EXPECT_EQ(PhraseText(world, match, FinishesOf(kTag), kPartnerTurns), "Man 3 turns on partner");
  EXPECT_EQ(SummaryText(world, match, FinishesOf(kTag), kPartnerTurns), "Man 1 Gets Backstabbed");
  EXPECT_EQ(PhraseText(world, match, PurposesOf(kTag), 31), "") << "a gap";
}

}  // namespace
}  // namespace grapplemont::test
