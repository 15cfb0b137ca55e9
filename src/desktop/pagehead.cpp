#include "desktop/pagehead.h"

#include <algorithm>
#include <utility>

#include "desktop/look.h"

namespace grapplemont::desktop {

namespace {

constexpr int kHeadGap = 12;    // title and actions, and one action and the next
constexpr int kUnderTitle = 1;  // the title
constexpr int kKeptStep = 24;   // what comes and goes has a room that grows by so much at once

int HeightOfPart(const QLayoutItem& item, int width) {
  return item.hasHeightForWidth() ? item.heightForWidth(width) : item.sizeHint().height();
}

}  // namespace

PageHead::PageHead(QWidget* title, QLayout* facts, int least) : least_(Px(least)) {
  addWidget(title);
  addItem(facts);
  addChildLayout(facts);
}

PageHead::~PageHead() {
  while (QLayoutItem* item = takeAt(0)) delete item;
}

QLayoutItem* PageHead::takeAt(int index) {
  return index >= 0 && index < items_.size() ? items_.takeAt(index) : nullptr;
}

void PageHead::AddAction(ButtonView& action, Fold fold, bool comesAndGoes) {
  addWidget(&action);
  actions_.push_back(
      {&action, [&action] { return action.Shows().Visible.Get(); }, fold, comesAndGoes});
}

void PageHead::AddOwn(PushButton& button, std::function<bool()> seen) {
  addWidget(&button);
  actions_.push_back({&button, std::move(seen), Fold::Last, false});
}

void PageHead::SetLow(bool low) {
  if (low_ == low) return;
  low_ = low;
  invalidate();
}

std::vector<PushButton*> PageHead::Folded() const {
  std::vector<PushButton*> folded;
  for (const Action* action : FoldOrder())
    if (action->Button->isHidden()) folded.push_back(action->Button);
  return folded;
}

void PageHead::SetMore(PushButton& more) {
  addWidget(&more);
  more_ = &more;
  more.hide();
}

std::vector<const PageHead::Action*> PageHead::FoldOrder() const {
  std::vector<const Action*> order;
  for (const Fold fold : {Fold::First, Fold::Last})
    for (const Action& action : actions_)
      if (action.When == fold && action.Seen()) order.push_back(&action);
  return order;
}

int PageHead::WidthWith(const std::vector<const Action*>& order, std::size_t folded) const {
  const auto widthOf = [](const Action& action) {
    const int step = action.IsKept ? Px(kKeptStep) : 1;
    return (action.Button->sizeHint().width() + step - 1) / step * step + Px(kHeadGap);
  };
  int width = 0;
  for (std::size_t i = folded; i < order.size(); ++i) width += widthOf(*order[i]);
  for (const Action& action : actions_)
    if (action.When == Fold::Never && (action.IsKept || action.Seen())) width += widthOf(action);
  if (folded > 0 && more_) width += more_->sizeHint().width() + Px(kHeadGap);
  return std::max(0, width - Px(kHeadGap));
}

PageHead::Plan PageHead::PlanFor(int width) const {
  const auto order = FoldOrder();
  if (order.empty() && WidthWith(order, 0) == 0) return {};
  const int wish = Title().sizeHint().width(), all = WidthWith(order, 0);
  if (!low_ && wish + Px(kHeadGap) + all > width && all <= width) return {false, 0, all};
  for (const int title : {wish, std::min(wish, least_)})
    for (std::size_t folded = 0; folded <= order.size(); ++folded)
      if (const int own = WidthWith(order, folded); title + Px(kHeadGap) + own <= width)
        return {true, folded, own};
  for (std::size_t folded = 0; folded < order.size(); ++folded)
    if (const int own = WidthWith(order, folded); own <= width) return {false, folded, own};
  return {false, order.size(), std::min(width, WidthWith(order, order.size()))};
}

QSize PageHead::minimumSize() const {
  QSize least = Title().minimumSize().expandedTo(Facts().minimumSize());
  for (const Action& action : actions_)
    least = least.expandedTo({std::min(action.Button->sizeHint().width(), least_), 0});
  return least;
}

QSize PageHead::sizeHint() const {
  const int width = std::max(Title().sizeHint().width() + Px(kHeadGap) + WidthWith(FoldOrder(), 0),
                             Facts().sizeHint().width());
  return {width, heightForWidth(width)};
}

int PageHead::Arrange(const QRect& rect, const Plan* plan) const {
  const auto put = [plan](QLayoutItem& item, const QRect& where) {
    if (plan) item.setGeometry(where);
    return where.height();
  };
  const Plan stands = plan ? *plan : PlanFor(rect.width());
  const bool any = stands.Width > 0;
  const int words = rect.width() - (stands.Beside ? Px(kHeadGap) + stands.Width : 0);
  int buttons = 0;
  for (const Action& action : actions_)
    buttons = std::max(buttons, action.Button->sizeHint().height());
  int line = HeightOfPart(Title(), words);
  if (stands.Beside) line = std::max(line, buttons);
  put(Title(), {rect.left(), rect.top(), words, line});
  if (plan && stands.Beside)
    PlaceActions({rect.left() + words, rect.top(), rect.width() - words, line}, stands);
  int y = line;
  if (!Facts().isEmpty())
    y += Px(kUnderTitle) + put(Facts(), {rect.left(), rect.top() + y + Px(kUnderTitle),
                                         rect.width(), HeightOfPart(Facts(), rect.width())});
  if (stands.Beside || !any) return y;
  y += Px(kHeadGap);
  if (plan) PlaceActions({rect.left(), rect.top() + y, rect.width(), buttons}, stands);
  return y + buttons;
}

/// From the right. What is folded is hidden, so that neither keys nor readers come to it.
void PageHead::PlaceActions(const QRect& line, const Plan& plan) const {
  const auto order = FoldOrder();
  const auto folds = [&](const Action& action) {
    const auto found = std::ranges::find(order, &action);
    return found != order.end() && found < order.begin() + static_cast<std::ptrdiff_t>(plan.Folded);
  };
  int right = line.right() + 1;
  const auto put = [&](QWidget& button) {
    const QSize size =
        button.sizeHint().boundedTo({std::max(1, right - line.left()), line.height()});
    right -= size.width();
    button.setGeometry({QPoint(right, line.top() + (line.height() - size.height()) / 2), size});
    right -= Px(kHeadGap);
  };
  for (auto action = actions_.rbegin(); action != actions_.rend(); ++action) {
    const bool shown = action->Seen() && !folds(*action);
    action->Button->setVisible(shown);
    if (shown) put(*action->Button);
  }
  if (!more_) return;
  QStringList hidden;
  for (std::size_t i = 0; i < plan.Folded; ++i) hidden << order[i]->Button->text();
  more_->setToolTip(hidden.join(", "));
  more_->setVisible(plan.Folded > 0);
  if (plan.Folded > 0) put(*more_);
}

void PageHead::setGeometry(const QRect& rect) {
  QLayout::setGeometry(rect);
  const Plan plan = PlanFor(rect.width());
  Arrange(rect, &plan);
}

}  // namespace grapplemont::desktop
