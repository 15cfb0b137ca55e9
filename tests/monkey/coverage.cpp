#include "monkey/coverage.h"

#include <algorithm>
#include <iterator>
#include <sstream>

#include "monkey/ways.h"

namespace grapplemont::test {

namespace {

using Sorted = std::set<std::string>;
using Missed = Coverage::Missed;

constexpr std::string_view kWayMark = "w ", kMissedMark = "m ", kHomeMark = "h ";
/// A control is of those that were missed for a reason until it was seen without.
constexpr std::pair<Missed, const char*> kReasons[] = {
    {Missed::Empty, "Only ever seen empty"},
    {Missed::Disabled, "Only ever seen disabled"},
    {Missed::Hidden, "Only ever hidden"}};

/// "frmTicket hsticket" of "frmTicket hsticket slide".
std::string ControlOf(const std::string& way) {
  return way.substr(0, way.rfind(' '));
}
std::string ScreenOf(const std::string& way) {
  return way.substr(0, way.find(' '));
}

Sorted NotIn(const Sorted& all, const Sorted& some) {
  Sorted left;
  std::ranges::set_difference(all, some, std::inserter(left, left.end()));
  return left;
}

std::string Named(const char* heading, const Sorted& names) {
  if (names.empty()) return {};
  std::string text = std::string(heading) + ":\n";
  for (const std::string& name : names) text += "  " + name + "\n";
  return text;
}

}  // namespace

void Coverage::Write(Paper& paper) const {
  for (const auto& [way, tally] : ways_)
    paper.Write(std::string(kWayMark) + std::to_string(tally.Seen) + " " +
                std::to_string(tally.Done) + " " + way);
  for (const auto& [control, why] : missed_)
    paper.Write(std::string(kMissedMark) + std::to_string(static_cast<int>(why)) + " " + control);
  for (const std::string& screen : homes_) paper.Write(std::string(kHomeMark) + screen);
}

bool Coverage::Read(std::string_view line) {
  std::istringstream in{std::string(line.substr(std::min<std::size_t>(line.size(), 2)))};
  long seen = 0, done = 0;
  int why = 0;
  const bool isWay = line.starts_with(kWayMark), isMissed = line.starts_with(kMissedMark);
  if (isWay) in >> seen >> done >> std::ws;
  if (isMissed) in >> why >> std::ws;
  std::string name;
  std::getline(in, name);
  if (isWay) {
    ways_[name].Seen += seen;
    ways_[name].Done += done;
  } else if (isMissed) {
    Miss(name, static_cast<Missed>(why));
  } else if (line.starts_with(kHomeMark)) {
    GoHomeFrom(name);
  } else {
    return false;
  }
  return true;
}

std::string Coverage::Told(const Sorted& screens) const {
  Sorted seen, all, worked, acts, full;
  for (const auto& [way, tally] : ways_) {
    seen.insert(ScreenOf(way));
    all.insert(ControlOf(way));
    if (!way.ends_with(kArranging)) full.insert(ControlOf(way));
    (tally.Done > 0 ? worked : acts).insert(tally.Done > 0 ? ControlOf(way) : way);
  }
  for (const auto& [control, why] : missed_) seen.insert(ScreenOf(control));
  const std::size_t done = ways_.size() - acts.size();
  std::erase_if(acts, [&](const std::string& way) { return !worked.contains(ControlOf(way)); });
  std::ostringstream out;
  out << seen.size() << " screens, " << homes_.size() << " of them left for home; " << worked.size()
      << " of " << all.size() << " controls that could be worked were, in " << done << " of "
      << ways_.size() << " ways.\n"
      << Named("Screens never seen", NotIn(screens, seen))
      << Named("Never worked", NotIn(all, worked)) << Named("Never done", acts);
  Sorted known = std::move(full);
  for (const auto& [reason, heading] : kReasons) {
    Sorted some;
    for (const auto& [control, why] : missed_)
      if (why == reason) some.insert(control);
    out << Named(heading, NotIn(some, known));
    known.merge(some);
  }
  return out.str();
}

}  // namespace grapplemont::test
