#include "report/live.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "report/stretches.h"

// How a report is parted: into paragraphs by the phases of a bout, into pieces for who hears it
// live.

namespace grapplemont {
namespace {

TEST(Phases, PartARowWhereItsFightTurns) {
  const auto phases = [](std::string_view row) {
    std::string letters;
    for (const Stretch phase : StretchesOf(row)) letters += "etn"[static_cast<int>(phase)];
    return letters;
  };
  EXPECT_EQ(phases("BC2#AB2DNB#C2DNBA#BD"), "eeettttnnnnnnnnnnnnn")
      << "the near falls with the move before";
  EXPECT_EQ(phases("A#ARDP#BC2DN#CN#"), "eeeeeettttnnnnnn");
  EXPECT_EQ(phases("AB#CS#BAS#DS"), "eeeeettttnnn") << "no count: the last exchange";
  EXPECT_EQ(phases("AB2#BAB#C"), "eeennnnnn");
  EXPECT_EQ(phases("CDDNB2#BC#C"), "eeeeeeeeeee") << "near falls from the bell on";
  EXPECT_EQ(phases("ABCD"), "eeee");
  EXPECT_EQ(phases("C"), "e");
}

struct Said {
  std::string_view Words;
  Family Of = Family::OffenceA;
  int Band = 0;
};

/// The pieces in brackets, a breath that is held as "[...]".
struct Live {
  std::string Pieces;
  std::vector<int> Hall;
};
Live Tell(std::initializer_list<Said> said, int crowd = 60) {
  std::string report;
  std::vector<SaidSentence> sentences;
  for (const Said& sentence : said) {
    report += sentence.Words;
    sentences.push_back({report.size(), sentence.Of, sentence.Band});
  }
  while (report.ends_with(' ')) report.pop_back();
  Live live;
  std::size_t from = 0;
  for (const LivePiece& piece : LivePieces(report, sentences, crowd)) {
    live.Pieces +=
        "[" + (piece.HoldsBreath ? "..." : report.substr(from, piece.Until - from)) + "]";
    live.Hall.push_back(piece.Hall);
    from = piece.Until;
  }
  EXPECT_EQ(from, report.size()) << "the end is missing";
  return live;
}

TEST(LivePieces, HoldABreathBeforeACountAndCountNumberByNumber) {
  EXPECT_EQ(Tell({{"Slam by Marsh. "}, {"1 - 2 - shoulder up. ", Family::TwoCount}}).Pieces,
            "[Slam by Marsh. ][...][1 - ][2 - ][shoulder up.]");
  EXPECT_EQ(Tell({{"Cover! ", Family::ThreeCount},
                  {"1....2....3! ", Family::ThreeCount},
                  {"Ring the bell. ", Family::ThreeCount}})
                .Pieces,
            "[Cover! ][...][1....][2....][3! ][Ring the bell.]");
  EXPECT_EQ(Tell({{"Cover by Marsh....1....2....3! ", Family::ThreeCount}}).Pieces,
            "[Cover by Marsh....][...][1....][2....][3!]");
  EXPECT_EQ(Tell({{"One, two, and Okafor kicks out. ", Family::NearFall}}).Pieces,
            "[...][One, ][two, ][and Okafor kicks out.]");
  EXPECT_EQ(Tell({{"Hooked for two. ", Family::TwoCount}}).Pieces, "[...][Hooked for two.]");
  EXPECT_EQ(Tell({{"One more 1 - 2 on Marsh. "}}).Pieces, "[One more 1 - 2 on Marsh.]");
  EXPECT_EQ(Tell({}).Pieces, "");
}

TEST(LivePieces, MoveTheHallWithTheWords) {
  const Live live = Tell({{"Slam. "},
                          {"Nearly! ", Family::NearFall},
                          {"The hall is up. ", Family::Interlude, kLoud},
                          {"Silence. ", Family::Interlude, kQuiet},
                          {"Chop. "}});
  ASSERT_EQ(live.Hall.size(), 6U);
  const std::vector<int>& hall = live.Hall;
  EXPECT_EQ(hall[1], hall[0]) << "nobody stirs while a breath is held";
  EXPECT_GT(hall[2], hall[1]);
  EXPECT_GT(hall[3], hall[2]);
  EXPECT_LT(hall[4], hall[3]);
  for (const int crowd : {0, 30, 100})
    for (const int level : Tell({{"Nearly! ", Family::NearFall},
                                 {"Again! ", Family::NearFall},
                                 {"Up! ", Family::Interlude, kLoud},
                                 {"Turn! ", Family::Turn}},
                                crowd)
                               .Hall) {
      EXPECT_GE(level, 0);
      EXPECT_LE(level, crowd == 0 ? 0 : 100);
    }
}

}  // namespace
}  // namespace grapplemont
