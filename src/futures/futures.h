#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include "futures/jobs.h"
#include "records/whatif.h"
#include "records/world.h"

// What may become of the world from this morning on: copies of it are played by habit, each with
// chance of its own. The world itself is only read, once, at the beginning.

namespace grapplemont {

/// How many worlds are played and how far.
struct FuturePlan {
  int Worlds = 100;
  int Days = 91;
};

/// How the player's promotion of the first morning stands on a later one.
struct Glimpse {
  static constexpr int kUnknown = -1;
  bool Stands = false;  // it is there; else all below is nothing
  int Size = 0;
  int Image = 0;
  int Money = 0;
  int Rating = kUnknown;  // of its last show within a month
  int Morale = kUnknown;  // the mean of its workers
};

/// What has become of one world.
struct WorldLife {
  std::vector<Glimpse> Seen;           // on the days that are looked at
  int EndCode = 0;                     // of the career's first end; 0: it went on
  std::vector<std::string> Champions;  // of each Title of the first morning; empty: nobody, or gone
  std::map<int, int> Sizes;            // of each promotion that is there at last, by its uid
  std::string Fault;                   // why it could not be played to its last day; else empty
};

/// A Title or a promotion as it is on the first morning.
struct FirstTitle {
  std::string Name;
  int Owner = 0;
  int Image = 0;
  std::string Champion;  // "Vacant" for nobody
};
struct FirstPromotion {
  int Uid = 0;
  std::string Name, Initials;
  int Size = 0;
};
/// The morning from which worlds are played.
struct FirstMorning {
  explicit FirstMorning(const World& world);
  Day On;
  int Promotion = 0;  // the player's
  Glimpse Now;
  std::vector<FirstTitle> Titles;  // of promotions that are there, as the file has them
  std::vector<FirstPromotion> Promotions;
};

/// Why nothing can be played from here; empty when it can.
std::string WhyNoFutures(const World& world);
/// What is assumed of the copies, in sentences; `also` is a clause for what a question takes for
/// granted beside the habits, empty for nothing.
std::string HabitsText(const World& world, const std::string& also = {});
/// The days that are looked at, the first morning first and the last day last: each week of a few
/// months, else each first of a month.
std::vector<Day> DaysLookedAt(Day from, int days);

/// Copies of a world that are played in the background. Each answer is played in the same worlds:
/// with the same chance from the same morning.
class Futures {
 public:
  /// Requires that WhyNoFutures says nothing. Without an answer the habits alone go on.
  Futures(const World& now, std::vector<Answer> answers, const FuturePlan& plan,
          int threads = CoresHere());

  const FirstMorning& Morning() const { return morning_; }
  const FuturePlan& Plan() const { return plan_; }
  const std::vector<Day>& Days() const { return days_; }
  Jobs& Work() { return *jobs_; }
  /// The worlds that have been played so far, in their order, under each answer; those that met a
  /// fault under any of them are left out.
  std::vector<std::vector<WorldLife>> Lives() const;
  /// The faults of those, one for each.
  std::vector<std::string> Faults() const;

 private:
  void Play(World& copy, int number, const std::stop_token& stop);
  WorldLife Live(World& copy, const Answer& answer, const std::stop_token& stop);
  WorldLife LastOf(const World& copy, WorldLife life) const;

  const FuturePlan plan_;
  const std::vector<Answer> answers_;
  World now_;  // read by all threads, changed by none
  const FirstMorning morning_;
  const std::vector<Day> days_;
  std::uint64_t seed_ = 0;
  mutable std::mutex lock_;  // of the lives
  std::vector<std::optional<std::vector<WorldLife>>> lives_;
  std::unique_ptr<Jobs> jobs_;  // last: its threads use all above
};

}  // namespace grapplemont
