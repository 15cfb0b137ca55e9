#pragma once

#include <QString>
#include <functional>
#include <set>
#include <string>
#include <vector>

#include "desktop/window.h"

namespace grapplemont::desktop {

/// Shows every screen that a player's clicks lead to, at several sizes of the window, in both sets
/// of colours and at two sizes of text. It plays on in the home that is open, so that should be a
/// copy.
class Album {
 public:
  /// How each screen is looked at.
  struct Looks {
    std::vector<QSize> Sizes = {{1024, 640}, {1280, 800}, {1920, 1080}, {2560, 1440}};
    std::vector<Scheme> Schemes = {Scheme::Dark, Scheme::Light};
    std::vector<int> Texts = {100, 200};  // percent of the desktop's text
    std::set<std::string> Screens = {};   // empty: every screen

    /// Those that are left by words such as "frmRoster", "1024x640", "light" and "200"; of a kind
    /// that no word names, all. Throws for a word that names none.
    static Looks Of(const std::vector<std::string>& words);
  };
  /// `shown` hears of each look at a screen, such as "1280x800-dark-100", while it is painted.
  using Watcher = std::function<void(const std::string& screen, const QString& look)>;
  Album(Window& window, WindowDesk& desk, Looks looks, Watcher shown);
  /// Walks on from what lies on the desk until no click leads to a new screen.
  void Fill();
  /// The screens that it has shown.
  const std::set<std::string>& Taken() const { return taken_; }
  /// Those that have help and have not been shown, though they can be reached in every game.
  std::vector<std::string> Missing() const;

 private:
  using Step = std::function<void()>;
  void Visit();
  void LetItCome(const ui::Screen& screen);
  /// Each look is taken by `look`, within what `around` does about it.
  using Around = std::function<void(const Step& look)>;
  void Take(
      const std::string& name, const Around& around = [](const Step& look) { look(); });
  /// What no button leads to: help, pages of names, what only time or luck brings, what lies over
  /// the pages.
  void VisitTheRest();
  void LookAtFinder(const Step& look);
  void LookAtBox(const Step& look);
  void FillIn(ui::Screen& screen);
  /// From a step of a booking, takes the booking as a whole once; true when the step has been left.
  bool SeeBooking(ui::Screen& step);
  /// Clicks a control; what lies above the screen then is visited and left again.
  void Try(ui::Screen& screen, const std::string& control);
  void Try(ui::Screen& screen, const ui::Handler& opens);
  /// The same from the hub that lies on top: who goes back in time comes to another one.
  void TryFromHub(const ui::Handler& opens);
  void VisitAbove(const ui::Screen& screen);
  void Click(ui::Screen& screen, const std::string& control);
  void LeaveTop();
  /// A sheet that has been seen is filled and its show held.
  bool HoldShow();
  /// Days pass, and their shows, for the screens that only those bring.
  void PlayOn(ui::Screen& hub);
  void AnswerBox();

  Window& window_;
  WindowDesk& desk_;
  Looks looks_;
  Watcher shown_;
  std::set<std::string> taken_;
  bool saysYes_ = false;  // to the questions of a screen that is left
  bool playsOn_ = false;
  Step onBox_;  // before it is answered
  bool looking_ = false;
};

/// Keeps what the window shows as FOLDER/1280x800-dark-100/frmRoster.png. Throws when it cannot be
/// written.
void KeepPicture(Window& window, const QString& folder, const QString& look,
                 const std::string& screen);

}  // namespace grapplemont::desktop
