#include <algorithm>

#include "fuzz/playedgame.h"
#include "fuzz/quietdesk.h"
#include "fuzz/target.h"
#include "ui/acts.h"

// A player who works whatever the top screen has: each byte chooses a control, the next what is
// done to it.

namespace grapplemont::fuzz {
namespace {

constexpr int kMostActs = 80;

/// Texts as nobody should type them, and some as everybody does.
std::string AText(Input& in) {
  const int how = in.Byte();
  switch (how % 8) {
    case 0:
      return {};
    case 1:
      return std::string(300, static_cast<char>(in.Byte()));
    case 2:
      return std::to_string(in.Byte());
    case 3: {
      std::string letters;
      for (int letter = 1; letter < 256; ++letter) letters += static_cast<char>(letter);
      return letters;
    }
    case 4:
      return "CWA Hand " + std::to_string(in.Byte() % 14);
    default:
      return std::string(TextOf(in.Take(in.Below(12))));
  }
}

class Clicker : public QuietDesk {
 public:
  explicit Clicker(Input& in) : in_(in) {}

  void Act() {
    const std::size_t which = in_.Below(256);
    if (which >= 240) return Beside(which);
    ui::Screen* const top = Top();
    std::vector<ui::Control*> able;
    for (ui::Control* control : top->Controls())
      if (control->Visible && control->Enabled && IsActedOn(*control)) able.push_back(control);
    // Every screen can be left; one that waits passes by itself.
    Require(!able.empty() || top->Is() == ui::Role::Wait, top->Name() + " leads nowhere");
    if (able.empty()) return Close(*top);
    Do(*top, *able[which % able.size()]);
  }

  bool Ask(const std::string&, const std::string&, ui::Default) override {
    return in_.Byte() % 2 == 1;
  }
  std::string Prompt(const std::string&, const std::string&, const std::string& offered) override {
    const int how = in_.Byte() % 4;
    return how == 0 ? std::string() : how == 1 ? AText(in_) : offered;
  }

 private:
  static bool IsActedOn(const ui::Control& control) {
    const ui::Kind kind = control.Is();
    if (kind == ui::Kind::Picture) return bool(static_cast<const ui::Picture&>(control).OnClick);
    return kind != ui::Kind::Label && kind != ui::Kind::Chart && kind != ui::Kind::Report;
  }

  /// What is not on the page itself.
  void Beside(std::size_t which) {
    if (which < 243) {
      Take(which == 240 ? Redo : Undo);
    } else if (which < 246) {
      const auto found = NewSearch()(AText(in_), 4);
      if (!found.empty()) Visit(ui::Finding(found[in_.Below(found.size())]));
    } else if (which < 248) {
      OpenHelp();
    } else {
      ui::Follow(*this, *Top(), "CWA Hand " + std::to_string(which - 247));
    }
  }

  void Do(ui::Screen& top, const ui::Control& control) {
    const std::string name = control.Name();
    if (const auto* list = dynamic_cast<const ui::ListBox*>(&control)) return Rows(top, *list);
    if (const auto* combo = dynamic_cast<const ui::ComboBox*>(&control)) {
      if (combo->Count() > 0) ui::Pick(*this, top, name, ARow(combo->Count()));
    } else if (const auto* bar = dynamic_cast<const ui::ScrollBar*>(&control)) {
      const int room = std::max(1, bar->Max - bar->Min + 1);
      ui::Slide(*this, top, name, bar->Min + static_cast<int>(in_.Below(1 << 16)) % room);
    } else if (control.Is() == ui::Kind::TextBox) {
      ui::Type(*this, top, name, AText(in_));
    } else {
      ui::Click(*this, top, name);
    }
  }

  void Rows(ui::Screen& top, const ui::ListBox& list) {
    if (list.Count() == 0) return;
    const std::string name = list.Name();
    const int how = in_.Byte(), row = ARow(list.Count());
    switch (how % 8) {
      case 0:
      case 1:
        ui::OpenRow(*this, top, name, row);
        break;
      case 2:
        ui::PickToo(*this, top, name, row);
        break;
      case 3:
        ui::MoveRow(*this, top, name, row, ARow(list.Count()));
        break;
      default:
        ui::Pick(*this, top, name, row);
    }
  }

  int ARow(int count) { return 1 + static_cast<int>(in_.Below(static_cast<std::size_t>(count))); }

  Input& in_;
};

void Play(ByteSpan bytes) {
  Input in(bytes);
  Clicker desk(in);
  GameInMemory game(desk);
  for (int acts = kMostActs; acts > 0 && !in.Empty() && !desk.Empty(); --acts) {
    desk.Act();
    game.RequireSound();
  }
}

const Registered kClicks({.Name = "clicks", .Run = Play, .Cases = 8, .Most = 160});

}  // namespace
}  // namespace grapplemont::fuzz
