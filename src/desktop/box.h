#pragma once

#include <QEventLoop>
#include <QLineEdit>
#include <optional>

#include "desktop/button.h"
#include "desktop/card.h"
#include "ui/desk.h"

namespace grapplemont::desktop {

class Stage;

/// A question or a message over the window that waits for its answer.
class MessageBox : public Veil {
 public:
  MessageBox(QWidget* ground, const QString& title, const QString& text);
  /// Enter means the button that is usual, Escape the answer of a dismissal.
  void AddButton(const QString& caption, int answer, bool usual);
  void AddLine(const QString& offered, Stage& stage);
  /// Waits; the answer of the button that was pressed, nothing when the box was dismissed.
  std::optional<int> Run();
  void Dismiss();
  QString Line() const { return line_ ? line_->text() : QString(); }

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  struct Choice {
    PushButton* Press;
    int Answer;
    bool Usual;
  };
  void Answer(int answer);
  void PressLetter(const QString& letter);

  QLayout* foot_;
  QLineEdit* line_ = nullptr;
  QWidget* place_;  // where the line goes
  std::vector<Choice> choices_;
  std::optional<int> answer_;
  QEventLoop loop_;
};

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

}  // namespace grapplemont::desktop
