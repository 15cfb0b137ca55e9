#include "desktop/album.h"

#include <QApplication>
#include <QDir>
#include <QScopedValueRollback>
#include <QTimer>
#include <algorithm>
#include <array>

#include "ui/acts.h"

namespace grapplemont::desktop {

namespace {

/// What changes a screen so much that it is tried behind all else, in this order.
constexpr std::array<std::string_view, 6> kLast = {"cmdloadgame", "cmdauto",  "cmdfill",
                                                   "cmddoshow",   "cmduntil", "cmdnext"};
/// What makes a screen worth a second picture in the first one's place.
constexpr std::string_view kFills = "cmdfill";
constexpr std::string_view kLeavesTheGame = "cmdquit";
/// A new game needs a name.
constexpr std::string_view kAsksForAName = "txtname", kName = "Pat Lee";

constexpr int kMostClicks = 80;  // to get through a screen that has only one way
constexpr int kShowDays = 16;    // that are played for what they may bring
constexpr int kBoxesEvery = 5;   // milliseconds

/// The controls of a screen that lead on, in the order in which they are tried.
std::vector<std::string> WaysOn(ui::Screen& screen) {
  const ui::Button* const back = screen.Layout().Cancel;
  std::vector<std::string> ways, last;
  for (const ui::Control* control : screen.Controls()) {
    const auto* picture = dynamic_cast<const ui::Picture*>(control);
    const bool leads = control->Is() == ui::Kind::Button || (picture && picture->OnClick);
    if (!leads || control == back || control->Name() == kLeavesTheGame) continue;
    const bool isLast = std::ranges::find(kLast, control->Name()) != kLast.end();
    (isLast ? last : ways).push_back(control->Name());
  }
  std::ranges::sort(last, {},
                    [](const std::string& name) { return std::ranges::find(kLast, name); });
  ways.insert(ways.end(), last.begin(), last.end());
  return ways;
}

void LetItPaint() {
  for (int i = 0; i < 4; ++i) QApplication::processEvents();
}

}  // namespace

Album::Album(Window& window, WindowDesk& desk, Looks looks, Watcher shown)
    : window_(window), desk_(desk), looks_(std::move(looks)), shown_(std::move(shown)) {}

void Album::Fill() {
  QTimer boxes;
  QObject::connect(&boxes, &QTimer::timeout, &boxes, [this] { AnswerBox(); });
  boxes.start(kBoxesEvery);
  while (desk_.Top() && !taken_.contains(desk_.Top()->Name())) Visit();
}

/// A question gets the usual answer, or a yes from whoever wants to leave.
void Album::AnswerBox() {
  auto* box = dynamic_cast<MessageBox*>(window_.findChild<QWidget*>("box"));
  if (!box) return;
  auto* yes = box->findChild<QAbstractButton*>("boxyes");
  if (yes && saysYes_) return yes->click();
  yes ? box->TakeUsual() : box->Dismiss();
}

void Album::Take(const std::string& name) {
  for (const int text : looks_.Texts)
    for (const Scheme scheme : looks_.Schemes) {
      window_.SetLook(scheme, DesktopText() * (text - 100) / 100);
      for (const QSize& size : looks_.Sizes) {
        window_.resize(size);
        LetItPaint();
        shown_(name, QString("%1x%2-%3-%4")
                         .arg(size.width())
                         .arg(size.height())
                         .arg(scheme == Scheme::Light ? "light" : "dark")
                         .arg(text));
      }
    }
}

/// What is chosen from a list is shown beside it. Lists of the same people each have another
/// chosen, as nobody stands against themselves.
void Album::FillIn(ui::Screen& screen) {
  std::vector<const ui::ListBox*> filled;
  for (const ui::Control* control : screen.Controls()) {
    if (control->Name() == kAsksForAName && control->Is() == ui::Kind::TextBox &&
        control->Enabled && control->Text->empty())
      window_.Act([&] { return ui::Type(desk_, screen, kAsksForAName, kName); });
    const auto* list = dynamic_cast<const ui::ListBox*>(control);
    if (!list || list->Multi || !list->Visible || !list->Enabled) continue;
    if (list->Count() == 0 || list->Selected() != 0) continue;
    const auto alike = std::ranges::count_if(filled, [&](const ui::ListBox* other) {
      return other->Count() == list->Count() &&
             other->Rows().front().Cells == list->Rows().front().Cells;
    });
    const int row = std::min(static_cast<int>(alike) + 1, list->Count());
    window_.Act([&] { return ui::Pick(desk_, screen, list->Name(), row); });
    filled.push_back(list);
  }
}

void Album::Click(ui::Screen& screen, const std::string& control) {
  window_.Act([&] { return ui::Click(desk_, screen, control); });
  LetItPaint();
}

void Album::Visit() {
  const std::shared_ptr<ui::Screen> screen = desk_.Screens().back();
  taken_.insert(screen->Name());
  FillIn(*screen);
  Take(screen->Name());
  for (const std::string& way : WaysOn(*screen)) {
    if (desk_.Top() != screen.get()) return;
    Try(*screen, way);
    if (way == kFills && desk_.Top() == screen.get()) Take(screen->Name());
  }
  if (desk_.Top() == screen.get() && screen->Is() == ui::Role::Hub) PlayOn(*screen);
}

void Album::Try(ui::Screen& screen, const std::string& control) {
  const ui::Control* pressed = screen.Find(control);
  if (!pressed || !pressed->Enabled || !pressed->Visible) return;
  Click(screen, control);
  while (desk_.Top() && desk_.Top() != &screen && desk_.Holds(screen)) {
    if (!taken_.contains(desk_.Top()->Name()))
      Visit();
    else
      LeaveTop();
  }
}

/// By its way back, else through its one way on, else it is taken away.
void Album::LeaveTop() {
  const QScopedValueRollback<bool> leaving(saysYes_, true);
  const std::shared_ptr<ui::Screen> top = desk_.Screens().back();
  const ui::Page page = top->Layout();
  for (const ui::Button* way : {page.Cancel, page.Main})
    for (int i = 0; way && i < kMostClicks && desk_.Top() == top.get() && way->Enabled; ++i) {
      Click(*top, way->Name());
      if (way == page.Cancel) break;
    }
  if (desk_.Top() != top.get()) return;
  desk_.Event([&] { desk_.Close(*top); });
  window_.Sync();
}

void Album::PlayOn(ui::Screen& hub) {
  const QScopedValueRollback<bool> yes(saysYes_, true);
  for (int day = 0; day < kShowDays && desk_.Top() == &hub; ++day)
    for (const char* step : {"cmduntil", "cmdnext"}) Try(hub, step);
}

void KeepPicture(Window& window, const QString& folder, const QString& look,
                 const std::string& screen) {
  const QDir place(folder + "/" + look);
  const QString file = place.filePath(Shown(screen) + ".png");
  if (!place.mkpath(".") || !window.grab().save(file))
    throw std::runtime_error("Cannot write " + file.toStdString() + ".");
}

}  // namespace grapplemont::desktop
