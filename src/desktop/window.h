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

namespace grapplemont::desktop {

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

  // What the desk asks for.
  void Say(const std::string& title, const std::string& text);
  bool Ask(const std::string& title, const std::string& text, ui::Default answer);
  std::string Prompt(const std::string& title, const std::string& text, const std::string& offered);
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
  /// Which screens of the desk are to be seen, by their places in its stack.
  struct Scene {
    int Base = -1, Hub = -1;
    std::vector<int> Dialogs;
  };
  Scene Survey();
  /// Whether a waiting screen has come too lately to be shown.
  bool IsPatient(const ui::Screen& screen);
  void DropGone();
  Layer& LayerOf(int place, const Scene& scene);
  void Place(ScreenView& view, const Scene& scene);
  HubFrame& FrameOf(int hub);
  void Retire(Layer& layer);
  void RetireAll();
  void ShowNow(const Scene& scene);
  ScreenView* TopView() const;

  // The hub's commands, in hubcommands.cpp.
  void PressHub(ui::Button& command);
  /// Leaves what lies above the hub by its Cancel buttons; false when something stays.
  bool LeaveUpTo(const ui::Screen& hub);
  void RememberCommand(const ui::Screen& hub, const ui::Button& command);
  const ui::Button* CommandOf(const Scene& scene) const;
  ScreenView* HubView() const;
  bool PressSideKey(const QKeyEvent& event);
  void OpenFinder();
  std::vector<Finder::Entry> FinderEntries();

  bool HandleCommonKey(const QKeyEvent& event);
  void TurnColours();
  void SetZoom(int zoom);
  void Relook();
  std::optional<int> RunBox(MessageBox& box);
  bool SwallowWhileBusy(QObject* watched, QEvent* event);
  void AfterEvent();
  void KeepPlace();

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
