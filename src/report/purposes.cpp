#include "report/purposes.h"

#include <algorithm>
#include <iterator>

#include "records/segmentwords.h"

namespace grapplemont {

namespace {

using enum Purpose;

constexpr PurposePart kPurposes[] = {
    {kSingles, purpose1::kGoodMatch, GoodMatch},
    {kSingles, purpose1::kPutWinnerOver, PutsOver, 'w'},
    {kSingles, purpose1::kEndFeud, EndsFeud},
    {kSingles, purpose1::kTurnRunIn, Turns, 'o'},
    {kSingles, purpose1::kPutRunInOver, PutsOver, 'o'},
    {kSingles, purpose1::kContinueFeud, GoesOn},
    {kSingles, purpose1::kPutLoserOver, PutsOver, 'l'},
    {kSingles, purpose1::kPutBothOver, BothOver},
    {kSingles, purpose1::kTurnWinner, Turns, 'w'},
    {kSingles, purpose1::kTurnLoser, Turns, 'l'},
    {kSingles, purpose1::kEyeCandy, EyeCandy},
    {kSingles, purpose1::kDebutFirst, Debuts, '1'},
    {kSingles, purpose1::kDebutSecond, Debuts, '2'},
    {kSingles, purpose1::kDebutRunIn, Debuts, 'o'},
    {kSingles, purpose1::kDebutRunIn2, Debuts, 'p'},
    {kSingles, purpose1::kTurnRunIn2, Turns, 'p'},
    {kSingles, purpose1::kPutRunIn2Over, PutsOver, 'p'},
    {kTag, purpose2::kPutFirstTeamOver, PutsOver, 'F'},
    {kTag, purpose2::kPutSecondTeamOver, PutsOver, 'S'},
    {kTag, purpose2::kGoodMatch, GoodMatch},
    {kTag, purpose2::kContinueFeud, GoesOn},
    {kTag, purpose2::kEndFeud, EndsFeud},
    {kTag, purpose2::kPutBothOver, BothOver},
    {kTag, purpose2::kPutWorker1Over, PutsOver, '1'},
    {kTag, purpose2::kPutWorker2Over, PutsOver, '2'},
    {kTag, purpose2::kPutWorker3Over, PutsOver, '3'},
    {kTag, purpose2::kPutWorker4Over, PutsOver, '4'},
    {kTag, purpose2::kTurnWorker1, Turns, '1'},
    {kTag, purpose2::kTurnWorker2, Turns, '2'},
    {kTag, purpose2::kTurnWorker3, Turns, '3'},
    {kTag, purpose2::kTurnWorker4, Turns, '4'},
    {kTag, purpose2::kTurnFirstTeam, Turns, 'F'},
    {kTag, purpose2::kTurnSecondTeam, Turns, 'S'},
    {kTag, purpose2::kTurnOther1, Turns, 'o'},
    {kTag, purpose2::kTurnOthers12, Turns, 'O'},
    {kTag, purpose2::kPutOther1Over, PutsOver, 'o'},
    {kTag, purpose2::kPutOthers12Over, PutsOver, 'O'},
    {kTag, purpose2::kDebutFirstTeam, Debuts, 'F'},
    {kTag, purpose2::kDebutSecondTeam, Debuts, 'S'},
    {kTag, purpose2::kDebutWorker1, Debuts, '1'},
    {kTag, purpose2::kDebutWorker2, Debuts, '2'},
    {kTag, purpose2::kDebutWorker3, Debuts, '3'},
    {kTag, purpose2::kDebutWorker4, Debuts, '4'},
    {kTag, purpose2::kDebutOthers12, Debuts, 'O'},
    {kTag, purpose2::kDebutOther1, Debuts, 'o'},
    {kTag, purpose2::kDebutOther2, Debuts, 'p'},
    {kTag, purpose2::kTurnOther2, Turns, 'p'},
    {kTag, purpose2::kTurnOther3, Turns, 'q'},
    {kTag, purpose2::kTurnOther4, Turns, 'r'},
    {kTag, purpose2::kTurnOthers34, Turns, 'Q'},
    {kTag, purpose2::kPutOther3Over, PutsOver, 'q'},
    {kTag, purpose2::kPutOthers34Over, PutsOver, 'Q'},
    {kTag, purpose2::kDebutOther3, Debuts, 'q'},
    {kTag, purpose2::kDebutOther4, Debuts, 'r'},
    {kTag, purpose2::kDebutOthers34, Debuts, 'Q'},
};

}  // namespace

const PurposePart* PurposeOf(const Segment& segment) {
  const auto found =
      std::find_if(std::begin(kPurposes), std::end(kPurposes), [&](const PurposePart& row) {
        return row.Style == segment.Style && row.Code == segment.Purpose;
      });
  return found == std::end(kPurposes) ? nullptr : &*found;
}

bool IsRunIn(const PurposePart& purpose) {
  return purpose.Part != 0 &&
         std::string_view("opqrOQ").find(purpose.Part) != std::string_view::npos;
}

}  // namespace grapplemont
