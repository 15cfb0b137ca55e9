#pragma once

#include <QLayout>
#include <QPointer>
#include <functional>
#include <vector>

#include "desktop/button.h"

namespace grapplemont::desktop {

/// The head of a page: the title with what can be done at its right, and below it the lines that
/// tell about it. Actions that have no room in the title's line have one of their own at the end;
/// in a low window, and where that is too narrow for all, they fold into "More…", the main
/// ones last of all.
class PageHead : public QLayout {
 public:
  /// Takes the parts. `least` is what the title has beside actions, in drawn pixels.
  PageHead(QWidget* title, QLayout* facts, int least);
  ~PageHead() override;

  enum class Fold { First, Last, Never };
  /// Adds one at the right end. Room is kept for what never folds, also while it is hidden when it
  /// comes and goes.
  void AddAction(ButtonView& action, Fold fold, bool comesAndGoes);
  /// Adds a button of the window's own, which is there while `seen` says so and folds late.
  void AddOwn(PushButton& button, std::function<bool()> seen);
  /// Whether a line of their own would cost too much of the page.
  void SetLow(bool low);
  /// Those that have no room at present, in the order in which they gave way.
  std::vector<PushButton*> Folded() const;
  /// What opens those that are folded; it is shown while there are any.
  void SetMore(PushButton& more);

  void addItem(QLayoutItem* item) override { items_.append(item); }
  int count() const override { return static_cast<int>(items_.size()); }
  QLayoutItem* itemAt(int index) const override { return items_.value(index); }
  QLayoutItem* takeAt(int index) override;
  QSize minimumSize() const override;
  QSize sizeHint() const override;
  bool hasHeightForWidth() const override { return true; }
  int heightForWidth(int width) const override { return Arrange({0, 0, width, 0}, nullptr); }
  void setGeometry(const QRect& rect) override;

 private:
  struct Action {
    PushButton* Button;
    std::function<bool()> Seen;
    Fold When;
    bool IsKept;
  };
  /// How the actions stand in a width: beside the title or not, and so many of order_ folded.
  struct Plan {
    bool Beside = false;
    std::size_t Folded = 0;
    int Width = 0;
  };
  Plan PlanFor(int width) const;
  /// The width in one row with the first so many of the order folded.
  int WidthWith(const std::vector<const Action*>& order, std::size_t folded) const;
  /// Those to be seen, in the order in which they fold.
  std::vector<const Action*> FoldOrder() const;
  /// Gives the height that the parts take in this width, and places them there by `plan` if it is
  /// not nullptr.
  int Arrange(const QRect& rect, const Plan* plan) const;
  void PlaceActions(const QRect& line, const Plan& plan) const;

  QLayoutItem& Title() const { return *items_[0]; }
  QLayoutItem& Facts() const { return *items_[1]; }

  int least_;
  bool low_ = false;
  std::vector<Action> actions_;
  QPointer<PushButton> more_;
  QList<QLayoutItem*> items_;  // title, facts, then More and the actions
};

}  // namespace grapplemont::desktop
