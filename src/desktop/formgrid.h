#pragma once

#include <QGridLayout>
#include <utility>
#include <vector>

namespace grapplemont::desktop {

/// A grid of labels and what they name. Where both have no room beside each other, all of its parts
/// stand one below the other.
class FormGrid : public QGridLayout {
 public:
  QSize minimumSize() const override;
  bool hasHeightForWidth() const override { return true; }
  int heightForWidth(int width) const override { return HeightAt(width, false); }
  int minimumHeightForWidth(int width) const override { return HeightAt(width, true); }
  void setGeometry(const QRect& rect) override;

 private:
  bool Stacks(int width) const { return width < WidthBeside(); }
  /// What labels and fields need beside each other: no text of a line of usual length is cut.
  int WidthBeside() const;
  int HeightAt(int width, bool least) const;
  /// The parts that are shown, with their rows, in the order in which they are read.
  std::vector<std::pair<int, QLayoutItem*>> Parts() const;
};

/// Has the forms of a column begin their fields at one edge, whatever parts them from each other.
void AlignForms(const QBoxLayout& column);

}  // namespace grapplemont::desktop
