#include "records/segments.h"

#include <algorithm>
#include <functional>
#include <numeric>

#include "records/angles.h"
#include "records/fields/wording.h"
#include "records/modWresCheck.h"
#include "records/segmentparts.h"

namespace grapplemont {

namespace {

constexpr const char* kUnknown = "<Error>";

std::string NameText(const World& world, int uid) {
  const Worker* worker = world.FindWorker(uid);
  return worker ? worker->Name.Str() : kUnknown;
}

int SpecialEntrants(int type) {
  constexpr int kEntrants[] = {30, 20, 10};
  return type >= kRoyalRumble && type <= kTenMan ? kEntrants[type - 1] : 0;
}

std::string PairText(const World& world, int first, int second) {
  if (second == 0) return NameText(world, first);
  const std::string team = TeamNameOf(world, first, second);
  return team != "None" ? team : NameText(world, first) + " \\ " + NameText(world, second);
}

struct Hole {
  std::string_view Name;
  std::function<std::string(const World&, const Segment&)> Fill;
};

/// {1} to {8}, and the names that need a look at the result.
std::string FillHole(const World& world, const Segment& segment, std::string_view hole) {
  static const std::vector<Hole> kHoles = {
      {"W", [](auto& w, auto& s) { return NameText(w, s.Winner); }},
      {"L", [](auto& w, auto& s) { return NameText(w, s.Loser); }},
      {"P", [](auto& w, auto& s) { return NameText(w, PartnerOf(s, s.Loser)); }},
      {"O1", [](auto& w, auto& s) { return NameText(w, s.Other1); }},
      {"O2", [](auto& w, auto& s) { return NameText(w, s.Other2); }},
      {"O3", [](auto& w, auto& s) { return NameText(w, s.Other3); }},
      {"O4", [](auto& w, auto& s) { return NameText(w, s.Other4); }},
      {"12", [](auto& w, auto& s) { return PairText(w, UidAt(s, 1), UidAt(s, 2)); }},
      {"34", [](auto& w, auto& s) { return PairText(w, UidAt(s, 3), UidAt(s, 4)); }},
      {"WT", [](auto& w, auto& s) { return SideText(w, WinnersOf(s)); }},
      {"LT", [](auto& w, auto& s) { return SideText(w, LosersOf(s)); }},
      {"AT", [](auto& w, auto& s) { return SideText(w, PeopleOf(s, Part::AttackedTeam)); }},
      {"OO", [](auto& w, auto& s) { return PairText(w, s.Other1, s.Other2); }},
      {"PP", [](auto& w, auto& s) { return PairText(w, s.Other3, s.Other4); }},
  };
  for (const Hole& known : kHoles)
    if (known.Name == hole) return known.Fill(world, segment);
  if (hole.size() == 1 && hole[0] >= '1' && hole[0] <= '8')
    return NameText(world, UidAt(segment, hole[0] - '0'));
  return kUnknown;
}

const Phrase* FindPhrase(Phrases phrases, int code) {
  for (const Phrase& phrase : phrases)
    if (phrase.Code == code) return &phrase;
  return nullptr;
}

std::string DescribeTwoSides(const World& world, const Segment& segment) {
  const auto sides = SidesOf(segment);
  const std::string first = SideText(world, sides[0]), second = SideText(world, sides[1]);
  if (IsDraw(segment)) return first + " draw " + second;
  return SideOf(segment, segment.Winner) == 2 ? second + " over " + first
                                              : first + " over " + second;
}

/// A winner over one loser, and who else was there, in the order of the places.
std::string DescribeManySides(const World& world, const Segment& segment) {
  std::string text = NameText(world, segment.Winner) + " over " + NameText(world, segment.Loser);
  if (segment.Style == kFourWay && segment.MatchType == kElimination)
    return text + ", " + NameText(world, segment.Place3) + ", " + NameText(world, segment.Place4);
  for (const int uid : PeopleOf(segment))
    if (uid != segment.Winner && uid != segment.Loser) text += ", " + NameText(world, uid);
  return text;
}

std::string DescribeMatch(const World& world, const Segment& segment) {
  switch (segment.Style) {
    case kSingles:
    case kTag:
    case kThreeOnThree:
    case kFourOnFour:
      return DescribeTwoSides(world, segment);
    case kThreeWay:
    case kFourWay:
      return DescribeManySides(world, segment);
    case kThreeTeams:
      return SideText(world, WinnersOf(segment)) + " win a triangle tag match";
    case kFourTeams:
      return SideText(world, WinnersOf(segment)) + " win a four-way tag match";
    case kSpecial:
      return NameText(world, segment.Winner) + " wins a " +
             std::string(MatchTypeText(kSpecial, segment.MatchType));
    default:
      return kUnknown;
  }
}

/// Worker and manager in the order of their seats, a team as one.
std::string DescribeInterview(const World& world, const Segment& segment) {
  const std::vector<Role> seats = SeatsOf(segment);
  if (seats.empty()) return kUnknown;
  const bool managerFirst = seats.front().From == Casting::TalkManagers;
  const auto first = managerFirst ? Casting::TalkManagers : Casting::Talkers;
  const auto second = managerFirst ? Casting::Talkers : Casting::TalkManagers;
  const std::vector<int> with = SeatedAs(segment, second);
  return "Interview with " + SideText(world, SeatedAs(segment, first)) +
         (with.empty() ? "" : " and " + SideText(world, with));
}

std::string DescribeAngle(const World& world, const Segment& segment) {
  const Angle* angle = FindAngle(segment.Style);
  if (!angle) return kUnknown;
  std::string text = std::string(angle->Sheet) + "involving ";
  if (IsToldByStable(segment.Style)) {
    text += segment.Text;
    if (segment.Style != kStableVideo) text += ", " + NameText(world, UidAt(segment, 1));
    return text;
  }
  text += NameText(world, UidAt(segment, 1));
  for (int place = 2; place <= kAnglePlaces; ++place)
    if (const int uid = UidAt(segment, place)) text += ", " + NameText(world, uid);
  if (segment.Text != "None") text += ", " + segment.Text.Str();
  return text;
}

}  // namespace

void ClearSegment(Segment& segment) {
  segment.Rating = 0;
  for (Word* field :
       {&segment.Kind, &segment.Style, &segment.MatchType, &segment.Winner, &segment.Loser,
        &segment.Place3, &segment.Place4, &segment.Other1, &segment.Other2, &segment.Other3,
        &segment.Other4, &segment.Finish, &segment.Purpose, &segment.Aftermath})
    *field = 0;
  for (int place = 0; place < 4; ++place) segment.Worker[static_cast<std::size_t>(place)] = 0;
  segment.TitleName = "None";
  segment.Text = "None";
}

Segment EmptySegment() {
  Segment segment;
  ClearSegment(segment);
  return segment;
}

const MatchTypeRow* FindMatchType(int style, int type) {
  for (const MatchTypeRow& row : kMatchTypes)
    if (row.Style == style && row.Code == type) return &row;
  return nullptr;
}

std::string_view MatchTypeText(int style, int type) {
  const MatchTypeRow* row = FindMatchType(style, type);
  return row ? row->Says : std::string_view();
}

Phrases FinishesOf(int style) {
  switch (style) {
    case kSingles:
      return kSinglesFinishes;
    case kTag:
      return kTagFinishes;
    case kThreeOnThree:
      return kSixManFinishes;
    case kFourOnFour:
      return kEightManFinishes;
    default:
      return {};
  }
}

Phrases AftermathsOf(int style) {
  if (style == kSingles) return kSinglesAftermaths;
  return style == kTag ? Phrases(kTagAftermaths) : Phrases();
}

Phrases PurposesOf(int style) {
  if (style == kSingles) return kSinglesPurposes;
  return style == kTag ? Phrases(kTagPurposes) : Phrases();
}

const Worker* WorkerAt(const World& world, const Segment& segment, int place) {
  return world.FindWorker(UidAt(segment, place));
}

int EntrantsOf(const Segment& segment) {
  if (segment.Kind != kMatch) return 0;
  if (segment.Style == kSpecial) return SpecialEntrants(segment.MatchType);
  const MatchStyleRow* style = FindMatchStyle(segment.Style);
  return style ? style->Sides * style->PerSide : 0;
}

namespace {

int PlacesOf(const Segment& segment) {
  if (segment.Kind == kAngle) return kAnglePlaces;
  if (segment.Kind != kInterview) return EntrantsOf(segment);
  const InterviewStyleRow* style = FindInterviewStyle(segment.Style);
  return style ? style->Speakers + style->Targets : 0;
}

}  // namespace

std::vector<int> PeopleOf(const Segment& segment) {
  std::vector<int> people;
  for (int place = 1, places = PlacesOf(segment); place <= places; ++place)
    if (const int uid = UidAt(segment, place)) people.push_back(uid);
  return people;
}

std::vector<std::vector<int>> SidesOf(const Segment& segment) {
  const MatchStyleRow* style = FindMatchStyle(segment.Style);
  std::vector<std::vector<int>> sides;
  for (int place = 1; style && place <= EntrantsOf(segment); ++place) {
    if ((place - 1) % style->PerSide == 0) sides.emplace_back();
    sides.back().push_back(UidAt(segment, place));
  }
  return sides;
}

int SideOf(const Segment& segment, int uid) {
  if (uid == 0) return 0;
  int number = 0;
  for (const auto& side : SidesOf(segment)) {
    ++number;
    if (std::find(side.begin(), side.end(), uid) != side.end()) return number;
  }
  return 0;
}

std::vector<int> WinnersOf(const Segment& segment) {
  const int side = SideOf(segment, segment.Winner);
  if (side == 0) return {};
  return SidesOf(segment)[static_cast<std::size_t>(side - 1)];
}

std::vector<int> LosersOf(const Segment& segment) {
  const int winning = SideOf(segment, segment.Winner);
  if (winning == 0) return {};
  const auto sides = SidesOf(segment);
  const int losing = NamesLoser(segment) ? SideOf(segment, segment.Loser) : 0;
  if (losing != 0) return sides[static_cast<std::size_t>(losing - 1)];
  std::vector<int> losers;
  for (std::size_t i = 0; i < sides.size(); ++i)
    if (static_cast<int>(i) != winning - 1)
      losers.insert(losers.end(), sides[i].begin(), sides[i].end());
  return losers;
}

int PartnerOf(const Segment& segment, int uid) {
  const int side = SideOf(segment, uid);
  if (side == 0) return 0;
  const auto sides = SidesOf(segment);
  for (const int member : sides[static_cast<std::size_t>(side - 1)])
    if (member != uid) return member;
  return 0;
}

bool IsDraw(const Segment& segment) {
  return segment.Winner == 0;
}

bool NamesLoser(const Segment& segment) {
  if (IsDraw(segment)) return false;
  if (segment.Style == kThreeTeams) return segment.MatchType <= kTriangle;
  return segment.Style != kFourTeams || segment.MatchType == kElimination;
}

bool HasResult(const Segment& segment) {
  return segment.Worker[0] != 0 && segment.Loser != 0;
}

std::vector<int> EverybodyOf(const Segment& segment) {
  std::vector<int> people = PeopleOf(segment);
  for (const int uid : {segment.Other1, segment.Other2, segment.Other3, segment.Other4})
    if (uid != 0) people.push_back(uid);
  return people;
}

bool TakesPart(const Segment& segment, int uid) {
  if (uid == 0) return false;
  for (const int other : {segment.Other1, segment.Other2, segment.Other3, segment.Other4})
    if (other == uid) return true;
  for (int place = 1, places = PlacesOf(segment); place <= places; ++place)
    if (UidAt(segment, place) == uid) return true;
  return false;
}

std::string SideText(const World& world, const std::vector<int>& side) {
  if (side.empty()) return kUnknown;
  if (side.size() == 2) return PairText(world, side[0], side[1]);
  return std::accumulate(
      std::next(side.begin()), side.end(), NameText(world, side[0]),
      [&](std::string text, int uid) { return std::move(text) + " \\ " + NameText(world, uid); });
}

std::string FillPhrase(const World& world, const Segment& segment, std::string_view phrase) {
  return FillHoles(phrase, [&](std::string_view hole) { return FillHole(world, segment, hole); });
}

std::string PhraseText(const World& world, const Segment& segment, Phrases phrases, int code) {
  const Phrase* phrase = FindPhrase(phrases, code);
  return phrase ? FillPhrase(world, segment, phrase->Says) : std::string();
}

std::string SummaryText(const World& world, const Segment& segment, Phrases phrases, int code) {
  const Phrase* phrase = FindPhrase(phrases, code);
  return phrase ? FillPhrase(world, segment, phrase->Summary) : std::string();
}

std::string DescribeSegment(const World& world, const Segment& segment) {
  switch (segment.Kind) {
    case kMatch:
      return DescribeMatch(world, segment);
    case kInterview:
      return DescribeInterview(world, segment);
    case kAngle:
      return DescribeAngle(world, segment);
    default:
      return "<Nothing Booked>";
  }
}

}  // namespace grapplemont
