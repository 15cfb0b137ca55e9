#include "desktop/facedhead.h"

#include <QWidget>
#include <algorithm>

#include "desktop/look.h"
#include "desktop/turninglayout.h"

namespace grapplemont::desktop {

namespace {

constexpr int kBetween = 12;  // title and buttons
constexpr int kBelow = 1;     // the title

int HeightOf(const QLayoutItem& item, int width) {
  return item.hasHeightForWidth() ? item.heightForWidth(width) : item.sizeHint().height();
}

}  // namespace

FacedHead::FacedHead(QWidget* title, QLayout* facts, TurningLayout* tail, int least)
    : tail_(tail), least_(Px(least)) {
  addWidget(title);
  addItem(facts);
  addChildLayout(facts);
  if (!tail) return;
  addItem(tail);
  addChildLayout(tail);
}

FacedHead::~FacedHead() {
  while (QLayoutItem* item = takeAt(0)) delete item;
}

QLayoutItem* FacedHead::takeAt(int index) {
  return index >= 0 && index < items_.size() ? items_.takeAt(index) : nullptr;
}

QSize FacedHead::minimumSize() const {
  QSize least;
  for (const QLayoutItem* item : items_)
    if (item != tail_) least = least.expandedTo(item->minimumSize());
  if (tail_) least = least.expandedTo({tail_->LeastWidth(), tail_->minimumSize().height()});
  return least;
}

QSize FacedHead::sizeHint() const {
  int width = items_[0]->sizeHint().width();
  if (tail_) width += Px(kBetween) + tail_->WidthAcross();
  width = std::max(width, items_[1]->sizeHint().width());
  return {width, heightForWidth(width)};
}

int FacedHead::Arrange(const QRect& rect, bool place) const {
  const auto put = [place](QLayoutItem& item, const QRect& where) {
    if (place) item.setGeometry(where);
    return where.height();
  };
  QLayoutItem &title = *items_[0], &facts = *items_[1];
  const int buttons = tail_ ? tail_->WidthAcross() : 0;
  const bool beside = buttons > 0 && least_ + Px(kBetween) + buttons <= rect.width();
  const int words = rect.width() - (beside ? Px(kBetween) + buttons : 0);
  int line = HeightOf(title, words);
  if (beside) line = std::max(line, HeightOf(*tail_, buttons));
  put(title, {rect.left(), rect.top(), words, line});
  if (beside) put(*tail_, {rect.right() + 1 - buttons, rect.top(), buttons, line});
  int y = line + Px(kBelow);
  y += put(facts, {rect.left(), rect.top() + y, rect.width(), HeightOf(facts, rect.width())});
  if (beside || !buttons) return y;
  y += Px(kBetween);
  return y +
         put(*tail_, {rect.left(), rect.top() + y, rect.width(), HeightOf(*tail_, rect.width())});
}

void FacedHead::setGeometry(const QRect& rect) {
  QLayout::setGeometry(rect);
  Arrange(rect, true);
}

}  // namespace grapplemont::desktop
