#pragma once

#include <QElapsedTimer>
#include <QMainWindow>
#include <QPointer>
#include <QStackedLayout>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <vector>

#include "desktop/box.h"
#include "desktop/finder.h"
#include "desktop/sharing.h"
#include "desktop/topbar.h"

namespace grapplemont::desktop {

class Window;

/// The desk whose screens lie in a window. Without one, questions are answered with the careful
/// answer.
class WindowDesk : public ui::Desk {
 public:
  void Say(const std::string& title, const std::string& text) override;
  bool Ask(const std::string& title, const std::string& text, ui::Default answer) override;
  std::string Prompt(const std::string& title, const std::string& text,
                     const std::string& offered) override;
  std::string ChooseFile(const std::string& title, const std::string& text,
                         const std::string& offered, Use use) override;
  void Hear(ui::Sound sound) override;
  void Repaint() override;
  bool HasClock() const override { return true; }

 private:
  friend class Window;
  Window* window_ = nullptr;
};

/// The one window of the program: it shows what lies on the desk.
class Window : public QMainWindow, public Stage {
 public:
  struct Options {
    QStringList Pictures;  // folders over each other, the uppermost first
    QString Settings;      // the file settings.ini; empty: nothing is kept
    std::function<void()> Closing;
    std::function<OpenGame()> Game = {};  // what is being played; without it no game is
    /// Plays a sound at a volume in percent, without waiting for it; without it there is none.
    std::function<void(ui::Sound sound, int volume)> Play = {};
  };
  Window(WindowDesk& desk, Options options);
  ~Window() override;

  /// Brings what is shown to what lies on the desk.
  void Sync();
  /// Colours, and the step above or below the desktop's size of text.
  void SetLook(Scheme scheme, int zoom);
  /// Keeps a small picture of what is shown.
  void KeepPage(const QString& file);

  // What the player sets about the window, in windowcommands.cpp.
  void SetColours(Scheme scheme);
  void SetZoom(int zoom);
  void SetScale(int percent);
  void SetStill(bool still);
  void SetSounds(bool on);
  void SetVolume(int percent);
  void SetDates(DateForm form);
  void TurnFullScreen();
  /// The desktop has turned dark or light; who has chosen its colours sees that, once what is under
  /// way is done.
  void FollowDesktop(bool dark);
  /// All views are made again: their sizes and colours were taken when they were built.
  void Relook();
  void TakeLook();

  // What the desk asks for.
  /// Waits for the answer to a box: the place of its button from 0, the careful answer when there
  /// is none. With a line, that is offered and then holds what was typed.
  int AnswerOf(const std::string& title, const std::string& text, const QStringList& captions,
               int usual, std::string* line = nullptr);
  /// The whole path of a file that the player chooses; empty for none.
  std::string FileFor(const std::string& title, const std::string& offered, ui::Desk::Use use);
  void RepaintNow();
  void Hear(ui::Sound sound);

  // The stage of the views.
  ui::Desk& Desk() override { return desk_; }
  Settings& Kept() override { return settings_; }
  QString PictureFile(const std::string& name) const override;
  void Act(const std::function<std::string()>& act) override;
  void Hint(QWidget& beside, const QString& text, ui::Tone tone = ui::Tone::Red) override;

  /// The key that leads to the window's options.
  std::string KeyOfOptions();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  /// What is shown of one screen. A dialog's view lies in a veil.
  struct Layer {
    ui::Screen* Screen;
    ScreenView* View;
    QPointer<Veil> Over;
  };
  using Held = std::shared_ptr<ui::Screen>;
  /// Which screens of the desk are visible.
  struct Scene {
    Held Base, Hub;
    std::vector<Held> Dialogs;
  };
  Scene Survey();
  void DropInput();
  /// Whether a waiting screen has come too lately to be shown.
  bool IsPatient(const ui::Screen& screen);
  void DropGone();
  Layer& LayerOf(const Held& screen, const Scene& scene);
  void Place(ScreenView& view, const Scene& scene);
  /// Pages above the hub that are covered keep their views, also when the look changes: one of them
  /// may stay while rooms are visited.
  void KeepCovered(const Scene& scene);
  HubFrame& FrameOf(ui::Screen& hub);
  void Retire(Layer& layer);
  void RetireAll();
  void DropHint();
  void ShowNow(const Scene& scene);
  void GiveBackKeyboard(ScreenView& view);
  /// What is shown of a screen; nullptr for nothing.
  ScreenView* ViewFor(const ui::Screen* screen) const;
  ScreenView* TopView() const { return ViewFor(top_); }
  ScreenView* HubView() const { return ViewFor(framed_); }

  // The hub's commands, in hubcommands.cpp.
  void PressHub(ui::Button& command);
  /// Leaves what lies above the screen by its Cancel buttons; false when something stays.
  bool LeaveUpTo(const ui::Screen& screen);
  /// The topmost page above the hub that stays while rooms are visited; nullptr for none.
  ScreenView* Staying() const;
  /// What rooms open above: a page that stays, else the hub. Requires a hub.
  const ui::Screen& Ground() const;
  /// Why a command of the hub waits at present; empty when it does not.
  std::string WhyWaits(const ui::Button& command) const;
  const ui::Button* PresentCommand() const;
  /// Whether the side bar may be used: no dialog lies over it.
  bool HubInReach() const;
  bool PressSideKey(const QKeyEvent& event);
  /// Presses the button of the top screen that has this key, unless what is typed in has it.
  bool PressButtonKey(const QWidget& typedIn, const QKeyEvent& event);
  /// Says why a button of the top screen cannot be pressed, where it stands.
  void HintAt(const ui::Button& refused, const QString& why);
  void OpenFinder();
  std::vector<Finder::Entry> FinderEntries();
  void AddPageActs(std::vector<Finder::Entry>& entries);
  void AddCoveredActs(std::vector<Finder::Entry>& entries);
  void AddRooms(std::vector<Finder::Entry>& entries);
  void Remember(const Finder::Entry& chosen);

  // Keys and the window's own commands, in windowkeys.cpp and windowcommands.cpp.
  struct OwnCommand {
    QString Words;
    std::function<void()> Run;
    QString Also = {};       // other words that people say for it
    std::string Id = {};     // what its key is kept under; none: no key can be set
    std::string Usual = {};  // its key unless the player sets another
    bool IsFound = true;     // by search
  };
  std::vector<OwnCommand> OwnCommands();
  QString KeyOf(const OwnCommand& own) const {
    return own.Id.empty() ? Shown(own.Usual) : settings_.Key(own.Id, own.Usual);
  }
  /// All that a key can be set for at present, and all that one has been set for.
  std::vector<KeyedCommand> KeyCommands();
  void AddPageKeys(std::vector<KeyedCommand>& commands);
  /// What F1 says of them on a screen.
  std::vector<std::string> KeyLines(ui::Screen& of);
  bool PressOwnKey(const QKeyEvent& event);
  std::vector<OwnCommand> KeyedCommands();
  std::vector<OwnCommand> SettingCommands();
  bool HandleCommonKey(const QWidget& typedIn, const QKeyEvent& event);
  /// What Enter presses at present; nullptr for nothing.
  ui::Button* EnterButton() const;
  void PressEnter();
  /// The sign of the Enter key stands on what it presses, and nowhere else.
  void ShowEnter();
  void OpenHelp();
  void TakeBack(const ui::Desk::TakingBack& back, const char* told);
  void OpenGlossary(const std::string& term);
  void TurnColours();
  void OpenOptions();
  void ShowOptions();
  // What the page tells, for elsewhere; in sharing.cpp.
  std::vector<OwnCommand> SharingCommands();
  void SavePage(const Shareable& shared);
  bool SwallowWhileBusy(QObject* watched, QEvent* event);

  WindowDesk& desk_;
  Options options_;
  Settings settings_;
  QWidget* ground_;
  QStackedLayout* full_;  // covers, and the hub's frame
  HubFrame* frame_ = nullptr;
  const ui::Screen* framed_ = nullptr;  // the hub that the frame is of
  std::vector<Layer> layers_;           // in the desk's order, those that have been seen
  ui::Screen* top_ = nullptr;
  QPointer<MessageBox> box_;
  QPointer<Finder> finder_;
  std::vector<Finder::Entry> recent_;  // what was chosen in it, the last first
  QPointer<QLabel> hint_;
  /// The controls that had the keyboard in views that were taken away, and will be made again.
  std::map<const ui::Screen*, const ui::Control*> hadKeyboard_;
  int acting_ = 0;
  std::set<ui::Sound> heard_;  // in the event that is under way
  bool syncing_ = false, busy_ = false, closing_ = false;
  QElapsedTimer lastPaint_;
  QElapsedTimer waiting_;
  QElapsedTimer acted_;  // since the event under way began, or was last answered
  const ui::Screen* waitsFor_ = nullptr;
};

}  // namespace grapplemont::desktop
