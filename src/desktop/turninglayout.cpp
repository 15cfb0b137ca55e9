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

}  // namespace

TurningLayout::TurningLayout(int gap, int least)
    : QBoxLayout(QBoxLayout::LeftToRight), gap_(gap), least_(least) {
  setContentsMargins(0, 0, 0, 0);
  setSpacing(Px(gap));
}

void TurningLayout::KeepRowsWhole() {
  whole_ = true;
  HoldRows(true);
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
    width += (width > 0 ? spacing() : 0) +
             (whole >= 0 ? whole : std::max(item->minimumSize().width(), shares ? Px(least_) : 0));
  }
  return width;
}

/// It can be as narrow as its widest part.
QSize TurningLayout::minimumSize() const {
  QSize least = QBoxLayout::minimumSize();
  int widest = 0;
  for (int i = 0; i < count(); ++i)
    if (!itemAt(i)->isEmpty()) widest = std::max(widest, itemAt(i)->minimumSize().width());
  least.setWidth(oneRow_ ? WidthAcross() : std::min(least.width(), widest));
  return least;
}

QBoxLayout::Direction TurningLayout::DirectionAt(int width) const {
  return width < WidthAcross() ? TopToBottom : LeftToRight;
}

/// Those without a share get what they ask for, the others what is left, as near as it can be told
/// before they are placed.
std::vector<int> TurningLayout::WidthsAcross(int width) const {
  std::vector<int> widths(static_cast<std::size_t>(count()));
  int rest = width + spacing(), shares = 0;
  for (int i = 0; i < count(); ++i) {
    if (itemAt(i)->isEmpty()) continue;
    shares += stretch(i);
    if (stretch(i) == 0) widths[static_cast<std::size_t>(i)] = itemAt(i)->sizeHint().width();
    rest -= widths[static_cast<std::size_t>(i)] + spacing();
  }
  for (int i = 0; i < count(); ++i)
    if (stretch(i) > 0 && !itemAt(i)->isEmpty())
      widths[static_cast<std::size_t>(i)] =
          std::max(itemAt(i)->minimumSize().width(), rest * stretch(i) / shares);
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

void TurningLayout::setGeometry(const QRect& rect) {
  const Direction wanted = DirectionAt(rect.width());
  if (wanted != direction()) {
    setDirection(wanted);
    HoldRows(wanted == LeftToRight);
    update();  // what stands around it has another height to reckon with
  }
  QBoxLayout::setGeometry(rect);
}

}  // namespace grapplemont::desktop
