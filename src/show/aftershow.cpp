#include "show/aftershow.h"

#include <algorithm>

#include "records/angles.h"
#include "records/modWresCheck.h"
#include "records/segments.h"
#include "show/holdshow.h"

namespace grapplemont {

namespace {

/// A match, or an angle in which its people are there in person; interviews do not wear anybody
/// out.
bool Shows(const Segment& segment) {
  if (segment.Kind == kMatch) return true;
  return segment.Kind == kAngle && segment.Style != kWorkerDebutVideo &&
         segment.Style != kTeamDebutVideo;
}

int Appearances(const World& world, int uid, int rows) {
  int count = 0;
  for (int number = 1; number <= std::min(rows, world.Segments().Count()); ++number)
    if (const Segment& segment = world.Segments()[number];
        Shows(segment) && TakesPart(segment, uid))
      ++count;
  return count;
}

void TakeOverexposure(World& world, Worker& worker, int appearances) {
  if (appearances == 3) worker.Over -= world.RandomDraw(2);
  if (appearances == 4) worker.Over -= 2 + world.RandomDraw(3);
  if (appearances >= 5) worker.Over -= 6;
}

void FeelLeftOut(World& world, Worker& worker) {
  if (worker.Position < kMidcard && worker.Condition >= 86) worker.Morale -= world.RandomDraw(8);
}

bool WasAtStake(const World& world, const Title& title) {
  const auto& segments = world.Segments();
  const int rows = std::min(RowsOf(true), segments.Count());
  for (int number = 1; number <= rows; ++number)
    if (segments[number].Kind == kMatch && segments[number].TitleName == title.Name) return true;
  return false;
}

}  // namespace

void AfterShow(World& world, int rows) {
  for (Worker& worker : world.Workers()) {
    if (!WorksForPlayer(world, worker) || worker.Position == kDevelopmentDeal ||
        worker.Position >= 79)
      continue;
    const int appearances = Appearances(world, worker.Uid, rows);
    if (appearances == 0) {
      FeelLeftOut(world, worker);
    } else {
      TakeOverexposure(world, worker, appearances);
      worker.Debuted = true;
    }
  }
}

void CoolUnusedFeuds(World& world, const ShowRun& run) {
  for (int slot = 1; slot <= world.Feuds().Count(); ++slot) {
    if (run.FeudTouched[static_cast<std::size_t>(slot - 1)]) continue;
    Feud& feud = world.Feuds()[slot];
    if (world.RandomDraw(3) == 2) feud.Heat -= feud.Heat / 10;
  }
}

void FadeUnusedTitles(World& world) {
  for (Title& title : world.Titles()) {
    if (title.Owner != world.PlayerUid() || title.Suspended || WasAtStake(world, title)) continue;
    if (world.RandomDraw(3) == 1) title.Image = title.Image * 9 / 10;
  }
}

}  // namespace grapplemont
