#include "desktop/finder.h"

#include <QPainter>
#include <QStyledItemDelegate>
#include <algorithm>
#include <iterator>
#include <map>

#include "desktop/dates.h"
#include "desktop/drawn/drawn.h"
#include "desktop/housestyle.h"
#include "desktop/pieces.h"
#include "info/search.h"

namespace grapplemont::desktop {

namespace {

constexpr int kRow = 34, kHeading = 28, kPicture = 24;
constexpr QSize kLargest(640, 480);
constexpr int kHighest = 416;     // of the rows that are seen at once
constexpr std::size_t kMost = 6;  // names under a heading
constexpr int kApart = 20;        // letters in their order alone are the weakest reason

class EntryCells : public QStyledItemDelegate {
 public:
  EntryCells(QObject* parent, const std::vector<Finder::Row>& rows)
      : QStyledItemDelegate(parent), rows_(rows) {}
  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override {
    const Colours& c = ColoursOf(option.palette);
    const QRect room = option.rect.adjusted(Px(10), 0, -Px(10), 0);
    const Finder::Row* row = RowAt(index);
    painter->save();
    if (row && row->Is) {
      if (option.state.testFlag(QStyle::State_Selected))
        DrawBox(*painter, option.rect, c.Chosen, QColor(), Px(4));
      PaintEntry(*painter, room, *row->Is, c);
    } else {
      painter->setFont(row ? TextFont(11, QFont::DemiBold) : TextFont());
      painter->setPen(c.Muted);
      const QString words = index.data().toString();
      painter->drawText(room, row ? Qt::AlignBottom : Qt::AlignVCenter,
                        painter->fontMetrics().elidedText(words, Qt::ElideRight, room.width()));
    }
    painter->restore();
  }
  QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex& index) const override {
    const Finder::Row* row = RowAt(index);
    return {Px(100), Px(row && !row->Is ? kHeading : kRow)};
  }

 private:
  const Finder::Row* RowAt(const QModelIndex& index) const {
    const auto place = static_cast<std::size_t>(index.row());
    return place < rows_.size() ? &rows_[place] : nullptr;
  }
  /// The name has what room it needs; what it is gets the rest.
  static void PaintEntry(QPainter& painter, QRect room, const Finder::Entry& entry,
                         const Colours& c) {
    if (entry.Picture.index() != 0) {
      const QRectF all(room.left(), room.center().y() - Px(kPicture) / 2.0, Px(kPicture) * 2,
                       Px(kPicture));
      const double width = std::min(all.width(), all.height() * ShapeOf(entry.Picture));
      Draw(painter, QRectF(all.topLeft(), QSizeF(width, all.height())), entry.Picture);
      room.setLeft(room.left() + Px(kPicture) * 2 + Px(8));
    }
    painter.setFont(TextFont());
    const QFontMetrics metrics = painter.fontMetrics();
    const QString words = metrics.elidedText(entry.Words, Qt::ElideRight, room.width());
    painter.setPen(entry.IsOff ? c.Muted : c.Text);
    painter.drawText(room, Qt::AlignVCenter, words);
    room.setLeft(room.left() + metrics.horizontalAdvance(words) + Px(16));
    if (room.width() < Px(30)) return;
    const QString aside = entry.Where + (entry.Key.isEmpty() ? "" : "   " + entry.Key);
    painter.setPen(c.Muted);
    painter.drawText(room, Qt::AlignVCenter | Qt::AlignRight,
                     metrics.elidedText(aside, Qt::ElideRight, room.width()));
  }
  const std::vector<Finder::Row>& rows_;
};

/// As high as its rows, as long as all of them are seen at once.
class EntryList : public QListWidget {
 public:
  using QListWidget::QListWidget;
  QSize sizeHint() const override {
    int height = 0;
    for (int row = 0; row < count() && height + sizeHintForRow(row) <= Px(kHighest); ++row)
      height += sizeHintForRow(row);
    return {QListWidget::sizeHint().width(), height};
  }
  QSize minimumSizeHint() const override { return {0, Px(kRow)}; }
};

/// How far an entry is from what was typed; -1 for not at all. `forgiving`: a slip may also be in
/// what people call it besides.
int FitOf(const Finder::Entry& entry, const QString& letters, bool forgiving) {
  const std::string typed = Keep(letters).Text;
  const QString name = forgiving ? entry.Words + " " + entry.Also : entry.Words;
  const int fit = FitOfName(Keep(name).Text, Keep(entry.Also).Text, typed);
  if (fit >= 0) return fit;
  qsizetype at = 0;
  for (const QChar letter : letters) {
    at = entry.Words.indexOf(letter, at, Qt::CaseInsensitive) + 1;
    if (at == 0) return -1;
  }
  return kApart;
}

/// Whether what was typed is in its own name, not only in what people call it besides.
bool IsNamed(const Finder::Entry& entry, const QString& letters) {
  return letters.isEmpty() || entry.Also.isEmpty() ||
         FitOfName(Keep(entry.Words).Text, {}, Keep(letters).Text) >= 0;
}

}  // namespace

Finder::Finder(QWidget* ground, Sources sources) : Veil(ground), from_(std::move(sources)) {
  // The veil filters events from the first child on: until then both are known to be none.
  line_ = NewLine(&Sheet(), "finderline");
  list_ = new EntryList(&Sheet());
  setObjectName("finder");
  SetAtTop(kLargest);
  auto* rows = NewLayout<QVBoxLayout>(&Sheet(), 8, {12, 12, 12, 12});
  rows->addWidget(line_);
  rows->addWidget(list_, 1);
  line_->setPlaceholderText("Whom, what or where to?");
  setAccessibleName("Search everything");
  line_->setAccessibleName("Search everything");
  line_->installEventFilter(this);
  list_->setObjectName("finderlist");
  list_->setAccessibleName("Found");
  list_->setFrameShape(QFrame::NoFrame);
  list_->setFocusPolicy(Qt::NoFocus);
  list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  list_->setItemDelegate(new EntryCells(list_, rows_));
  list_->viewport()->setAutoFillBackground(false);
  connect(line_, &QLineEdit::textChanged, this, &Finder::Filter);
  connect(list_, &QListWidget::itemClicked, this, [this](const QListWidgetItem* item) {
    if (item->flags().testFlag(Qt::ItemIsEnabled))
      QMetaObject::invokeMethod(this, &Finder::Choose, Qt::QueuedConnection);
  });
  Filter({});
  PlaceCard();
  show();
  raise();
  line_->setFocus(Qt::OtherFocusReason);
}

void Finder::Filter(const QString& typed) {
  const QString letters = typed.trimmed();
  list_->clear();
  rows_.clear();
  FindNames(letters);
  if (letters.isEmpty()) AddRecent();
  Entries entries = CommandsFor(letters);
  for (const Entry& name : names_) entries.push_back(&name);
  DropSlips(entries);
  AddRows(std::move(entries), letters);
  ShowRows(letters);
  list_->updateGeometry();
  PlaceCard();
}

/// Where something begins with what was typed, nothing else was meant.
void Finder::DropSlips(Entries& entries) {
  const auto isSure = [](const Entry* entry) { return entry->Fit < kSureFit; };
  if (std::ranges::any_of(entries, isSure))
    std::erase_if(entries, [](const Entry* entry) { return IsSlip(entry->Fit); });
}

Finder::Entries Finder::CommandsFor(const QString& letters) {
  Entries entries;
  const auto take = [&](bool forgiving) {
    for (Entry& entry : from_.Commands) {
      entry.Fit = letters.isEmpty() ? 0 : FitOf(entry, letters, forgiving);
      if (entry.Fit >= 0) entries.push_back(&entry);
    }
  };
  take(false);
  // Where something else was found, that was meant.
  if (entries.empty() && names_.empty()) take(true);
  return entries;
}

void Finder::FindNames(const QString& letters) {
  names_.clear();
  if (letters.isEmpty() || !from_.Names) return;
  for (ui::Finding& found : from_.Names(Keep(letters).Text, kMost))
    names_.push_back({Shown(found.Heading),
                      Dated(found.Words),
                      Dated(found.About),
                      {},
                      {},
                      std::move(found.Open),
                      found.Picture,
                      {},
                      false,
                      found.Fit});
}

bool Finder::IsRecent(const Entry& entry) const {
  return std::ranges::any_of(from_.Recent, [&](const Entry& one) { return Same(one, entry); });
}

/// Commands that cannot be given now are left out.
void Finder::AddRecent() {
  for (const Entry& one : from_.Recent) {
    const auto command =
        std::ranges::find_if(from_.Commands, [&](const Entry& now) { return Same(one, now); });
    const bool isThere = command != from_.Commands.end();
    if (!isThere && !one.Open) continue;
    if (rows_.empty()) rows_.push_back({"Recent"});
    rows_.push_back({{}, isThere ? &*command : &one});
  }
}

void Finder::AddRows(Entries entries, const QString& letters) {
  std::vector<QString> headings;  // in the order in which they were met
  std::map<QString, int> best;
  for (const Entry* entry : entries) {
    const auto [held, isNew] = best.try_emplace(entry->Heading, entry->Fit);
    if (isNew) headings.push_back(entry->Heading);
    held->second = std::min(held->second, entry->Fit);
  }
  std::ranges::stable_sort(headings, {}, [&](const QString& heading) { return best[heading]; });
  for (const QString& heading : headings) {
    Entries under;
    std::ranges::copy_if(entries, std::back_inserter(under),
                         [&](const Entry* entry) { return entry->Heading == heading; });
    std::ranges::stable_sort(under, {}, &Entry::Fit);
    std::ranges::stable_partition(under, [&](const Entry* entry) {
      return entry->Fit < kSureFit && IsRecent(*entry) && IsNamed(*entry, letters);
    });
    rows_.push_back({heading});
    for (const Entry* entry : under) rows_.push_back({{}, entry});
  }
}

void Finder::ShowRows(const QString& letters) {
  for (const Row& row : rows_) {
    auto* item = new QListWidgetItem(row.Is ? row.Is->Words : row.Heading, list_);
    if (row.Is)
      item->setData(Qt::AccessibleDescriptionRole, row.Is->Where);
    else
      item->setFlags(Qt::NoItemFlags);
  }
  if (rows_.empty()) {
    auto* none =
        new QListWidgetItem("Nothing is called \"" + letters + "\". Try one word of it.", list_);
    none->setFlags(Qt::NoItemFlags);
  }
  list_->setCurrentRow(rows_.empty() ? -1 : 1);
  list_->scrollToTop();
}

/// To the next entry in this direction; headings are passed.
void Finder::Step(int by) {
  const int count = static_cast<int>(rows_.size());
  for (int row = list_->currentRow() + by; row >= 0 && row < count; row += by)
    if (rows_[static_cast<std::size_t>(row)].Is) return list_->setCurrentRow(row);
}

void Finder::Choose() {
  const int row = list_->currentRow();
  if (row < 0 || row >= static_cast<int>(rows_.size())) return;
  if (const Entry* entry = rows_[static_cast<std::size_t>(row)].Is) Finish(entry);
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
    Step(step);
  } else {
    return false;
  }
  return true;
}

}  // namespace grapplemont::desktop
