#include <array>

#include "records/angles.h"
#include "records/modWresCheck.h"
#include "records/segments.h"
#include "report/report.h"

namespace grapplemont {

namespace {

std::string MatchNames(const World& world, const Segment& segment) {
  if (segment.Style == kSpecial) return std::to_string(EntrantsOf(segment)) + " Workers Entered";
  std::string names;
  for (const auto& side : SidesOf(segment))
    names += (names.empty() ? "" : " vs ") + SideText(world, side);
  return names;
}

std::string BeltLine(const World& world, const Segment& segment) {
  if (segment.TitleName == "None" || segment.TitleName.View().empty()) return {};
  const Title* title = FindTitle(world, segment.TitleName);
  const bool forTeams = title && !title->Singles;
  return "(For The " + segment.TitleName.Str() + (forTeams ? " Titles)" : " Title)");
}

std::string WinnerLine(const World& world, const Segment& segment) {
  if (IsDraw(segment)) return "Winner : Draw";
  return "Winner : " + (segment.Style == kSpecial ? WorkerName(world, segment.Winner)
                                                  : SideText(world, WinnersOf(segment)));
}

std::string InterviewNames(const World& world, const Segment& segment) {
  const auto name = [&](int place) {
    return WorkerName(world, segment.Worker[static_cast<std::size_t>(place - 1)]);
  };
  const auto pair = [&](int place) {
    return PairName(world, segment.Worker[static_cast<std::size_t>(place - 1)],
                    segment.Worker[static_cast<std::size_t>(place)]);
  };
  switch (segment.Style) {
    case kSingleTalk:
      return name(1) + " is backstage. ";
    case kTeamTalk:
      return pair(1) + " are backstage. ";
    case kManagedTalk:
      return name(1) + " is backstage with " + name(2) + ". ";
    case kManagedTeamTalk:
      return name(1) + " is backstage with " + pair(2) + ". ";
    default:
      return {};
  }
}

std::string AngleNames(const World& world, const Segment& segment) {
  std::string names;
  for (const int uid : PeopleOf(segment))
    if (const std::string name = WorkerName(world, uid); !name.empty())
      names += (names.empty() ? "" : ", ") + name;
  const Angle* angle = FindAngle(segment.Style);
  if (angle && HasStableRole(*angle) && !(segment.Text == "None"))
    names += (names.empty() ? "" : ", ") + segment.Text.Str();
  return names;
}

SegmentDetails MatchDetails(const World& world, const Segment& segment) {
  const MatchStyleRow* style = FindMatchStyle(segment.Style);
  const std::string belt = BeltLine(world, segment);
  return {"Match Details",
          std::string(style ? style->Says : ""),
          std::string(MatchTypeText(segment.Style, segment.MatchType)) +
              (belt.empty() ? "" : " Title Match! "),
          MatchNames(world, segment),
          belt,
          WinnerLine(world, segment)};
}

}  // namespace

SegmentDetails DetailsOf(const World& world, const Segment& segment) {
  SegmentDetails details;
  if (segment.Kind == kMatch) return MatchDetails(world, segment);
  if (segment.Kind == kInterview) {
    const InterviewStyleRow* style = FindInterviewStyle(segment.Style);
    details.Heading = "Interview Details";
    details.Style = style ? style->Says : "";
    details.Type = Says(kInterviewPurposes, segment.Purpose);
    details.Names = InterviewNames(world, segment);
  }
  if (segment.Kind == kAngle) {
    const Angle* angle = FindAngle(segment.Style);
    details.Heading = "Angle Details";
    details.Style = angle ? angle->Says : "";
    details.Names = AngleNames(world, segment);
  }
  return details;
}

}  // namespace grapplemont
