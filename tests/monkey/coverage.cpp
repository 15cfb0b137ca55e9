#include "monkey/coverage.h"

#include <set>
#include <sstream>

namespace grapplemont::test {

namespace {

constexpr std::string_view kWayMark = "w ", kDisabledMark = "d ";

/// "frmTicket hsticket" of "frmTicket hsticket slide".
std::string ControlOf(const std::string& way) {
  return way.substr(0, way.rfind(' '));
}

std::string Named(const char* heading, const std::set<std::string>& names) {
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
  for (const auto& [control, seen] : disabled_)
    paper.Write(std::string(kDisabledMark) + std::to_string(seen) + " " + control);
}

bool Coverage::Read(std::string_view line) {
  const bool isWay = line.starts_with(kWayMark);
  if (!isWay && !line.starts_with(kDisabledMark)) return false;
  std::istringstream in{std::string(line.substr(2))};
  long seen = 0, done = 0;
  in >> seen;
  if (isWay) in >> done;
  in.get();
  std::string name;
  std::getline(in, name);
  if (isWay) {
    ways_[name].Seen += seen;
    ways_[name].Done += done;
  } else {
    disabled_[name] += seen;
  }
  return true;
}

std::size_t Coverage::Screens() const {
  std::set<std::string> screens;
  for (const auto& [way, tally] : ways_) screens.insert(way.substr(0, way.find(' ')));
  return screens.size();
}

std::string Coverage::Told() const {
  std::set<std::string> all, worked, acts, disabled;
  std::size_t done = 0;
  for (const auto& [way, tally] : ways_) {
    all.insert(ControlOf(way));
    if (tally.Done > 0) {
      worked.insert(ControlOf(way));
      ++done;
    }
  }
  std::set<std::string> never;
  for (const std::string& control : all)
    if (!worked.contains(control)) never.insert(control);
  for (const auto& [way, tally] : ways_)
    if (tally.Done == 0 && worked.contains(ControlOf(way))) acts.insert(way);
  for (const auto& [control, seen] : disabled_)
    if (!all.contains(control)) disabled.insert(control);
  std::ostringstream out;
  out << Screens() << " screens; " << worked.size() << " of " << all.size()
      << " controls that could be worked were, in " << done << " of " << ways_.size() << " ways.\n"
      << Named("Never worked", never) << Named("Never done", acts)
      << Named("Only ever seen disabled", disabled);
  return out.str();
}

}  // namespace grapplemont::test
