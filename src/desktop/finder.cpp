#include "desktop/finder.h"

#include <QPainter>
#include <QStyledItemDelegate>

#include "desktop/housestyle.h"
#include "desktop/pieces.h"

namespace grapplemont::desktop {

namespace {

constexpr int kAsideRole = Qt::UserRole;
constexpr int kRow = 32;

class EntryCells : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;
  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override {
    const Colours& c = ColoursOf(option.palette);
    painter->save();
    if (option.state.testFlag(QStyle::State_Selected))
      DrawBox(*painter, option.rect, c.Chosen, QColor(), Px(4));
    const QRect room = option.rect.adjusted(Px(10), 0, -Px(10), 0);
    painter->setFont(TextFont());
    painter->setPen(c.Text);
    painter->drawText(room, Qt::AlignVCenter, index.data().toString());
    painter->setPen(c.Muted);
    painter->drawText(room, Qt::AlignVCenter | Qt::AlignRight, index.data(kAsideRole).toString());
    painter->restore();
  }
  QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const override {
    return {Px(100), Px(kRow)};
  }
};

/// How well letters fit words: 0 not at all; the start counts more than the middle, and that more
/// than letters in their order alone.
int Fit(const QString& words, const QString& letters) {
  if (words.startsWith(letters, Qt::CaseInsensitive)) return 4;
  if (words.contains(" " + letters, Qt::CaseInsensitive)) return 3;
  if (words.contains(letters, Qt::CaseInsensitive)) return 2;
  qsizetype at = 0;
  for (const QChar letter : letters) {
    at = words.indexOf(letter, at, Qt::CaseInsensitive) + 1;
    if (at == 0) return 0;
  }
  return 1;
}

}  // namespace

Finder::Finder(QWidget* ground, std::vector<Entry> entries)
    : Veil(ground), entries_(std::move(entries)) {
  // The veil filters events from the first child on: until then both are known to be none.
  line_ = NewLine(&Sheet(), "finderline");
  list_ = new QListWidget(&Sheet());
  setObjectName("finder");
  SetAtTop();
  SetWanted({560, 400});
  auto* rows = NewLayout<QVBoxLayout>(&Sheet(), 8, {12, 12, 12, 12});
  rows->addWidget(line_);
  rows->addWidget(list_, 1);
  line_->setPlaceholderText("Where to, or what to do?");
  setAccessibleName("Search everything");
  line_->setAccessibleName(line_->placeholderText());
  list_->setAccessibleName("What was found");
  line_->installEventFilter(this);
  list_->setObjectName("finderlist");
  list_->setFrameShape(QFrame::NoFrame);
  list_->setFocusPolicy(Qt::NoFocus);
  list_->setItemDelegate(new EntryCells(list_));
  list_->viewport()->setAutoFillBackground(false);
  connect(line_, &QLineEdit::textChanged, this, &Finder::Filter);
  connect(list_, &QListWidget::itemClicked, this, &Finder::Choose, Qt::QueuedConnection);
  Filter({});
  PlaceCard();
  show();
  raise();
  line_->setFocus(Qt::OtherFocusReason);
}

void Finder::Filter(const QString& letters) {
  found_.clear();
  for (const Entry& entry : entries_)
    if (const int fit = Fit(entry.Words, letters.trimmed())) found_.emplace_back(fit, &entry);
  std::ranges::stable_sort(found_, [](const auto& a, const auto& b) { return a.first > b.first; });
  list_->clear();
  for (const auto& [fit, entry] : found_) {
    auto* item = new QListWidgetItem(entry->Words, list_);
    item->setData(kAsideRole, entry->Where + (entry->Key.isEmpty() ? "" : "   " + entry->Key));
  }
  list_->setCurrentRow(0);
}

void Finder::Choose() {
  const int row = list_->currentRow();
  if (row >= 0) Finish(found_[static_cast<std::size_t>(row)].second);
}

void Finder::Finish(const Entry* chosen) {
  if (done_) return;
  done_ = true;
  hide();
  deleteLater();
  if (Done) Done(chosen);
}

bool Finder::eventFilter(QObject* watched, QEvent* event) {
  if (watched != line_ || event->type() != QEvent::KeyPress)
    return Veil::eventFilter(watched, event);
  const int key = static_cast<QKeyEvent*>(event)->key();
  const int step = key == Qt::Key_Down ? 1 : key == Qt::Key_Up ? -1 : 0;
  if (key == Qt::Key_Escape) {
    Finish(nullptr);
  } else if (IsEnter(key)) {
    Choose();
  } else if (step != 0) {
    const int last = std::max(0, list_->count() - 1);
    list_->setCurrentRow(std::clamp(list_->currentRow() + step, 0, last));
  } else {
    return false;
  }
  return true;
}

}  // namespace grapplemont::desktop
