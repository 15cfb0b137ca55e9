#include "desktop/formgrid.h"

#include <QLineEdit>
#include <algorithm>

#include "desktop/look.h"

namespace grapplemont::desktop {

namespace {

constexpr int kWidestLine = 240;  // that a label turns for

int HeightOf(const QLayoutItem& item, int width, bool least) {
  if (!item.hasHeightForWidth()) return (least ? item.minimumSize() : item.sizeHint()).height();
  return least ? item.minimumHeightForWidth(width) : item.heightForWidth(width);
}

}  // namespace

std::vector<std::pair<int, QLayoutItem*>> FormGrid::Parts() const {
  std::vector<std::pair<int, QLayoutItem*>> parts;
  for (int i = 0; i < count(); ++i) {
    int row = 0, column = 0, rows = 0, columns = 0;
    getItemPosition(i, &row, &column, &rows, &columns);
    if (!itemAt(i)->isEmpty()) parts.emplace_back(row, itemAt(i));
  }
  return parts;
}

QSize FormGrid::minimumSize() const {
  QSize least = QGridLayout::minimumSize();
  int widest = 0;
  for (const auto& [row, item] : Parts()) widest = std::max(widest, item->minimumSize().width());
  least.setWidth(std::min(least.width(), widest));
  return least;
}

int FormGrid::WidthBeside() const {
  int label = columnMinimumWidth(0), field = 0;
  for (int row = 0; row < rowCount(); ++row) {
    const QLayoutItem *first = itemAtPosition(row, 0), *second = itemAtPosition(row, 1);
    if (!first || !second || first == second) continue;
    label = std::max(label, first->minimumSize().width());
    if (const auto* line = qobject_cast<QLineEdit*>(second->widget()))
      field = std::max(field, std::min(line->sizeHint().width(), Px(kWidestLine)));
  }
  const int both = field > 0 ? label + horizontalSpacing() + field : 0;
  return std::max(both, QGridLayout::minimumSize().width());
}

int FormGrid::HeightAt(int width, bool least) const {
  if (!Stacks(width)) {
    if (!QGridLayout::hasHeightForWidth())
      return (least ? QGridLayout::minimumSize() : sizeHint()).height();
    return least ? QGridLayout::minimumHeightForWidth(width) : QGridLayout::heightForWidth(width);
  }
  int height = 0;
  for (const auto& [row, item] : Parts())
    height += HeightOf(*item, width, least) + (height > 0 ? verticalSpacing() : 0);
  return height;
}

/// What can use more room than it needs has what is left over.
void FormGrid::setGeometry(const QRect& rect) {
  if (!Stacks(rect.width())) return QGridLayout::setGeometry(rect);
  QLayout::setGeometry(rect);
  const auto parts = Parts();
  const auto grows = [this](const auto& part) {
    return rowStretch(part.first) > 0 && part.second->expandingDirections().testFlag(Qt::Vertical);
  };
  const auto growing = static_cast<int>(std::ranges::count_if(parts, grows));
  const int wished = HeightAt(rect.width(), false);
  const bool least = wished > rect.height();
  const int over = rect.height() - (least ? HeightAt(rect.width(), true) : wished);
  int top = rect.top();
  for (const auto& part : parts) {
    int height = HeightOf(*part.second, rect.width(), least);
    if (growing > 0 && over > 0 && grows(part)) height += over / growing;
    part.second->setGeometry({rect.left(), top, rect.width(), height});
    top += height + verticalSpacing();
  }
}

void AlignForms(const QBoxLayout& column) {
  std::vector<FormGrid*> forms;
  int widest = 0;
  for (int i = 0; i < column.count(); ++i) {
    auto* form = dynamic_cast<FormGrid*>(column.itemAt(i)->layout());
    if (!form) continue;
    forms.push_back(form);
    for (int row = 0; row < form->rowCount(); ++row) {
      const QLayoutItem* label = form->itemAtPosition(row, 0);
      if (label && label != form->itemAtPosition(row, 1))
        widest = std::max(widest, label->widget()->sizeHint().width());
    }
  }
  if (forms.size() > 1)
    for (FormGrid* form : forms) form->setColumnMinimumWidth(0, widest);
}

}  // namespace grapplemont::desktop
