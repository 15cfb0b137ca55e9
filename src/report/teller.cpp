#include "report/teller.h"

#include "report/template.h"
#include "report/voices.h"

namespace grapplemont {

namespace {

int LevelOf(int skill) {
  constexpr int kMid = 40, kHigh = 65;
  return (skill >= kMid) + (skill >= kHigh);
}

}  // namespace

int OffenceBandOf(World& world, const Worker& attacker) {
  const int skills[] = {attacker.Brawl, attacker.Technical, attacker.Speed};
  int style = 0, best = 0;
  for (int i = 0; i < 3; ++i) {
    const int sum = skills[i] + world.Prose().Draw(10);
    if (i > 0 && sum <= best) continue;
    style = i;
    best = sum;
  }
  return style * 3 + LevelOf(skills[style]);
}

Teller::Teller(World& w, const Segment& s, const Scene& sc, LineMemory& memory)
    : world(w),
      segment(s),
      scene(sc),
      cast(CastOf(w, s)),
      memory_(memory),
      voice_(w.HasGame() ? int(w.Game().Reporter) : 0) {}

bool Teller::Say(Family family, int band) {
  const Block* block = BlockOf(voice_, family, band);
  if (!block) return false;
  const int line = memory_.Pick(world.Prose(), block, static_cast<int>(block->Lines.size()));
  return Fill(cast, block->Lines[static_cast<std::size_t>(line)], text_);
}

void Teller::SayOffence(Family family) {
  const Party& attacker = cast.Of('a');
  if (attacker.People.empty()) return;
  if (const Worker* worker = world.FindWorker(attacker.People[0]->Uid))
    Say(family, OffenceBandOf(world, *worker));
}

void Teller::Paragraph() {
  while (text_.ends_with(' ')) text_.pop_back();
  if (!text_.empty() && !text_.ends_with('\n')) text_ += '\n';
}

std::string Teller::Text() {
  while (text_.ends_with(' ') || text_.ends_with('\n')) text_.pop_back();
  return text_;
}

void Teller::Act(Person* attacker, Person* defender) {
  cast.Set('a', attacker);
  cast.Set('d', defender);
}

}  // namespace grapplemont
