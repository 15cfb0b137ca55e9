#include "desktop/album.h"

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QThread>
#include <QTimer>
#include <algorithm>
#include <array>

#include "ui/acts.h"
#include "words/help.h"

namespace grapplemont::desktop {

namespace {

/// What changes a screen so much that it is tried behind all else, in this order.
constexpr std::array<std::string_view, 8> kLast = {"cmdloadgame", "cmdcontinue", "cmdauto",
                                                   "cmdfill",     "cmddoshow",   "cmdcancel",
                                                   "cmduntil",    "cmdnext"};
/// What only explains is looked at before anything leads away.
constexpr std::string_view kExplains = "cmdwhy";
/// Lists whose first row leads to a page of somebody, the last to one of its own; or which begin
/// with nobody at all.
constexpr std::array<std::string_view, 2> kLeadFromTheirEnd = {"lstproof", "lststaff"};
/// What makes a screen worth a second picture in the first one's place.
constexpr std::array<std::string_view, 2> kFills = {"cmdfill", "cmdplay"};
/// What is taken rather than left, as a show cannot be held without a card.
constexpr std::string_view kProposes = "frmFill";
constexpr std::string_view kLeavesTheGame = "cmdquit";
/// Its ways lead to another day, on which the walk would begin anew.
constexpr std::string_view kLeavesTheDay = "frmMornings";
/// Double clicks lead from step to step of a booking, and past the whole that this button shows.
constexpr std::string_view kWholeBooking = "frmBookSheet", kShowsWhole = "cmddone";
/// A new game needs a name.
constexpr std::string_view kAsksForAName = "txtname", kName = "Pat Lee";

/// What opens by its name alone, though doors to it open in some games only or luck brings it; the
/// last leads out of the game.
constexpr const char* kByName[] = {"frmProspect", "frmMonth", "frmPlayOn", "frmGodMode",
                                   "frmTvOffer",  "frmPinky", "frmTheEnd"};
/// What a game may never come to: it is passed in no time, or wants somebody's consent or riches.
constexpr std::string_view kByLuck[] = {"frmWait",
                                        "frmIncident",
                                        "frmTakeover",
                                        "frmStaffContract",
                                        "frmOtherStaffContract",
                                        "frmFeudStat",
                                        "frmPPVBooking",
                                        "frmAngle*",
                                        "frmIV*"};

constexpr int kMostClicks = 80;  // to get through a screen that has only one way
constexpr int kShowDays = 8;     // that are played for what they may bring
constexpr int kBoxesEvery = 5;   // milliseconds

/// The controls of a screen that lead on, in the order in which they are tried.
std::vector<std::string> WaysOn(ui::Screen& screen) {
  if (screen.Name() == kLeavesTheDay) return {};
  const ui::Button* const back = screen.Layout().Cancel;
  std::vector<std::string> ways, last;
  for (const ui::Control* control : screen.Controls()) {
    const auto* picture = dynamic_cast<const ui::Picture*>(control);
    const auto* list = dynamic_cast<const ui::ListBox*>(control);
    const bool leads = control->Is() == ui::Kind::Button || (picture && picture->OnClick) ||
                       (list && list->OnOpen && list->Count() > 0);
    if (!leads || control == back || control->Name() == kLeavesTheGame) continue;
    const bool isLast = std::ranges::find(kLast, control->Name()) != kLast.end();
    auto& where = isLast ? last : ways;
    where.insert(control->Name() == kExplains ? where.begin() : where.end(), control->Name());
  }
  std::ranges::sort(last, {},
                    [](const std::string& name) { return std::ranges::find(kLast, name); });
  ways.insert(ways.end(), last.begin(), last.end());
  return ways;
}

std::string SizeName(const QSize& size) {
  return std::to_string(size.width()) + "x" + std::to_string(size.height());
}

const char* SchemeName(Scheme scheme) {
  return scheme == Scheme::Light ? "light" : "dark";
}

void LetItPaint() {
  for (int i = 0; i < 4; ++i) QApplication::processEvents();
}

/// Whether the screen waits for something and looks by itself whether it is there.
bool IsWaiting(const ui::Screen& screen) {
  return std::ranges::any_of(screen.Controls(), [](const ui::Control* control) {
    const auto* button = dynamic_cast<const ui::Button*>(control);
    return button && button->Visible && button->Every > 0;
  });
}

}  // namespace

Album::Album(Window& window, WindowDesk& desk, Looks looks, Watcher shown)
    : window_(window), desk_(desk), looks_(std::move(looks)), shown_(std::move(shown)) {}

Album::Looks Album::Looks::Of(const std::vector<std::string>& words) {
  const Looks all;
  Looks looks{{}, {}, {}, {}};
  for (const std::string& word : words) {
    const std::size_t before =
        looks.Sizes.size() + looks.Schemes.size() + looks.Texts.size() + looks.Screens.size();
    for (const QSize& size : all.Sizes)
      if (word == SizeName(size)) looks.Sizes.push_back(size);
    for (const Scheme scheme : all.Schemes)
      if (word == SchemeName(scheme)) looks.Schemes.push_back(scheme);
    for (const int text : all.Texts)
      if (word == std::to_string(text)) looks.Texts.push_back(text);
    if (word.starts_with("frm") || word == "finder" || word == "box") looks.Screens.insert(word);
    if (looks.Sizes.size() + looks.Schemes.size() + looks.Texts.size() + looks.Screens.size() ==
        before)
      throw std::runtime_error("No picture is of \"" + word + "\".");
  }
  if (looks.Sizes.empty()) looks.Sizes = all.Sizes;
  if (looks.Schemes.empty()) looks.Schemes = all.Schemes;
  if (looks.Texts.empty()) looks.Texts = all.Texts;
  return looks;
}

void Album::Fill() {
  QTimer boxes;
  QObject::connect(&boxes, &QTimer::timeout, &boxes, [this] { AnswerBox(); });
  boxes.start(kBoxesEvery);
  while (desk_.Top() && !taken_.contains(desk_.Top()->Name())) Visit();
}

std::vector<std::string> Album::Missing() const {
  const auto isTaken = [this](std::string_view screen) {
    if (!screen.ends_with('*')) return taken_.contains(std::string(screen));
    screen.remove_suffix(1);
    return std::ranges::any_of(taken_,
                               [&](const std::string& taken) { return taken.starts_with(screen); });
  };
  std::vector<std::string> missing;
  for (const HelpRow& row : kHelpRows)
    if (std::ranges::find(kByLuck, row.Screen) == std::end(kByLuck) && !isTaken(row.Screen))
      missing.emplace_back(row.Screen);
  return missing;
}

/// A question gets the usual answer, or a yes from whoever wants to leave.
void Album::AnswerBox() {
  if (auto* files = qobject_cast<QDialog*>(QApplication::activeModalWidget())) files->reject();
  auto* box = dynamic_cast<MessageBox*>(window_.findChild<QWidget*>("box"));
  if (!box) return;
  if (looking_) return;
  if (onBox_) {
    // Painting lets the timer run again.
    const QScopedValueRollback<bool> looking(looking_, true);
    onBox_();
  }
  auto* yes = box->findChild<QAbstractButton*>("boxyes");
  if (yes && saysYes_) return yes->click();
  yes ? box->TakeUsual() : box->Dismiss();
}

void Album::Take(const std::string& name, const Around& around) {
  if (!looks_.Screens.empty() && !looks_.Screens.contains(name)) return;
  for (const int text : looks_.Texts)
    for (const Scheme scheme : looks_.Schemes) {
      window_.SetLook(scheme, DesktopText() * (text - 100) / 100);
      for (const QSize& size : looks_.Sizes) {
        window_.resize(size);
        const QString look =
            QString("%1-%2-%3").arg(Shown(SizeName(size)), SchemeName(scheme)).arg(text);
        around([&] {
          LetItPaint();
          shown_(name, look);
        });
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
      return other->Count() == list->Count() && other->RowOf(1).Cells == list->RowOf(1).Cells;
    });
    const int row = std::min(static_cast<int>(alike) + 1, list->Count());
    window_.Act([&] { return ui::Pick(desk_, screen, list->Name(), row); });
    filled.push_back(list);
  }
}

void Album::Click(ui::Screen& screen, const std::string& control) {
  const bool isList = screen.Find(control)->Is() == ui::Kind::ListBox;
  // The window remembers which of its rooms was opened, and marks it.
  auto* const command =
      screen.Is() == ui::Role::Hub ? window_.findChild<QAbstractButton*>(Shown(control)) : nullptr;
  if (command && command->isVisible() && command->isEnabled()) {
    command->click();
    return LetItPaint();
  }
  const auto row = [&] {
    return std::ranges::find(kLeadFromTheirEnd, control) != kLeadFromTheirEnd.end()
               ? dynamic_cast<const ui::ListBox&>(*screen.Find(control)).Count()
               : 1;
  };
  window_.Act([&] {
    return isList ? ui::OpenRow(desk_, screen, control, row()) : ui::Click(desk_, screen, control);
  });
  LetItPaint();
}

/// Worlds that are played for it, most of all. Whatever does not come at all is taken as it is.
void Album::LetItCome(const ui::Screen& screen) {
  constexpr int kMost = 120'000, kStep = 20;  // milliseconds
  for (int waited = 0; waited < kMost && desk_.Top() == &screen && IsWaiting(screen);
       waited += kStep) {
    QThread::msleep(kStep);
    LetItPaint();
  }
}

void Album::Visit() {
  const std::shared_ptr<ui::Screen> screen = desk_.Screens().back();
  taken_.insert(screen->Name());
  FillIn(*screen);
  LetItCome(*screen);
  Take(screen->Name());
  if (SeeBooking(*screen)) return;
  for (const std::string& way : WaysOn(*screen)) {
    if (desk_.Top() != screen.get()) return;
    Try(*screen, way);
    LetItCome(*screen);
    if (std::ranges::find(kFills, way) != kFills.end() && desk_.Top() == screen.get())
      Take(screen->Name());
  }
  if (screen->Is() != ui::Role::Hub) return;
  if (desk_.Top() == screen.get()) PlayOn(*screen);
  if (desk_.Top() == screen.get()) VisitTheRest();
}

/// Goes on from there to the next step, which is visited as any other.
bool Album::SeeBooking(ui::Screen& step) {
  const auto& screens = desk_.Screens();
  if (taken_.contains(std::string(kWholeBooking)) || screens.size() < 2) return false;
  const std::shared_ptr<ui::Screen> whole = screens[screens.size() - 2];
  if (whole->Name() != kWholeBooking) return false;
  Click(step, std::string(kShowsWhole));
  if (desk_.Top() != whole.get()) return false;
  taken_.insert(whole->Name());
  Take(whole->Name());
  Click(*whole, whole->Layout().Main->Name());
  return true;
}

void Album::Try(ui::Screen& screen, const std::string& control) {
  const ui::Control* pressed = screen.Find(control);
  if (!pressed || !pressed->Enabled || !pressed->Visible) return;
  // A way tried before may have emptied the list.
  if (const auto* list = dynamic_cast<const ui::ListBox*>(pressed); list && list->Count() == 0)
    return;
  Click(screen, control);
  VisitAbove(screen);
}

void Album::Try(ui::Screen& screen, const ui::Handler& opens) {
  window_.Act([&] {
    desk_.Event(opens);
    return std::string();
  });
  LetItPaint();
  VisitAbove(screen);
}

void Album::VisitAbove(const ui::Screen& screen) {
  while (desk_.Top() && desk_.Top() != &screen && desk_.Holds(screen)) {
    if (!taken_.contains(desk_.Top()->Name()))
      Visit();
    else
      LeaveTop();
  }
}

void Album::TryFromHub(const ui::Handler& opens) {
  const std::shared_ptr<ui::Screen> top = desk_.Top() ? desk_.Screens().back() : nullptr;
  if (top && top->Is() == ui::Role::Hub) Try(*top, opens);
}

void Album::VisitTheRest() {
  TryFromHub([this] { desk_.OpenHelp(); });
  TryFromHub([this] { desk_.OpenGlossary({}); });
  for (const ui::Finding& found : desk_.NewSearch()("w", 1)) TryFromHub(found.Open);
  Take("finder", [this](const Step& look) { LookAtFinder(look); });
  Take("box", [this](const Step& look) { LookAtBox(look); });
  for (const char* name : kByName)
    if (!taken_.contains(name) && desk_.Knows(name)) TryFromHub([&] { desk_.Open(name); });
}

void Album::LookAtFinder(const Step& look) {
  const auto press = [this](const QString& name, int key, Qt::KeyboardModifiers held) {
    QKeyEvent pressed(QEvent::KeyPress, key, held);
    if (auto* widget = window_.findChild<QWidget*>(name)) QApplication::sendEvent(widget, &pressed);
  };
  press(Shown(desk_.Top()->Name()), Qt::Key_K, Qt::ControlModifier);
  look();
  press("finderline", Qt::Key_Escape, Qt::NoModifier);
}

void Album::LookAtBox(const Step& look) {
  onBox_ = look;
  desk_.Say("A Box", "This is how the game speaks to you.");
  onBox_ = {};
}

/// By its way back, else through its one way on, else it is taken away.
void Album::LeaveTop() {
  if (HoldShow()) return;
  const QScopedValueRollback<bool> leaving(saysYes_, true);
  const std::shared_ptr<ui::Screen> top = desk_.Screens().back();
  const ui::Page page = top->Layout();
  std::array<const ui::Button*, 2> ways{page.Cancel, page.Main};
  if (top->Name() == kProposes) std::swap(ways[0], ways[1]);
  for (const ui::Button* way : ways)
    for (int i = 0; way && i < kMostClicks && desk_.Top() == top.get() && way->Enabled; ++i) {
      Click(*top, way->Name());
      if (way == page.Cancel) break;
    }
  if (desk_.Top() != top.get()) return;
  desk_.Event([&] { desk_.Close(*top); });
  window_.Sync();
}

bool Album::HoldShow() {
  const std::shared_ptr<ui::Screen> sheet = desk_.Screens().back();
  if (!playsOn_ || !sheet->Find("cmddoshow")) return false;
  for (const char* step : {"cmdfill", "cmddoshow"}) {
    const ui::Control* const button = sheet->Find(step);
    if (desk_.Top() == sheet.get() && button && button->Enabled && button->Visible)
      Click(*sheet, step);
    if (desk_.Top() != sheet.get() && desk_.Top()->Name() == kProposes) LeaveTop();
  }
  return desk_.Top() != sheet.get();
}

void Album::PlayOn(ui::Screen& hub) {
  const QScopedValueRollback<bool> yes(saysYes_, true), on(playsOn_, true);
  window_.resize(looks_.Sizes.front());
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
