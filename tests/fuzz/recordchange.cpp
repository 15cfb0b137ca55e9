#include "fuzz/recordchange.h"

#include <cstring>
#include <limits>

#include "records/store/table.h"

namespace grapplemont::fuzz {

namespace {

using test::Dice;

template <class Some>
const auto& OneOf(Dice& dice, const Some& some) {
  return some[static_cast<std::size_t>(dice.From(0, static_cast<int>(std::size(some)) - 1))];
}

/// The bytes of a number, without a word about its range.
template <class T>
void Put(std::byte* at, T value) {
  std::memcpy(at, &value, sizeof value);
}

void ChangeNumber(Dice& dice, const Field& field, std::byte* at) {
  const long long kEnds[] = {field.Min, field.Max, field.Min - 1,    field.Max + 1,    0, -1,
                             -32768,    32767,     dice.From(1, 12), dice.From(1, 100)};
  const long long value =
      field.Words.empty() || dice.OneIn(3) ? OneOf(dice, kEnds) : OneOf(dice, field.Words).Code;
  if (field.Width == 4)
    Put(at, static_cast<std::int32_t>(value));
  else
    Put(at, static_cast<std::int16_t>(value));
}

void ChangeText(Dice& dice, const Field& field, std::byte* record, int index) {
  const std::string_view kWords[] = {"",    "None",        "(To be Deleted)", "\n",    "\xFF",
                                     "CWA", "Bram Okafor", "The Bench",       "North", "Non"};
  SetFieldText(
      field, record, index,
      field.Words.empty() || dice.OneIn(3) ? OneOf(dice, kWords) : OneOf(dice, field.Words).Stored);
}

void ChangeDate(Dice& dice, std::byte* at) {
  constexpr double kDays[] = {0,
                              -1,
                              1e300,
                              -1e300,
                              std::numeric_limits<double>::quiet_NaN(),
                              std::numeric_limits<double>::infinity(),
                              std::numeric_limits<double>::denorm_min(),
                              2147483648.0,
                              -657434,
                              2958466,
                              46082.5};
  Put(at, OneOf(dice, kDays));
}

}  // namespace

void ChangeField(Dice& dice, const RecordLayout& layout, std::byte* record) {
  const Field& field = OneOf(dice, layout.Fields);
  const int index = dice.From(0, field.Count - 1);
  std::byte* const at = record + field.Offset + index * field.Stride;
  if (dice.OneIn(6)) return test::Scramble(dice, field, index, record);
  if (field.Kind == FieldKind::Text) return ChangeText(dice, field, record, index);
  if (field.Kind == FieldKind::Date) return ChangeDate(dice, at);
  ChangeNumber(dice, field, at);
}

void ChangeRecords(Dice& dice, const RecordLayout& layout, Bytes& file, std::size_t most) {
  const auto size = static_cast<std::size_t>(layout.Size);
  const auto count = static_cast<int>(file.size() / size);
  const auto place = [&](int record) {
    return file.begin() + static_cast<std::ptrdiff_t>(static_cast<std::size_t>(record) * size);
  };
  if (count == 0 || (dice.OneIn(8) && file.size() + size <= most)) {
    const Bytes added =
        count == 0 || dice.OneIn(2) ? Bytes(size) : Bytes(place(count - 1), place(count));
    file.insert(place(dice.From(0, count)), added.begin(), added.end());
  } else if (dice.OneIn(16)) {
    const int gone = dice.From(0, count - 1);
    file.erase(place(gone), place(gone + 1));
  } else {
    for (int fields = dice.From(1, 4); fields > 0; --fields)
      ChangeField(dice, layout, &*place(dice.From(0, count - 1)));
  }
}

}  // namespace grapplemont::fuzz
