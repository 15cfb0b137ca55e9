#pragma once

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QElapsedTimer>
#include <QScrollArea>
#include <QTimer>
#include <QtTest/QTest>
#include <functional>

#include "desktop/office.h"
#include "desktop/screenview.h"
#include "desktop/tablegrid.h"
#include "desktop/window.h"
#include "support/checkout.h"

namespace grapplemont::test {

/// A window and the hands of a player before it: real mouse and key events. Rows are as shown, from
/// 0.
class Player {
 public:
  explicit Player(const QString& settings = {})
      : Window(Desk, {{QString::fromStdString(Checkout("/gfx"))},
                      settings,
                      [this] { ++Closings; },
                      [this] { return Game; },
                      [this](ui::Sound sound, int volume) { Heard.emplace_back(sound, volume); }}) {
    Window.show();
  }

  void Open(std::unique_ptr<ui::Screen> screen) {
    Desk.Open(std::move(screen));
    Window.Sync();
  }
  std::string Top() const { return Desk.Top() ? Desk.Top()->Name() : ""; }
  /// The visible widget of this name; a missing one fails the test.
  QWidget* See(const QString& name) {
    if (QWidget* widget = Find(name)) return widget;
    ADD_FAILURE() << "nothing to be seen of " << name.toStdString();
    return &Window;
  }
  bool Sees(const QString& name) { return Find(name); }

  /// A click where the widget is, on whatever lies on top there; who does not see it scrolls.
  void Click(const QString& name) {
    QWidget* seen = See(name);
    for (QWidget* above = seen->parentWidget(); above; above = above->parentWidget())
      if (auto* area = qobject_cast<QScrollArea*>(above)) area->ensureWidgetVisible(seen);
    QPoint place = seen->rect().center();
    // A box may be wider than its mark and caption, which alone are clicked.
    if (qobject_cast<QCheckBox*>(seen)) place.setX(8);
    const QPoint at = seen->mapTo(&Window, place);
    QWidget* hit = Window.childAt(at);
    if (!hit) hit = &Window;
    QTest::mouseClick(hit, Qt::LeftButton, {}, hit->mapFrom(&Window, at));
  }
  void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(Focus(), key, modifiers);
  }
  /// Letters go to what has the keyboard.
  void Type(const QString& text) {
    for (const QChar letter : text) {
      QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString(letter));
      QApplication::sendEvent(Focus(), &press);
    }
  }
  QString TextOf(const QString& name) {  // a label's, a button's or a line's
    return See(name)->property("text").toString();
  }
  QString FocusName() { return Focus()->objectName(); }

  desktop::TableGrid& Grid(const QString& list) {
    return *See(list)->findChild<desktop::TableGrid*>();
  }
  void ClickRow(const QString& list, int row, Qt::KeyboardModifiers keys = Qt::NoModifier) {
    QTest::mouseClick(Grid(list).viewport(), Qt::LeftButton, keys, RowAt(list, row));
  }
  void DoubleClickRow(const QString& list, int row) {
    ClickRow(list, row);
    QTest::mouseDClick(Grid(list).viewport(), Qt::LeftButton, {}, RowAt(list, row));
  }
  void ClickHeading(const QString& list, int column, Qt::KeyboardModifiers keys = Qt::NoModifier) {
    QHeaderView& heading = Grid(list).Heading();
    const QPoint at(heading.sectionViewportPosition(column) + 15, heading.height() / 2);
    QTest::mouseClick(heading.viewport(), Qt::LeftButton, keys, at);
  }
  std::vector<QString> Column(const QString& list, int column) {
    const QAbstractItemModel& model = *Grid(list).model();
    std::vector<QString> cells;
    for (int row = 0; row < model.rowCount(); ++row)
      cells.push_back(model.index(row, column).data().toString());
    return cells;
  }

  /// What the player will do at the next box, which waits during the act that brings it.
  void AtNextBox(std::function<void()> answer) {
    constexpr int kPatience = 10000;  // milliseconds, on a busy machine
    ++awaited_;
    auto* timer = new QTimer(&Window);
    QElapsedTimer since;
    since.start();
    QObject::connect(timer, &QTimer::timeout, timer, [this, timer, answer, since] {
      if (!Sees("box") && since.elapsed() < kPatience) return;
      timer->stop();
      timer->deleteLater();
      --awaited_;
      EXPECT_TRUE(Sees("box")) << "no box came";
      answer();
    });
    timer->start(1);
  }
  bool EveryBoxCame() const { return awaited_ == 0; }

  desktop::WindowDesk Desk;
  int Closings = 0;
  desktop::OpenGame Game;
  std::vector<std::pair<ui::Sound, int>> Heard;  // with the volume
  desktop::Window Window;

 private:
  /// On the topmost screen first: a page below it may have one of the same name.
  QWidget* Find(const QString& name) {
    const auto* top = Window.findChild<desktop::ScreenView*>(QString::fromStdString(Top()));
    for (const QWidget* within :
         {static_cast<const QWidget*>(top), static_cast<const QWidget*>(&Window)})
      for (QWidget* widget : within ? within->findChildren<QWidget*>(name) : QList<QWidget*>())
        if (widget->isVisible()) return widget;
    return nullptr;
  }
  QWidget* Focus() { return Window.focusWidget() ? Window.focusWidget() : &Window; }
  /// Who does not see the whole row scrolls.
  QPoint RowAt(const QString& list, int row) {
    desktop::TableGrid& grid = Grid(list);
    grid.scrollTo(grid.model()->index(row, std::max(0, grid.columnAt(30))));
    return {30, Grid(list).rowViewportPosition(row) + Grid(list).rowHeight(row) / 2};
  }

  int awaited_ = 0;
};

}  // namespace grapplemont::test
