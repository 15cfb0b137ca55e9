#include "ui/controls.h"

#include <algorithm>
#include <array>

#include "ui/screen.h"

namespace grapplemont::ui {

std::string_view KindName(Kind kind) {
  constexpr std::array<std::string_view, 11> kNames = {
      "Label",        "TextBox",   "Button",  "ListBox", "ComboBox", "CheckBox",
      "OptionButton", "ScrollBar", "Picture", "Chart",   "Report"};
  return kNames[static_cast<std::size_t>(kind)];
}

Control::Control(Screen& screen, std::string name, Kind kind, std::string text)
    : Text(revision_, std::move(text)), screen_(screen), name_(std::move(name)), kind_(kind) {
  auto& controls = screen_.controls_;
  controls.insert(screen_.last_ ? controls.end() - 1 : controls.end(), this);
}

Control::~Control() {
  std::erase(screen_.controls_, this);
}

Label::Label(Screen& screen, std::string name, std::string text)
    : Control(screen, std::move(name), Kind::Label, std::move(text)) {}

Button::Button(Screen& screen, std::string name, std::string caption, Handler click)
    : Control(screen, std::move(name), Kind::Button, std::move(caption)),
      OnClick(std::move(click)) {}

TextBox::TextBox(Screen& screen, std::string name, std::string text, int maxLength)
    : Control(screen, std::move(name), Kind::TextBox, std::move(text)), MaxLength(maxLength) {}

CheckBox::CheckBox(Screen& screen, std::string name, std::string caption, bool checked,
                   Handler click)
    : Control(screen, std::move(name), Kind::CheckBox, std::move(caption)),
      Checked(Changes(), checked),
      OnClick(std::move(click)) {}

OptionButton::OptionButton(Screen& screen, std::string name, std::string caption, std::string group,
                           bool checked, Handler click)
    : Control(screen, std::move(name), Kind::OptionButton, std::move(caption)),
      Checked(Changes(), checked),
      Group(std::move(group)),
      OnClick(std::move(click)) {}

ScrollBar::ScrollBar(Screen& screen, std::string name, int min, int max, Handler change)
    : Control(screen, std::move(name), Kind::ScrollBar),
      Min(Changes(), min),
      Max(Changes(), max),
      Value(Changes(), min),
      OnChange(std::move(change)) {}

Picture::Picture(Screen& screen, std::string name, std::string file, Handler click)
    : Control(screen, std::move(name), Kind::Picture),
      File(Changes(), std::move(file)),
      OnClick(std::move(click)) {}

ComboBox::ComboBox(Screen& screen, std::string name, Handler pick)
    : Control(screen, std::move(name), Kind::ComboBox), OnPick(std::move(pick)) {}

void ComboBox::Clear() {
  rows_.clear();
  keys_.clear();
  ++Changes();
  Select(0);
}

void ComboBox::Add(std::string text, int key) {
  rows_.push_back(std::move(text));
  keys_.push_back(key);
  ++Changes();
}

int ComboBox::Key() const {
  return KeyOf(selected_);
}

int ComboBox::KeyOf(int row) const {
  return row < 1 || row > Count() ? 0 : keys_[static_cast<std::size_t>(row - 1)];
}

void ComboBox::Select(int row) {
  selected_ = row < 1 || row > Count() ? 0 : row;
  Text = selected_ == 0 ? std::string() : rows_[static_cast<std::size_t>(selected_ - 1)];
  ++Changes();
}

void ComboBox::SelectKey(int key) {
  const auto found = std::find(keys_.begin(), keys_.end(), key);
  Select(found == keys_.end() ? 0 : static_cast<int>(found - keys_.begin()) + 1);
}

Chart::Chart(Screen& screen, std::string name, bool bars)
    : Control(screen, std::move(name), Kind::Chart), Bars(bars) {}

Report::Report(Screen& screen, std::string name) : Control(screen, std::move(name), Kind::Report) {}

void Report::Write(std::vector<Paragraph> paragraphs) {
  paragraphs_ = std::move(paragraphs);
  std::string text;
  for (const Paragraph& paragraph : paragraphs_) {
    if (!text.empty()) text += '\n';
    text += paragraph.Words;
  }
  Text = text;
  ++Changes();
}

namespace {

std::vector<Report::Paragraph> Parted(std::string_view plain, Report::Style style) {
  std::vector<Report::Paragraph> paragraphs;
  while (!plain.empty()) {
    const auto end = std::min(plain.find('\n'), plain.size());
    paragraphs.push_back({style, std::string(plain.substr(0, end))});
    plain.remove_prefix(std::min(end + 1, plain.size()));
  }
  return paragraphs;
}

}  // namespace

void Report::Write(std::string_view plain) {
  Write(Parted(plain, Style::Body));
}

void Report::WriteLines(std::string_view plain) {
  Write(Parted(plain, Style::Line));
}

}  // namespace grapplemont::ui
