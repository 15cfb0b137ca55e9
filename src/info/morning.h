#pragma once

#include <string>
#include <vector>

#include "records/world.h"
#include "show/nightbook.h"

// The morning after a show of the player's: what it made and moved, from what its rules noted.

namespace grapplemont {

/// A worker's figure as the show left it, and by how much it had moved it.
struct MovedFigure {
  bool Moved = false;
  int Now = 0, Change = 0;
};
struct PersonMoved {
  std::string Name;
  int Worker = 0;  // uid; 0 for who has gone
  MovedFigure Over, Morale, Condition;
  std::string Why;  // of the steps that moved Over and morale most
};

/// A show and all its numbers; it holds until the notes change.
struct Morning {
  const HistoryEntry* Show = nullptr;    // nullptr where the past does not tell of it
  const HistoryEntry* Before = nullptr;  // the last one of that name that was held
  std::vector<NotedNumber> Numbers;

  /// The first number of the kind; nullptr for none.
  const NotedNumber* Of(int kind) const;
  std::vector<const NotedNumber*> AllOf(int kind) const;
};
Morning MorningOf(const World& world, Day on, int promotionUid);

/// Everybody whom the show moved, those it moved most first.
std::vector<PersonMoved> PeopleMoved(const Morning& morning);
/// The numbers of one worker.
std::vector<const NotedNumber*> NumbersOf(const Morning& morning, std::string_view who);

/// Who has won a Title, by what was noted of it; of a team all that was noted.
std::string WhoWon(const World& world, const ShowNote& won);
/// Why its image moved. A champion who was in a row for it and has not lost it has kept it.
std::string WhyTitleMoved(const World& world, const Morning& morning, const NotedNumber& image);

/// "6 points short of a better step" or "The image can take no better step."
std::string BandText(const Morning& morning);
/// What the better step would have taken in the sum of the ratings; empty where there is none.
std::string WantedText(const Morning& morning);

/// That the night was flat and what it took of the show's rating; empty where it was not.
std::string FlatNightText(const Morning& morning);
/// The ratings of the rows in their order, by the rows.
struct RowRating {
  int Row = 0, Rating = 0;
};
std::vector<RowRating> RowRatings(const NotedNumber& rating);

/// "+3", "-12", "0".
std::string Signed(long long change);
/// A number of this kind as it is read: "74%", "$1,200", "2.46", "434".
std::string NumberText(int kind, int number);
/// The same of a change, with its sign.
std::string ChangeText(int kind, int change);

}  // namespace grapplemont
