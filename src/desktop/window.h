#pragma once

#include <QElapsedTimer>
#include <QMainWindow>
#include <QPointer>
#include <QStackedLayout>
#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "desktop/box.h"
#include "desktop/finder.h"
#include "desktop/topbar.h"
#include "ui/share.h"

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
  void Repaint() override;

 private:
  friend class Window;
  Window* window_ = nullptr;
};

/// The one window of the program: it shows what lies on the desk.
class Window : public QMainWindow, public Stage {
 public:
  struct Options {
    QString Pictures;  // the folder gfx/
    QString Settings;  // the file settings.ini; empty: nothing is kept
    std::function<void()> Closing;
  };
  Window(WindowDesk& desk, Options options);
  ~Window() override;

  /// Brings what is shown to what lies on the desk.
  void Sync();
  /// Keeps a small picture of what is shown.
  void KeepPage(const QString& file);

  // What the player sets about the window, in windowkeys.cpp.
  void SetColours(Scheme scheme);
  void SetZoom(int zoom);
  void SetStill(bool still);
  void TurnFullScreen();
  /// All views are made again: their sizes and colours were taken when they were built.
  void Relook();

  // What the desk asks for.
  /// Waits for the answer to a box: the place of its button from 0, the careful answer when there
  /// is none. With a line, that is offered and then holds what was typed.
  int AnswerOf(const std::string& title, const std::string& text, const QStringList& captions,
               int usual, std::string* line = nullptr);
  void RepaintNow();

  // The stage of the views.
  ui::Desk& Desk() override { return desk_; }
  Settings& Kept() override { return settings_; }
  QString PictureFile(const std::string& name) const override;
  void Act(const std::function<std::string()>& act) override;
  void Hint(QWidget& beside, const QString& text) override;

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
  /// Which screens of the desk are to be seen.
  struct Scene {
    Held Base, Hub;
    std::vector<Held> Dialogs;
  };
  Scene Survey();
  /// Whether a waiting screen has come too lately to be shown.
  bool IsPatient(const ui::Screen& screen);
  void DropGone();
  Layer& LayerOf(const Held& screen, const Scene& scene);
  void Place(ScreenView& view, const Scene& scene);
  HubFrame& FrameOf(ui::Screen& hub);
  void Retire(Layer& layer);
  void RetireAll();
  void ShowNow(const Scene& scene);
  /// What is shown of a screen; nullptr for nothing.
  ScreenView* ViewFor(const ui::Screen* screen) const;
  ScreenView* TopView() const { return ViewFor(top_); }
  ScreenView* HubView() const { return ViewFor(framed_); }

  // The hub's commands, in hubcommands.cpp.
  void PressHub(ui::Button& command);
  /// Leaves what lies above the hub by its Cancel buttons; false when something stays.
  bool LeaveUpTo(const ui::Screen& hub);
  const ui::Screen* Above(const ui::Screen& hub) const;
  const ui::Button* PresentCommand() const;
  /// Whether the side bar may be used: no dialog lies over it.
  bool HubInReach() const;
  bool PressSideKey(const QKeyEvent& event);
  void OpenFinder();
  std::vector<Finder::Entry> FinderEntries();

  // Keys and the window's own commands, in windowkeys.cpp.
  struct OwnCommand {
    std::vector<int> Keys;  // with Ctrl
    QString Words, Key;     // as they are found; without words it is not
    std::function<void()> Run;
  };
  std::vector<OwnCommand> OwnCommands();
  bool HandleCommonKey(const QKeyEvent& event);
  void TurnColours();
  void OpenOptions();
  // What the page tells, for elsewhere; in sharing.cpp.
  std::vector<OwnCommand> SharingCommands();
  void CopyPage(ui::Form form);
  void CopyPicture();
  void SavePage();
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
  QPointer<QLabel> hint_;
  std::map<std::string, std::string> commandOf_;  // screen to the command that opens it
  int acting_ = 0;
  bool syncing_ = false, busy_ = false, closing_ = false;
  QElapsedTimer lastPaint_;
  QElapsedTimer waiting_;
  const ui::Screen* waitsFor_ = nullptr;
};

}  // namespace grapplemont::desktop
