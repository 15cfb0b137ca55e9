#include "desktop/evengrid.h"

#include <algorithm>
#include <numeric>

#include "desktop/look.h"

namespace grapplemont::desktop {

namespace {

int HeightOfCell(const QLayoutItem& item, int width, bool least) {
  if (!item.hasHeightForWidth()) return (least ? item.minimumSize() : item.sizeHint()).height();
  return least ? item.minimumHeightForWidth(width) : item.heightForWidth(width);
}

}  // namespace

EvenGrid::EvenGrid(int gap, int least, bool isCalm)
    : gap_(Px(gap)), least_(Px(least)), isCalm_(isCalm) {
  setContentsMargins(0, 0, 0, 0);
}

EvenGrid::~EvenGrid() {
  while (QLayoutItem* item = takeAt(0)) delete item;
}

void EvenGrid::Add(QLayout& part) {
  addChildLayout(&part);
  addItem(&part);
}

QLayoutItem* EvenGrid::takeAt(int index) {
  return index >= 0 && index < items_.size() ? items_.takeAt(index) : nullptr;
}

QList<EvenGrid::Line> EvenGrid::LinesOf(const Line& parts, int across) {
  QList<Line> lines;
  for (qsizetype from = 0; from < parts.size(); from += across) lines << parts.mid(from, across);
  return lines;
}

/// With the fewest lines in which all have room, each as long as the others if it can be.
QList<EvenGrid::Line> EvenGrid::LinesAt(int width) const {
  Line parts;
  for (QLayoutItem* item : items_)
    if (!item->isEmpty()) parts << item;
  const auto all = static_cast<int>(parts.size());
  for (int lines = 1; lines < all; ++lines) {
    const int across = (all + lines - 1) / lines;
    if (const QList<Line> tried = LinesOf(parts, across); LeastOf(tried) <= width) return tried;
  }
  return LinesOf(parts, 1);
}

QList<int> EvenGrid::LeastWidths(const QList<Line>& lines) const {
  QList<int> widths(lines.front().size(), least_);
  for (const Line& line : lines)
    for (qsizetype at = 0; at < line.size(); ++at)
      widths[at] = std::max(widths[at], line[at]->minimumSize().width());
  return widths;
}

int EvenGrid::LeastOf(const QList<Line>& lines) const {
  const QList<int> widths = LeastWidths(lines);
  return std::accumulate(widths.begin(), widths.end(), gap_ * static_cast<int>(widths.size() - 1));
}

/// Even ones, but for what needs more than that.
QList<int> EvenGrid::WidthsIn(const QList<Line>& lines, int width) const {
  QList<int> widths = LeastWidths(lines);
  QList<qsizetype> sharing(widths.size());
  std::iota(sharing.begin(), sharing.end(), 0);
  int rest = width - gap_ * static_cast<int>(widths.size() - 1);
  for (bool settled = false; !settled && !sharing.isEmpty();) {
    const int even = rest / static_cast<int>(sharing.size());
    settled = true;
    for (qsizetype i = 0; i < sharing.size() && settled; ++i)
      if (const int needed = widths[sharing[i]]; needed > even) {
        rest -= needed;
        sharing.remove(i);
        settled = false;
      }
    if (settled)
      for (const qsizetype at : sharing) widths[at] = even;
  }
  if (isCalm_)
    for (qsizetype at = 0; at < widths.size(); ++at) {
      int wish = 0;
      for (const Line& line : lines)
        if (at < line.size()) wish = std::max(wish, line[at]->sizeHint().width());
      widths[at] = std::min(widths[at], std::max(wish, least_));
    }
  return widths;
}

QSize EvenGrid::minimumSize() const {
  QSize least;
  for (const QLayoutItem* item : items_)
    if (!item->isEmpty()) least = least.expandedTo(item->minimumSize());
  return least;
}

QSize EvenGrid::sizeHint() const {
  QSize wish;
  for (const QLayoutItem* item : items_)
    if (!item->isEmpty()) {
      wish.rwidth() += (wish.width() > 0 ? gap_ : 0) + item->sizeHint().width();
      wish.setHeight(std::max(wish.height(), item->sizeHint().height()));
    }
  return wish;
}

int EvenGrid::HeightAt(int width, bool least) const {
  const QList<Line> lines = LinesAt(width);
  if (lines.isEmpty()) return 0;
  const QList<int> widths = WidthsIn(lines, width);
  int height = gap_ * static_cast<int>(lines.size() - 1);
  for (const Line& line : lines) height += HeightOfLine(line, widths, least);
  return height;
}

int EvenGrid::HeightOfLine(const Line& line, const QList<int>& widths, bool least) {
  int highest = 0;
  for (qsizetype at = 0; at < line.size(); ++at)
    highest = std::max(highest, HeightOfCell(*line[at], widths[at], least));
  return highest;
}

/// Lines share what is left of the height.
void EvenGrid::setGeometry(const QRect& rect) {
  QLayout::setGeometry(rect);
  const QList<Line> lines = LinesAt(rect.width());
  if (lines.isEmpty()) return;
  const QList<int> widths = WidthsIn(lines, rect.width());
  const bool least = HeightAt(rect.width(), false) > rect.height();
  int over = std::max(0, rect.height() - HeightAt(rect.width(), least)), top = rect.top();
  for (qsizetype line = 0; line < lines.size(); ++line) {
    const int more = over / static_cast<int>(lines.size() - line);
    const int height = HeightOfLine(lines[line], widths, least) + more;
    over -= more;
    int left = rect.left();
    for (qsizetype at = 0; at < lines[line].size(); ++at) {
      lines[line][at]->setGeometry({left, top, widths[at], height});
      left += widths[at] + gap_;
    }
    top += height + gap_;
  }
}

}  // namespace grapplemont::desktop
