#include "desktop/window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QTimer>
#include <algorithm>

#include "desktop/pieces.h"
#include "desktop/spoken.h"

namespace grapplemont::desktop {

namespace {

constexpr QSize kUsualSize(1280, 800), kLeastSize(1024, 640);
/// A waiting screen is shown only to those who wait: a plain day is over before.
constexpr qint64 kPatience = 200;  // milliseconds
constexpr qint64 kFrame = 33;      // between two pictures of a long event
constexpr int kHintTime = 6000;
constexpr int kPageWidth = 272;  // of the picture of the last page

}  // namespace

Window::Window(WindowDesk& desk, Options options)
    : desk_(desk),
      options_(std::move(options)),
      settings_(options_.Settings),
      ground_(new QWidget(this)),
      full_(new QStackedLayout(ground_)) {
  desk_.window_ = this;
  desk_.OpenShellOptions = [this] { ShowOptions(); };
  desk_.Help.Keys = [this](ui::Screen& of) { return KeyLines(of); };
  settings_.Game = options_.Game;
  UseDateForm(settings_.Dates());
  TakeLook();
  setWindowTitle("Grapplemont");
  setCentralWidget(ground_);
  setMinimumSize(kLeastSize);
  resize(kUsualSize);
  if (const QByteArray place = settings_.Place(); !place.isEmpty()) restoreGeometry(place);
  if (settings_.Still()) SetStill(true);
  qApp->installEventFilter(this);
  connect(qApp, &QApplication::focusChanged, this, [this] { ShowEnter(); });
}

Window::~Window() {
  qApp->removeEventFilter(this);
  qApp->disconnect(this);
  // A field that is left tells what was typed in it; nobody listens any more.
  syncing_ = true;
  qDeleteAll(findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly));
  desk_.OpenShellOptions = {};
  desk_.Help.Keys = {};
  desk_.window_ = nullptr;
}

QString Window::PictureFile(const std::string& name) const {
  for (const QString& folder : options_.Pictures)
    if (const QString file = folder + "/" + Shown(name); QFileInfo(file).isFile())
      return QDir::cleanPath(file);
  return {};
}

void Window::KeepPage(const QString& file) {
  if (!ground_->size().isEmpty())
    ground_->grab().scaledToWidth(kPageWidth, Qt::SmoothTransformation).save(file, "PNG");
}

bool Window::IsPatient(const ui::Screen& screen) {
  if (waitsFor_ != &screen) {
    waitsFor_ = &screen;
    waiting_.start();
  }
  return waiting_.elapsed() < kPatience;
}

Window::Scene Window::Survey() {
  Scene scene;
  const ui::Screen* waiting = nullptr;
  for (const Held& screen : desk_.Screens()) {
    const ui::Role role = screen->Is();
    if (role == ui::Role::Wait) {
      waiting = screen.get();
      if (IsPatient(*screen)) continue;
    }
    if (role == ui::Role::Dialog) {
      scene.Dialogs.push_back(screen);
      continue;
    }
    scene.Base = screen;
    scene.Dialogs.clear();
    if (role == ui::Role::Hub) scene.Hub = screen;
  }
  if (!waiting) waitsFor_ = nullptr;
  return scene;
}

void Window::DropGone() {
  for (Layer& layer : layers_)
    if (!desk_.Holds(*layer.Screen)) {
      Retire(layer);
      settings_.Forget(*layer.Screen);
      hadKeyboard_.erase(layer.Screen);
    }
  std::erase_if(layers_, [](const Layer& layer) { return !layer.View; });
}

/// Takes a view away. It is deleted once control is back in the event loop: the event that has
/// closed it may have come from one of its widgets.
void Window::Retire(Layer& layer) {
  if (!layer.View) return;
  if (top_ == layer.Screen) top_ = nullptr;
  hadKeyboard_[layer.Screen] = layer.View->KeyboardHeld();
  layer.View->Leave();
  if (frame_ && layer.Screen == framed_) {
    // Names that were found belong to the game that is left.
    if (!desk_.Holds(*layer.Screen))
      std::erase_if(recent_, [](const Finder::Entry& one) { return bool(one.Open); });
    // What lies in the frame goes with it.
    HubFrame* const frame = std::exchange(frame_, nullptr);
    framed_ = nullptr;
    for (Layer& other : layers_)
      if (other.View && other.View != layer.View && frame->isAncestorOf(other.View)) {
        hadKeyboard_[other.Screen] = other.View->KeyboardHeld();
        other.View->Leave();
        other.View = nullptr;
      }
    frame->hide();
    frame->deleteLater();
  } else {
    QWidget* widget = layer.View;
    if (layer.Over) widget = layer.Over;
    widget->hide();
    widget->deleteLater();
  }
  layer.View = nullptr;
}

void Window::RetireAll() {
  DropHint();
  for (Layer& layer : layers_) Retire(layer);
  layers_.clear();
  top_ = nullptr;
}

Window::Layer& Window::LayerOf(const Held& screen, const Scene& scene) {
  for (Layer& layer : layers_)
    if (layer.Screen == screen.get()) return layer;
  Layer layer{screen.get(), nullptr, nullptr};
  if (screen->Is() == ui::Role::Dialog) {
    layer.Over = new Veil(ground_);
    auto* inside = NewLayout<QVBoxLayout>(&layer.Over->Sheet(), -1, {20, 18, 20, 18});
    layer.View = new ScreenView(screen, *this, &layer.Over->Sheet());
    inside->addWidget(layer.View);
    layer.View->setMinimumWidth(Px(380));
    layer.Over->SetWanted(layer.View->DialogSize());
    layer.Over->setAccessibleName(Shown(screen->Title.Get()));
  } else {
    layer.View = new ScreenView(screen, *this, ground_);
    Place(*layer.View, scene);
  }
  GiveBackKeyboard(*layer.View);
  layers_.push_back(layer);
  return layers_.back();
}

/// Puts a page into the room beside the side bar, all else over the whole window.
void Window::Place(ScreenView& view, const Scene& scene) {
  const ui::Role role = view.Shows().Is();
  const bool framed = role == ui::Role::Hub || (role == ui::Role::Page && scene.Hub);
  if (!framed) {
    full_->addWidget(&view);
    return;
  }
  if (role == ui::Role::Page) LayerOf(scene.Hub, scene);  // the frame comes with the hub
  FrameOf(*scene.Hub).Room().addWidget(&view);
}

HubFrame& Window::FrameOf(ui::Screen& hub) {
  if (framed_ == &hub) return *frame_;
  frame_ = new HubFrame(hub.Layout(), *this, ground_);
  framed_ = &hub;
  frame_->Side().Pressed = [this](ui::Button& command) { PressHub(command); };
  frame_->Side().Search = [this] { OpenFinder(); };
  frame_->Side().Home = [this] {
    if (framed_) LeaveUpTo(Ground());
  };
  frame_->Top().Pressed = [this](ui::Button& action) { PressHub(action); };
  full_->addWidget(frame_);
  return *frame_;
}

void Window::Sync() {
  if (syncing_) return;
  syncing_ = true;
  if (ScreenView* top = TopView()) top->RememberKeyboard();
  DropGone();
  const Scene scene = Survey();
  if (scene.Base) ShowNow(scene);
  syncing_ = false;
  ShowEnter();
}

void Window::ShowNow(const Scene& scene) {
  KeepCovered(scene);
  ScreenView* const base = LayerOf(scene.Base, scene).View;
  const bool framed = frame_ && frame_->isAncestorOf(base);
  if (framed) {
    frame_->Room().setCurrentWidget(base);
    frame_->Refresh();
    frame_->Side().SetNow(PresentCommand());
    frame_->Side().Hold([this](const ui::Button& command) { return WhyWaits(command); });
    frame_->Top().Hold(Staying() ? Staying()->Page().Stays : std::string());
  }
  base->Refresh();
  full_->setCurrentWidget(framed ? frame_ : static_cast<QWidget*>(base));
  ScreenView* top = base;
  // A page covers the dialogs that it was opened from.
  for (const Layer& layer : layers_)
    if (layer.Over &&
        std::ranges::find(scene.Dialogs, layer.Screen, &Held::get) == scene.Dialogs.end())
      layer.Over->hide();
  for (const Held& dialog : scene.Dialogs) {
    Layer& layer = LayerOf(dialog, scene);
    layer.View->Refresh();
    layer.Over->PlaceCard();
    layer.Over->show();
    layer.Over->raise();
    top = layer.View;
  }
  // A dialog that changes by itself covers neither what is searched for nor noted nor asked.
  for (QWidget* above : std::initializer_list<QWidget*>{finder_, hint_, box_})
    if (above) above->raise();
  const bool isNew = top_ != &top->Shows();
  if (isNew) DropHint();
  top_ = &top->Shows();
  if (isNew && !box_) top->TakeKeyboard();
}

/// Of a view that was made again, to the control that had the keyboard in the one before.
void Window::GiveBackKeyboard(ScreenView& view) {
  const auto had = hadKeyboard_.find(&view.Shows());
  if (had == hadKeyboard_.end()) return;
  if (had->second) view.HoldKeyboard(*had->second);
  hadKeyboard_.erase(had);
}

ScreenView* Window::ViewFor(const ui::Screen* screen) const {
  for (const Layer& layer : layers_)
    if (layer.View && layer.Screen == screen) return layer.View;
  return nullptr;
}

void Window::Act(const std::function<std::string()>& act) {
  if (acting_ > 0 || syncing_) return;
  ++acting_;
  heard_.clear();
  const ui::Screen* const before = top_;
  acted_.start();
  const std::string why = act();
  --acting_;
  Sync();
  if (top_ != before && acted_.elapsed() > kPatience) DropInput();
  if (!why.empty()) Hint(*this, Shown(why));
  // The program ends when nothing lies on the desk any more, or when the window was to be closed
  // during an event.
  if (desk_.Empty() || closing_) QTimer::singleShot(0, this, [this] { close(); });
}

int Window::AnswerOf(const std::string& title, const std::string& text, const QStringList& captions,
                     int usual, std::string* line) {
  if (closing_) return 0;
  Sync();
  MessageBox box(ground_, Shown(title), Shown(text));
  if (line) box.AddLine(Shown(*line), *this);
  for (int i = 0; i < captions.size(); ++i) box.AddButton(captions[i], i, i == usual);
  const QPointer<QWidget> focus = focusWidget();
  const QPointer<MessageBox> before = std::exchange(box_, &box);
  const bool busy = std::exchange(busy_, false);
  ShowEnter();
  const int answer = box.Run().value_or(0);
  box_ = before;
  busy_ = busy;
  if (focus && focus->isVisible()) focus->setFocus(Qt::ActiveWindowFocusReason);
  if (ScreenView* const top = TopView(); top && captions.size() == 1) top->ShowWhatIsMissing();
  ShowEnter();
  if (line) *line = Keep(box.Line()).Text;
  acted_.start();
  return answer;
}

/// The game itself asks before it writes over a file.
std::string Window::FileFor(const std::string& title, const std::string& offered,
                            ui::Desk::Use use) {
  if (closing_) return {};
  const bool busy = std::exchange(busy_, false);
  const QString file = use == ui::Desk::Use::Read ? QFileDialog::getOpenFileName(this, Shown(title))
                                                  : QFileDialog::getSaveFileName(
                                                        this, Shown(title), Shown(offered), {},
                                                        nullptr, QFileDialog::DontConfirmOverwrite);
  busy_ = busy;
  const Keepable kept = Keep(file);
  if (kept.Refused.isEmpty()) return kept.Text;
  Hint(*this, RefusalOf(kept.Refused));
  return {};
}

void Window::RepaintNow() {
  if (busy_) return;
  const auto& screens = desk_.Screens();
  if (!screens.empty() && screens.back()->Is() == ui::Role::Wait && IsPatient(*screens.back()))
    return;
  if (lastPaint_.isValid() && lastPaint_.elapsed() < kFrame) return;
  Sync();
  busy_ = true;
  QApplication::processEvents();
  busy_ = false;
  lastPaint_.start();
}

/// It was said of another page, or drawn for another look.
void Window::DropHint() {
  delete hint_;
}

void Window::Hint(QWidget& beside, const QString& text, ui::Tone tone) {
  DropHint();
  hint_ = new WrappedLabel(ground_, text);
  hint_->setObjectName("hint");
  const Colours& c = ColoursOf(this);
  QPalette colours = hint_->palette();
  colours.setColor(QPalette::Window, c.Button);
  hint_->setPalette(colours);
  hint_->setAutoFillBackground(true);
  SetInk(*hint_, TextColour(c, tone));
  hint_->setContentsMargins(Px(10), Px(6), Px(10), Px(6));
  hint_->adjustSize();
  QPoint at = &beside == this ? QPoint((ground_->width() - hint_->width()) / 2, Px(60))
                              : beside.mapTo(ground_, QPoint(0, beside.height() + Px(4)));
  at.setX(std::clamp(at.x(), 0, std::max(0, ground_->width() - hint_->width())));
  at.setY(std::clamp(at.y(), 0, std::max(0, ground_->height() - hint_->height())));
  hint_->move(at);
  hint_->show();
  hint_->raise();
  Announce(*hint_);
  QTimer::singleShot(kHintTime, hint_.data(), &QObject::deleteLater);
}

/// There is nothing to save, so nothing is asked. Amid an event, its boxes get the careful answer
/// and the window goes once the event has ended.
void Window::closeEvent(QCloseEvent* event) {
  if (acting_ > 0) {
    closing_ = true;
    if (box_) box_->Dismiss();
    return event->ignore();
  }
  for (const Layer& layer : layers_)
    if (layer.View) layer.View->Leave();
  settings_.SetPlace(saveGeometry());
  if (options_.Closing) options_.Closing();
  event->accept();
}

void WindowDesk::Say(const std::string& title, const std::string& text) {
  if (window_) window_->AnswerOf(title, text, {"OK"}, 0);
  Note({"ok"});
}

bool WindowDesk::Ask(const std::string& title, const std::string& text, ui::Default answer) {
  const int usual = answer == ui::Default::Yes ? 1 : 0;
  const bool yes = window_ && window_->AnswerOf(title, text, {"No", "Yes"}, usual) == 1;
  Note({yes ? "yes" : "no"});
  return yes;
}

std::string WindowDesk::Prompt(const std::string& title, const std::string& text,
                               const std::string& offered) {
  std::string line = offered;
  const bool taken = window_ && window_->AnswerOf(title, text, {"Cancel", "OK"}, 1, &line) == 1;
  Note({taken ? "enter " + line : "cancel"});
  return taken ? line : std::string();
}

std::string WindowDesk::ChooseFile(const std::string& title, const std::string&,
                                   const std::string& offered, Use use) {
  return window_ ? window_->FileFor(title, offered, use) : std::string();
}

void WindowDesk::Hear(ui::Sound sound) {
  if (window_) window_->Hear(sound);
}

void WindowDesk::Repaint() {
  if (window_) window_->RepaintNow();
}

}  // namespace grapplemont::desktop
