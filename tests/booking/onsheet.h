#pragma once

#include "records/segments.h"
#include "support/gameonworld.h"
#include "support/samplescreen.h"

namespace grapplemont::test {

/// A match of two that Winner wins.
inline Segment Singles(const World& world, std::string_view winner, std::string_view loser) {
  Segment match = EmptySegment();
  match.Kind = kMatch;
  match.Style = kSingles;
  match.MatchType = kPlainSingles;
  match.Worker[0] = match.Winner = Named(world.Workers(), winner).Uid;
  match.Worker[1] = match.Loser = Named(world.Workers(), loser).Uid;
  match.Finish = kClean;
  match.Aftermath = match.Purpose = 1;
  return match;
}

inline Segment Talk(const World& world, std::string_view speaker, std::string_view target = {}) {
  Segment talk = EmptySegment();
  talk.Kind = kInterview;
  talk.Style = kSingleTalk;
  talk.Purpose = 6;
  talk.Worker[0] = Named(world.Workers(), speaker).Uid;
  if (!target.empty()) talk.Worker[1] = Named(world.Workers(), target).Uid;
  return talk;
}

inline Segment FaceToFace(const World& world, std::string_view one, std::string_view other) {
  Segment angle = EmptySegment();
  angle.Kind = kAngle;
  angle.Style = 2;
  angle.Worker[0] = Named(world.Workers(), one).Uid;
  angle.Worker[1] = Named(world.Workers(), other).Uid;
  return angle;
}

/// The main screen with the sheet over it that the day asks for. Where a started show would go, the
/// desk has a screen that does nothing.
class OnSheet : public GameOnWorld {
 public:
  explicit OnSheet(grapplemont::World world) : GameOnWorld(std::move(world)) {
    Desk.Register("frmMatchOutput", [this] { return std::make_unique<SampleScreen>(Desk, log_); });
    Desk.Open("frmMainScreen");
    Desk.Click("cmdnext");
  }
  /// Books it as the wizard would, and has the sheet look.
  void Book(int record, const Segment& segment) {
    World().Segments()[record] = segment;
    Look();
  }
  void Look() {
    Desk.Click("cmdtitles");
    Desk.Click("cmdback");
  }
  std::string Button(int record) { return "cmdbook(" + std::to_string(record) + ")"; }
  /// The cells of a record's row: above the records stands one without a record.
  std::vector<std::string> Row(int record) {
    return Desk.Rows("lstrows").at(static_cast<std::size_t>(record));
  }
  bool Lies(std::string_view screen) const {
    for (const auto& held : Desk.Screens())
      if (held->Name() == screen) return true;
    return false;
  }

 private:
  std::vector<std::string> log_;
};

}  // namespace grapplemont::test
