#include "report/stretches.h"

#include <algorithm>

namespace grapplemont {

namespace {

constexpr std::size_t kShortRow = 8;
constexpr std::size_t kLeastEarly = 3, kLeastTrouble = 4, kLeastLast = 3;
/// Lines behind which an exchange, and behind which a move, begins a paragraph.
constexpr int kEnoughLines = 7, kManyLines = 11;

/// Whoever acts changes behind these.
bool HandsOver(char step) {
  return step == '#' || step == '~' || step == 'T';
}

bool IsMove(char step) {
  constexpr std::string_view kMoves = "ABCDEXLWKS";
  return kMoves.find(step) != std::string_view::npos;
}

/// Where the near falls begin: at the move that the first of them follows, and the counter before
/// it. Without any, at the last counter that has some steps behind it.
std::size_t FirstOfLast(std::string_view row) {
  if (const auto fall = row.find('N'); fall != std::string_view::npos) {
    std::size_t at = fall;
    while (at > 0 && !IsMove(row[at])) --at;
    return at > 0 && HandsOver(row[at - 1]) ? at - 1 : at;
  }
  for (std::size_t at = row.size() - kLeastLast + 1; at-- > 0;)
    if (HandsOver(row[at])) return at;
  return row.size();
}

}  // namespace

std::vector<Stretch> StretchesOf(std::string_view row) {
  std::vector<Stretch> stretches(row.size(), Stretch::Early);
  if (row.size() <= kShortRow) return stretches;
  const std::size_t last = FirstOfLast(row);
  if (last < kLeastEarly || last == row.size()) return stretches;
  const auto from = [&](std::size_t at) {
    return stretches.begin() + static_cast<std::ptrdiff_t>(at);
  };
  std::fill(from(last), stretches.end(), Stretch::NearFalls);
  for (std::size_t at = kLeastEarly; at + kLeastTrouble <= last; ++at) {
    if (!HandsOver(row[at])) continue;
    std::fill(from(at), from(last), Stretch::Trouble);
    break;
  }
  return stretches;
}

bool IsEnough(char step, int lines) {
  return lines >= kEnoughLines && (HandsOver(step) || (IsMove(step) && lines >= kManyLines));
}

}  // namespace grapplemont
