#include "report/live.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <initializer_list>

namespace grapplemont {

namespace {

/// How loud a hall is while nothing happens, as a part of what it comes to, how much of anything
/// more is gone with the next sentence, and how much more it may be at most.
constexpr double kRest = 0.55, kFades = 0.22, kMost = 1.35;

constexpr int kAnyBand = -1;
/// What a line does to the hall; a band's own row stands before that of all.
struct StirRow {
  Family Of;
  int Band;
  double Stirs;
};
constexpr StirRow kStirs[] = {
    {Family::OffenceC, kAnyBand, 0.06},       {Family::OffenceD, kAnyBand, 0.12},
    {Family::Counter, kAnyBand, 0.09},        {Family::TwoCount, kAnyBand, 0.08},
    {Family::NearFall, kAnyBand, 0.25},       {Family::PinNoRef, kAnyBand, 0.15},
    {Family::RefBump, kAnyBand, 0.12},        {Family::TagOut, kAnyBand, 0.05},
    {Family::DoubleTeam, kAnyBand, 0.10},     {Family::BreakIn, kAnyBand, 0.10},
    {Family::LadderSpot, kAnyBand, 0.15},     {Family::WeaponSpot, kAnyBand, 0.15},
    {Family::TableSpot, kAnyBand, 0.22},      {Family::Spot, kAnyBand, 0.12},
    {Family::FinishImpact, kAnyBand, 0.30},   {Family::FinishHold, kAnyBand, 0.30},
    {Family::FinishTopRope, kAnyBand, 0.30},  {Family::FinishGround, kAnyBand, 0.30},
    {Family::ThreeCount, kAnyBand, 0.30},     {Family::TapOut, kAnyBand, 0.30},
    {Family::SinglesFinish, kAnyBand, 0.15},  {Family::TagFinish, kAnyBand, 0.15},
    {Family::EliminationTry, kAnyBand, 0.08}, {Family::Elimination, kAnyBand, 0.15},
    {Family::EliminatedOne, kAnyBand, 0.20},  {Family::EliminatedTeam, kAnyBand, 0.20},
    {Family::SurvivorOut, kAnyBand, 0.20},    {Family::LastTwo, kAnyBand, 0.20},
    {Family::IronFall, kAnyBand, 0.20},       {Family::Beat, kComeback, 0.25},
    {Family::Beat, kInTrouble, -0.05},        {Family::Beat, kAnyBand, 0.12},
    {Family::Interlude, kLoud, 0.25},         {Family::Interlude, kDivided, 0.15},
    {Family::Interlude, kSplit, -0.05},       {Family::Interlude, kQuiet, -0.30},
    {Family::Interlude, kHope, 0.15},         {Family::Interlude, kGasp, 0.15},
    {Family::Interlude, kHeldBreath, -0.30},  {Family::Interlude, kAnyBand, 0.04},
    {Family::TitleEnding, kAnyBand, 0.15},    {Family::Turn, kAnyBand, 0.35},
    {Family::TurnCosts, kAnyBand, 0.30},      {Family::Speech, kAnyBand, 0.20},
    {Family::AngleText, kAnyBand, 0.20}};

double StirOf(const SaidSentence& said) {
  for (const StirRow& row : kStirs)
    if (row.Of == said.Of && (row.Band == kAnyBand || row.Band == said.Band)) return row.Stirs;
  return 0;
}

bool IsCounted(Family family) {
  constexpr Family kCounts[] = {Family::TwoCount, Family::NearFall, Family::ThreeCount,
                                Family::PinNoRef};
  return std::find(std::begin(kCounts), std::end(kCounts), family) != std::end(kCounts);
}

bool IsPartOfWord(char letter) {
  return std::isalnum(static_cast<unsigned char>(letter)) != 0 || letter == '\'';
}

/// Where the first of these words stands as a whole one; npos for nowhere.
std::size_t FindWord(std::string_view text, std::size_t from,
                     std::initializer_list<std::string_view> words) {
  std::size_t first = std::string_view::npos;
  for (const std::string_view word : words)
    for (auto at = text.find(word, from); at < first; at = text.find(word, at + 1)) {
      const std::size_t end = at + word.size();
      if (at > 0 && IsPartOfWord(text[at - 1])) continue;
      if (end < text.size() && IsPartOfWord(text[end])) continue;
      first = at;
    }
  return first;
}

/// Behind the dots, dashes and blanks that stand here.
std::size_t BehindMarks(std::string_view text, std::size_t at) {
  while (at < text.size() && !IsPartOfWord(text[at])) ++at;
  return at;
}

/// Where a count that is spoken out is cut: before its one, behind its one and behind its two;
/// nothing where none is.
std::vector<std::size_t> CutsOfCount(std::string_view sentence) {
  const std::size_t one = FindWord(sentence, 0, {"1", "One", "one"});
  if (one == std::string_view::npos) return {};
  const std::size_t two = FindWord(sentence, one, {"2", "two"});
  const bool follows = two != std::string_view::npos &&
                       BehindMarks(sentence, sentence[one] == '1' ? one + 1 : one + 3) == two;
  if (!follows) return {};
  const std::size_t rest = BehindMarks(sentence, sentence[two] == '2' ? two + 1 : two + 3);
  std::vector<std::size_t> cuts = {one, two};
  if (rest < sentence.size()) cuts.push_back(rest);
  return cuts;
}

/// Of the sentences of a count that begins with this one: before which the breath is held.
std::size_t FirstCounted(std::string_view report, std::span<const SaidSentence> sentences,
                         std::size_t first) {
  for (std::size_t at = first; at < sentences.size() && IsCounted(sentences[at].Of); ++at) {
    const std::size_t from = at == 0 ? 0 : std::min(sentences[at - 1].Until, report.size());
    const std::size_t until = std::clamp(sentences[at].Until, from, report.size());
    if (!CutsOfCount(report.substr(from, until - from)).empty()) return at;
  }
  return first;
}

/// Adds the pieces of one sentence of a count, which begins at `from`.
void CutCount(std::string_view report, std::size_t from, const LivePiece& whole,
              std::vector<LivePiece>& pieces) {
  const int before = pieces.empty() ? whole.Hall : pieces.back().Hall;
  const auto cuts = CutsOfCount(report.substr(from, whole.Until - from));
  const std::size_t begins = from + (cuts.empty() ? 0 : cuts.front());
  if (begins > from) pieces.push_back({begins, false, before});
  pieces.push_back({begins, true, before});
  for (std::size_t cut = 1; cut < cuts.size(); ++cut)
    pieces.push_back({from + cuts[cut], false, (before + whole.Hall) / 2});
  pieces.push_back(whole);
}

}  // namespace

std::vector<LivePiece> LivePieces(std::string_view report, std::span<const SaidSentence> sentences,
                                  int crowd) {
  std::vector<LivePiece> pieces;
  double hall = kRest;
  std::size_t from = 0, breath = sentences.size();
  for (std::size_t at = 0; at < sentences.size(); ++at) {
    const SaidSentence& said = sentences[at];
    const std::size_t until = std::min(said.Until, report.size());
    if (IsCounted(said.Of) && (at == 0 || !IsCounted(sentences[at - 1].Of)))
      breath = FirstCounted(report, sentences, at);
    if (until <= from) continue;
    hall = std::clamp(hall + (kRest - hall) * kFades + StirOf(said), 0.0, kMost);
    const LivePiece piece{until, false,
                          std::clamp(static_cast<int>(std::lround(hall * crowd)), 0, 100)};
    if (at == breath)
      CutCount(report, from, piece, pieces);
    else
      pieces.push_back(piece);
    from = until;
  }
  if (from < report.size())
    pieces.push_back({report.size(), false, pieces.empty() ? 0 : pieces.back().Hall});
  return pieces;
}

}  // namespace grapplemont
