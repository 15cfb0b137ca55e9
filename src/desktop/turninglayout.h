#pragma once

#include <QBoxLayout>
#include <vector>

namespace grapplemont::desktop {

/// Places the parts of a column that has room for what they need, though not for what they would
/// like: each gets the one and its share of the rest. Qt would take parts that bend with the width
/// for as high as they would like, and cut them all alike. False, with nothing placed, for any
/// other room.
bool PlaceTight(QBoxLayout& column, const QRect& rect);

/// A row whose parts stand one below the other where they have no room beside each other.
class TurningLayout : public QBoxLayout {
 public:
  /// `least` is the width, in drawn pixels, that a part with a share needs beside others.
  explicit TurningLayout(int gap, int least = 0);
  /// Turns rather than that a part which is itself a row, a FlowLayout or one of these, goes on in
  /// the next line.
  void KeepRowsWhole();
  /// Whether it must stay a row.
  void SetOneRow(bool oneRow);
  /// Is at least so high as a row, in pixels, while any part of it is shown.
  void HoldHeight(int height);
  /// Has the first part go last while the parts stand one below the other.
  void LetFirstWait() { firstWaits_ = true; }

  /// The width from which on the parts stand in a row.
  int WidthAcross() const;
  /// It can be as narrow as its widest part, even while its rows are held in one line: who holds
  /// them lets go once there is no more room.
  int LeastWidth() const;
  QSize minimumSize() const override;
  /// One of which all is hidden takes no room, whatever its share.
  QSize maximumSize() const override { return isEmpty() ? QSize(0, 0) : QBoxLayout::maximumSize(); }
  /// Its height hangs on the width even where its parts' do not.
  bool hasHeightForWidth() const override { return count() > 1 || QBoxLayout::hasHeightForWidth(); }
  int heightForWidth(int width) const override { return HeightAt(width, false); }
  int minimumHeightForWidth(int width) const override { return HeightAt(width, true); }
  void setGeometry(const QRect& rect) override;

 private:
  Direction DirectionAt(int width) const;
  /// How high it will be once it has this width, whichever way it stands now.
  int HeightAt(int width, bool least) const;
  /// The widths of the parts in a row of this width.
  std::vector<int> WidthsAcross(int width) const;
  /// Lets the rows in it be whole while it is a row itself.
  void HoldRows(bool oneRow);
  void Turn(Direction wanted);
  void MovePart(int from, int to);

  int least_;
  bool whole_ = false, oneRow_ = false, firstWaits_ = false;
};

}  // namespace grapplemont::desktop
