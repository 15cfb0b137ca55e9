#pragma once

#include <string>

#include "show/holdshow.h"
#include "support/gameonworld.h"

// A show day as a player has it, from the main screen and back.

namespace grapplemont::test {

/// A promotion with people enough for a show and both commentators.
SmallWorld Company(int size);

/// The game on its main screen, and a second world in which the engine does what the screens should
/// do. Both draw the same from the moment the show begins.
class ShowPlay : public GameOnWorld {
 public:
  explicit ShowPlay(grapplemont::World world);

  /// Books a row through the wizard with what its steps offer: a match of these two, or an
  /// interview with the first.
  void BookRow(int row, const std::string& one, const std::string& other = {},
               const std::string& title = "None");
  /// Lets the sheet fill the rows that are empty.
  void FillTheRest();
  /// Presses the start and begins the show in the other world too.
  void Start(bool isEvent, const CommentaryTeam& team);
  /// The screen shows what the other world's next Segment comes to, and why.
  void ExpectNextSegment();
  /// But for the words: the other world is told nothing.
  void ExpectSameAsOther();
  /// Ends the program without warning and opens it again.
  void Kill();

  grapplemont::World Other;

 private:
  void DrawAlike();
  int draws_ = 40;
};

}  // namespace grapplemont::test
