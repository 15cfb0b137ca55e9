#include "report/voices.h"

#include <array>
#include <vector>

#include "report/report.h"

namespace grapplemont {

namespace {

constexpr int kVoices = 3;

/// Every block of a voice by family and band.
class Index {
 public:
  explicit Index(const VoiceTable& voice) {
    for (const FamilyRow& row : AllFamilies())
      rows_[static_cast<std::size_t>(row.Of)].resize(static_cast<std::size_t>(row.Last) + 1);
    for (const Blocks blocks :
         {voice.Offence, voice.Bouts, voice.Finishes, voice.Talk, voice.Angles})
      for (const Block& block : blocks)
        if (RowOf(block.Of).Has(block.Band))
          rows_[static_cast<std::size_t>(block.Of)][static_cast<std::size_t>(block.Band)] = &block;
  }
  const Block* Find(Family family, int band) const {
    return RowOf(family).Has(band)
               ? rows_[static_cast<std::size_t>(family)][static_cast<std::size_t>(band)]
               : nullptr;
  }

 private:
  std::array<std::vector<const Block*>, kFamilies> rows_;
};

const std::vector<VoiceTable>& Tables() {
  static const std::vector<VoiceTable> kTables = {
      {"The Lamplighter", modLamplighter::Offence(), modLamplighter::Bouts(),
       modLamplighter::Finishes(), modLamplighter::Talk(), modLamplighter::Angles()},
      {"Rafe Tolland", modTolland::Offence(), modTolland::Bouts(), modTolland::Finishes(),
       modTolland::Talk(), modTolland::Angles()},
      {"QVD", modQVD::Offence(), modQVD::Bouts(), modQVD::Finishes(), modQVD::Talk(),
       modQVD::Angles()},
  };
  return kTables;
}

}  // namespace

std::span<const Line> Block::All() const {
  std::size_t count = 0;
  while (count < std::size(Lines) && !Lines[count].Text.empty()) ++count;
  return {Lines, count};
}

std::span<const VoiceTable> AllVoices() {
  return Tables();
}

std::string_view VoiceName(int voice) {
  return Tables()[static_cast<std::size_t>(voice >= 0 && voice < kVoices ? voice : 0)].Name;
}

const Block* OwnBlock(int voice, Family family, int band) {
  static const std::array<Index, kVoices> kIndex = {Index(Tables()[0]), Index(Tables()[1]),
                                                    Index(Tables()[2])};
  if (voice < 0 || voice >= kVoices) voice = 0;
  return kIndex[static_cast<std::size_t>(voice)].Find(family, band);
}

const Block* BlockOf(int voice, Family family, int band) {
  // Until a voice is complete the first one speaks for it.
  const Block* own = RowOf(family).Shared ? nullptr : OwnBlock(voice, family, band);
  return own ? own : OwnBlock(0, family, band);
}

}  // namespace grapplemont
