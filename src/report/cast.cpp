#include "report/cast.h"

#include <algorithm>

#include "records/angles.h"
#include "records/fields/wording.h"
#include "records/modWresCheck.h"
#include "records/segmentparts.h"

namespace grapplemont {

namespace {

constexpr int kFullAgain = 6;  // mentions from one full name to the next

bool IsBlank(char letter) {
  return static_cast<unsigned char>(letter) <= ' ';
}

/// Who takes the fall; 0 for nobody.
int LoserOf(const Segment& segment) {
  return NamesLoser(segment) ? int(segment.Loser) : 0;
}

void CastSides(const World& world, const Segment& segment, Cast& cast) {
  const auto sides = SidesOf(segment);
  if (segment.Style != kSpecial)
    for (std::size_t i = 0; i < sides.size() && i < kSideParts.size(); ++i)
      cast.Set(kSideParts[i], world, sides[i]);
  const int loser = LoserOf(segment);
  cast.Set('w', cast.Find(world, segment.Winner));
  cast.Set('l', cast.Find(world, loser));
  cast.Set('W', world,
           segment.Style == kSpecial ? std::vector<int>{segment.Winner} : WinnersOf(segment));
  cast.Set('L', world, segment.Style == kSpecial ? std::vector<int>{loser} : LosersOf(segment));
  cast.Set('j', cast.Find(world, PartnerOf(segment, segment.Winner)));
  cast.Set('k', cast.Find(world, PartnerOf(segment, loser)));
}

void CastMatch(const World& world, const Segment& segment, Cast& cast) {
  CastSides(world, segment, cast);
  const bool hasFinish = !FinishesOf(segment.Style).empty();
  if (!hasFinish) return;
  cast.Set('v', world, PeopleOf(segment, Part::Attacked));
  cast.Set('u', world, PeopleOf(segment, Part::Helped));
  cast.Set('V', world, PeopleOf(segment, Part::AttackedTeam));
  cast.Set('U', world, PeopleOf(segment, Part::HelpedTeam));
  cast.Set('o', cast.Find(world, segment.Other1));
  cast.Set('p', cast.Find(world, segment.Other2));
  cast.Set('q', cast.Find(world, segment.Other3));
  cast.Set('r', cast.Find(world, segment.Other4));
  cast.Set('O', world, {segment.Other1, segment.Other2});
  cast.Set('Q', world, {segment.Other3, segment.Other4});
}

void CastInterview(const World& world, const Segment& segment, Cast& cast) {
  cast.Set('T', world, SeatedAs(segment, Casting::Talkers));
  cast.Set('m', world, SeatedAs(segment, Casting::TalkManagers));
  cast.Set('V', world, SeatedAs(segment, Casting::Targets));
}

void CastAngle(const World& world, const Segment& segment, Cast& cast) {
  const auto at = [&](int place) { return UidAt(segment, place); };
  cast.Set('F', world, {at(1), at(2)});
  cast.Set('S', world, {at(3), at(4)});
  std::vector<int> attackers = {at(2), at(3)};
  if (segment.Style == kStrengthInNumbers) attackers.push_back(at(4));
  cast.Set('O', world, attackers);
  if (const Angle* angle = FindAngle(segment.Style);
      angle && HasStableRole(*angle) && segment.Text != "None")
    cast.Of('G').Name = OneSpaced(segment.Text);
}

std::string TitleText(const World& world, const Segment& segment) {
  if (segment.TitleName == "None") return {};
  const Title* title = FindTitle(world, segment.TitleName);
  return TitleInProse(segment.TitleName, !title || title->Singles);
}

std::string Capitalised(std::string name) {
  if (!name.empty() && name[0] >= 'a' && name[0] <= 'z') name[0] = static_cast<char>(name[0] - 32);
  return name;
}

}  // namespace

std::string WithoutThe(std::string_view name) {
  std::string plain = OneSpaced(name);
  if (plain.starts_with("The ") || plain.starts_with("the ")) plain.erase(0, 4);
  return plain;
}

std::string SpelledOut(int number) {
  constexpr std::string_view kOnes[] = {"",        "one",     "two",       "three",    "four",
                                        "five",    "six",     "seven",     "eight",    "nine",
                                        "ten",     "eleven",  "twelve",    "thirteen", "fourteen",
                                        "fifteen", "sixteen", "seventeen", "eighteen", "nineteen"};
  constexpr std::string_view kTens[] = {"",      "",      "twenty",  "thirty", "forty",
                                        "fifty", "sixty", "seventy", "eighty", "ninety"};
  constexpr int kHundred = 100, kTen = 10;
  const auto joined = [](std::string_view one, std::string_view by, int rest) {
    return std::string(one) + (rest == 0 ? std::string() : std::string(by) + SpelledOut(rest));
  };
  if (number >= kHundred)
    return joined(std::string(kOnes[number / kHundred]) + " hundred", " and ", number % kHundred);
  if (number < static_cast<int>(std::size(kOnes))) return std::string(kOnes[number]);
  return joined(kTens[number / kTen], "-", number % kTen);
}

std::string TitleInProse(std::string_view name, bool singles) {
  const std::string plain = WithoutThe(name);
  if (plain.empty()) return {};
  for (const std::string_view word : {"Title", "Titles", "Championship", "Championships", "Crown",
                                      "Crowns", "Belt", "Belts", "Cup", "Trophy"})
    if (plain.ends_with(word)) return "the " + plain;
  return "the " + plain + (singles ? " Title" : " Titles");
}

std::string_view WordOfThing(std::string_view name, int row) {
  for (const std::string_view word : {"Titles", "Championships", "Crowns", "Belts"})
    if (name.ends_with(word)) return kSexed[row].Several;
  return kSexed[row].Man;
}

std::string OneSpaced(std::string_view text) {
  std::string out;
  for (const char letter : text)
    if (!IsBlank(letter))
      out += letter;
    else if (!out.empty() && out.back() != ' ')
      out += ' ';
  if (!out.empty() && out.back() == ' ') out.pop_back();
  return out;
}

Person* Cast::Find(const World& world, int uid) {
  for (const auto& person : people_)
    if (person->Uid == uid) return person.get();
  const Worker* worker = world.FindWorker(uid);
  if (!worker) return nullptr;
  Person person{uid, OneSpaced(worker->Name), OneSpaced(worker->ShortName), worker->Gender};
  if (person.Full.empty()) person.Full = person.Short;
  if (person.Short.empty()) person.Short = person.Full;
  if (person.Full.empty()) return nullptr;
  for (const auto& other : people_)
    if (other->Short == person.Short) person.NeedsFull = other->NeedsFull = true;
  return people_.emplace_back(std::make_unique<Person>(std::move(person))).get();
}

Person* Cast::Called(std::string_view name, bool isMan) {
  for (const auto& person : people_)
    if (person->Uid == 0 && person->Full == name) return person.get();
  const std::string full = OneSpaced(name);
  return people_.emplace_back(std::make_unique<Person>(Person{0, full, full, isMan})).get();
}

void Cast::Set(char part, Person* person) {
  Party& party = Of(part);
  party.Name.clear();
  party.People.clear();
  if (person) party.People.push_back(person);
}

Party Cast::Together(const World& world, const std::vector<int>& uids) {
  Party party;
  for (const int uid : uids)
    if (Person* person = Find(world, uid);
        person && std::find(party.People.begin(), party.People.end(), person) == party.People.end())
      party.People.push_back(person);
  if (party.People.size() == 2)
    if (const std::string team = TeamNameOf(world, party.People[0]->Uid, party.People[1]->Uid);
        team != "None")
      party.Name = OneSpaced(team);
  return party;
}

std::string Cast::PersonName(Person& person, Hole::Kind form) {
  const bool full = person.NeedsFull || form == Hole::Full ||
                    (form != Hole::Short && person.Mentions % kFullAgain == 0);
  ++person.Mentions;
  return full ? person.Full : person.Short;
}

std::string Cast::MemberNames(const Party& party, Hole::Kind form) {
  std::string text;
  for (std::size_t i = 0; i < party.People.size(); ++i) {
    if (i > 0) text += i + 1 == party.People.size() ? " and " : ", ";
    text += PersonName(*party.People[i], form);
  }
  return text;
}

std::string Cast::NameOf(char part, Hole::Kind form) {
  Party& party = Of(part);
  if (!party.IsSeveral()) return PersonName(*party.People[0], form);
  if (form == Hole::Members && !party.People.empty()) return MemberNames(party, Hole::Full);
  if (!party.Name.empty()) return party.Name;
  const bool asTeam = party.People.size() > 2 && party.Mentions % kFullAgain != 0;
  ++party.Mentions;
  if (asTeam) return PersonName(*party.People[0], Hole::Short) + "'s team";
  return MemberNames(party, form);
}

std::string_view Cast::WordOf(char part, int row) const {
  const Party& party = Of(part);
  const Sexed& words = kSexed[row];
  if (party.IsSeveral()) return words.Several;
  return party.People[0]->IsMan ? words.Man : words.Woman;
}

Cast CastOf(const World& world, const Segment& segment) {
  Cast cast;
  for (int place = 1; place <= 8; ++place)
    if (segment.Kind == kAngle ? place <= kAnglePlaces : place <= EntrantsOf(segment))
      cast.Set(static_cast<char>('0' + place), cast.Find(world, UidAt(segment, place)));
  if (segment.Kind == kMatch) CastMatch(world, segment, cast);
  if (segment.Kind == kInterview) CastInterview(world, segment, cast);
  if (segment.Kind == kAngle) CastAngle(world, segment, cast);
  cast.Set(Item::Title, TitleText(world, segment));
  const std::string& title = cast.Thing(Item::Title);
  cast.Set(Item::Prize, title.empty() ? "the briefcase" : title);
  if (const Promotion* player = world.FindPromotion(world.PlayerUid()))
    cast.Set(Item::Promotion, Capitalised(OneSpaced(player->Name)));
  return cast;
}

namespace {

/// Writes one line's text behind what is there, sentence by sentence.
class Filler {
 public:
  Filler(Cast& cast, std::string& out, std::vector<std::size_t>& ends)
      : cast_(cast), out_(out), ends_(ends), sentence_(out.size()) {}

  void Write(std::string_view line) {
    ReadHoles(
        line,
        [this](std::string_view words) {
          if (!hidden_) Letters(words);
        },
        [this](std::string_view slot) { Put(ReadHole(slot)); });
    EndSentence();
  }

 private:
  void Letters(std::string_view text) {
    for (std::size_t i = 0; i < text.size(); ++i) {
      if (text[i] == '\'' && lastWasName_ && out_.ends_with('s') && text.substr(i, 2) == "'s") {
        out_ += '\'';
        ++i;
      } else if (text[i] == '.' && lastWasName_ && out_.ends_with('.') &&
                 text.substr(i, 2) != "..") {
        namesStop_ = 0;  // a name's own stop ends the sentence as well
      } else {
        out_ += text[i];
      }
      lastWasName_ = false;
      if (text[i] == ' ' && AtSentenceEnd()) EndSentence();
    }
  }

  /// The blank just written stands behind a full stop, its quotation marks closed. Dots in a row
  /// end nothing.
  bool AtSentenceEnd() const {
    std::size_t at = out_.size() - 1;
    if (at == namesStop_) return false;
    while (at > sentence_ && (out_[at - 1] == '"' || out_[at - 1] == ')')) --at;
    if (at <= sentence_) return false;
    const char last = out_[at - 1];
    if (last == '.') return at < sentence_ + 2 || out_[at - 2] != '.';
    return last == '!' || last == '?';
  }

  void EndSentence() {
    if (broken_) out_.resize(sentence_);
    broken_ = false;
    if (out_.size() > sentence_) ends_.push_back(out_.size());
    sentence_ = out_.size();
  }

  void Put(const Hole& hole) {
    switch (hole.Is) {
      case Hole::If:
      case Hole::IfNot:
        hidden_ = IsThere(hole) != (hole.Is == Hole::If);
        return;
      case Hole::End:
        hidden_ = false;
        return;
      default:
        if (!hidden_) PutText(hole);
    }
  }

  bool IsThere(const Hole& hole) const {
    if (hole.Is == Hole::ThingWord) return !cast_.Thing(static_cast<Item>(hole.Of)).empty();
    return hole.Part != 0 ? !cast_.Of(hole.Part).Empty()
                          : !cast_.Thing(static_cast<Item>(hole.Number)).empty();
  }

  void PutText(const Hole& hole) {
    if (!IsThere(hole)) {
      broken_ = true;
      return;
    }
    const std::size_t at = out_.size();
    if (hole.Is == Hole::Thing)
      out_ += cast_.Thing(static_cast<Item>(hole.Number));
    else if (hole.Is == Hole::ThingWord)
      out_ += WordOfThing(cast_.Thing(static_cast<Item>(hole.Of)), hole.Number);
    else if (hole.Is == Hole::Word)
      out_ += cast_.WordOf(hole.Part, hole.Number);
    else
      out_ += cast_.NameOf(hole.Part, hole.Is);
    if (out_.ends_with('.')) namesStop_ = out_.size();
    lastWasName_ = hole.Is != Hole::Word && hole.Is != Hole::ThingWord;
    if (!BeginsSentence(at) || at >= out_.size()) return;
    if (hole.Is == Hole::Thing && hole.Number == static_cast<int>(Item::Count)) SpellOut(at);
    if (out_[at] >= 'a' && out_[at] <= 'z') out_[at] = static_cast<char>(out_[at] - 32);
  }

  /// No sentence begins with a figure.
  void SpellOut(std::size_t at) {
    constexpr std::size_t kMostDigits = 3;
    std::size_t end = at;
    while (end < out_.size() && out_[end] >= '0' && out_[end] <= '9') ++end;
    if (end > at && end - at <= kMostDigits)
      out_.replace(at, end - at, SpelledOut(std::stoi(out_.substr(at, end - at))));
  }

  bool BeginsSentence(std::size_t at) const {
    for (std::size_t i = sentence_; i < at; ++i)
      if (out_[i] != '"' && out_[i] != '(') return false;
    return true;
  }

  Cast& cast_;
  std::string& out_;
  std::vector<std::size_t>& ends_;
  std::size_t sentence_;
  std::size_t namesStop_ = 0;  // behind a name that ends in a stop, which ends no sentence
  bool hidden_ = false, broken_ = false, lastWasName_ = false;
};

}  // namespace

bool Fill(Cast& cast, std::string_view line, std::string& out, std::vector<std::size_t>& ends) {
  const std::size_t before = out.size();
  Filler(cast, out, ends).Write(line);
  return out.size() > before;
}

}  // namespace grapplemont
