#include "report/teller.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <vector>

#include "records/segments.h"
#include "report/cast.h"
#include "report/report.h"

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

namespace {

constexpr int kVoiceCount = static_cast<int>(std::size(kVoiceRows));

int KnownVoice(int voice) {
  return voice >= 0 && voice < kVoiceCount ? voice : kLamplighter;
}

/// Every block of a voice by family and band.
class Index {
 public:
  explicit Index(std::initializer_list<Blocks> files) {
    for (const FamilyRow& row : AllFamilies())
      rows_[static_cast<std::size_t>(row.Of)].resize(static_cast<std::size_t>(row.Bands.Last) + 1);
    for (const Blocks blocks : files)
      for (const Block& block : blocks)
        rows_[static_cast<std::size_t>(block.Heading)][static_cast<std::size_t>(block.Band)] =
            &block;
  }
  const Block* Find(Family family, int band) const {
    return RowOf(family).Has(band)
               ? rows_[static_cast<std::size_t>(family)][static_cast<std::size_t>(band)]
               : nullptr;
  }

 private:
  std::array<std::vector<const Block*>, kFamilies> rows_;
};

}  // namespace

std::string_view VoiceName(int voice) {
  return kVoiceRows[KnownVoice(voice)].Name;
}

const Block* BlockOf(int voice, Family family, int band) {
  static const std::array<Index, kVoiceCount> kIndex = {
      Index{modLamplighter::Offence(), modLamplighter::Bouts(), modLamplighter::Finishes(),
            modLamplighter::Talk(), modLamplighter::Angles()},
      Index{modTolland::Offence(), modTolland::Bouts(), modTolland::Finishes(), modTolland::Talk(),
            modTolland::Angles(), modTolland::Verdicts()},
      Index{modQVD::Offence(), modQVD::Bouts(), modQVD::Finishes(), modQVD::Talk(),
            modQVD::Angles()}};
  const int only = RowOf(family).Only;
  const int teller = only == kEveryVoice ? KnownVoice(voice) : only;
  return kIndex[static_cast<std::size_t>(teller)].Find(family, band);
}

std::string Verdict(World& world, const Segment& segment, int overall) {
  if (!world.HasGame() || world.Game().Reporter != kTolland || segment.Kind != kMatch) return {};
  if (segment.Style == kSpecial && segment.MatchType != kRoyalRumble)
    return std::string(BlockOf(kTolland, Family::NoVerdict, 0)->Lines[0]);
  const auto* last = std::end(kVerdictsUpTo) - 1;
  const auto band = std::lower_bound(std::begin(kVerdictsUpTo), last, overall);
  const auto lines =
      BlockOf(kTolland, Family::Verdict, static_cast<int>(band - kVerdictsUpTo))->Lines;
  const int draw = world.Prose().Draw(static_cast<int>(lines.size()));
  return std::string(lines[static_cast<std::size_t>(draw - 1)]);
}

}  // namespace grapplemont
