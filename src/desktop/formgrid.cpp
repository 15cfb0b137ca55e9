#include "desktop/formgrid.h"

#include <QLineEdit>
#include <algorithm>

#include "desktop/card.h"
#include "desktop/look.h"
#include "desktop/turninglayout.h"

namespace grapplemont::desktop {

namespace {

constexpr int kWidestLine = 240;  // that a label turns for

int HeightOf(const QLayoutItem& item, int width, bool least) {
  if (!item.hasHeightForWidth()) return (least ? item.minimumSize() : item.sizeHint()).height();
  return least ? item.minimumHeightForWidth(width) : item.heightForWidth(width);
}

}  // namespace

FormGrid::FormGrid(std::shared_ptr<Peers> peers) : peers_(std::move(peers)) {
  peers_->push_back(this);
}

FormGrid::~FormGrid() {
  std::erase(*peers_, this);
}

bool FormGrid::Stacks(int width) const {
  return std::ranges::any_of(
      *peers_, [width](const FormGrid* peer) { return width < peer->WidthBeside(0); });
}

bool FormGrid::Aligns(int width) const {
  return std::ranges::all_of(*peers_, [width](const FormGrid* peer) {
    return width >= peer->WidthBeside(peer->aligned_);
  });
}

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

int FormGrid::WidthBeside(int label) const {
  int own = 0, field = 0;
  for (int row = 0; row < rowCount(); ++row) {
    const QLayoutItem *first = itemAtPosition(row, 0), *second = itemAtPosition(row, 1);
    if (!first || !second || first == second) continue;
    own = std::max(own, first->minimumSize().width());
    if (const auto* line = qobject_cast<QLineEdit*>(second->widget()))
      field = std::max(field, std::min(line->sizeHint().width(), Px(kWidestLine)));
  }
  const int wish = std::max(own, label);
  const int both = field > 0 ? wish + horizontalSpacing() + field : 0;
  // How it is aligned now is no part of what it needs.
  const int least =
      QGridLayout::minimumSize().width() + wish - std::max(own, columnMinimumWidth(0));
  return std::max(both, least);
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
  if (!Stacks(rect.width())) {
    const int label = Aligns(rect.width()) ? aligned_ : 0;
    if (columnMinimumWidth(0) != label) setColumnMinimumWidth(0, label);
    return QGridLayout::setGeometry(rect);
  }
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

namespace {

/// The forms one below the other: those beside something else begin where that ends.
void CollectForms(const QLayout& column, std::vector<FormGrid*>& forms) {
  for (int i = 0; i < column.count(); ++i) {
    QLayoutItem& item = *column.itemAt(i);
    const auto* card = dynamic_cast<const Card*>(item.widget());
    const QLayout* layout = card ? card->layout() : item.layout();
    const auto* box = dynamic_cast<const QBoxLayout*>(layout);
    if (auto* form = dynamic_cast<FormGrid*>(item.layout()))
      forms.push_back(form);
    else if (box && !dynamic_cast<const TurningLayout*>(box) &&
             box->direction() == QBoxLayout::TopToBottom)
      CollectForms(*box, forms);
  }
}

int LabelsWidth(const FormGrid& form) {
  int widest = 0;
  for (int row = 0; row < form.rowCount(); ++row) {
    const QLayoutItem* label = form.itemAtPosition(row, 0);
    if (label && label != form.itemAtPosition(row, 1))
      widest = std::max(widest, label->widget()->sizeHint().width());
  }
  return widest;
}

}  // namespace

void AlignForms(const QBoxLayout& column) {
  std::vector<FormGrid*> forms;
  CollectForms(column, forms);
  if (forms.size() < 2) return;
  int widest = 0;
  for (const FormGrid* form : forms) widest = std::max(widest, LabelsWidth(*form));
  for (FormGrid* form : forms) form->Align(widest);
}

}  // namespace grapplemont::desktop
