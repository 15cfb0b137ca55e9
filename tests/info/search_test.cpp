#include "info/search.h"

#include <gtest/gtest.h>

#include "support/smallworld.h"

namespace grapplemont::test {
namespace {

using Kind = Found::Kind;

World SomeWorld() {
  return SmallWorld()
      .Network("Channel Nine")
      .Promotion("CWA", kCult)
      .Owner("Ruth Vane")
      .Worker("Bram Okafor", kMainEvent, 88)
      .Worker("Ilya Marsh", kMidcard, 40)
      .Worker("Jos\xE9 Marsh", kMidcard, 60)
      .Team("Marsh And Marsh", "Ilya Marsh", "Jos\xE9 Marsh")
      .Title("CWA Crown", "Bram Okafor")
      .Show("Saturday Smash", "Saturday", "Channel Nine")
      .Promotion("NEW", kSmall)
      .Worker("Bramwell Fox", kMainEvent, 95)
      .Game("CWA")
      .Mail("Maeve", "The crown has\nlost its shine.")
      .Mail("Marsh Daily", "Nothing new.");
}

Names Called(const World& world, std::string_view typed, std::size_t most = 10) {
  Names names;
  for (const Found& found : NameSearch(world).Find(typed, most)) names.push_back(found.Name);
  return names;
}

TEST(Search, FindsNamesByTheirBeginningsInAnyLettersAndForgivesSlips) {
  const World world = SomeWorld();
  const struct {
    const char* Typed;
    Names Called;
  } rows[] = {
      {"bram", {"Bram Okafor", "Bramwell Fox"}},  // the player's own first
      {"OKAFOR bram", {"Bram Okafor"}},
      {"jose", {"Jos\xE9 Marsh"}},
      {"okafro", {"Bram Okafor"}},
      {"brma okafor", {"Bram Okafor"}},
      // "Mash" stands in Smash, and is a slip of Marsh all the same; the best kind leads.
      {"mash", {"Saturday Smash", "Jos\xE9 Marsh", "Ilya Marsh", "Marsh And Marsh"}},
      {"crown", {"CWA Crown", "The crown has lost its shine."}},
      {"zzz", {}},
      {"okz", {}},  // nobody guesses from three letters
      {" .,", {}},
  };
  for (const auto& row : rows) EXPECT_EQ(Called(world, row.Typed), row.Called) << row.Typed;
  EXPECT_EQ(Called(world, "marsh", 1), (Names{"Marsh And Marsh", "Jos\xE9 Marsh", "Nothing new."}))
      << "mail is behind all names";
}

TEST(Search, KnowsOtherWordsForANameButForgivesNoSlipInThem) {
  EXPECT_EQ(FitOfName("News", "mail inbox", "news"), 0);
  EXPECT_EQ(FitOfName("News", "mail inbox", "inbox"), 2);
  EXPECT_EQ(FitOfName("News", "mail inbox", "mial"), -1);
  EXPECT_EQ(FitOfName("News", "mail inbox", " "), -1);
  EXPECT_GT(FitOfName("Finance", "money", "finence"), kSureFit);
  EXPECT_EQ(FitOfName("Ticket Prices", "seats raise", "raise ticket price"), 2) << "in either";
  EXPECT_EQ(FitOfName("Ticket Prices", "seats raise", "raise wage"), -1);
  EXPECT_EQ(FitOfName("Ticket Prices", "seats raise", "aise"), -1) << "no middle of another word";
  EXPECT_EQ(FitOfName("Tickets", "", "how do I ticket somebody"), 0);
  EXPECT_EQ(FitOfName("Tickets", "", "somebody"), -1) << "it is all there is";
}

TEST(Search, KnowsWhatHasGoneSince) {
  World world = SomeWorld();
  const Found bram = NameSearch(world).Find("bram", 1).front();
  EXPECT_EQ(AboutFound(world, bram), "Main Event, CWA Wrestling");
  EXPECT_TRUE(IsStill(world, bram));
  world.Workers()[bram.Number].Name = "Cal Drift";
  EXPECT_FALSE(IsStill(world, bram));
  world.Workers().Keep([](const Worker&) { return false; });
  EXPECT_FALSE(IsStill(world, bram));
}

}  // namespace
}  // namespace grapplemont::test
