#pragma once

#include <functional>
#include <map>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "records/fields/fields.h"
#include "records/world.h"

// Small worlds for tests, told in a few lines:
//
//   World world = SmallWorld()
//                     .Network("Channel Nine")
//                     .Promotion("CWA", kCult)
//                     .Owner("Ruth Vane")
//                     .Worker("Bram Okafor", kMainEvent, 88)
//                     .Worker("Ilya Marsh", [](Worker& w) { w.Disposition = "H"; })
//                     .Title("CWA Crown", "Bram Okafor")
//                     .Show("Friday Fire", "Friday", "Channel Nine")
//                     .Promotion("NEW", kSmall)
//                     .Crew(12)
//                     .OnTheMarket()
//                     .Worker("Cal Drift")
//                     .Game("CWA");
//   Worker& bram = Named(world.Workers(), "Bram Okafor");
//
// Whoever is named works for, and whatever is named belongs to, the promotion named last; after
// OnTheMarket() nobody employs them. Every record starts with plain valid values; a last argument
// may change it. References are given by name (a promotion by its initials) to records named
// before. A world that CheckWorld finds fault with fails the test.

namespace grapplemont::test {

template <class T>
using Change = std::function<void(T&)>;
using Names = std::vector<std::string>;

/// 1 March 2026, a Sunday and the first of its month.
inline constexpr Day kGameStart{std::chrono::year{2026} / 3 / 1};

class SmallWorld {
 public:
  SmallWorld& Promotion(std::string_view initials, int size = kRegional,
                        const Change<grapplemont::Promotion>& change = {});
  SmallWorld& OnTheMarket();

  SmallWorld& Worker(std::string_view name, const Change<grapplemont::Worker>& change = {});
  SmallWorld& Worker(std::string_view name, int position, int over,
                     const Change<grapplemont::Worker>& change = {});
  /// So many men of positions 1 to 6 in turn, "CWA Hand 1" and on, Over falling from 80 to 30 with
  /// the position.
  SmallWorld& Crew(int count);
  SmallWorld& Owner(std::string_view name, const Change<grapplemont::Staff>& change = {});
  SmallWorld& Staff(std::string_view name, int position, int talent = 50,
                    const Change<grapplemont::Staff>& change = {});

  SmallWorld& Team(std::string_view name, std::string_view workerA, std::string_view workerB,
                   const Change<grapplemont::Team>& change = {});
  /// The members named join it.
  SmallWorld& Stable(std::string_view name, const std::vector<std::string_view>& members = {});
  /// Vacant without a holder; a tag title where there is a partner.
  SmallWorld& Title(std::string_view name, std::string_view holder = {},
                    std::string_view partner = {}, const Change<grapplemont::Title>& change = {});
  SmallWorld& Network(std::string_view name, const Change<grapplemont::Network>& change = {});
  SmallWorld& Show(std::string_view name, std::string_view day, std::string_view network,
                   const Change<grapplemont::Show>& change = {});
  /// Takes the first free sponsor's place of its promotion.
  SmallWorld& Sponsor(std::string_view name, const Change<grapplemont::Sponsor>& change = {});
  /// "CWA in March" where no name is given.
  SmallWorld& Event(int month, int type = 3, std::string_view name = {});

  /// What follows needs a game: the player's promotion by its initials.
  SmallWorld& Game(std::string_view player, Day today = kGameStart,
                   const Change<GameInfo>& change = {});
  SmallWorld& Feud(std::string_view workerA, std::string_view workerB,
                   const Change<grapplemont::Feud>& change = {});
  SmallWorld& TagFeud(std::string_view workerA, std::string_view partnerA, std::string_view workerB,
                      std::string_view partnerB, const Change<grapplemont::Feud>& change = {});
  SmallWorld& Mail(std::string_view from, std::string_view body);

  /// Hands the world over, with all it holds counted as committed; the builder is spent.
  World Build();
  operator World() { return Build(); }
  /// The same without a look at its faults.
  World BuildUnchecked();

 private:
  template <class T>
  SmallWorld& Add(Records<T>& to, T record, const Change<T>& change);
  grapplemont::Worker NewWorker(std::string_view name) const;
  grapplemont::Staff NewStaff(std::string_view name, int position) const;
  grapplemont::Promotion* Employer();
  int WorkerUid(std::string_view name) const;
  void BeginGame();

  World world_;
  int employer_ = 0;
  std::string player_;
  Day today_ = kGameStart;
  Change<GameInfo> gameChange_;
};

/// The record of this name (a promotion also by its initials); throws std::out_of_range for none.
template <class R>
auto& Named(R& records, std::string_view name) {
  for (auto& record : records) {
    if (record.Name == name) return record;
    if constexpr (requires { record.Initials; })
      if (record.Initials == name) return record;
  }
  throw std::out_of_range(std::string(records.File()) + " has no " + std::string(name));
}

/// All bytes of a world, as a folder would hold them.
std::map<std::string, Bytes> BytesOf(const World& world);
/// A second world of the same bytes, for a comparison later.
World CopyOf(const World& world);
/// Fails the test for everything that CheckWorld finds.
void ExpectSound(const World& world);
/// Fails the test with the first record and field in which the worlds differ.
void ExpectSame(const World& world, const World& expected);

}  // namespace grapplemont::test
