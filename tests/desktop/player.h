#pragma once

#include <QtTest/QTest>
#include <functional>

#include "desktop/office.h"
#include "desktop/tablegrid.h"
#include "desktop/window.h"

namespace grapplemont::test {

/// A window and the hands of a player before it: real mouse and key events.
class Player {
 public:
  explicit Player(const QString& settings = {});

  /// The visible widget of this name; a missing one fails the test.
  QWidget* See(const QString& name);
  bool Sees(const QString& name);
  void Click(const QString& name);
  void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
  /// Letters go to what has the keyboard.
  void Type(const QString& text);
  QString TextOf(const QString& name);  // a label's, a button's or a line's
  QString FocusName();

  // Tables, rows as shown from 0.
  desktop::TableGrid& Grid(const QString& list);
  QPoint RowAt(desktop::TableGrid& grid, int row);
  void ClickRow(const QString& list, int row);
  void DoubleClickRow(const QString& list, int row);
  void ClickHeading(const QString& list, int column, Qt::KeyboardModifiers keys = Qt::NoModifier);
  std::vector<QString> Column(const QString& list, int column);

  /// What the player will do at the next box, which waits amid the act that brings it.
  void AtNextBox(std::function<void()> answer);
  bool EveryBoxCame() const { return awaited_ == 0; }

  desktop::WindowDesk Desk;
  int Closings = 0;
  desktop::Window Window;

 private:
  int awaited_ = 0;
};

}  // namespace grapplemont::test
