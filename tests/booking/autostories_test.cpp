#include "autocards.h"

#include <gtest/gtest.h>

#include "records/angles.h"
#include "records/fields/fields.h"

// Feuds, Titles, turns and debuts on the auto booker's cards.

namespace grapplemont::test {
namespace {

constexpr int kTv = 8;
constexpr std::uint64_t kSeeds = 20;

int Uid(const World& world, std::string_view name) {
  return Named(world.Workers(), name).Uid;
}

template <class Takes>
int CardsWith(World& world, bool isEvent, int rows, Takes takes, std::uint64_t cards = kSeeds) {
  int count = 0;
  for (std::uint64_t seed = 1; seed <= cards; ++seed) {
    const AutoCard card = BookedBy(world, isEvent, rows, seed);
    EXPECT_EQ("", FaultsOf(world, card, isEvent));
    count += takes(card);
  }
  return count;
}

int MatchesOf(const AutoCard& card, int uid) {
  return Count(card, [&](const Segment& row) { return row.Kind == kMatch && TakesPart(row, uid); });
}

/// Both have a part in one Segment.
bool BringsTogether(const AutoCard& card, int uidA, int uidB) {
  return Count(card, [&](const Segment& row) {
           return TakesPart(row, uidA) && TakesPart(row, uidB);
         }) > 0;
}

TEST(AutoFeuds, EachGetsSomethingOnEveryCard) {
  World world = House(30)
                    .Team("Moles", "Hand 11", "Hand 13")
                    .Team("Voles", "Hand 12", "Hand 14")
                    .Game("CWA")
                    .Feud("Hand 1", "Hand 2")
                    .Feud("Hand 5", "Hand 6")
                    .TagFeud("Hand 11", "Hand 13", "Hand 12", "Hand 14");
  for (const bool isEvent : {false, true})
    EXPECT_EQ(int(kSeeds), CardsWith(world, isEvent, isEvent ? 9 : kTv, [&](const AutoCard& card) {
                return BringsTogether(card, Uid(world, "Hand 1"), Uid(world, "Hand 2")) &&
                       BringsTogether(card, Uid(world, "Hand 5"), Uid(world, "Hand 6")) &&
                       BringsTogether(card, Uid(world, "Hand 11"), Uid(world, "Hand 12"));
              }));
}

TEST(AutoFeuds, GoToTheRingTheMicrophoneAndTheBackstage) {
  World world = House(30).Game("CWA").Feud("Hand 1", "Hand 2");
  const int one = Uid(world, "Hand 1"), two = Uid(world, "Hand 2");
  for (const int kind : {kMatch, kInterview, kAngle})
    EXPECT_GT(CardsWith(world, false, kTv,
                        [&](const AutoCard& card) {
                          return Count(card, [&](const Segment& row) {
                                   return row.Kind == kind && TakesPart(row, one) &&
                                          TakesPart(row, two);
                                 }) > 0;
                        }),
              0)
        << kind;
}

TEST(AutoFeuds, BringTheStableOfItsLeader) {
  World world = House(30)
                    .Stable("The Tide", {"Hand 2", "Hand 12"})
                    .Stable("The Ebb", {"Hand 3", "Hand 13"})
                    .Game("CWA")
                    .Feud("Hand 1", "Hand 2");
  const int attacks = CardsWith(
      world, false, kTv,
      [&](const AutoCard& card) {
        return Count(card, [&](const Segment& row) {
          if (row.Kind != kAngle || row.Style != kStableAttack) return false;
          EXPECT_EQ(0, Count(card, [&](const Segment& other) {
                      return other.Kind == kMatch && TakesPart(other, row.Worker[0]);
                    }));
          return row.Text == "The Tide" && row.Worker[0] == Uid(world, "Hand 1");
        });
      },
      4 * kSeeds);
  EXPECT_GT(attacks, 0);
}

TEST(AutoTalk, LetsTheCommissionerAnnounceAMatchOfTonight) {
  World world = House(30).Worker("Com Boss", kNonWrestler, 50).Game("CWA");
  const int boss = Uid(world, "Com Boss");
  const auto announcements = [&] {
    return CardsWith(
        world, false, kTv,
        [&](const AutoCard& card) {
          int announced = 0;
          for (const Segment& row : card.Rows) {
            if (row.Kind != kAngle || row.Style != kMatchMaking) continue;
            ++announced;
            EXPECT_EQ(row.Worker[0], boss);
            EXPECT_TRUE(MatchOf(card, row.Worker[1], row.Worker[2])) << "it has to come off";
          }
          EXPECT_LE(announced, 1);
          return announced;
        },
        2 * kSeeds);
  };
  EXPECT_EQ(0, announcements());
  world.Player().Commissioner = boss;
  EXPECT_GT(announcements(), 0);
}

TEST(AutoFeuds, EndAtAnEventOnceTheyHaveHadEnough) {
  struct {
    const char* Says;
    bool IsEvent;
    int CleanOne, DirtyTwo;
    int DaysOld;
    bool Ends;
  } const kFeudsSoFar[] = {
      {"long", true, 7, 8, 100, true},          {"long, on a show", false, 7, 8, 100, false},
      {"even for weeks", true, 4, 4, 60, true}, {"even, but young", true, 4, 4, 20, false},
      {"barely begun", true, 1, 0, 10, false},  {"dragging on", true, 2, 3, 200, true},
  };
  for (const auto& feud : kFeudsSoFar) {
    World world = House(30).Game("CWA").Feud("Hand 1", "Hand 2", [&](Feud& record) {
      record.Clean1 = feud.CleanOne;
      record.Dirty2 = feud.DirtyTwo;
      record.Started = kGameStart - std::chrono::days{feud.DaysOld};
    });
    const int ended =
        CardsWith(world, feud.IsEvent, feud.IsEvent ? 9 : kTv, [&](const AutoCard& card) {
          const Segment* match = MatchOf(card, Uid(world, "Hand 1"), Uid(world, "Hand 2"));
          return match && match->Purpose == purpose1::kEndFeud;
        });
    EXPECT_EQ(feud.Ends ? int(kSeeds) : 0, ended) << feud.Says;
  }
}

TEST(AutoFeuds, TheLastMatchIsForTheTitleOfWhoHoldsOne) {
  World world = House(30)
                    .Title("Belt", "Hand 6")
                    .Title("Crown", "Hand 1", {}, [](Title& t) { t.Image = 90; })
                    .Game("CWA")
                    .Feud("Hand 5", "Hand 6", [](Feud& feud) {
                      feud.Clean1 = 7;
                      feud.Dirty2 = 9;
                    });
  EXPECT_EQ(int(kSeeds), CardsWith(world, true, 9, [&](const AutoCard& card) {
              const Segment* match = TitleMatch(card, "Belt");
              EXPECT_EQ(0, Count(card,
                                 [&](const Segment& row) {
                                   return row.Kind == kInterview &&
                                          TakesPart(row, Uid(world, "Hand 5")) &&
                                          TakesPart(row, Uid(world, "Hand 6"));
                                 }))
                  << "nothing is left to say";
              return match && match->Purpose == purpose1::kEndFeud &&
                     match->Winner == Uid(world, "Hand 5") && match->Finish != kCountOut;
            }));
}

TEST(AutoFeuds, NobodyIsCarriedOutAndWrestlesAllTheSame) {
  World world = House(14).Game("CWA").Feud("Hand 1", "Hand 2").Feud("Hand 3", "Hand 4");
  const auto isAttack = [](const Segment& row) {
    return row.Kind == kAngle && (row.Style == kAmbush || row.Style == 27);
  };
  EXPECT_GT(CardsWith(world, false, 11,
                      [&](const AutoCard& card) {
                        for (const Segment& row : card.Rows)
                          EXPECT_TRUE(!isAttack(row) || MatchesOf(card, row.Worker[0]) == 0);
                        return Count(card, isAttack) > 0;
                      }),
            0);
}

TEST(AutoFeuds, StipulationsAreForEventsAndWithinTheRisk) {
  for (const int risk : {0, 95}) {
    World world = House(30, kCult, risk).Game("CWA").Feud("Hand 1", "Hand 2", [](Feud& feud) {
      feud.Heat = 80;
      feud.Clean1 = feud.Dirty2 = 8;
    });
    const int cards = CardsWith(world, true, 9, [&](const AutoCard& card) {
      const int special = Count(card, [](const Segment& row) {
        return row.Kind == kMatch && row.Style <= kTag && row.MatchType != kPlainSingles;
      });
      const Segment* match = MatchOf(card, Uid(world, "Hand 1"), Uid(world, "Hand 2"));
      EXPECT_EQ(special, match && match->MatchType != kPlainSingles) << "nobody else has a reason";
      return special;
    });
    EXPECT_EQ(risk == 0 ? 0 : int(kSeeds), cards) << risk;
  }
}

TEST(AutoTitles, AnEventHasThemAllAndTheTopOneLast) {
  World world = House(30)
                    .Title("Belt", "Hand 3", {}, [](Title& t) { t.Image = 40; })
                    .Title("Crown", "Hand 6", {}, [](Title& t) { t.Image = 90; })
                    .Title("Cup", {}, {}, [](Title& t) { t.Image = 30; })
                    .Title("Shelf", "Hand 8", {}, [](Title& t) { t.Suspended = true; })
                    .Team("Moles", "Hand 11", "Hand 13")
                    .Team("Voles", "Hand 12", "Hand 14")
                    .Title("Tag Belts", "Hand 11", "Hand 13")
                    .Game("CWA");
  CardsWith(world, true, 9, [&](const AutoCard& card) {
    EXPECT_FALSE(TitleMatch(card, "Shelf"));
    EXPECT_EQ("Crown", card.Rows[8].TitleName.Str());
    for (const char* name : {"Belt", "Crown", "Cup", "Tag Belts"}) {
      const Segment* match = TitleMatch(card, name);
      EXPECT_TRUE(match) << name;
      const int holder = Named(world.Titles(), name).Holder;
      EXPECT_TRUE(holder == 0 || (match && TakesPart(*match, holder))) << name;
    }
    const Segment* vacant = TitleMatch(card, "Cup");
    EXPECT_TRUE(vacant && vacant->Winner != 0);
    EXPECT_TRUE(card.Rows[0].TitleName == "None") << "the dark match";
    return true;
  });
}

TEST(AutoTitles, FeudingContendersComeFirst) {
  World world = House(30).Title("Crown", "Hand 1").Game("CWA").Feud("Hand 8", "Hand 1");
  CardsWith(world, true, 9, [&](const AutoCard& card) {
    const Segment* match = TitleMatch(card, "Crown");
    EXPECT_TRUE(match && TakesPart(*match, Uid(world, "Hand 8")));
    return true;
  });
}

TEST(AutoTitles, ShowsSeeTheLesserNowAndThenTheTopOneHardlyEver) {
  World world = House(30)
                    .Title("Crown", "Hand 1", {}, [](Title& t) { t.Image = 90; })
                    .Title("Belt", "Hand 3", {}, [](Title& t) { t.Image = 40; })
                    .Title("Cup", "Hand 5", {},
                           [](Title& t) { t.Reigns[0].Won = kGameStart - std::chrono::days{5}; })
                    .Game("CWA");
  int crown = 0, belt = 0;
  CardsWith(
      world, false, kTv,
      [&](const AutoCard& card) {
        crown += TitleMatch(card, "Crown") != nullptr;
        belt += TitleMatch(card, "Belt") != nullptr;
        EXPECT_FALSE(TitleMatch(card, "Cup")) << "won five days ago";
        return true;
      },
      100);
  EXPECT_LE(crown, 15);
  EXPECT_GE(belt, 10);
  EXPECT_LE(belt, 45);
}

/// What a show does to its Titles.
void HandOver(World& world, const AutoCard& card, int& changes) {
  for (const Segment& row : card.Rows) {
    if (row.TitleName == "None" || row.Winner == 0) continue;
    Title& title = Named(world.Titles(), row.TitleName.Str());
    const bool settles = row.Finish != kCountOut && row.Finish != kDqThroughInterference;
    if (!settles || title.Holder == row.Winner) continue;
    title.Holder = int(row.Winner);
    BeginReign(title, world.Today(), world.FindWorker(row.Winner)->Name);
    ++changes;
  }
}

TEST(AutoTitles, ChangeHandsSomeFourTimesAYear) {
  World world = House(36)
                    .Title("Crown", "Hand 1", {}, [](Title& t) { t.Image = 90; })
                    .Title("Belt", "Hand 6", {}, [](Title& t) { t.Image = 60; })
                    .Title("Cup", "Hand 12", {}, [](Title& t) { t.Image = 40; })
                    .Game("CWA");
  constexpr int kYears = 4;
  int changes = 0;
  world.SetChance(std::make_unique<SeededDraws>(11));
  for (int week = 1; week <= 52 * kYears; ++week) {
    world.Game().Today = world.Today() + std::chrono::days{7};
    HandOver(world, AutoBook(world, false, kTv), changes);
    if (week % 4 == 0 || week % 52 == 26) HandOver(world, AutoBook(world, true, 9), changes);
  }
  const double each = changes / 3.0 / kYears;
  EXPECT_GE(each, 3);
  EXPECT_LE(each, 6);
}

TEST(AutoTalk, HasNoAnglesWithoutWriters) {
  World world = House(30).Game("CWA");
  const auto angles = [](const AutoCard& card) { return CountKind(card, kAngle) > 0; };
  EXPECT_GT(CardsWith(world, false, kTv, angles), 0);
  DismissWriters(world);
  EXPECT_EQ(0, CardsWith(world, false, kTv, angles));
  EXPECT_EQ(int(kSeeds), CardsWith(world, false, kTv, [](const AutoCard& card) {
              return CountKind(card, kInterview) == 3;
            }));
}

TEST(AutoTalk, PutsManagersBesideTheirClients) {
  World world = House(20).Worker("Mr. Silk", kManager, 60).Game("CWA");
  for (Worker& worker : world.Workers())
    if (worker.Position != kManager) worker.Manager = Uid(world, "Mr. Silk");
  EXPECT_GT(CardsWith(world, false, kTv,
                      [&](const AutoCard& card) {
                        return Count(card, [&](const Segment& row) {
                                 return row.Kind == kInterview && row.Style == kManagedTalk;
                               }) > 0;
                      }),
            int(kSeeds) / 2);
}

TEST(AutoChanges, AWaitingTurnIsMade) {
  for (const bool writers : {true, false}) {
    World world = House(24).Worker("Mr. Silk", kManager, 60).Game("CWA");
    Worker& turner = Named(world.Workers(), "Hand 4");
    turner.Manager = Uid(world, "Mr. Silk");  // who must not turn in his place
    for (const char* name : {"Hand 4", "Mr. Silk"}) Named(world.Workers(), name).TurnPending = true;
    if (!writers) DismissWriters(world);
    const auto turns = [&](const AutoCard& card) {
      return Count(card, [&](const Segment& row) {
               const bool angle = row.Kind == kAngle &&
                                  (row.Style == kFaceTurnAngle || row.Style == kBetterEnemies);
               const bool talk = row.Kind == kInterview && row.Purpose == kTalkTurn;
               return (angle || talk) && row.Worker[0] == turner.Uid &&
                      world.FindWorker(row.Worker[1])->Disposition == "H";
             }) == 1;
    };
    EXPECT_EQ(int(kSeeds), CardsWith(world, false, kTv, turns)) << writers;
    turner.LastTurn = kGameStart - std::chrono::days{100};
    EXPECT_EQ(0, CardsWith(world, false, kTv, turns)) << "the fans would not have it yet";
  }
}

TEST(AutoChanges, ATurnOfSomebodyWhoDoesNotSpeakIsWrestled) {
  World world = House(24).Game("CWA");
  DismissWriters(world);
  Worker& turner = Named(world.Workers(), "Hand 4");
  turner.TurnPending = true;
  turner.Speaks = false;
  EXPECT_EQ(int(kSeeds), CardsWith(world, false, kTv, [&](const AutoCard& card) {
              return Count(card, [&](const Segment& row) {
                       return row.Kind == kMatch && row.Purpose == purpose1::kTurnLoser &&
                              row.Loser == turner.Uid;
                     }) == 1;
            }));
}

TEST(AutoChanges, NewcomersAreIntroducedOneAShow) {
  for (const bool writers : {true, false}) {
    World world = House(24).Game("CWA");
    if (!writers) DismissWriters(world);
    for (const char* name : {"Hand 9", "Hand 10"}) Named(world.Workers(), name).Debuted = false;
    EXPECT_EQ(int(kSeeds), CardsWith(world, false, kTv, [&](const AutoCard& card) {
                int debuts = 0;
                for (const char* name : {"Hand 9", "Hand 10"})
                  debuts += PartsOf(card, Uid(world, name)) > 0;
                const int told = Count(card, [](const Segment& row) {
                  return (row.Kind == kAngle && (row.Style == 24 || row.Style == 25)) ||
                         (row.Kind == kMatch && (row.Purpose == purpose1::kDebutFirst ||
                                                 row.Purpose == purpose1::kDebutSecond));
                });
                return debuts == 1 && told == 1;
              }));
  }
}

TEST(AutoTeams, TagMatchesAreOfTeamsThatExist) {
  World world = House(30)
                    .Team("Moles", "Hand 1", "Hand 3")
                    .Team("Voles", "Hand 2", "Hand 4")
                    .Team("Shrews", "Hand 6", "Hand 8")
                    .Game("CWA");
  const auto isTeam = [&](int a, int b) {
    return std::any_of(world.Teams().begin(), world.Teams().end(),
                       [&](const Team& team) { return team.Worker1 == a && team.Worker2 == b; });
  };
  EXPECT_EQ(int(kSeeds), CardsWith(world, false, kTv, [&](const AutoCard& card) {
              int tags = 0;
              for (const Segment& row : card.Rows) {
                if (row.Kind != kMatch || row.Style != kTag) continue;
                ++tags;
                EXPECT_TRUE(isTeam(row.Worker[0], row.Worker[1]));
                EXPECT_TRUE(isTeam(row.Worker[2], row.Worker[3]));
              }
              return tags > 0;
            }));
}

}  // namespace
}  // namespace grapplemont::test
