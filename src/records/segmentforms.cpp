#include "records/segmentforms.h"

#include <span>

#include "records/angles.h"

namespace grapplemont {

namespace {

constexpr std::string_view kSameWins = "A worker cannot both win and lose a match";
constexpr std::string_view kMatesWin = "Team mates cannot both win and lose the same match.";
constexpr std::string_view kSameBout = "The same worker cannot win and lose the same bout!";
constexpr std::string_view kSameWorker = "Please select a different worker for each box!";
constexpr std::string_view kSameTeam = "Please select a different team for each box!";
constexpr std::string_view kTwice = "You have selected the same worker twice!";

constexpr int kOther = 0;
constexpr bool kWorkers = false, kTeams = true;

// The first row that fits style and type counts.
constexpr ResultForm kResultForms[] = {
    {kSingles, kOther, "frmBook1vs1Winner"},
    {kTag, kOther, "frmBook2vs2Winner", kWorkers, 1, kSameWins, kMatesWin},
    {kThreeWay, kElimination, "frmBook3x1eWinner", kWorkers, 2, kSameWorker},
    {kThreeWay, kOther, "frmBook3x1Winner", kWorkers, 1, kSameBout},
    {kThreeTeams, kElimination, "frmBook3x2eWinner", kTeams, 2, kSameTeam},
    {kThreeTeams, kTriangle, "frmBook3x2Winner", kWorkers, 1, kSameBout,
     "The winner and loser cannot be team-mates!"},
    {kThreeTeams, kOther, "frmBook3x2oWinner", kTeams},
    {kFourWay, kElimination, "frmBook4x1eWinner", kWorkers, 3, kSameWorker},
    {kFourWay, kOther, "frmBook3x1Winner", kWorkers, 1, kSameBout},
    {kFourTeams, kElimination, "frmBook4x2eWinner", kTeams, 3, kSameTeam},
    {kFourTeams, kOther, "frmBook3x2oWinner", kTeams},
    {kThreeOnThree, kOther, "frmBook3vs3Winner", kWorkers, 1, kSameWins, kMatesWin},
    {kFourOnFour, kSurvivor, "frmBookSurvivorWinner", kWorkers, 7, kTwice, "", true},
    {kFourOnFour, kOther, "frmBook4vs4Winner", kWorkers, 1, kSameWins, kMatesWin},
    {kSpecial, kOther, "frmBookSpecialWinner", kWorkers, 1,
     "The same person cannot win and be runner up!"},
};

constexpr auto kSpeaker = Casting::Talkers, kManages = Casting::TalkManagers,
               kTarget = Casting::Targets;

/// Seats in the order of their places; only targets may be missing.
constexpr InterviewForm Interview(int style, std::string_view speakers, std::string_view targets,
                                  std::array<Role, 5> seats) {
  int place = 0;
  for (Role& seat : seats) {
    if (seat.Caption.empty()) continue;
    seat.Place = ++place;
    seat.Optional = seat.From == kTarget;
  }
  return {style, speakers, targets, seats};
}

template <class Row>
const Row* FindRow(std::span<const Row> rows, int Row::*key, int style) {
  for (const Row& row : rows)
    if (row.*key == style) return &row;
  return nullptr;
}

constexpr InterviewForm kInterviewForms[] = {
    Interview(kSingleTalk, "frmIV1", "frmIV1opp", {{{"Worker", kSpeaker}, {"Target", kTarget}}}),
    Interview(kTeamTalk, "frmIV2", "frmIV2opp",
              {{{"Worker", kSpeaker},
                {"Partner", kSpeaker},
                {"First target", kTarget},
                {"Second target", kTarget}}}),
    Interview(kManagedTalk, "frmIV1m", "frmIV1opp",
              {{{"Worker", kSpeaker}, {"Manager", kManages}, {"Target", kTarget}}}),
    Interview(kManagedTeamTalk, "frmIV2m", "frmIV2opp",
              {{{"Manager", kManages},
                {"Worker", kSpeaker},
                {"Partner", kSpeaker},
                {"First target", kTarget},
                {"Second target", kTarget}}}),
};

}  // namespace

const ResultForm& ResultFormOf(const Segment& match) {
  for (const ResultForm& form : kResultForms)
    if (form.Style == match.Style && (form.Type == kOther || form.Type == match.MatchType))
      return form;
  return kResultForms[0];
}

const MatchStyleRow* FindMatchStyle(int style) {
  return FindRow<MatchStyleRow>(kMatchStyles, &MatchStyleRow::Code, style);
}

const InterviewStyleRow* FindInterviewStyle(int style) {
  return FindRow<InterviewStyleRow>(kInterviewStyles, &InterviewStyleRow::Code, style);
}

const MatchForm* FindMatchForm(int style) {
  return FindRow<MatchForm>(kMatchForms, &MatchForm::Style, style);
}

const InterviewForm* FindInterviewForm(int style) {
  return FindRow<InterviewForm>(kInterviewForms, &InterviewForm::Style, style);
}

int UidAt(const Segment& segment, int place) {
  return segment.Worker[static_cast<std::size_t>(place - 1)];
}

std::vector<Role> SeatsOf(const Segment& segment) {
  const Angle* angle = segment.Kind == kAngle ? FindAngle(segment.Style) : nullptr;
  const auto* interview = segment.Kind == kInterview ? FindInterviewForm(segment.Style) : nullptr;
  std::vector<Role> seats;
  if (angle) seats.assign(angle->Roles.begin(), angle->Roles.end());
  if (interview) seats.assign(interview->Seats.begin(), interview->Seats.end());
  std::erase_if(seats, [](const Role& seat) { return seat.Caption.empty(); });
  return seats;
}

std::vector<int> SeatedAs(const Segment& segment, Casting from) {
  std::vector<int> uids;
  for (const Role& seat : SeatsOf(segment))
    if (seat.From == from && seat.Place != 0) uids.push_back(UidAt(segment, seat.Place));
  return uids;
}

bool IsCast(const Segment& segment, const Role& seat) {
  if (seat.Place != 0) return UidAt(segment, seat.Place) != 0;
  return (seat.From == Casting::Stables ? segment.Text.View() : segment.TitleName.View()) != "None";
}

}  // namespace grapplemont
