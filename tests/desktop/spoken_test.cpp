#include "desktop/spoken.h"

#include <gtest/gtest.h>
#include <QAccessible>
#include <algorithm>
#include <set>

#include "desktop/album.h"
#include "desktop/player.h"
#include "program/richworld.h"
#include "program/screens.h"
#include "records/store/slot.h"
#include "support/homefolder.h"
#include "ui/game.h"

// What screen readers hear of every screen, against what the screen model holds.

namespace grapplemont::test {
namespace {

using Role = QAccessible::Role;

struct Expected {
  ui::Kind Of;
  std::vector<Role> Roles;
};
const std::vector<Expected> kRoles = {
    {ui::Kind::Label, {QAccessible::StaticText}},
    {ui::Kind::TextBox, {QAccessible::EditableText}},
    {ui::Kind::Button, {QAccessible::Button}},
    {ui::Kind::ListBox, {QAccessible::Table}},
    {ui::Kind::ComboBox, {QAccessible::ComboBox}},
    {ui::Kind::CheckBox, {QAccessible::CheckBox}},
    {ui::Kind::OptionButton, {QAccessible::RadioButton}},
    {ui::Kind::ScrollBar, {QAccessible::Slider, QAccessible::ProgressBar}},
    {ui::Kind::Picture, {QAccessible::Graphic, QAccessible::Button}},
    {ui::Kind::Chart, {QAccessible::Chart}},
    {ui::Kind::Report, {QAccessible::EditableText}}};

constexpr int kRowsHeard = 30;  // as many as a window shows

QAccessibleInterface& ToldOf(QWidget* widget) {
  while (QWidget* proxy = widget->focusProxy()) widget = proxy;
  return *QAccessible::queryAccessibleInterface(widget);
}

void ExpectTable(const ui::ListBox& list, QAccessibleInterface& told) {
  QAccessibleTableInterface* table = told.tableInterface();
  ASSERT_TRUE(table);
  ASSERT_EQ(table->rowCount(), list.Count());
  ASSERT_EQ(table->columnCount(), static_cast<int>(list.Columns().size()));
  for (int column = 0; column < table->columnCount(); ++column)
    EXPECT_FALSE(table->columnDescription(column).isEmpty() &&
                 !list.Columns()[static_cast<std::size_t>(column)].Title.empty());
  // Nobody has sorted them here.
  for (int row = 0; row < std::min(list.Count(), kRowsHeard); ++row)
    for (int column = 0; column < table->columnCount(); ++column) {
      QAccessibleInterface* cell = table->cellAt(row, column);
      ASSERT_TRUE(cell);
      const ui::ListBox::Row& shown = list.Rows()[static_cast<std::size_t>(row)];
      std::string text = static_cast<std::size_t>(column) < shown.Cells.size()
                             ? shown.Cells[static_cast<std::size_t>(column)].Text
                             : "";
      if (const auto& under = list.Columns()[static_cast<std::size_t>(column)].Under)
        text += ". " + under(shown.Key);
      EXPECT_EQ(cell->text(QAccessible::Name), desktop::Shown(text)) << row << ", " << column;
      EXPECT_EQ(cell->role(), QAccessible::Cell) << row << ", " << column;
    }
}

void ExpectValue(const ui::Control& control, QAccessibleInterface& told) {
  if (const auto* list = dynamic_cast<const ui::ListBox*>(&control)) ExpectTable(*list, told);
  if (const auto* box = dynamic_cast<const ui::CheckBox*>(&control)) {
    EXPECT_EQ(told.state().checked, box->Checked.Get() ? 1U : 0U);
  }
  if (const auto* bar = dynamic_cast<const ui::ScrollBar*>(&control)) {
    if (bar->Tells) {
      EXPECT_EQ(told.role(), QAccessible::ProgressBar);
      EXPECT_TRUE(told.text(QAccessible::Description)
                      .startsWith(QString::number(bar->Value.Get()) + " of "));
    } else {
      ASSERT_TRUE(told.valueInterface());
      EXPECT_EQ(told.valueInterface()->currentValue().toInt(), bar->Value.Get());
    }
  }
  if (control.Is() == ui::Kind::ComboBox || control.Is() == ui::Kind::TextBox) {
    EXPECT_EQ(told.text(QAccessible::Value), desktop::Shown(control.Text.Get()));
  }
}

class ASpokenWindow : public testing::Test {
 protected:
  ASpokenWindow() {
    QAccessible::setActive(true);
    RegisterScreens(Game);
  }
  ~ASpokenWindow() override {
    Game.CloseSlot();
    Play.Desk.CloseAll();
    QAccessible::setActive(false);
  }

  void Visit(const std::string& name) {
    SCOPED_TRACE(name);
    Play.Desk.Open(name);
    Play.Window.Sync();
    Hear();
    Play.Desk.CloseAll();
    Play.Window.Sync();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  /// What is shown now.
  void Hear() {
    for (const ui::Control* control : Play.Desk.Top()->Controls())
      if (QWidget* widget = control->Visible ? WidgetOf(*control) : nullptr)
        Expect(*control, widget);
    for (QWidget* widget : Play.Window.findChildren<QWidget*>()) {
      const bool takesKeys = widget->isVisible() && widget->isEnabled() &&
                             (widget->focusPolicy() & Qt::TabFocus) && !widget->focusProxy();
      if (!takesKeys) continue;
      EXPECT_FALSE(ToldOf(widget).text(QAccessible::Name).isEmpty())
          << widget->objectName().toStdString() << " takes the keyboard and has no name";
    }
  }

  /// Of the screen on top, since others may have controls of the same name; nullptr where it is not
  /// shown.
  QWidget* WidgetOf(const ui::Control& control) {
    const ui::Screen& top = *Play.Desk.Top();
    const QString name = desktop::Shown(control.Name());
    if (top.Is() == ui::Role::Hub) return Play.Sees(name) ? Play.See(name) : nullptr;
    for (const QWidget* view : Play.Window.findChildren<QWidget*>(desktop::Shown(top.Name())))
      for (QWidget* widget : view->findChildren<QWidget*>(name))
        if (widget->isVisible()) return widget;
    return nullptr;
  }

  /// Whatever clicks lead to from what lies on the desk; gives what was heard.
  std::set<std::string> Walk() {
    std::set<std::string> heard;
    desktop::Album::Looks looks;
    looks.Sizes = {{1280, 800}};
    looks.Schemes = {desktop::Scheme::Dark};
    looks.Texts = {100};
    desktop::Album album(Play.Window, Play.Desk, looks,
                         [&](const std::string& screen, const QString&) {
                           SCOPED_TRACE(screen);
                           heard.insert(screen);
                           Hear();
                         });
    album.Fill();
    return heard;
  }

  void Expect(const ui::Control& control, QWidget* widget) {
    SCOPED_TRACE(control.Name());
    QAccessibleInterface& told = ToldOf(widget);
    const auto row = std::ranges::find(kRoles, control.Is(), &Expected::Of);
    EXPECT_NE(std::ranges::find(row->Roles, told.role()), row->Roles.end())
        << "role " << static_cast<int>(told.role());
    const bool empty = control.Is() == ui::Kind::Label && control.Text->empty();
    EXPECT_NE(told.text(QAccessible::Name).isEmpty(), !empty);
    ExpectValue(control, told);
    ++Checked;
  }

  HomeFolder Home{RichWorld().Build()};
  std::unique_ptr<Disk> Files = RealDisk(Syncs::None);
  Player Play;
  grapplemont::Game Game{Play.Desk, *Files, {Home.Path("."), [] { return kGameStart; }, 11}};
  int Checked = 0;
};

TEST_F(ASpokenWindow, NamesEveryControlOfEveryScreenWithItsRoleAndItsValue) {
  for (const char* name : {"frmGameMenu", "frmCredits", "frmNewGame", "frmLoadGame", "frmEditor",
                           "frmEditWres", "frmEditTables"})
    Visit(name);
  const World world =
      RichWorld().Game("CWA").Feud("CWA Hand 5", "CWA Hand 6").Mail("Ruth Vane", "Hello.");
  Slot::Create(*Files, Home.Path("s1"), FilesOf(world), 1);
  Game.OpenSlot(1);
  for (const std::string name : kInGame)
    if (name != "frmWait") Visit(name);
  Play.Desk.Event([this] { Play.Desk.Open("frmMainScreen"); });
  Play.Window.Sync();
  const std::set<std::string> heard = Walk();
  for (const char* screen : {"frmHelp", "frmGlossary", "frmWindow", "frmWorker", "frmPromotion",
                             "frmBookSheet", "frmCompare", "finder", "box"})
    EXPECT_TRUE(heard.contains(screen)) << screen;
  EXPECT_GT(Checked, 500) << "most controls can be seen";
}

}  // namespace
}  // namespace grapplemont::test
