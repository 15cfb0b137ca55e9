#include "desktop/screenview.h"

#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

#include "desktop/boxshape.h"
#include "desktop/dates.h"
#include "desktop/pagehead.h"
#include "desktop/screenhead.h"
#include "desktop/tableview.h"
#include "ui/acts.h"

namespace grapplemont::desktop {

namespace {

constexpr int kCoverSide = 36;
constexpr int kWidestPage = 1160;     // of a page with nothing on it that would show more
constexpr QSize kLargest(1480, 960);  // of a dialog

bool IsBackdropFile(const std::string& file) {
  return file == "vxm_back.jpg" || file == "vxm_title.jpg";
}

}  // namespace

ScreenView::ScreenView(std::shared_ptr<ui::Screen> screen, Stage& stage, QWidget* parent)
    : QWidget(parent), screen_(std::move(screen)), stage_(stage), page_(screen_->Layout()) {
  setObjectName(Shown(screen_->Name()));
  setFocusPolicy(Qt::ClickFocus);
  if (IsPoster()) setPalette(PaletteOf(CoverColours()));
  FindBackdrop();
  const ui::Role role = screen_->Is();
  if (role == ui::Role::Wait) {
    BuildWait();
  } else if (role == ui::Role::Dialog) {
    BuildDialog();
  } else {
    BuildPage();
  }
  DressPictures();
  for (ControlView* view : views_)
    if (TakesEnter(view->Shows())) mains_.push_back(dynamic_cast<ButtonView*>(view));
  Refresh();
}

bool ScreenView::TakesEnter(const ui::Control& control) const {
  return &control == page_.Main || &control == page_.Then || &control == page_.First ||
         &control == page_.Cancel;
}

bool ScreenView::HasBackdrop() const {
  return screen_->Is() == ui::Role::Cover || screen_->Is() == ui::Role::Wait;
}

QWidget* ScreenView::Add(ui::Control& control) {
  views_.push_back(MakeView(control, stage_, this));
  return views_.back()->Widget();
}

/// The picture behind all: one that has no place of its own, else the one the screen is about.
void ScreenView::FindBackdrop() {
  if (!HasBackdrop()) return;
  std::vector<ui::Control*> placed;
  CollectControls(page_.Body, placed);
  const bool wait = screen_->Is() == ui::Role::Wait;
  for (const bool inBody : {false, true})
    for (ui::Control* control : screen_->Controls()) {
      auto* picture = dynamic_cast<ui::Picture*>(control);
      if (behind_ || !picture || (std::ranges::find(placed, picture) != placed.end()) != inBody)
        continue;
      if (wait || IsBackdropFile(picture->File.Get())) behind_ = picture;
    }
}

/// A picture with a few words on it. A page that lies before one has its words on cards.
bool ScreenView::IsPoster() const {
  if (screen_->Is() != ui::Role::Cover) return screen_->Is() == ui::Role::Wait;
  std::vector<ui::Control*> placed;
  CollectControls(page_.Body, placed);
  return page_.Actions.empty() && std::ranges::any_of(placed, [](const ui::Control* control) {
           const auto* picture = dynamic_cast<const ui::Picture*>(control);
           return picture && picture->File.Get() == "vxm_title.jpg";
         });
}

int ScreenView::Floor() const {
  for (ControlView* view : views_)
    if (&view->Shows() == behind_ && behind_->File.Get() == "vxm_title.jpg")
      return view->Widget()->mapTo(this, QPoint(0, view->Widget()->height())).y();
  return height();
}

void ScreenView::DressPictures() {
  for (ControlView* view : views_) {
    auto* picture = dynamic_cast<PictureView*>(view);
    if (!picture) continue;
    if (&view->Shows() == behind_)
      picture->SetSeeThrough();
    else if (behind_ && IsBackdropFile(dynamic_cast<ui::Picture&>(view->Shows()).File.Get()))
      picture->SetFading();
  }
}

void ScreenView::BuildPage() {
  const bool cover = screen_->Is() == ui::Role::Cover;
  const int side = cover ? kCoverSide : kPageSide;
  rows_ = BuildWhole({side, cover ? side : kUsualTop, side, side});
  rows_->addLayout(BuildHead());
  BuildBody(rows_);
  AddActions(*head_);  // last in the order of Tab, too: what a page is about comes first
  title_->setVisible(!IsPoster());
}

/// Its actions are always in sight.
void ScreenView::BuildDialog() {
  QBoxLayout* const rows =
      DialogSize().isValid() ? BuildWhole({}) : NewLayout<QVBoxLayout>(this, kPartGap);
  rows->addLayout(BuildHead());
  BuildBody(rows);
  static_cast<QBoxLayout*>(layout())->addLayout(BuildFoot());
}

/// Head and body, which scroll together where the window is too low for them.
QBoxLayout* ScreenView::BuildWhole(QMargins margins) {
  whole_ = new Scroller(this, false);
  auto* whole = new QWidget(whole_);
  auto* rows = NewLayout<QVBoxLayout>(whole, kPartGap, margins);
  whole_->Hold(whole);
  NewLayout<QVBoxLayout>(this, kPartGap)->addWidget(whole_, 1);
  return rows;
}

void ScreenView::BuildWait() {
  auto* rows = NewLayout<QVBoxLayout>(this, -1, {28, 28, 28, 24});
  rows->addStretch(1);
  for (ui::Control* control : screen_->Controls())
    if (control->Is() == ui::Kind::Label) rows->addWidget(Add(*control), 0, Qt::AlignHCenter);
}

void ScreenView::BuildBody(QBoxLayout* into) {
  auto* scroller = new Scroller(this, Grows(page_.Body));
  auto* body = new QWidget(scroller);
  auto* column = NewLayout<QVBoxLayout>(body, -1);
  LayoutBuilder builder(stage_, body, screen_->Is() == ui::Role::Cover,
                        Shown(screen_->Title.Get()));
  builder.Build(page_.Body, column);
  scroller->Hold(body);
  const ui::Role role = screen_->Is();
  if (role != ui::Role::Dialog && IsAllProse(page_.Body))
    body->setMaximumWidth(CalmWidth());
  else if (role == ui::Role::Page && !Grows(page_.Body))
    body->setMaximumWidth(Px(kWidestPage));
  into->addWidget(scroller, 1);
  if (whole_) whole_->SetInner(*scroller);
  views_.insert(views_.end(), builder.Views().begin(), builder.Views().end());
  cards_ = builder.Cards();
}

/// A large one takes what a usual window has, whatever is in it: steps that follow each other keep
/// their buttons in one place.
QSize ScreenView::DialogSize() const {
  if (page_.Large && !IsProse(page_.Body)) return kLargest;
  if (page_.Large) return QSize(1216, 704);
  return Grows(page_.Body) ? QSize(800, 560) : QSize();
}

void ScreenView::Refresh() {
  if (seen_ != screen_->Revision()) {
    seen_ = screen_->Revision();
    if (title_) title_->setText(Dated(screen_->Title.Get()));
  }
  if (behind_) {
    const QString file =
        behind_->File->empty() ? QString() : stage_.PictureFile(behind_->File.Get());
    if (file != backdrop_.File()) {
      backdrop_.SetFile(file);
      update();
    }
  }
  for (ControlView* view : views_) view->Refresh();
  for (ButtonView* main : mains_) main->SetGold(&main->Shows() == MainNow());
  ShowCards();
}

void ScreenView::ShowCards() {
  for (const auto& card : cards_) {
    if (!card.Sheet) {
      for (ControlView* view : card.Views) view->LeaveOut(!HasRoomFor(card));
      continue;
    }
    card.Sheet->setVisible(width() >= card.From && HasRoomFor(card) &&
                           (card.Views.empty() || std::ranges::any_of(card.Views, [](auto* view) {
                              return view->Shows().Visible.Get();
                            })));
  }
}

void ScreenView::resizeEvent(QResizeEvent*) {
  FitHead();
  ShowCards();
}

void ScreenView::Leave() {
  for (ControlView* view : views_) view->Leave();
}

ui::Button* ScreenView::MainNow(bool here) const {
  if (here && page_.First && page_.First->Visible) return page_.First;
  ui::Button* seen = nullptr;
  for (ui::Button* main : {page_.Main, page_.Then}) {
    if (!main || !main->Visible) continue;
    if (main->Enabled) return main;
    if (!seen) seen = main;
  }
  return seen;
}

void ScreenView::SetEnter(const ui::Button* pressed) {
  for (ButtonView* main : mains_) main->SetEnter(&main->Shows() == pressed);
}

QWidget* ScreenView::WidgetOf(const ui::Control& control) const {
  for (ControlView* view : views_)
    if (&view->Shows() == &control && view->Widget()->isVisible()) return view->Widget();
  return nullptr;
}

bool ScreenView::Press(ui::Button* button) {
  if (!button || !button->Enabled || !button->Visible) return false;
  stage_.Act([&] { return ui::Click(stage_.Desk(), *screen_, button->Name()); });
  return true;
}

bool ScreenView::PressCancel() {
  const std::string lost = page_.Loses ? page_.Loses() : std::string();
  if (lost.empty()) return Press(page_.Cancel);
  stage_.Act([&]() -> std::string {
    if (!stage_.Desk().Ask("Leave?", lost, ui::Default::No)) return {};
    return ui::Click(stage_.Desk(), *screen_, page_.Cancel->Name());
  });
  return true;
}

bool ScreenView::HandleKey(int key) {
  const bool hub = screen_->Is() == ui::Role::Hub;
  // Where there is only one way to go, the space bar turns the page as well.
  if (key == Qt::Key_Space && !page_.Cancel) return Press(page_.Main);
  if (key == Qt::Key_Backspace) return ClearFilters();
  // From the hub nothing leads back but the end of the game, which is not a slip of the hand.
  return key == Qt::Key_Escape && !hub && PressCancel();
}

/// Those of the tables, and the screen's own.
bool ScreenView::ClearFilters() {
  bool cleared = Press(page_.Clear);
  for (ControlView* view : views_)
    if (auto* table = dynamic_cast<TableView*>(view); table && table->isVisible())
      cleared |= table->ClearFilters();
  return cleared;
}

bool ScreenView::FocusSearch() {
  return std::ranges::any_of(views_, [this](ControlView* view) {
    auto* table = dynamic_cast<TableView*>(view);
    if (!table || !table->isVisible()) return false;
    const ui::TextBox* const own = dynamic_cast<ui::ListBox&>(view->Shows()).Search;
    if (own) GiveKeyboard(*own);
    return own || table->FocusSearch();
  });
}

const ui::Table* ScreenView::TableOf(const ui::ListBox& list) const {
  for (const ControlView* view : views_)
    if (const auto* table = dynamic_cast<const TableView*>(view); table && &view->Shows() == &list)
      return table->Arranged();
  return nullptr;
}

/// A click beside everything is one on the picture behind.
void ScreenView::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && behind_ && behind_->OnClick && behind_->Enabled)
    stage_.Act([&] { return ui::Click(stage_.Desk(), *screen_, behind_->Name()); });
}

void ScreenView::paintEvent(QPaintEvent*) {
  if (!HasBackdrop()) return;
  QPainter painter(this);
  const Colours& c = ColoursOf(this);
  painter.fillRect(rect(), c.Ground);
  if (!c.Dark) return;  // night behind a light page is but dirt
  backdrop_.Paint(painter, *this, Floor());
  const bool waits = screen_->Is() == ui::Role::Wait;
  if (!waits && title_->isHidden()) return;
  // Words stand on the picture: it steps back, at the bottom alone while one waits.
  QLinearGradient veil(0, 0, 0, height());
  QColor shade = c.Ground;
  shade.setAlphaF(waits ? 0.F : 0.7F);
  veil.setColorAt(waits ? 0.75 : 0, shade);
  shade.setAlphaF(waits ? 0.85F : 0.8F);
  veil.setColorAt(1, shade);
  painter.fillRect(rect(), veil);
}

}  // namespace grapplemont::desktop
