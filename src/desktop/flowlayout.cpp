#include "desktop/flowlayout.h"

#include <algorithm>

namespace grapplemont::desktop {

FlowLayout::FlowLayout(int gap, Qt::Alignment align) : gap_(gap), align_(align) {
  setContentsMargins(0, 0, 0, 0);
}

FlowLayout::~FlowLayout() {
  while (QLayoutItem* item = takeAt(0)) delete item;
}

QLayoutItem* FlowLayout::takeAt(int index) {
  return index >= 0 && index < items_.size() ? items_.takeAt(index) : nullptr;
}

QSize FlowLayout::sizeHint() const {
  int width = 0, height = 0;
  for (const QLayoutItem* item : items_) {
    if (item->isEmpty()) continue;
    width += (width > 0 ? gap_ : 0) + item->sizeHint().width();
    height = std::max(height, item->sizeHint().height());
  }
  return {width, height};
}

QSize FlowLayout::minimumSize() const {
  QSize least;
  for (const QLayoutItem* item : items_)
    if (!item->isEmpty()) least = least.expandedTo(item->minimumSize());
  return least;
}

void FlowLayout::setGeometry(const QRect& rect) {
  QLayout::setGeometry(rect);
  Arrange(rect, true);
}

int FlowLayout::Arrange(const QRect& room, bool place) const {
  int y = room.top();
  QList<QLayoutItem*> line;
  int width = 0, height = 0;
  const auto finish = [&] {
    int x = room.left() + (align_ & Qt::AlignHCenter ? (room.width() - width) / 2 : 0);
    for (QLayoutItem* item : line) {
      const QSize size = item->sizeHint();
      if (place) item->setGeometry(QRect(QPoint(x, y + (height - size.height()) / 2), size));
      x += size.width() + gap_;
    }
    if (!line.isEmpty()) y += height + gap_;
    line.clear();
    width = height = 0;
  };
  for (QLayoutItem* item : items_) {
    if (item->isEmpty()) continue;
    const QSize size = item->sizeHint();
    if (!line.isEmpty() && width + gap_ + size.width() > room.width()) finish();
    width += (line.isEmpty() ? 0 : gap_) + size.width();
    height = std::max(height, size.height());
    line.append(item);
  }
  finish();
  return std::max(0, y - room.top() - gap_);
}

}  // namespace grapplemont::desktop
