#include "desktop/finder.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

#include "desktop/housestyle.h"
#include "desktop/look.h"

namespace grapplemont::desktop {

namespace {

constexpr int kEntryRole = Qt::UserRole, kWhereRole = Qt::UserRole + 1, kKeyRole = Qt::UserRole + 2;
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
    const QString key = index.data(kKeyRole).toString();
    painter->drawText(room, Qt::AlignVCenter | Qt::AlignRight,
                      index.data(kWhereRole).toString() + (key.isEmpty() ? "" : "   " + key));
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
  line_ = new QLineEdit(&Sheet());
  list_ = new QListWidget(&Sheet());
  setObjectName("finder");
  SetAtTop();
  SetWanted({560, 400});
  auto* rows = new QVBoxLayout(&Sheet());
  rows->setContentsMargins(Px(12), Px(12), Px(12), Px(12));
  rows->setSpacing(Px(8));
  rows->addWidget(line_);
  rows->addWidget(list_, 1);
  line_->setObjectName("finderline");
  line_->setTextMargins(Px(8), 0, Px(8), 0);
  line_->setPlaceholderText("Where to, or what to do?");
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
  std::vector<std::pair<int, int>> fits;  // how well, which
  for (int i = 0; i < static_cast<int>(entries_.size()); ++i)
    if (const int fit = Fit(entries_[static_cast<std::size_t>(i)].Words, letters.trimmed()))
      fits.emplace_back(-fit, i);
  std::stable_sort(fits.begin(), fits.end(),
                   [](const auto& a, const auto& b) { return a.first < b.first; });
  list_->clear();
  for (const auto& [fit, i] : fits) {
    const Entry& entry = entries_[static_cast<std::size_t>(i)];
    auto* item = new QListWidgetItem(entry.Words, list_);
    item->setData(kEntryRole, i);
    item->setData(kWhereRole, entry.Where);
    item->setData(kKeyRole, entry.Key);
  }
  list_->setCurrentRow(0);
}

void Finder::Choose() {
  const QListWidgetItem* item = list_->currentItem();
  if (item) Finish(&entries_[static_cast<std::size_t>(item->data(kEntryRole).toInt())]);
}

void Finder::Finish(const Entry* chosen) {
  if (done_) return;
  done_ = true;
  hide();
  deleteLater();
  if (Done) Done(chosen);
}

void Finder::mousePressEvent(QMouseEvent*) {
  Finish(nullptr);
}

bool Finder::eventFilter(QObject* watched, QEvent* event) {
  if (watched != line_ || event->type() != QEvent::KeyPress)
    return Veil::eventFilter(watched, event);
  const int key = static_cast<QKeyEvent*>(event)->key();
  const int row = list_->currentRow(), last = list_->count() - 1;
  switch (key) {
    case Qt::Key_Escape:
      Finish(nullptr);
      return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      Choose();
      return true;
    case Qt::Key_Down:
    case Qt::Key_Up:
      list_->setCurrentRow(std::clamp(row + (key == Qt::Key_Down ? 1 : -1), 0, std::max(0, last)));
      return true;
    default:
      return false;
  }
}

}  // namespace grapplemont::desktop
