#include "support/randomworld.h"

#include <algorithm>
#include <string>

#include "records/checks/checkworld.h"

namespace grapplemont::test {

namespace {

/// How many records of a file a random world begins with.
struct Share {
  std::string_view File;
  int Least, Most;
};
constexpr Share kShares[] = {{"promos.dat", 1, 8}, {"wrestler.dat", 0, 60}, {"staff.dat", 0, 40},
                             {"teams.dat", 0, 12}, {"stables.dat", 0, 8},   {"belt.dat", 0, 12},
                             {"tv.dat", 0, 12},    {"network.dat", 0, 6},   {"sponsor.dat", 0, 12},
                             {"event.dat", 0, 40}};

/// A letter that a text may hold; now and then one beyond ASCII, a quotation mark or a comma.
char Letter(Dice& dice) {
  constexpr std::string_view kOdd = "\",';#\\\xE9\xFF\x80 \xA0";
  if (dice.OneIn(6)) return kOdd[static_cast<std::size_t>(dice.From(0, int(kOdd.size()) - 1))];
  return static_cast<char>(dice.From('A', 'z'));
}

std::string RandomText(Dice& dice, int width) {
  std::string text;
  const int length = dice.OneIn(8) ? width : dice.From(0, width);
  while (static_cast<int>(text.size()) < length) text += Letter(dice);
  return std::string(detail::Trimmed(text));
}

const Term& RandomTerm(Dice& dice, Vocabulary words) {
  return words[static_cast<std::size_t>(dice.From(0, int(words.size()) - 1))];
}

std::string TextFor(Dice& dice, const Field& field) {
  if (!field.Words.empty()) return std::string(RandomTerm(dice, field.Words).Stored);
  // Few enough names that references meet.
  if (field.To == Refers::Stable)
    return dice.OneIn(2) ? "None" : "Stable " + std::to_string(dice.From(1, 8));
  if (field.To == Refers::Split || field.Name == "Split#")
    return dice.OneIn(2) ? "None" : "Split " + std::to_string(dice.From(1, 3));
  return RandomText(dice, field.Width);
}

/// Ordinary: numbers and references mostly lead somewhere. Hostile: files are full, numbers stand
/// at their ends, and half of the references lead anywhere.
enum class Manner { Ordinary, Hostile };

int ReferenceFor(Dice& dice, const Field& field, Manner manner) {
  constexpr int kWildest = 32768;
  if (manner == Manner::Ordinary) return dice.From(0, field.To == Refers::Worker ? 70 : 12);
  if (dice.OneIn(2)) return dice.From(-kWildest, kWildest - 1);
  return dice.From(0, field.To == Refers::Worker ? LayoutOf<Worker>().Limit : 12);
}

long long NumberFor(Dice& dice, const Field& field, Manner manner) {
  if (field.Kind == FieldKind::Flag) return dice.OneIn(2) ? -1 : 0;
  if (!field.Words.empty()) return RandomTerm(dice, field.Words).Code;
  if (field.MayBeNone && dice.OneIn(4)) return kNoEnd;
  if (field.To != Refers::Nothing) return ReferenceFor(dice, field, manner);
  const auto least = static_cast<int>(std::max(field.Min, -2000000000LL));
  const auto most = static_cast<int>(std::min(field.Max, 2000000000LL));
  const bool atEnd = dice.OneIn(manner == Manner::Hostile ? 1 : 5);
  return atEnd ? (dice.OneIn(2) ? least : most) : dice.From(least, most);
}

void Fill(Dice& dice, const Field& field, int index, std::byte* record, Manner manner) {
  switch (field.Kind) {
    case FieldKind::Text:
      return SetFieldText(field, record, index, TextFor(dice, field));
    case FieldKind::Date:
      return SetFieldDate(field, record, index,
                          dice.OneIn(4) ? 0 : dice.From(-600000, 2900000) + 0.25 * dice.From(0, 3));
    default:
      return SetFieldNumber(field, record, index, NumberFor(dice, field, manner));
  }
}

template <class T>
void FillFile(Dice& dice, Records<T>& records, Manner manner) {
  const RecordLayout& layout = LayoutOf<T>();
  const Share& share = *std::find_if(std::begin(kShares), std::end(kShares),
                                     [&](const Share& s) { return s.File == layout.File; });
  const int count = manner == Manner::Hostile ? layout.Limit : dice.From(share.Least, share.Most);
  records.Rewrite(std::vector<T>(static_cast<std::size_t>(count)));
  for (T& record : records.Any()) {
    auto* bytes = reinterpret_cast<std::byte*>(&record);
    for (const Field& field : layout.Fields)
      for (int index = 0; index < field.Count; ++index) Fill(dice, field, index, bytes, manner);
    if constexpr (requires { record.Uid; })
      record.Uid = dice.OneIn(10) ? dice.From(1, 32767) : records.NumberOf(record);
    if constexpr (std::is_same_v<T, Stable>)
      record.Name = "Stable " + std::to_string(dice.From(1, 8));
  }
}

template <class T>
const T* Somebody(Dice& dice, const Records<T>& records) {
  return records.Count() == 0 ? nullptr : &records[dice.From(1, records.Count())];
}

/// Brings some together who belong together, or little would be left of it once it is mended.
void BringTogether(Dice& dice, World& world) {
  for (Title& title : world.Titles()) {
    const Worker* champion = world.FindWorker(title.Holder);
    if (champion) title.Owner = int(champion->Employer);
  }
  for (Worker& worker : world.Workers()) {
    const Stable* stable = Somebody(dice, world.Stables());
    if (stable && stable->Owner == worker.Employer) worker.Stable = stable->Name.View();
    Worker* other = world.FindWorker(dice.From(1, 70));
    if (!other || other->Employer != worker.Employer || dice.OneIn(2)) continue;
    other->Position = kManager;
    worker.Manager = int(other->Uid);
  }
  for (Promotion& promotion : world.Promotions()) {
    const Sponsor* sponsor = world.FindSponsor(promotion.Sponsor[0]);
    if (sponsor) world.FindSponsor(sponsor->Uid)->Promotion = int(promotion.Uid);
  }
}

World Made(std::uint64_t seed, Manner manner) {
  Dice dice(seed);
  World world;
  const auto fill = [&](auto&... records) { (FillFile(dice, records, manner), ...); };
  fill(world.Promotions(), world.Workers(), world.AllStaff(), world.Teams(), world.Stables(),
       world.Titles(), world.Shows(), world.Networks(), world.Sponsors(), world.Events());
  BringTogether(dice, world);
  MendWorld(world);
  world.MarkCommitted();
  return world;
}

}  // namespace

int Dice::From(int least, int most) {
  const auto span = static_cast<std::uint64_t>(static_cast<long long>(most) - least + 1);
  return static_cast<int>(least + static_cast<long long>(engine_() % span));
}

World RandomData(std::uint64_t seed) {
  return Made(seed, Manner::Ordinary);
}

World HostileData(std::uint64_t seed) {
  return Made(seed, Manner::Hostile);
}

void Scramble(Dice& dice, const Field& field, int index, std::byte* record) {
  std::byte* at = record + field.Offset + index * field.Stride;
  std::generate(at, at + field.Width, [&] { return dice.OneIn(3) ? std::byte{0} : dice.Byte(); });
}

}  // namespace grapplemont::test
