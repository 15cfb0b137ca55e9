#include "records/nameindex.h"

#include <gtest/gtest.h>

#include "support/smallworld.h"

// Which names are seen in a text, and where.

namespace grapplemont::test {
namespace {

using Names = std::vector<std::string>;

World NamedWorld() {
  return SmallWorld()
      .Promotion("CWA", kCult)
      .Worker("Bram Okafor")
      .Worker("Bram Okafor Jr.")
      .Worker("Okafor")
      .Worker("O'Neil Ray")
      .Worker("Dani Okonkwo-Pratt")
      .Worker("Pratt")
      .Worker("Ren\xE9 Bl\xE4tt")
      .Promotion("NEW", kSmall)
      .Worker("The")
      .Game("CWA");
}

Names Found(NameIndex& index, const World& world, std::string_view text) {
  Names names;
  for (const NameSpan& span : index.Find(world, text))
    names.emplace_back(text.substr(span.From, span.Length));
  return names;
}

TEST(NameIndex, FindsWholeNamesTheLongestFirst) {
  struct Row {
    const char* Text;
    Names Expected;
  };
  const Row kRows[] = {
      {"", {}},
      {"Nobody of note.", {}},
      {"Bram Okafor!", {"Bram Okafor"}},
      {"Bram Okafor's belt", {"Bram Okafor"}},
      {"'Bram Okafor'", {"Bram Okafor"}},
      {"Bram Okafor vs Bram Okafor", {"Bram Okafor", "Bram Okafor"}},
      // Names that contain each other.
      {"It is Bram Okafor Jr. again", {"Bram Okafor Jr."}},
      {"It is Bram Okafor Jr again", {"Bram Okafor"}},
      {"Dani Okonkwo-Pratt, Pratt", {"Dani Okonkwo-Pratt", "Pratt"}},
      // A piece of a word is no name.
      {"XBram Okafor", {"Okafor"}},
      {"Pratt-Smith", {}},
      {"Ren\xE9 Bl\xE4tter", {}},
      {"Bl\xE4tt by Ren\xE9 Bl\xE4tt.", {"Ren\xE9 Bl\xE4tt"}},
      // As it is written.
      {"bram okafor", {}},
      {"the O'Neil Ray", {"O'Neil Ray"}},
      {"The O'Neil Rays", {"The"}},
      // Promotions, by name and initials.
      {"CWA Wrestling sues NEW.", {"CWA Wrestling", "NEW"}},
      {"CWAX, Cwa", {}},
  };
  World world = NamedWorld();
  NameIndex index;
  for (const Row& row : kRows) EXPECT_EQ(Found(index, world, row.Text), row.Expected) << row.Text;
}

TEST(NameIndex, FollowsRenamesNewcomersAndTheEndOfPromotions) {
  World world = NamedWorld();
  NameIndex index;
  const int rival = Named(world.Promotions(), "NEW").Uid;
  EXPECT_EQ(index.Find(world, "In NEW Wrestling"),
            (std::vector<NameSpan>{{3, 13, NameSpan::Kind::Promotion, rival}}));
  const std::string text = "Bram Okafor, Big Bram, Cal Drift, NEW";
  EXPECT_EQ(Found(index, world, text), Names({"Bram Okafor", "NEW"}));

  Worker& bram = Named(world.Workers(), "Bram Okafor");
  bram.Name = "Big Bram";
  EXPECT_EQ(Found(index, world, text), Names({"Okafor", "Big Bram", "NEW"}));

  Worker newcomer = bram;
  newcomer.Uid = 500;
  newcomer.Name = "Cal Drift";
  world.Workers().Append(newcomer);
  EXPECT_EQ(Found(index, world, text), Names({"Okafor", "Big Bram", "Cal Drift", "NEW"}));

  // The same name can be another's, as in the place of somebody retired.
  world.Workers()[world.Workers().Count()].Uid = 501;
  EXPECT_EQ(index.Find(world, "Cal Drift").at(0).Uid, 501);

  Named(world.Promotions(), "NEW").Name = kToBeDeleted;
  EXPECT_EQ(Found(index, world, text), Names({"Okafor", "Big Bram", "Cal Drift"}));
  EXPECT_EQ(Found(index, world, "To Be Deleted"), Names());
}

}  // namespace
}  // namespace grapplemont::test
