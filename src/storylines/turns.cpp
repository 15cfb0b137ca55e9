#include "storylines/turns.h"

namespace grapplemont {

namespace {

struct Memory {
  int UpTo;  // days since the last turn
  const char* Words;
};
// How long the fans remember a turn.
constexpr Memory kMemories[] = {
    {90, "The fans will not care for another turn so soon."},
    {180, "The fans most likely remember the last turn, and would not care for another."},
    {365, "Some fans remember the last turn. Another one may fall flat."},
};

}  // namespace

int DaysSinceTurn(const World& world, const Worker& worker) {
  const Day turned = worker.LastTurn;
  if (turned <= kDayZero) return -1;
  return static_cast<int>((world.Today() - turned).count());
}

std::string TurnAdvice(const World& world, const Worker& worker) {
  const int days = DaysSinceTurn(world, worker);
  for (const Memory& memory : kMemories)
    if (days >= 0 && days <= memory.UpTo) return memory.Words;
  return "The fans are ready for a turn.";
}

void PrepareTurn(Worker& worker) {
  worker.TurnPending = true;
}

void CallOffTurn(Worker& worker) {
  worker.TurnPending = false;
}

}  // namespace grapplemont
