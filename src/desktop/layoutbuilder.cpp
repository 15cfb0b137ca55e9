#include "desktop/layoutbuilder.h"

#include <QComboBox>
#include <QScopedValueRollback>
#include <QTabBar>
#include <algorithm>
#include <utility>

#include "desktop/boxshape.h"
#include "desktop/button.h"
#include "desktop/card.h"
#include "desktop/evengrid.h"
#include "desktop/levelcolumns.h"
#include "desktop/pieces.h"
#include "desktop/spoken.h"
#include "desktop/tableview.h"
#include "desktop/turninglayout.h"

namespace grapplemont::desktop {

namespace {

using ui::Box;
using Kind = ui::Box::Kind;

constexpr int kWide = 14;  // between cards
constexpr int kWidestField = 420;
constexpr int kFieldsShare = 1000;  // of a form's width, as long as they are not that wide
constexpr int kLettersChosen = 25;  // of what a form's drop-down shows, before its label turns
constexpr int kUnbrokenLabel = 150;
constexpr int kLeastWords = 70;   // beside the buttons of their row
constexpr int kLeastCard = 220;   // beside another; a narrower one stands below it
constexpr int kLeastAlike = 180;  // the same of many that hold as little each
constexpr int kLeastTab = 104;    // so much of its name tells which it is

/// What a line is typed into, chosen from or slid on needs no more width than what it can hold.
bool IsNarrow(const ui::Control& control) {
  return control.Is() == ui::Kind::ComboBox || control.Is() == ui::Kind::TextBox ||
         control.Is() == ui::Kind::ScrollBar;
}

/// Leaves what is beyond that to a column behind it.
void Narrow(QWidget& field, QGridLayout& form) {
  field.setMaximumWidth(Px(kWidestField));
  form.setColumnStretch(1, kFieldsShare);
  form.setColumnStretch(2, 1);
}

/// Lets a button with a share take it.
void Widen(QWidget& widget, const Box& box) {
  if (IsButton(box) && box.Stretch > 0)
    widget.setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

/// Names that are too long together end in an ellipsis, up to a point; behind that they scroll.
class TabNames : public QTabBar {
 public:
  using QTabBar::QTabBar;

 protected:
  QSize minimumTabSizeHint(int tab) const override {
    const QSize whole = tabSizeHint(tab);
    return {std::min(whole.width(), Px(kLeastTab)), whole.height()};
  }
};

template <class Grid = QGridLayout, class... Peers>
Grid* NewGrid(int gap, const Peers&... peers) {
  auto* grid = new Grid(peers...);
  grid->setHorizontalSpacing(Px(gap));
  grid->setVerticalSpacing(Px(kClose));
  return grid;
}

}  // namespace

ControlView* LayoutBuilder::View(ui::Control& control) {
  ControlView* view = MakeView(control, stage_, holder_);
  views_.push_back(view);
  if (!NamesItself(control.Is())) NameParts(*view->Widget(), heading_);
  return view;
}

void LayoutBuilder::Build(const Box& root, QVBoxLayout* into) {
  if (root.Is == Kind::Spacer) return into->addStretch(1);
  Add(root, into);
  if (!Grows(root) && root.Is != Kind::Rows) into->addStretch(1);
}

/// Boxes one below the other. Room that nobody wants stays at the end.
void LayoutBuilder::AddAll(const std::vector<Box>& boxes, QBoxLayout* into) {
  for (std::size_t at = 0; at < boxes.size();) at = AddRun(boxes, at, into);
  const bool filled = std::ranges::any_of(boxes, [](const Box& box) {
    return box.Is == Kind::Spacer || box.Stretch > 0 || Grows(box);
  });
  if (!filled) into->addStretch(1);
  AlignForms(*into);
}

/// Adds the box at `from`, or those alike that follow it as one; gives the first after them.
std::size_t LayoutBuilder::AddRun(const std::vector<Box>& boxes, std::size_t from,
                                  QBoxLayout* into) {
  struct Alike {
    bool (*Fits)(const Box& box, const Box& first);
    std::size_t Least;
    void (LayoutBuilder::*Add)(const Run& run, QBoxLayout* into);
  };
  static constexpr Alike kAlike[] = {
      {[](const Box& box, const Box&) { return box.Is == Kind::Field; }, 1,
       &LayoutBuilder::AddForm},
      {[](const Box& box, const Box&) { return IsCalmButton(box); }, 1, &LayoutBuilder::AddButtons},
      {[](const Box& box, const Box& first) {
         return IsPlainRow(box) && box.Parts.size() == first.Parts.size();
       },
       2, &LayoutBuilder::AddGrid},
      {[](const Box& box, const Box&) { return IsRowOfCards(box); }, 2, &LayoutBuilder::AddCards}};
  for (const auto& [fits, least, add] : kAlike) {
    Run run;
    for (std::size_t i = from; i < boxes.size() && fits(boxes[i], boxes[from]); ++i)
      run.push_back(&boxes[i]);
    if (run.size() < least) continue;
    (this->*add)(run, into);
    return from + run.size();
  }
  Add(boxes[from], into);
  return from + 1;
}

void LayoutBuilder::Add(const Box& box, QBoxLayout* into) {
  switch (box.Is) {
    case Kind::Item:
      return AddItem(box, into);
    case Kind::Field:
      return AddForm({&box}, into);
    case Kind::Rows: {
      auto* rows = new Column(inCard_ && !Grows(box));
      rows->setSpacing(Px(inCard_ ? kClose : kWide));
      into->addLayout(rows, std::max(box.Stretch, Grows(box) || !inCard_ ? 1 : 0));
      return AddAll(box.Parts, rows);
    }
    case Kind::Columns:
      return AddColumns(box, into);
    case Kind::Group:
      return AddGroup(box, into);
    case Kind::Tabs:
      return AddTabs(box, into);
    case Kind::Spacer:
      return into->addStretch(1);
  }
}

void LayoutBuilder::AddItem(const Box& box, QBoxLayout* into) {
  ControlView* view = View(*box.Shown);
  if (auto* table = dynamic_cast<TableView*>(view)) AddRowButtons(box, *table);
  QWidget* widget = view->Widget();
  const bool across = into->direction() == QBoxLayout::LeftToRight;
  int stretch = box.Stretch;
  if (!across && stretch == 0 && Grows(box)) stretch = 1;
  Widen(*widget, box);
  const bool fills = Grows(box) || (stretch > 0 && !IsButton(box));
  const Qt::Alignment side = IsCalmButton(box) ? Qt::AlignLeft : Qt::Alignment();
  const Qt::Alignment place = across && !fills ? Qt::AlignVCenter | side : Qt::Alignment();
  if (!IsLink(box) || (across && into->count() > 0)) return into->addWidget(widget, stretch, place);
  auto* link = new LinkItem(widget);
  link->setAlignment(place);
  into->addItem(link);
  into->setStretch(into->count() - 1, stretch);
}

void LayoutBuilder::AddRowButtons(const Box& box, TableView& table) {
  std::vector<ButtonView*> buttons;
  const QScopedValueRollback<QWidget*> within(holder_, table.RowHolder());
  for (const Box& part : box.Parts) buttons.push_back(dynamic_cast<ButtonView*>(View(*part.Shown)));
  table.SetRowButtons(std::move(buttons));
}

void LayoutBuilder::AddColumns(const Box& whole, QBoxLayout* into) {
  Box box = whole;
  // Fields stand at the left as it is.
  if (std::ranges::any_of(box.Parts, [](const Box& part) { return part.Is == Kind::Field; }) &&
      !dynamic_cast<TurningLayout*>(into))
    while (box.Parts.back().Is == Kind::Spacer) box.Parts.pop_back();
  if (std::ranges::all_of(box.Parts, IsCalmButton)) return void(AddRun(box.Parts, 0, into));
  const bool cards = std::ranges::any_of(
      box.Parts, [](const Box& part) { return part.Is == Kind::Group || part.Is == Kind::Rows; });
  const bool fields =
      std::ranges::any_of(box.Parts, [](const Box& part) { return part.Is == Kind::Field; });
  // Beside prose, what a wide window has to spare is for those who show more in it.
  const bool others =
      std::ranges::any_of(box.Parts, [](const Box& part) { return Grows(part) && !IsProse(part); });
  // What filters a table stands in a row with its search, as one line.
  const bool inRow = dynamic_cast<TurningLayout*>(into) != nullptr;
  const bool alike = box.Parts.size() > (fields && !inRow ? 1 : kFew) &&
                     std::ranges::all_of(box.Parts, [&](const Box& part) {
                       return part.Is == box.Parts[0].Is &&
                              (part.Is == Kind::Group || part.Is == Kind::Field) &&
                              (part.Is == Kind::Group || !Grows(part));
                     });
  const int least = box.Letters > 0     ? box.Letters * kLetter
                    : !cards || inCard_ ? 0
                    : alike             ? kLeastAlike
                                        : kLeastCard;
  if (alike) return AddAlike(box, new EvenGrid(kWide, least, fields), into);
  auto* columns = new TurningLayout(fields || cards ? kWide : kClose, least);
  into->addLayout(columns, ShareOf(box));
  bool filled = cards;
  const bool even = std::ranges::all_of(
      box.Parts, [&](const Box& part) { return ShareOf(part) == ShareOf(box.Parts.front()); });
  for (const Box& part : box.Parts) {
    const QScopedValueRollback<Forms> forms(forms_, even ? forms_ : NewForms());
    filled = filled || part.Is == Kind::Spacer || part.Stretch > 0 || Grows(part);
    calm_ = others && !inCard_ && IsProse(part);
    Add(part, columns);
  }
  if (box.Parts.front().Waits) columns->LetFirstWait();
  if (!filled) columns->addStretch(1);
}

/// Each in a row of its own, as which a field stands with its label before it.
void LayoutBuilder::AddAlike(const Box& box, EvenGrid* grid, QBoxLayout* into) {
  into->addLayout(grid, ShareOf(box));
  for (const Box& part : box.Parts) {
    auto* const cell = NewLayout<QHBoxLayout>(nullptr, 0);
    grid->Add(*cell);
    Add(part, cell);
    cell->setStretch(0, 1);
  }
}

/// As high and as wide as the page that is shown needs: the others have their turn.
void LayoutBuilder::AddTabs(const Box& box, QBoxLayout* into) {
  auto* holder = new QWidget(holder_);
  auto* rows = new Column(false, holder);
  rows->setSpacing(Px(kWide));
  auto* bar = new TabNames(holder);
  bar->setDrawBase(false);
  bar->setExpanding(false);
  bar->setElideMode(Qt::ElideRight);
  bar->setFocusPolicy(Qt::TabFocus);
  rows->addWidget(bar, 0, Qt::AlignLeft);
  const QScopedValueRollback<QWidget*> within(holder_);
  bar->setAccessibleName(heading_);
  std::vector<QWidget*> pages;
  for (const Box& part : box.Parts) {
    const QScopedValueRollback<QString> heading(heading_, Shown(part.Title));
    const QScopedValueRollback<Forms> forms(forms_, NewForms());
    pages.push_back(holder_ = new QWidget(holder));
    Box untitled = part;
    untitled.Title.clear();
    Build(untitled, NewLayout<QVBoxLayout>(holder_, -1));
    rows->addWidget(holder_, 1);
    holder_->setVisible(pages.size() == 1);
    bar->setTabToolTip(bar->addTab(Shown(part.Title)), Shown(part.Title));
  }
  QObject::connect(bar, &QTabBar::currentChanged, holder, [pages](int shown) {
    for (QWidget* page : pages) page->hide();
    pages[static_cast<std::size_t>(shown)]->show();
  });
  into->addWidget(holder, std::max(1, box.Stretch));
}

/// Labels in one column, what they name in the next. In a row of fields each label stands close to
/// its own.
void LayoutBuilder::AddForm(const Run& fields, QBoxLayout* into) {
  const bool across = into->direction() == QBoxLayout::LeftToRight;
  QGridLayout* form = across ? NewGrid(kClose) : NewGrid<FormGrid>(kWide, forms_);
  form->setColumnStretch(1, 1);
  int row = 0;
  bool grows = false;
  for (const Box* field : fields) {
    const QScopedValueRollback<QString> heading(
        heading_, field->Title.empty() ? heading_ : Shown(field->Title));
    ControlView* view = View(*field->Shown);
    auto* label = new WrappedLabel(holder_, Shown(field->Title));
    label->BreakFrom(kUnbrokenLabel);
    SetInk(*label, ColoursOf(holder_).Muted);
    view->SetCompanion(label);
    label->setBuddy(view->FocusTarget());
    const bool tall = Grows(*field);
    if (!tall && IsNarrow(*field->Shown)) Narrow(*view->Widget(), *form);
    if (auto* combo = qobject_cast<QComboBox*>(view->Widget()); combo && !across)
      combo->setMinimumContentsLength(kLettersChosen);
    grows = grows || tall;
    form->addWidget(label, row, 0,
                    tall ? Qt::AlignTop | Qt::AlignLeft : Qt::AlignVCenter | Qt::AlignLeft);
    if (field->Parts.empty())
      form->addWidget(view->Widget(), row, 1, tall ? Qt::Alignment() : Qt::AlignVCenter);
    else
      AddBeside(*field, *view->Widget(), *form, row);
    form->setRowStretch(row, tall ? 1 : 0);
    ++row;
  }
  // In a row a drop-down is as wide as its longest choice.
  const bool shares = across && fields.front()->Shown->Is() != ui::Kind::ComboBox;
  into->addLayout(form, grows || shares ? 1 : 0);
}

/// What a field shows with its buttons behind it, and the words that they open across the next row.
void LayoutBuilder::AddBeside(const Box& field, QWidget& shown, QGridLayout& form, int& row) {
  auto* line = NewLayout<QHBoxLayout>(nullptr, kWide);
  line->addWidget(&shown);
  form.addLayout(line, row, 1);
  for (const Box& part : field.Parts) {
    QWidget* widget = View(*part.Shown)->Widget();
    if (IsButton(part))
      line->addWidget(widget);
    else
      form.addWidget(widget, ++row, 0, 1, 2);
  }
  line->addStretch(1);
}

void LayoutBuilder::AddButtons(const Run& buttons, QBoxLayout* into) {
  auto* flow = new FlowLayout(Px(kClose), cover_ && !inCard_ ? Qt::AlignHCenter : Qt::AlignLeft);
  for (const Box* button : buttons) {
    ControlView* view = View(*button->Shown);
    if (cover_ && !inCard_) dynamic_cast<PushButton*>(view->Widget())->SetLeast(132, 40);
    if (IsLink(*button))
      flow->addItem(new LinkItem(view->Widget()));
    else
      flow->addWidget(view->Widget());
  }
  into->addLayout(flow);
}

/// Rows alike share their columns' widths.
void LayoutBuilder::AddGrid(const Run& rows, QBoxLayout* into) {
  QGridLayout* grid = NewGrid(kWide);
  int row = 0, most = 0;
  for (const Box* line : rows) {
    int column = 0;
    for (const Box& part : line->Parts) {
      ControlView* view = View(*part.Shown);
      Widen(*view->Widget(), part);
      if (auto* words = dynamic_cast<WrappedLabel*>(view->Widget()); words && part.Stretch > 0) {
        words->BreakFrom(kLeastWords);
        // Beside many buttons a long word has to give way.
        if (line->Parts.size() > 2) words->setMinimumWidth(Px(kLeastWords));
      }
      grid->addWidget(view->Widget(), row, column, Qt::AlignVCenter);
      grid->setColumnStretch(column, part.Stretch);
      most = std::max(most, part.Stretch);
      ++column;
    }
    ++row;
  }
  if (most == 0) grid->setColumnStretch(grid->columnCount(), 1);
  into->addLayout(grid);
}

}  // namespace grapplemont::desktop
