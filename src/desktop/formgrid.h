#pragma once

#include <QGridLayout>
#include <memory>
#include <utility>
#include <vector>

namespace grapplemont::desktop {

/// A grid of labels and what they name. Where both have no room beside each other, all of its parts
/// stand one below the other, and so do those of its peers, which are as wide.
class FormGrid : public QGridLayout {
 public:
  using Peers = std::vector<const FormGrid*>;
  explicit FormGrid(std::shared_ptr<Peers> peers);
  ~FormGrid() override;
  QSize minimumSize() const override;
  bool hasHeightForWidth() const override { return true; }
  int heightForWidth(int width) const override { return HeightAt(width, false); }
  int minimumHeightForWidth(int width) const override { return HeightAt(width, true); }
  void setGeometry(const QRect& rect) override;
  /// Has its fields begin behind labels of this width, where all peers have room for that.
  void Align(int label) { aligned_ = label; }

 private:
  bool Stacks(int width) const;
  bool Aligns(int width) const;
  /// What labels of at least this width and fields need beside each other: no text of a line of
  /// usual length is cut.
  int WidthBeside(int label) const;
  int HeightAt(int width, bool least) const;
  /// The parts that are shown, with their rows, in the order in which they are read.
  std::vector<std::pair<int, QLayoutItem*>> Parts() const;

  std::shared_ptr<Peers> peers_;
  int aligned_ = 0;
};

/// Has the forms of a column, also those on its cards, begin their fields at one edge.
void AlignForms(const QBoxLayout& column);

}  // namespace grapplemont::desktop
