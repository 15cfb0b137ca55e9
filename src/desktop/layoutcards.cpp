#include <QScopedValueRollback>
#include <algorithm>
#include <utility>

#include "desktop/boxshape.h"
#include "desktop/layoutbuilder.h"
#include "desktop/levelcolumns.h"
#include "desktop/pieces.h"
#include "desktop/spoken.h"
#include "desktop/tableview.h"
#include "desktop/turninglayout.h"

// The cards of a page, and what stands in the line of a card's heading.

namespace grapplemont::desktop {

namespace {

using ui::Box;

constexpr int kCardSide = 14;
constexpr int kScrollBar = 16;
constexpr int kUnbrokenTitle = 230;  // what stands beside it gives way first
constexpr int kLeastSearch = 180;    // so that what is searched can be read in the empty line

QFont CardTitleFont() {
  return TextFont(13, QFont::DemiBold);
}

}  // namespace

int CalmWidth() {
  return ReadableWidth() + 2 * Px(kCardSide) + Px(kScrollBar);
}

TableView* OnlyTable(const std::vector<ControlView*>& views) {
  TableView* only = nullptr;
  for (ControlView* view : views)
    if (auto* table = dynamic_cast<TableView*>(view)) {
      if (only) return nullptr;
      only = table;
    }
  return only;
}

void LayoutBuilder::AddGroup(const Box& box, QBoxLayout* into) {
  const QScopedValueRollback<QString> heading(heading_,
                                              box.Title.empty() ? heading_ : Shown(box.Title));
  if (inCard_) return AddPartOfCard(box, into);
  auto* card = new Card(holder_);
  if (std::exchange(calm_, false)) card->setMaximumWidth(CalmWidth());
  Means(*card, QAccessible::Grouping);
  card->setAccessibleName(heading_);
  QVBoxLayout* const inside =
      peers_ ? static_cast<QVBoxLayout*>(new LevelColumn(card, peers_)) : new Column(false, card);
  inside->setSpacing(Px(kClose));
  inside->setContentsMargins(Px(kCardSide), Px(kCardSide), Px(kCardSide), Px(kCardSide));
  auto* head = new TurningLayout(kClose);
  inside->addLayout(head);
  if (!box.Title.empty()) {
    auto* title = new WrappedLabel(card, Shown(box.Title), CardTitleFont());
    title->BreakFrom(kUnbrokenTitle);
    head->addWidget(title, 1);
  }
  QWidget* const outer = holder_;
  holder_ = card;
  inCard_ = true;
  const std::size_t before = views_.size();
  const bool filtered = HasFilterRow(box);
  if (filtered) {
    head->KeepRowsWhole();
    Add(box.Parts.front(), head);
    if (HasFilters(box.Parts.front()))
      cards_.push_back(
          {nullptr, {views_.begin() + static_cast<std::ptrdiff_t>(before), views_.end()}, 0, true});
    AddAll({box.Parts.begin() + 1, box.Parts.end()}, inside);
  } else {
    AddAll(box.Parts, inside);
  }
  inCard_ = false;
  holder_ = outer;
  const std::vector<ControlView*> views(views_.begin() + static_cast<std::ptrdiff_t>(before),
                                        views_.end());
  AddSearch(views, box.Title.empty() && !filtered, *head);
  cards_.push_back({card, views, Px(box.Spare * kLetter), IsAllFilters(box)});
  into->addWidget(card, ShareOf(box));
}

/// A card on a card is a heading with what belongs to it.
void LayoutBuilder::AddPartOfCard(const Box& box, QBoxLayout* into) {
  const std::size_t before = views_.size();
  auto* sheet = box.Spare > 0 ? new QWidget(holder_) : nullptr;
  const QScopedValueRollback<QWidget*> holder(holder_, sheet ? sheet : holder_);
  auto* part = new Column(false, sheet);
  part->setSpacing(Px(kClose));
  if (!box.Title.empty())
    part->addWidget(new WrappedLabel(holder_, Shown(box.Title), CardTitleFont()));
  sheet ? into->addWidget(sheet, ShareOf(box)) : into->addLayout(part, ShareOf(box));
  AddAll(box.Parts, part);
  if (!sheet) return;
  const auto first = views_.begin() + static_cast<std::ptrdiff_t>(before);
  cards_.push_back({sheet, {first, views_.end()}, Px(box.Spare * kLetter), false});
}

/// The search row of a card's only table, beside its title or the page's own search line.
void LayoutBuilder::AddSearch(const std::vector<ControlView*>& views, bool untitled,
                              TurningLayout& head) {
  TableView* table = OnlyTable(views);
  if (!table || !table->CanSearch()) return;
  const auto own = std::ranges::find_if(views, [table](const ControlView* view) {
    return &view->Shows() == dynamic_cast<const ui::ListBox&>(table->Shows()).Search;
  });
  if (own == views.end() && untitled) return;
  QWidget* const row = table->TakeSearchRow();
  // The panel below keeps its place when the row comes and goes beside the title; below the title
  // it would leave a hole.
  head.HoldHeight(row->sizeHint().height());
  // The heading stands in one line with those of cards that have no such row.
  const int above = (row->sizeHint().height() - QFontMetrics(CardTitleFont()).height()) / 2;
  QLayout& inside = *head.parentWidget()->layout();
  QMargins margins = inside.contentsMargins();
  if (!untitled) margins.setTop(std::max(Px(4), margins.top() - above));
  inside.setContentsMargins(margins);
  if (own != views.end()) {
    (*own)->Widget()->setMinimumWidth(Px(kLeastSearch));
    head.addWidget((*own)->Widget(), 4);
  }
  head.addWidget(row, own != views.end() ? 0 : 4);
}

/// Cards of one kind in several rows are all of one height.
void LayoutBuilder::AddCards(const Run& rows, QBoxLayout* into) {
  const QScopedValueRollback<std::shared_ptr<Peers>> level(peers_, std::make_shared<Peers>());
  for (const Box* row : rows) AddColumns(*row, into);
}

}  // namespace grapplemont::desktop
