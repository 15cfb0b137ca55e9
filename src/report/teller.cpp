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
  const auto keys = KeysOf(voice_, family, band);
  SaidLines& said = memory_.Said();
  std::vector<int> days;
  for (const std::int32_t key : keys) days.push_back(said.DaysSince(world, key));
  const auto picked = static_cast<std::size_t>(
      memory_.Pick(world.Prose(), block, static_cast<int>(block->Lines.size()), days));
  const int way = said.Times(world, keys[picked]);
  said.Say(world, keys[picked]);
  const std::string_view line = block->Lines[picked];
  return line.find('[') == line.npos ? Fill(cast, line, text_)
                                     : Fill(cast, SaidIn(line, way), text_);
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
  Index(int voice, std::initializer_list<Blocks> files) {
    for (const FamilyRow& row : AllFamilies())
      rows_[static_cast<std::size_t>(row.Of)].resize(static_cast<std::size_t>(row.Bands.Last) + 1);
    for (const Blocks blocks : files)
      for (const Block& block : blocks) Add(voice, block);
  }
  struct Entry {
    const Block* Lines = nullptr;
    std::vector<std::int32_t> Keys = {};
  };
  const Entry& Find(Family family, int band) const {
    static const Entry kNone;
    return RowOf(family).Has(band)
               ? rows_[static_cast<std::size_t>(family)][static_cast<std::size_t>(band)]
               : kNone;
  }

 private:
  void Add(int voice, const Block& block) {
    Entry& entry =
        rows_[static_cast<std::size_t>(block.Heading)][static_cast<std::size_t>(block.Band)];
    entry.Lines = &block;
    for (const std::string_view line : block.Lines) entry.Keys.push_back(LineKey(voice, line));
  }

  std::array<std::vector<Entry>, kFamilies> rows_;
};

const Index::Entry& EntryOf(int voice, Family family, int band) {
  static const std::array<Index, kVoiceCount> kIndex = {
      Index{kLamplighter,
            {modLamplighter::Offence(), modLamplighter::Bouts(), modLamplighter::Finishes(),
             modLamplighter::Talk(), modLamplighter::Angles(), modLamplighter::Memory(),
             modLamplighter::Beats()}},
      Index{kTolland,
            {modTolland::Offence(), modTolland::Bouts(), modTolland::Finishes(), modTolland::Talk(),
             modTolland::Angles(), modTolland::Verdicts(), modTolland::Memory(),
             modTolland::Beats()}},
      Index{kQvd,
            {modQVD::Offence(), modQVD::Bouts(), modQVD::Finishes(), modQVD::Talk(),
             modQVD::Angles(), modQVD::Memory(), modQVD::Beats()}}};
  const int only = RowOf(family).Only;
  const int teller = only == kEveryVoice ? KnownVoice(voice) : only;
  return kIndex[static_cast<std::size_t>(teller)].Find(family, band);
}

}  // namespace

std::string_view VoiceName(int voice) {
  return kVoiceRows[KnownVoice(voice)].Name;
}

const Block* BlockOf(int voice, Family family, int band) {
  return EntryOf(voice, family, band).Lines;
}

std::span<const std::int32_t> KeysOf(int voice, Family family, int band) {
  return EntryOf(voice, family, band).Keys;
}

std::string Verdict(World& world, const Segment& segment, int overall, LineMemory* memory) {
  if (!world.HasGame() || world.Game().Reporter != kTolland || segment.Kind != kMatch) return {};
  if (segment.Style == kSpecial && segment.MatchType != kRoyalRumble)
    return std::string(BlockOf(kTolland, Family::NoVerdict, 0)->Lines[0]);
  const auto* last = std::end(kVerdictsUpTo) - 1;
  const auto band = std::lower_bound(std::begin(kVerdictsUpTo), last, overall);
  const auto number = static_cast<int>(band - kVerdictsUpTo);
  const auto lines = BlockOf(kTolland, Family::Verdict, number)->Lines;
  const auto drawn =
      static_cast<std::size_t>(world.Prose().Draw(static_cast<int>(lines.size())) - 1);
  if (!memory) return SaidIn(lines[drawn], 0);
  const std::int32_t key = KeysOf(kTolland, Family::Verdict, number)[drawn];
  const int way = memory->Said().Times(world, key);
  memory->Said().Say(world, key);
  return SaidIn(lines[drawn], way);
}

}  // namespace grapplemont
