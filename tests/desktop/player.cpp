#include "desktop/player.h"
#include "support/checkout.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QTimer>

namespace grapplemont::test {

namespace {

constexpr int kPatience = 10000;  // milliseconds for a box to come, on a busy machine

}  // namespace

Player::Player(const QString& settings)
    : Window(Desk, {QString::fromStdString(Checkout("/gfx")), settings, [this] { ++Closings; }}) {
  Window.show();
}

QWidget* Player::See(const QString& name) {
  for (QWidget* widget : Window.findChildren<QWidget*>(name))
    if (widget->isVisible()) return widget;
  ADD_FAILURE() << "nothing to be seen of " << name.toStdString();
  return &Window;
}

bool Player::Sees(const QString& name) {
  const auto widgets = Window.findChildren<QWidget*>(name);
  return std::any_of(widgets.begin(), widgets.end(), [](auto* w) { return w->isVisible(); });
}

/// A click where the widget is, on whatever lies on top there.
void Player::Click(const QString& name) {
  QWidget* seen = See(name);
  QPoint place = seen->rect().center();
  // A box may be wider than its mark and caption, which alone are clicked.
  if (qobject_cast<QCheckBox*>(seen)) place.setX(8);
  const QPoint at = seen->mapTo(&Window, place);
  QWidget* hit = Window.childAt(at);
  if (!hit) hit = &Window;
  QTest::mouseClick(hit, Qt::LeftButton, {}, hit->mapFrom(&Window, at));
}

void Player::Key(Qt::Key key, Qt::KeyboardModifiers modifiers) {
  QWidget* focus = Window.focusWidget();
  QTest::keyClick(focus ? focus : &Window, key, modifiers);
}

void Player::Type(const QString& text) {
  for (const QChar letter : text) {
    QWidget* focus = Window.focusWidget();
    QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString(letter));
    QApplication::sendEvent(focus ? focus : &Window, &press);
  }
}

QString Player::TextOf(const QString& name) {
  QWidget* widget = See(name);
  if (auto* label = qobject_cast<QLabel*>(widget)) return label->text();
  if (auto* button = qobject_cast<QAbstractButton*>(widget)) return button->text();
  if (auto* line = qobject_cast<QLineEdit*>(widget)) return line->text();
  ADD_FAILURE() << name.toStdString() << " shows no text";
  return {};
}

QString Player::FocusName() {
  return Window.focusWidget() ? Window.focusWidget()->objectName() : QString();
}

desktop::TableGrid& Player::Grid(const QString& list) {
  return *See(list)->findChild<desktop::TableGrid*>();
}

QPoint Player::RowAt(desktop::TableGrid& grid, int row) {
  return QPoint(30, grid.rowViewportPosition(row) + grid.rowHeight(row) / 2);
}

void Player::ClickRow(const QString& list, int row) {
  desktop::TableGrid& grid = Grid(list);
  QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, RowAt(grid, row));
}

void Player::DoubleClickRow(const QString& list, int row) {
  ClickRow(list, row);
  desktop::TableGrid& grid = Grid(list);
  QTest::mouseDClick(grid.viewport(), Qt::LeftButton, {}, RowAt(grid, row));
}

void Player::ClickHeading(const QString& list, int column, Qt::KeyboardModifiers keys) {
  QHeaderView& heading = Grid(list).Heading();
  const QPoint at(heading.sectionViewportPosition(column) + 15, heading.height() / 2);
  QTest::mouseClick(heading.viewport(), Qt::LeftButton, keys, at);
}

std::vector<QString> Player::Column(const QString& list, int column) {
  const QAbstractItemModel& model = *Grid(list).model();
  std::vector<QString> cells;
  for (int row = 0; row < model.rowCount(); ++row)
    cells.push_back(model.index(row, column).data().toString());
  return cells;
}

void Player::AtNextBox(std::function<void()> answer) {
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

}  // namespace grapplemont::test
