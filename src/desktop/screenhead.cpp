#include "desktop/screenhead.h"

#include <algorithm>

#include "desktop/boxshape.h"
#include "desktop/pagehead.h"
#include "desktop/screenview.h"

// What stands above and below the body of a screen: title, facts and actions.

namespace grapplemont::desktop {

namespace {

constexpr int kLeastTitle = 150;  // what the title has beside actions
constexpr int kLowPage = 400;     // a page no higher than that has a low head
constexpr int kLowSide = 8;

template <class C>
bool Contains(const std::vector<C*>& controls, const ui::Control* control) {
  return std::find(controls.begin(), controls.end(), control) != controls.end();
}

}  // namespace

/// Title and facts; of a page there is room for actions at the title's right.
QLayout* ScreenView::BuildHead() {
  title_ = new WrappedLabel(this, {}, TextFont(19, QFont::DemiBold));
  title_->setObjectName("title");
  QWidget* const face = page_.Face ? Add(*page_.Face) : nullptr;
  auto* words = NewLayout<QVBoxLayout>(nullptr, 1);
  AddFacts(*words);
  head_ = new PageHead(title_, words, kLeastTitle);
  if (!face) return head_;
  auto* faced = NewLayout<QHBoxLayout>(nullptr, kPartGap);
  faced->addWidget(face, 0, Qt::AlignTop);
  faced->addLayout(head_, 1);
  return faced;
}

void ScreenView::AddFacts(QBoxLayout& words) {
  std::vector<ui::Label*> facts = page_.More;
  if (page_.Facts) facts.insert(facts.begin(), page_.Facts);
  for (ui::Label* fact : facts) {
    auto* line = dynamic_cast<LabelView*>(Add(*fact));
    if (fact == page_.Facts) line->SetFacts();
    words.addWidget(line);
  }
}

/// Main stands last. Main and Cancel are there even where the layout has no place for them.
std::vector<ui::Button*> ScreenView::ActionsInOrder() const {
  std::vector<ui::Control*> placed;
  CollectControls(page_.Body, placed);
  for (const auto& group : page_.Side)
    for (const auto& command : group.Commands) placed.push_back(command.Press);
  placed.insert(placed.end(), page_.TopActions.begin(), page_.TopActions.end());
  std::vector<ui::Button*> actions = page_.Actions;
  if (page_.Cancel && !Contains(actions, page_.Cancel) && !Contains(placed, page_.Cancel) &&
      page_.Cancel != page_.Main)
    actions.insert(actions.begin(), page_.Cancel);
  if (page_.Main && (Contains(actions, page_.Main) || !Contains(placed, page_.Main))) {
    std::erase(actions, page_.Main);
    actions.push_back(page_.Main);
  }
  return actions;
}

/// The main ones are always in sight, and the way back as long as there is room for it. The two
/// that are gold in turn come and go, and the head keeps its form.
void ScreenView::AddActions(PageHead& head) {
  using Fold = PageHead::Fold;
  auto* more = new PushButton(this, QStringLiteral("More\u2026"));
  more->setObjectName("pagemore");
  if (std::ranges::any_of(cards_, &LayoutBuilder::CardContents::Filters)) {
    auto* filters = new PushButton(this, QStringLiteral("Filters\u2026"));
    filters->setObjectName("pagefilters");
    head.AddOwn(*filters, [this] { return height() < Px(kLowPage); });
    connect(filters, &QAbstractButton::clicked, this, [this] {
      showsFilters_ = !showsFilters_;
      ShowCards();
    });
  }
  for (ui::Button* action : ActionsInOrder()) {
    Add(*action);
    auto* view = dynamic_cast<ButtonView*>(views_.back());
    const bool main = action == page_.Main || (action == page_.Then && page_.Then != page_.Cancel);
    head.AddAction(*view,
                   main                     ? Fold::Never
                   : action == page_.Cancel ? Fold::Last
                                            : Fold::First,
                   main && page_.Then);
  }
  head.SetMore(*more);
  connect(more, &QAbstractButton::clicked, this,
          [more, &head] { OpenFolded(head.Folded(), *more); });
}

QLayout* ScreenView::BuildFoot() {
  auto* actions = new FlowLayout(Px(kPartGap - 2), Qt::AlignRight | Qt::AlignBottom);
  for (ui::Button* action : ActionsInOrder()) actions->addWidget(Add(*action));
  return actions;
}

void ScreenView::FitHead() {
  if (!rows_ || screen_->Is() == ui::Role::Cover) return;
  const bool low = height() < Px(kLowPage);
  head_->SetLow(low);
  for (ControlView* view : views_)
    if (page_.Facts && &view->Shows() == page_.Facts)
      dynamic_cast<LabelView*>(view)->SetOneLine(low);
  rows_->setContentsMargins(Px(kPageSide), Px(low ? kLowSide : kUsualTop), Px(kPageSide),
                            Px(low ? kLowSide : kPageSide));
  rows_->setSpacing(Px(low ? kLowSide : kPartGap));
}

/// Filters that are set are always seen.
bool ScreenView::HasRoomFor(const LayoutBuilder::CardContents& card) const {
  if (!card.Filters || !rows_ || showsFilters_ || height() >= Px(kLowPage)) return true;
  return std::ranges::any_of(card.Views, [](const ControlView* view) {
    const auto* combo = dynamic_cast<const ui::ComboBox*>(&view->Shows());
    return combo && combo->Filters && combo->Selected() > 1;
  });
}

}  // namespace grapplemont::desktop
