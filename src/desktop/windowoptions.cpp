#include "desktop/windowoptions.h"

#include <QApplication>
#include <QKeyEvent>
#include <QKeySequence>
#include <QLineEdit>
#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "desktop/window.h"
#include "records/fields/fields.h"

namespace grapplemont::desktop {

namespace {

/// In the order of Scheme.
constexpr const char* kThemes[] = {"As the desktop has it", "Dark", "Light", "High contrast"};
/// Keys that tables and lines of text know, beside all letters without Ctrl or Alt.
constexpr const char* kTaken[] = {"Ctrl+Return", "Ctrl+C", "Ctrl+V", "Ctrl+X",
                                  "Ctrl+A",      "Ctrl+Z", "Ctrl+Y", "Ctrl+="};

/// The key that a text names, in Qt's own way of writing it; empty for none that can be pressed.
QString KeyIn(const std::string& typed) {
  const QKeySequence keys(Shown(typed).trimmed());
  if (keys.count() != 1 || keys[0].key() == Qt::Key_unknown) return {};
  const bool held = keys[0].keyboardModifiers() & (Qt::ControlModifier | Qt::AltModifier);
  const bool function = keys[0].key() >= Qt::Key_F1 && keys[0].key() <= Qt::Key_F35;
  return held || function ? keys.toString(QKeySequence::PortableText) : QString();
}

bool IsTaken(const std::string& key) {
  return std::find(std::begin(kTaken), std::end(kTaken), key) != std::end(kTaken);
}

/// While it lives, a key that is pressed in a line is written there by its name, unless the line
/// needs it.
class WrittenKeys : public QObject {
 public:
  WrittenKeys() { qApp->installEventFilter(this); }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    auto* const line = qobject_cast<QLineEdit*>(watched);
    if (!line || event->type() != QEvent::KeyPress) return false;
    const auto& press = static_cast<const QKeyEvent&>(*event);
    constexpr Qt::Key kHeld[] = {Qt::Key_Control, Qt::Key_Alt, Qt::Key_Shift, Qt::Key_Meta,
                                 Qt::Key_AltGr};
    if (std::find(std::begin(kHeld), std::end(kHeld), press.key()) != std::end(kHeld)) return false;
    const QKeyCombination pressed(press.modifiers() & ~Qt::KeypadModifier,
                                  static_cast<Qt::Key>(press.key()));
    const QString key = KeyIn(QKeySequence(pressed).toString().toStdString());
    if (key.isEmpty() || IsTaken(key.toStdString())) return false;
    line->setText(key);
    return true;
  }
};

class frmWindow : public ui::Screen {
 public:
  frmWindow(ui::Desk& desk, Window& window, std::vector<KeyedCommand> commands)
      : Screen(desk, kWindowOptions, "Window Options", ui::Role::Dialog),
        window_(window),
        commands_(std::move(commands)) {
    for (const char* theme : kThemes) cmbtheme.Add(theme);
    for (const int text : kTextSizes) cmbtext.Add(std::to_string(text) + "%", text);
    for (const int scale : kScales) cmbscale.Add(std::to_string(scale) + "%", scale);
    for (const DateFormName& form : kDateForms) cmbdates.Add(form.Words);
    cmbscale.Tip = "Counts from the next start of the game on.";
    lblkeys.Text = "Open these options from a page (" + window_.KeyOfOptions() +
                   ") and its own actions stand at the end of the list.";
    lblkeys.Colour = ui::Tone::Muted;
  }

  ui::Page Layout() override {
    ui::Page page;
    page.Actions = {&cmdback};
    page.Main = &cmdback;
    page.Cancel = &cmdback;
    page.Body = ui::Columns(
        {ui::Rows({ui::Group("Look", {ui::Field("Colours", cmbtheme), ui::Field("Text", cmbtext),
                                      ui::Field("Window scale", cmbscale), chkfull, chkstill}),
                   ui::Group("Dates", {ui::Field("Written", cmbdates), lblsample}),
                   ui::Group("Sound", {chksound, ui::Field("Volume", hsvolume)})})
             .Grow(2),
         ui::Group("Keys", {ui::Grow(lstkeys), lblkeys, cmdkey, cmdreset, cmdusual}).Grow(3)});
    return page;
  }

  void Return() override {
    const Settings& kept = window_.Kept();
    cmbtheme.Select(static_cast<int>(kept.Colours()) + 1);
    const int now = (DesktopText() + kept.Zoom()) * 100 / kUsualText;
    cmbtext.SelectKey(*std::ranges::min_element(kTextSizes, {},
                                                [now](int text) { return std::abs(text - now); }));
  }

  void Load() override {
    Return();
    const Settings& kept = window_.Kept();
    cmbscale.SelectKey(kept.Scale());
    chkfull.Checked = window_.isFullScreen();
    chkstill.Checked = kept.Still();
    cmbdates.Select(static_cast<int>(kept.Dates()) + 1);
    chksound.Checked = kept.Sounds();
    hsvolume.Value = kept.Volume();
    ShowVolume();
    ShowKeys();
  }

 private:
  std::string KeyOf(const KeyedCommand& command) const {
    return window_.Kept().Key(command.Id, command.Usual).toStdString();
  }

  void ShowKeys() {
    std::vector<ui::ListBox::Row> rows;
    for (std::size_t i = 0; i < commands_.size(); ++i)
      rows.push_back({{commands_[i].Caption, commands_[i].Where, KeyOf(commands_[i])},
                      static_cast<int>(i) + 1});
    lstkeys.Fill(std::move(rows));
    if (lstkeys.Selected() == 0 && lstkeys.Count() > 0) lstkeys.Select(1);
    ShowReset();
  }

  const KeyedCommand& Chosen() const {
    return commands_[static_cast<std::size_t>(std::max(1, lstkeys.Key()) - 1)];
  }

  void ShowReset() {
    const bool isUsual = KeyOf(Chosen()) == Chosen().Usual;
    cmdreset.Enabled = !isUsual;
    cmdreset.Tip = !isUsual                 ? "Gives it back " + UsualOf(Chosen()) + "."
                   : Chosen().Usual.empty() ? "It has no key."
                                            : "It has its usual key.";
  }

  static std::string UsualOf(const KeyedCommand& command) {
    return command.Usual.empty() ? "no key" : command.Usual;
  }

  void cmbtheme_Click() { window_.SetColours(static_cast<Scheme>(cmbtheme.Selected() - 1)); }
  void cmbtext_Click() { window_.SetZoom(ZoomFor(cmbtext.Key())); }
  void cmbscale_Click() { window_.SetScale(cmbscale.Key()); }
  void cmbdates_Click() { window_.SetDates(static_cast<DateForm>(cmbdates.Selected() - 1)); }
  void chksound_Click() {
    window_.SetSounds(chksound.Checked);
    ShowVolume();
  }
  void hsvolume_Change() { window_.SetVolume(hsvolume.Value); }
  void ShowVolume() {
    hsvolume.Enabled = chksound.Checked.Get();
    hsvolume.Tip = chksound.Checked ? "" : "Turn the sound on first.";
  }
  void chkfull_Click() { window_.TurnFullScreen(); }
  void chkstill_Click() { window_.SetStill(chkstill.Checked); }

  /// Why a command cannot have a key; empty when it can.
  std::string WhyNot(const QString& key, const KeyedCommand& command) const {
    if (key.isEmpty()) return "Write a key as \"F7\" or \"Ctrl+R\".";
    const std::string typed = key.toStdString();
    for (const KeyedCommand& other : commands_)
      if (other.Id != command.Id && KeyOf(other) == typed && MayMeet(other, command))
        return typed + " is the key of " + other.Caption +
               ". Choose one that is free, or give that command another first.";
    if (typed != command.Usual && IsTaken(typed))
      return typed + " is a key of tables and lines of text. Choose another.";
    return {};
  }

  /// Pages that are never open together may have the same key.
  static bool MayMeet(const KeyedCommand& one, const KeyedCommand& other) {
    const auto isOfPage = [](const KeyedCommand& command) { return command.Id.starts_with("frm"); };
    return !isOfPage(one) || !isOfPage(other) || one.Where == other.Where;
  }

  /// Asks again after a key that cannot be had, until one can or nothing is written.
  void cmdkey_Click() {
    const KeyedCommand command = Chosen();
    for (std::string typed = KeyOf(command);;) {
      typed = WrittenKey(command, typed);
      if (typed.empty()) return;
      const QString key = KeyIn(typed);
      const std::string why = WhyNot(key, command);
      if (why.empty()) {
        window_.Kept().SetKey(command, key);
        return Changed();
      }
      desk().Say("Change Key", why);
    }
  }

  std::string WrittenKey(const KeyedCommand& command, const std::string& offered) {
    const WrittenKeys written;
    return desk().Prompt("Change Key",
                         "Press the key for " + command.Caption + ", or write it:", offered);
  }

  /// Its usual key may be another's by now.
  void cmdreset_Click() {
    const KeyedCommand command = Chosen();
    if (!command.Usual.empty())
      if (const std::string why = WhyNot(Shown(command.Usual), command); !why.empty())
        return desk().Say("Reset", why);
    window_.Kept().ResetKey(command.Id);
    Changed();
  }

  void cmdusual_Click() {
    for (const KeyedCommand& command : commands_) window_.Kept().ResetKey(command.Id);
    Changed();
  }

  /// The side bar shows the keys too.
  void Changed() {
    ShowKeys();
    window_.Relook();
  }

  Window& window_;
  std::vector<KeyedCommand> commands_;
  ui::ComboBox cmbtheme{*this, "cmbtheme", &frmWindow::cmbtheme_Click};
  ui::ComboBox cmbtext{*this, "cmbtext", &frmWindow::cmbtext_Click};
  ui::ComboBox cmbscale{*this, "cmbscale", &frmWindow::cmbscale_Click};
  ui::CheckBox chkfull{*this, "chkfull", "Full screen", false, &frmWindow::chkfull_Click};
  ui::CheckBox chkstill{*this, "chkstill", "Nothing moves by itself", false,
                        &frmWindow::chkstill_Click};
  ui::ComboBox cmbdates{*this, "cmbdates", &frmWindow::cmbdates_Click};
  /// A date to see the form by.
  ui::Label lblsample{*this, "lblsample", LongDate(Day{std::chrono::year{2002} / 7 / 8})};
  ui::CheckBox chksound{*this, "chksound", "A bell and a crowd at your shows", false,
                        &frmWindow::chksound_Click};
  ui::ScrollBar hsvolume{*this, "hsvolume", 0, 100, &frmWindow::hsvolume_Change};
  ui::ListBox lstkeys{*this,
                      "lstkeys",
                      {{"Command", ui::ColumnKind::Text, 4},
                       {"Of", ui::ColumnKind::Text, 2},
                       {"Key", ui::ColumnKind::Text, 2}},
                      &frmWindow::ShowReset,
                      cmdkey};
  ui::Label lblkeys{*this, "lblkeys"};
  ui::Button cmdkey{*this, "cmdkey", "Change Key", &frmWindow::cmdkey_Click};
  ui::Button cmdreset{*this, "cmdreset", "Reset", &frmWindow::cmdreset_Click};
  ui::Button cmdusual{*this, "cmdusual", "All Keys As They Were", &frmWindow::cmdusual_Click};
  ui::Button cmdback{*this, "cmdback", "Close", [this] { Close(); }};
};

}  // namespace

int ZoomFor(int percent) {
  return static_cast<int>(std::lround(kUsualText * percent / 100.0)) - DesktopText();
}

std::unique_ptr<ui::Screen> NewWindowOptions(ui::Desk& desk, Window& window,
                                             std::vector<KeyedCommand> commands) {
  return std::make_unique<frmWindow>(desk, window, std::move(commands));
}

}  // namespace grapplemont::desktop
