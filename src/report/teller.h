#pragma once

#include <span>
#include <string>
#include <vector>

#include "records/fields/wording.h"
#include "report/cast.h"
#include "report/family.h"
#include "report/line.h"
#include "report/pace.h"
#include "report/pasttold.h"
#include "report/report.h"

namespace grapplemont {

/// How the one who suffers is left by what was told last.
enum class Footing { Up, Down, Held };

/// Up to what rating the crowd is cold, and up to what it is warm.
inline constexpr int kColdUpTo = 39, kWarmUpTo = 64;

/// One report while it grows: the voice that GameInfo.Reporter names, the cast, the text.
class Teller {
 public:
  Teller(World& world, const Segment& segment, const Scene& scene, LineMemory& memory);

  /// Appends a line of the family; false when nothing could be said, since the band does not exist
  /// or nobody is there to say it of.
  /// Of the band's lines those are drawn from whose tags fit how the match stands and have all of
  /// `wants`; where there are none, and before a cover where the Segment has said them, those that
  /// fit; where there are none of these, all.
  bool Say(Family family, int band = 0, unsigned wants = 0);
  /// The same, but only a line that the show has not had; false when it has had them all.
  bool SayNew(Family family, int band);
  /// The same as Say of whoever plays this part: the line that they have not said for the longest
  /// time, on this show or an earlier one.
  bool SayAs(char part, Family family, int band);
  /// The line of an offence family, by what the attacker is best at; of another one where the match
  /// has said all of these, unless its row is a rule.
  void SayOffence(Family family, unsigned wants = 0);
  /// Text that is the same in all voices.
  void Append(std::string_view text) { text_ += text; }
  /// What follows begins a new paragraph.
  void Paragraph();
  /// Lines said since it began.
  int LinesHere() const { return linesHere_; }
  /// The whole report, trimmed.
  std::string Text();
  /// What it consists of.
  const std::vector<SaidSentence>& Sentences() const { return sentences_; }

  /// A match on a show of the player's; of any other no more is known than its card and its Title.
  bool IsOurs() const { return scene.Promotion == 0; }
  /// Who holds the show, and the day of it.
  int Promotion() const { return IsOurs() ? world.PlayerUid() : scene.Promotion; }
  Day Today() const { return IsOurs() ? world.Today() : scene.On; }

  /// A draw for the prose.
  int Draw(int n) { return world.Prose().Draw(n); }
  /// One of these by a draw. Requires one.
  template <class Some>
  const auto& OneOf(const Some& some) {
    return some[static_cast<std::size_t>(Draw(static_cast<int>(some.size())) - 1)];
  }
  /// Sets {a} and {d}. Whoever was down or held stays it while the two are the same.
  void Act(Person* attacker, Person* defender);
  /// Sets {a} and {d} for a Counter, of which {a} was down or held until now.
  void TurnRound(Person* attacker, Person* defender);

  World& world;
  const Segment& segment;
  const Scene& scene;
  Cast cast;
  Footing Under = Footing::Up;  // of {d}
  bool Counts = true;           // the bout may end in a count
  bool IsCoverNext = false;     // the step to come counts {d}, who has to lie for it
  bool IsBrief = false;         // it has no more steps than a squash
  bool IsTitleSquash = false;   // it is over in next to no time, with a Title at stake
  grapplemont::Pace Pace;
  std::vector<PastFact> Told;  // what has been said of the past

 private:
  Family FreshOffence(Family family, int band) const;
  bool Fits(const TaggedLine& line, Family family, unsigned wants) const;
  bool FitsFooting(const TaggedLine& line, Family family) const;
  std::vector<bool> Fitting(Family family, int band, unsigned wants) const;
  bool SayLine(Family family, int band, int line);
  /// For each line that `of` holds true.
  std::vector<int> DaysUnsaid(Family family, int band, const std::vector<bool>& of);
  void Move(Family family, const TaggedLine& line);

  LineMemory& memory_;
  int voice_;
  std::string text_;
  std::vector<SaidSentence> sentences_;
  std::vector<std::size_t> ends_;  // of the sentences of the line that is said
  int linesHere_ = 0;
  bool isHeldOnMat_ = false;  // where {d} is held
};

/// The band of an offence line: Brawl, Technical and Speed each with a draw of 10 on top, the
/// highest wins, Brawl before Technical before Speed where they tie; then by the plain skill.
/// Draws three times from World::Prose.
int OffenceBandOf(World& world, const Worker& attacker);

// The voices' lines. Each voice is a module that the build makes of its folder of words/, a
// function a file; docs/report-writing.md tells how to write one.

namespace modLamplighter {
Blocks Offence();
Blocks Memory();
Blocks Beats();
Blocks Bouts();
Blocks Finishes();
Blocks Talk();
Blocks Angles();
Blocks Chronicle();
}  // namespace modLamplighter

namespace modTolland {
Blocks Offence();
Blocks Memory();
Blocks Beats();
Blocks Bouts();
Blocks Finishes();
Blocks Talk();
Blocks Angles();
Blocks Chronicle();
Blocks Verdicts();
}  // namespace modTolland

namespace modQVD {
Blocks Offence();
Blocks Memory();
Blocks Beats();
Blocks Bouts();
Blocks Finishes();
Blocks Talk();
Blocks Angles();
Blocks Chronicle();
}  // namespace modQVD

/// The lines to draw from: the voice's, or those of the one voice that has the family for all.
/// nullptr for a band that does not exist; the first voice stands in for an invalid number.
const Block* BlockOf(int voice, Family family, int band);
/// By which each of its lines is remembered (saidlines.h).
std::span<const std::int32_t> KeysOf(int voice, Family family, int band);
/// About how many letters each of them has.
std::span<const int> LengthsOf(int voice, Family family, int band);
/// Each of them, apart from its tags.
std::span<const TaggedLine> ReadLinesOf(int voice, Family family, int band);

}  // namespace grapplemont
