#include "report/voices.h"

#include <array>
#include <iterator>
#include <vector>

#include "report/report.h"

namespace grapplemont {

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

}  // namespace grapplemont
