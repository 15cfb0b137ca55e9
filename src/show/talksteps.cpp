#include "show/talksteps.h"

#include <algorithm>

#include "records/modWresCheck.h"

namespace grapplemont {

namespace {

constexpr int kCapBonus = 10;
constexpr int kTalkDraw = 15;

struct Writers {
  int Count = 0, Sum = 0, Best = 0;
};

Writers WritersOf(const World& world) {
  Writers writers;
  for (const Staff& staff : world.AllStaff()) {
    if (!WorksForPlayer(world, staff) || staff.Position != kWriter) continue;
    ++writers.Count;
    writers.Sum += staff.Talent;
    writers.Best = std::max<int>(writers.Best, staff.Talent);
  }
  return writers;
}

}  // namespace

void CapByWriters(SegmentRun& run) {
  const Writers writers = WritersOf(run.World);
  if (writers.Count == 0) return;
  const int mean = writers.Sum / writers.Count;
  const int cap = (mean + writers.Best) / 2 + kCapBonus;
  if (run.Quality <= cap) return;
  run.Quality.Become(cap, "no better than the writing team");
  run.Notes += " This angle would have been better if we had a better writing team. ";
}

void RateTalk(SegmentRun& run) {
  const int draw = run.World.RandomDraw(kTalkDraw);
  const bool isBeyond = run.Crowd < 0 || run.Crowd > 100;  // what is shown is limited later
  run.Overall.Become(Score::Floor(run.Crowd * 85 + draw * 100, 100),
                     "85% of Crowd " + std::to_string(run.Crowd) +
                         (isBeyond ? ", before its limit," : "") + " and a draw of " +
                         std::to_string(draw) + " out of " + std::to_string(kTalkDraw));
  run.Overall.Limit();
}

}  // namespace grapplemont
