#include "report/teller.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <vector>

#include "records/segments.h"
#include "report/cast.h"
#include "report/report.h"
#include "report/stages.h"

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

bool Teller::Say(Family family, int band, unsigned wants) {
  const Block* block = BlockOf(voice_, family, band);
  if (!block) return false;
  std::vector<bool> fits = Fitting(family, band, wants);
  const bool hasNone = wants != 0 && std::count(fits.begin(), fits.end(), true) == 0;
  // Before a cover whoever still stands is put down, so that no words need come twice for it.
  if (hasNone || (wants == kDownTag && memory_.SaidAll(block, fits)))
    fits = Fitting(family, band, 0);
  const std::vector<int> days = DaysUnsaid(family, band, fits);
  return SayLine(family, band,
                 memory_.PickAsWished(world.Prose(), block, std::move(fits), days,
                                      LengthsOf(voice_, family, band), Pace.Wish()));
}

bool Teller::SayNew(Family family, int band) {
  const Block* block = BlockOf(voice_, family, band);
  if (!block) return false;
  std::vector<bool> fits(block->Lines.size());
  for (std::size_t line = 0; line < fits.size(); ++line)
    fits[line] = !memory_.Used(block, static_cast<int>(line));
  const std::vector<int> days = DaysUnsaid(family, band, fits);
  // A game may have been closed and opened again since the show began.
  for (std::size_t line = 0; line < fits.size(); ++line) fits[line] = fits[line] && days[line] > 0;
  if (std::count(fits.begin(), fits.end(), true) == 0) return false;
  return SayLine(family, band, memory_.Pick(world.Prose(), block, std::move(fits), days));
}

bool Teller::SayAs(char part, Family family, int band) {
  const Block* block = BlockOf(voice_, family, band);
  const Person* speaker = cast.First(part);
  if (!block || !speaker) return Say(family, band);
  SaidLines& said = memory_.Said();
  std::vector<std::int32_t> own;
  for (const std::int32_t key : KeysOf(voice_, family, band))
    own.push_back(SpeakerKey(key, speaker->Uid));
  std::vector<int> since;
  for (const std::int32_t key : own) since.push_back(said.DaysSince(world, key));
  const int longest = *std::max_element(since.begin(), since.end());
  std::vector<bool> fits;
  for (const int days : since) fits.push_back(days == longest);
  const std::vector<int> days = DaysUnsaid(family, band, fits);
  const int line = memory_.Pick(world.Prose(), block, std::move(fits), days);
  said.Say(world, own[static_cast<std::size_t>(line)]);
  return SayLine(family, band, line);
}

std::vector<int> Teller::DaysUnsaid(Family family, int band, const std::vector<bool>& of) {
  const auto keys = KeysOf(voice_, family, band);
  std::vector<int> days(keys.size());
  for (std::size_t line = 0; line < keys.size(); ++line)
    if (of[line]) days[line] = memory_.Said().DaysSince(world, keys[line]);
  return days;
}

namespace {

/// Which way of saying a line comes first: another under each promotion, so that no two careers
/// begin alike.
int FirstWay(int promotion, std::int32_t key) {
  constexpr std::uint32_t kSpread = 2654435761U, kWays = 60;
  const auto mixed =
      (static_cast<std::uint32_t>(key) ^ static_cast<std::uint32_t>(promotion)) * kSpread;
  return static_cast<int>((mixed >> 16) % kWays);
}

}  // namespace

bool Teller::SayLine(Family family, int band, int line) {
  const auto at = static_cast<std::size_t>(line);
  const TaggedLine& read = ReadLinesOf(voice_, family, band)[at];
  const std::int32_t key = KeysOf(voice_, family, band)[at];
  const int way = FirstWay(Promotion(), key) + memory_.Said().Times(world, key);
  memory_.Said().Say(world, key);
  const bool hasWays = read.Text.find('[') != std::string_view::npos;
  ends_.clear();
  const bool isSaid = hasWays ? Fill(cast, SaidIn(read.Text, way), text_, ends_)
                              : Fill(cast, read.Text, text_, ends_);
  for (const std::size_t end : ends_) sentences_.push_back({end, family, band});
  linesHere_ += isSaid;
  Move(family, read);
  return isSaid;
}

void Teller::SayOffence(Family family, unsigned wants) {
  const Party& attacker = cast.Of('a');
  if (attacker.People.empty()) return;
  const Worker* worker = world.FindWorker(attacker.People[0]->Uid);
  if (!worker) return;
  const int band = OffenceBandOf(world, *worker);
  Say(FreshOffence(family, band), band, wants);
}

Family Teller::FreshOffence(Family family, int band) const {
  // The rows of one against one are given to the letter; a rumble's are as long as it takes.
  if (segment.Style == kSingles) return family;
  constexpr int kOffences = static_cast<int>(Family::OffenceE) + 1;
  for (int step = 0; step < kOffences; ++step) {
    const auto next = static_cast<Family>((static_cast<int>(family) + step) % kOffences);
    if (!memory_.SaidAll(BlockOf(voice_, next, band), Fitting(next, band, 0))) return next;
  }
  return family;
}

namespace {

constexpr int kDeepTrouble = 3, kWornDown = 3;  // moves taken
constexpr int kGreatFrom = 91;                  // of the rating

/// Three tags that follow each other, and up to where the first two of them go.
struct Levels {
  unsigned Low;
  int LowUpTo, MidUpTo;
};
constexpr Levels kRatings{kLowTag, kDudUpTo, kFairUpTo}, kCrowds{kColdTag, kColdUpTo, kWarmUpTo};

/// Whether the percentage is on one of the levels that the line names, if it names any.
bool FitsLevel(const TaggedLine& line, const Levels& levels, int percent) {
  const unsigned named = line.Tags & levels.Low * 7;
  const int level = (percent > levels.LowUpTo) + (percent > levels.MidUpTo);
  return named == 0 || percent == kUnrated || (named & levels.Low << level) != 0;
}

/// Whose lines say whether they lead out of a hold.
bool LeadsOutOfHolds(Family family) {
  return family == Family::Counter || family == Family::PutDown;
}

}  // namespace

std::vector<bool> Teller::Fitting(Family family, int band, unsigned wants) const {
  std::vector<bool> fits;
  for (const TaggedLine& line : ReadLinesOf(voice_, family, band))
    fits.push_back(Fits(line, family, wants));
  return fits;
}

bool Teller::Fits(const TaggedLine& line, Family family, unsigned wants) const {
  if ((line.Tags & wants) != wants || !FitsFooting(line, family)) return false;
  if (line.Is(kPinTag) && !Counts) return false;
  if (line.Is(kCleanTag) && !EndsCleanly(segment)) return false;
  const Person *attacker = cast.First('a'), *defender = cast.First('d');
  if (line.Is(kTroubleTag) && !(attacker && attacker->Trouble >= kDeepTrouble)) return false;
  if (line.Is(kWornTag) && !(defender && defender->Taken >= kWornDown)) return false;
  if (line.Is(kTiredTag) && !(attacker && attacker->Taken >= kWornDown)) return false;
  if ((line.Is(kLongTag) && IsBrief) || (line.Is(kGreatTag) && scene.Overall < kGreatFrom))
    return false;
  return FitsLevel(line, kRatings, scene.Overall) && FitsLevel(line, kCrowds, scene.Crowd);
}

bool Teller::FitsFooting(const TaggedLine& line, Family family) const {
  if (LeadsOutOfHolds(family) && !line.Is(kAnywayTag) &&
      line.Is(kHeldTag) != (Under == Footing::Held))
    return false;
  const bool isAside = family == Family::Interlude || family == Family::Beat;
  if (isAside && Under == Footing::Held && (line.Tags & (kUpTag | kDownTag)) != 0) return false;
  const bool isPinnedByHold = Under == Footing::Held && isHeldOnMat_;
  if (line.Is(kUpTag) && (IsCoverNext || isPinnedByHold)) return false;
  return !line.Is(kFloorTag) || Under == Footing::Down;
}

namespace {

void Hurt(Person& defender, const TaggedLine& line) {
  ++defender.Taken;
  ++defender.Trouble;
  const LineTag limbs[] = {kLegTag, kArmTag, kBackTag};
  for (std::size_t limb = 0; limb < std::size(limbs); ++limb)
    defender.Limbs[limb] += line.Is(limbs[limb]);
}

}  // namespace

void Teller::Move(Family family, const TaggedLine& line) {
  if (line.Is(kHoldTag)) isHeldOnMat_ = line.Is(kMatTag);
  const auto leave = [&](Footing otherwise) {
    Under = line.Is(kDownTag) ? Footing::Down : line.Is(kHoldTag) ? Footing::Held : otherwise;
  };
  Person *attacker = cast.First('a'), *defender = cast.First('d');
  switch (family) {
    case Family::TwoCount:
    case Family::NearFall:
    case Family::PinNoRef:
    case Family::PutDown:
      Under = Footing::Down;
      return;
    case Family::EliminationTry:
      Under = Footing::Up;
      return;
    case Family::Interlude:
    case Family::Beat:
      return line.Is(kUpTag) ? void(Under = Footing::Up) : leave(Under);
    case Family::TagOut:
      Under = Footing::Up;
      if (attacker) attacker->Trouble = 0;
      return;
    case Family::Counter:
      return leave(Footing::Up);
    case Family::LadderSpot:
    case Family::WeaponSpot:
    case Family::TableSpot:
      leave(Footing::Down);
      break;
    case Family::OffenceA:
    case Family::OffenceB:
    case Family::OffenceC:
    case Family::OffenceD:
    case Family::OffenceE:
    case Family::DoubleTeam:
    case Family::BreakIn:
    case Family::Spot:
      leave(Footing::Up);
      break;
    default:
      return;
  }
  if (attacker) attacker->Trouble = 0;
  if (defender) Hurt(*defender, line);
}

void Teller::Paragraph() {
  while (text_.ends_with(' ')) text_.pop_back();
  if (!text_.empty() && !text_.ends_with('\n')) text_ += '\n';
  linesHere_ = 0;
}

std::string Teller::Text() {
  while (text_.ends_with(' ') || text_.ends_with('\n')) text_.pop_back();
  return text_;
}

void Teller::Act(Person* attacker, Person* defender) {
  if (cast.First('a') != attacker || cast.First('d') != defender) Under = Footing::Up;
  TurnRound(attacker, defender);
}

void Teller::TurnRound(Person* attacker, Person* defender) {
  cast.Set('a', attacker);
  cast.Set('d', defender);
}

namespace {

constexpr int kVoiceCount = static_cast<int>(std::size(kVoiceRows));

int KnownVoice(int voice) {
  return voice >= 0 && voice < kVoiceCount ? voice : kLamplighter;
}

/// Of all ways to say it.
int MeanLength(std::string_view line) {
  const int ways = WaysToSay(line);
  int letters = 0;
  for (int way = 0; way < ways; ++way) letters += static_cast<int>(SaidIn(line, way).size());
  return letters / ways;
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
    std::vector<TaggedLine> Read = {};
    std::vector<int> Lengths = {};
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
    for (const std::string_view line : block.Lines) {
      entry.Read.push_back(ReadTags(line));
      const std::string_view text = entry.Read.back().Text;
      entry.Keys.push_back(LineKey(voice, text));
      entry.Lengths.push_back(MeanLength(text));
    }
  }

  std::array<std::vector<Entry>, kFamilies> rows_;
};

const Index::Entry& EntryOf(int voice, Family family, int band) {
  static const std::array<Index, kVoiceCount> kIndex = {
      Index{kLamplighter,
            {modLamplighter::Offence(), modLamplighter::Bouts(), modLamplighter::Finishes(),
             modLamplighter::Talk(), modLamplighter::Angles(), modLamplighter::Memory(),
             modLamplighter::Beats(), modLamplighter::Chronicle()}},
      Index{kTolland,
            {modTolland::Offence(), modTolland::Bouts(), modTolland::Finishes(), modTolland::Talk(),
             modTolland::Angles(), modTolland::Verdicts(), modTolland::Memory(),
             modTolland::Beats(), modTolland::Chronicle()}},
      Index{kQvd,
            {modQVD::Offence(), modQVD::Bouts(), modQVD::Finishes(), modQVD::Talk(),
             modQVD::Angles(), modQVD::Memory(), modQVD::Beats(), modQVD::Chronicle()}}};
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

std::span<const int> LengthsOf(int voice, Family family, int band) {
  return EntryOf(voice, family, band).Lengths;
}

std::span<const TaggedLine> ReadLinesOf(int voice, Family family, int band) {
  return EntryOf(voice, family, band).Read;
}

std::string Verdict(World& world, const Segment& segment, int overall, LineMemory* memory) {
  if (!world.HasGame() || world.Game().Reporter != kTolland || segment.Kind != kMatch) return {};
  if (segment.Style == kSpecial && segment.MatchType != kRoyalRumble)
    return std::string(BlockOf(kTolland, Family::NoVerdict, 0)->Lines[0]);
  const auto* last = std::end(kVerdictsUpTo) - 1;
  const auto band = std::lower_bound(std::begin(kVerdictsUpTo), last, overall);
  const auto number = static_cast<int>(band - kVerdictsUpTo);
  const Block* block = BlockOf(kTolland, Family::Verdict, number);
  const auto keys = KeysOf(kTolland, Family::Verdict, number);
  const auto count = static_cast<int>(keys.size());
  if (!memory)
    return SaidIn(block->Lines[static_cast<std::size_t>(world.Prose().Draw(count) - 1)], 0);
  std::vector<int> days;
  for (const std::int32_t key : keys) days.push_back(memory->Said().DaysSince(world, key));
  const auto line = static_cast<std::size_t>(memory->Pick(world.Prose(), block, count, days));
  const int way = memory->Said().Times(world, keys[line]);
  memory->Said().Say(world, keys[line]);
  return SaidIn(block->Lines[line], way);
}

}  // namespace grapplemont
