#include "desktop/turninglayout.h"

#include <algorithm>

#include "desktop/card.h"
#include "desktop/look.h"

namespace grapplemont::desktop {

namespace {

/// The width of a part that stays in one line; -1 for what is not a row.
int RowWidth(QLayoutItem& item) {
  if (const auto* turning = dynamic_cast<const TurningLayout*>(item.layout()))
    return turning->WidthAcross();
  const auto* flow = dynamic_cast<const FlowLayout*>(item.layout());
  return flow ? flow->sizeHint().width() : -1;
}

int LeastWidthOf(QLayoutItem& item) {
  if (const auto* turning = dynamic_cast<const TurningLayout*>(item.layout()))
    return turning->LeastWidth();
  const auto* flow = dynamic_cast<const FlowLayout*>(item.layout());
  return flow ? flow->LeastSize().width() : item.minimumSize().width();
}

}  // namespace

bool PlaceTight(QBoxLayout& column, const QRect& rect) {
  struct Part {
    QLayoutItem* Item;
    int Least, Wish;
  };
  std::vector<Part> parts;
  const QRect room = rect.marginsRemoved(column.contentsMargins());
  int rest = room.height() + column.spacing(), wishes = 0;
  for (int i = 0; i < column.count(); ++i) {
    QLayoutItem* item = column.itemAt(i);
    if (item->isEmpty()) continue;
    const bool bends = item->hasHeightForWidth();
    const int least =
        bends ? item->minimumHeightForWidth(room.width()) : item->minimumSize().height();
    const int liked = bends ? item->heightForWidth(room.width()) : item->sizeHint().height();
    parts.push_back({item, least, std::max(0, liked - least)});
    rest -= least + column.spacing();
    wishes += parts.back().Wish;
  }
  if (rest < 0 || wishes <= rest) return false;
  column.QLayout::setGeometry(rect);
  int top = room.top();
  for (const Part& part : parts) {
    const int more = wishes > 0 ? rest * part.Wish / wishes : 0;
    part.Item->setGeometry({room.left(), top, room.width(), part.Least + more});
    top += part.Least + more + column.spacing();
    rest -= more;
    wishes -= part.Wish;
  }
  return true;
}

TurningLayout::TurningLayout(int gap, int least)
    : QBoxLayout(QBoxLayout::LeftToRight), least_(least) {
  setContentsMargins(0, 0, 0, 0);
  setSpacing(Px(gap));
}

void TurningLayout::KeepRowsWhole() {
  whole_ = true;
  HoldRows(true);
}

void TurningLayout::HoldHeight(int height) {
  class Strut : public QSpacerItem {
   public:
    Strut(const TurningLayout& row, int height)
        : QSpacerItem(0, height, QSizePolicy::Fixed, QSizePolicy::Minimum), row_(row) {}
    QSize sizeHint() const override { return Holds() ? QSpacerItem::sizeHint() : QSize(0, 0); }
    QSize minimumSize() const override { return sizeHint(); }

   private:
    bool Holds() const { return row_.direction() == LeftToRight && !row_.isEmpty(); }
    const TurningLayout& row_;
  };
  addItem(new Strut(*this, height));
}

void TurningLayout::SetOneRow(bool oneRow) {
  if (oneRow_ == oneRow) return;
  oneRow_ = oneRow;
  invalidate();
}

void TurningLayout::HoldRows(bool oneRow) {
  if (!whole_) return;
  for (int i = 0; i < count(); ++i) {
    QLayout* part = itemAt(i)->layout();
    if (auto* turning = dynamic_cast<TurningLayout*>(part)) turning->SetOneRow(oneRow);
    if (auto* flow = dynamic_cast<FlowLayout*>(part)) flow->SetOneRow(oneRow);
  }
}

int TurningLayout::WidthAcross() const {
  int width = 0;
  for (int i = 0; i < count(); ++i) {
    QLayoutItem* item = itemAt(i);
    if (item->isEmpty()) continue;
    const bool shares = stretch(i) > 0 || item->expandingDirections().testFlag(Qt::Horizontal);
    const int whole = whole_ ? RowWidth(*item) : -1;
    const int least = shares ? Px(least_) : 0;
    width += (width > 0 ? spacing() : 0) +
             (whole >= 0 ? whole : std::max(item->minimumSize().width(), least));
  }
  return width;
}

int TurningLayout::LeastWidth() const {
  int widest = 0;
  for (int i = 0; i < count(); ++i)
    if (!itemAt(i)->isEmpty()) widest = std::max(widest, LeastWidthOf(*itemAt(i)));
  return widest;
}

QSize TurningLayout::minimumSize() const {
  QSize least = QBoxLayout::minimumSize();
  least.setWidth(oneRow_ ? WidthAcross() : std::min(least.width(), LeastWidth()));
  return least;
}

QBoxLayout::Direction TurningLayout::DirectionAt(int width) const {
  return width < WidthAcross() ? TopToBottom : LeftToRight;
}

/// Those without a share get what they ask for, the others what is left, as near as it can be told
/// before they are placed. Whose share is less than they need takes it from the others' shares.
std::vector<int> TurningLayout::WidthsAcross(int width) const {
  std::vector<int> widths(static_cast<std::size_t>(count()));
  std::vector<int> sharing;
  int rest = width + spacing(), shares = 0;
  for (int i = 0; i < count(); ++i) {
    if (itemAt(i)->isEmpty()) continue;
    rest -= spacing();
    if (stretch(i) > 0) {
      sharing.push_back(i);
      shares += stretch(i);
    } else {
      rest -= widths[static_cast<std::size_t>(i)] = itemAt(i)->sizeHint().width();
    }
  }
  const auto needs = [&](int i) {
    return itemAt(i)->minimumSize().width() > rest * stretch(i) / shares;
  };
  for (auto needy = std::ranges::find_if(sharing, needs); needy != sharing.end();
       needy = std::ranges::find_if(sharing, needs)) {
    rest -= widths[static_cast<std::size_t>(*needy)] = itemAt(*needy)->minimumSize().width();
    shares -= stretch(*needy);
    sharing.erase(needy);
    if (shares == 0) break;
  }
  for (const int i : sharing) widths[static_cast<std::size_t>(i)] = rest * stretch(i) / shares;
  return widths;
}

int TurningLayout::HeightAt(int width, bool least) const {
  const Direction wanted = DirectionAt(width);
  if (wanted == direction() && QBoxLayout::hasHeightForWidth())
    return least ? QBoxLayout::minimumHeightForWidth(width) : QBoxLayout::heightForWidth(width);
  const std::vector<int> across = WidthsAcross(width);
  int height = 0;
  for (int i = 0; i < count(); ++i) {
    QLayoutItem& item = *itemAt(i);
    if (item.isEmpty()) continue;
    const int room = wanted == TopToBottom ? width : across[static_cast<std::size_t>(i)];
    const int own = !item.hasHeightForWidth()
                        ? (least ? item.minimumSize() : item.sizeHint()).height()
                    : least ? item.minimumHeightForWidth(room)
                            : item.heightForWidth(room);
    height =
        wanted == LeftToRight ? std::max(height, own) : height + own + (height > 0 ? spacing() : 0);
  }
  return height;
}

void TurningLayout::MovePart(int from, int to) {
  const int share = stretch(from);
  QLayoutItem* const part = takeAt(from);
  if (QLayout* layout = part->layout())
    insertLayout(to, layout);
  else
    insertItem(to, part);
  setStretch(to, share);
}

void TurningLayout::Turn(Direction wanted) {
  setDirection(wanted);
  if (firstWaits_) wanted == TopToBottom ? MovePart(0, count() - 1) : MovePart(count() - 1, 0);
  HoldRows(wanted == LeftToRight);
  update();  // what stands around it has another height to reckon with
}

void TurningLayout::setGeometry(const QRect& rect) {
  const Direction wanted = DirectionAt(rect.width());
  if (wanted != direction()) Turn(wanted);
  if (wanted == LeftToRight || !PlaceTight(*this, rect)) QBoxLayout::setGeometry(rect);
}

}  // namespace grapplemont::desktop
