#pragma once

#include <QBoxLayout>

namespace grapplemont::desktop {

/// A row whose parts stand one below the other where they have no room beside each other.
class TurningLayout : public QBoxLayout {
 public:
  /// `least` is the width, in drawn pixels, that a part with a share needs beside others.
  explicit TurningLayout(int gap, int least = 0);
  /// An empty one of its kind, to be a part of it.
  TurningLayout* NewPart() const { return new TurningLayout(gap_, least_); }
  /// Turns rather than that a part which is itself a row, a FlowLayout or one of these, goes on in
  /// the next line.
  void KeepRowsWhole();
  /// Whether it must stay a row.
  void SetOneRow(bool oneRow);

  /// The width from which on the parts stand in a row.
  int WidthAcross() const;
  QSize minimumSize() const override;
  void setGeometry(const QRect& rect) override;

 private:
  /// Lets the rows in it be whole while it is a row itself.
  void HoldRows(bool oneRow);

  int gap_, least_;
  bool whole_ = false, oneRow_ = false;
};

}  // namespace grapplemont::desktop
