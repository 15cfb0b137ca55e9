#pragma once

#include <array>
#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "records/world.h"
#include "report/line.h"

// Who plays which part in a Segment's report.
//
//   a d b    who acts, who suffers, the partner of who acts; set by each step of a bout
//   w l      winner and loser; j and k are their partners
//   1 .. 8   the Segment's workers by place
//   o p q r  the run-ins, Other1 to Other4
//   t v u    who turns (or is put over, or makes a debut); the victim of an attack after the bell;
//            who stands beside the run-in then
//   m c      a manager; the champion or champions at the bell
//   W L      all of the winning and the losing side; Z the survivors among the winners
//   F S X Y  the sides in their order (an angle: its first and its second pair)
//   O Q      the run-ins of the finish, and of the aftermath, together
//   V U      t, v, u for sides; in an interview V are the targets
//   G T C    a stable; the speakers; who holds the Title after the bell

namespace grapplemont {

/// Somebody whom the report names. A name is said in full at first and now and then, and short
/// between.
struct Person {
  int Uid = 0;
  std::string Full, Short;
  bool IsMan = true;
  bool NeedsFull = false;  // another one has the same short name
  int Mentions = 0;
  bool IsOut = false;  // eliminated
  int Taken = 0;       // moves in the bout so far
  int Trouble = 0;     // of those, since they had the upper hand or made a tag
  int Limbs[3] = {};   // of those, on a leg, on an arm, on the back
};

/// One part: nobody, a person, or several, who may have a name of their own.
struct Party {
  std::vector<Person*> People;
  std::string Name;  // of a team or a stable
  int Mentions = 0;

  bool Empty() const { return People.empty() && Name.empty(); }
  bool IsSeveral() const { return People.size() > 1 || (!Name.empty() && People.empty()); }
};

class Cast {
 public:
  /// The person of this uid; nullptr for nobody and for a uid that leads nowhere or to no name.
  Person* Find(const World& world, int uid);

  /// Somebody of whom only the name is known, and the sex where a line asks for it.
  Person* Called(std::string_view name, bool isMan);

  /// The first of a part; nullptr for nobody.
  Person* First(char part) const {
    return Of(part).People.empty() ? nullptr : Of(part).People.front();
  }
  const Party& Of(char part) const { return parties_[Place(part)]; }
  Party& Of(char part) { return parties_[Place(part)]; }
  /// Those of them who are there; a pair takes its team's name.
  Party Together(const World& world, const std::vector<int>& uids);
  void Set(char part, Person* person);
  void Set(char part, const World& world, const std::vector<int>& uids) {
    Of(part) = Together(world, uids);
  }

  const std::string& Thing(Item item) const { return things_[static_cast<std::size_t>(item)]; }
  void Set(Item item, std::string text) {
    things_[static_cast<std::size_t>(item)] = std::move(text);
  }

  /// "Bram Okafor", "Okafor", "the Dock Rats", "Okafor and Marsh". Counts as a mention; the part
  /// must not be empty.
  std::string NameOf(char part, Hole::Kind form);
  /// The word by sex and number.
  std::string_view WordOf(char part, int row) const;

 private:
  static std::size_t Place(char part) { return kParts.find(part); }
  std::string PersonName(Person& person, Hole::Kind form);
  std::string MemberNames(const Party& party, Hole::Kind form);

  std::vector<std::unique_ptr<Person>> people_;
  std::array<Party, kParts.size()> parties_;
  std::array<std::string, std::size(kItems)> things_;
};

/// The parts of the sides, in their order.
inline constexpr std::string_view kSideParts = "FSXY";

/// Everybody and everything that a Segment names, and the Titles' and promotion's names.
Cast CastOf(const World& world, const Segment& segment);

/// "one hundred and one". Requires 1 to 999.
std::string SpelledOut(int number);
/// "the Harbor Crown", "the CWA World Title": a name that says what it is needs no more.
std::string TitleInProse(std::string_view name, bool singles);
/// The word that goes with a Title's name, by its number: "the Zenith Tag Titles are".
std::string_view WordOfThing(std::string_view name, int row);
/// Several spaces in a row as one.
std::string OneSpaced(std::string_view text);
/// The same, with a "The" in front left out.
std::string WithoutThe(std::string_view name);

/// Appends a line with its slots filled. A sentence that names a part nobody plays, or a thing that
/// is not there, is left out. A word or name that begins a sentence gets a capital. False when
/// nothing was said.
/// `ends` takes where each sentence ends in `out`.
bool Fill(Cast& cast, std::string_view line, std::string& out, std::vector<std::size_t>& ends);

}  // namespace grapplemont
