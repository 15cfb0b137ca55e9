#include <array>

#include "storylines/feuds.h"

namespace grapplemont {

namespace {

/// A feud as Maeve looks at it, and the same feud with its sides changed over.
struct View {
  const Feud& Seen;
  int Won, WonThere;      // totals of the side looked from and of the other
  int Clean, DirtyThere;  // clean wins here, dirty wins there
  int Sum() const { return Won + WonThere; }
};

/// Whose name stands in the sentence: nobody's, or the side for which the test holds. Side one is
/// tried first.
enum class About { Nobody, ASide };

struct Opinion {
  bool (*Fits)(const View&);
  About Whom;
  std::string_view Before;  // the name, if any
  std::string_view After = {};
  bool IsEnd = false;  // says that the feud should come to one
};

// The first that fits is said, so the order is the rule. The one about losing popularity stands
// before the one about falling behind and leaves it nothing to fit.
constexpr std::array<Opinion, 8> kOpinions = {{
    {[](const View& v) { return v.Sum() < 4 && v.Seen.Singles; }, About::Nobody,
     "You need to build this rivalry up more. Use matches, interviews and angles to heat things "
     "up."},
    {[](const View& v) { return v.Sum() < 4; }, About::Nobody,
     "You need to build this rivalry up more, it has barely begun."},
    {[](const View& v) { return v.Seen.Dirty1 == 0 && v.Seen.Dirty2 == 0; }, About::Nobody,
     "I'd give one of the teams a few cheap wins - clean-cut faces vs cheating heels always "
     "draws."},
    {[](const View& v) {
       return v.Won == 0 && v.Won + 5 < v.WonThere && v.Clean == 0 && v.DirtyThere >= 4;
     },
     About::ASide, "This feud is poised perfectly for ",
     " to get a climatic clean victory to end the feud.", true},
    {[](const View& v) { return v.Sum() <= 13 && v.Won == v.WonThere; }, About::Nobody,
     "A nice even feud - i'd let one team get slightly ahead, then have the other team win the "
     "feud-ending bout to even the score."},
    {[](const View& v) { return v.Sum() > 13; }, About::Nobody,
     "This feud has been built up well, i think we should end it with a big gimmick bout, then "
     "move both teams onto new feuds.",
     "", true},
    {[](const View& v) { return v.Won + 5 > v.WonThere; }, About::ASide, "",
     " would lose popularity if they lost the feud at this stage."},
    {[](const View& v) { return v.Won + 5 < v.WonThere; }, About::ASide, "I'd give ",
     " more wins, as they are falling too far behind."},
}};

/// The first that fits, if any, and whether it does so from side one.
struct Found {
  const Opinion* Is = nullptr;
  bool FromOne = false;
};

Found FirstOf(const Feud& feud) {
  const FeudScore score = FeudWins(feud);
  const View one{feud, score.One, score.Two, feud.Clean1, feud.Dirty2};
  const View two{feud, score.Two, score.One, feud.Clean2, feud.Dirty1};
  for (const Opinion& opinion : kOpinions) {
    const bool fitsOne = opinion.Fits(one);
    if (fitsOne || opinion.Fits(two)) return {&opinion, fitsOne};
  }
  return {};
}

}  // namespace

std::string AssessFeud(const World& world, const Feud& feud) {
  const Found found = FirstOf(feud);
  if (!found.Is) return "I'd keep developing this feud, it is getting interesting.";
  const FeudSides sides = SidesOf(feud);
  std::string text(found.Is->Before);
  if (found.Is->Whom == About::ASide)
    text.append(SideName(world, found.FromOne ? sides.One : sides.Two)).append(found.Is->After);
  return text;
}

bool IsRipe(const Feud& feud) {
  const Opinion* opinion = FirstOf(feud).Is;
  return opinion && opinion->IsEnd;
}

}  // namespace grapplemont
