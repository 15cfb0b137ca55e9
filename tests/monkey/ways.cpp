#include "monkey/ways.h"

#include "ui/actlines.h"

namespace grapplemont::test {

namespace {

int From(Chance& chance, int least, int most) {
  return least + static_cast<int>(Pick(chance, static_cast<std::uint64_t>(most - least) + 1));
}
bool OneIn(Chance& chance, std::uint64_t n) {
  return Pick(chance, n) == 0;
}

template <class C>
const C* As(const ui::Control& control) {
  return dynamic_cast<const C*>(&control);
}

bool CanClick(const ui::Control& control) {
  const auto* picture = As<ui::Picture>(control);
  return As<ui::Button>(control) || (picture && picture->OnClick);
}
bool CanCheck(const ui::Control& control) {
  const auto* option = As<ui::OptionButton>(control);
  return As<ui::CheckBox>(control) || (option && !option->Checked);
}
bool CanType(const ui::Control& control) {
  return As<ui::TextBox>(control);
}
bool CanSlide(const ui::Control& control) {
  const auto* bar = As<ui::ScrollBar>(control);
  return bar && !bar->Tells && bar->Max > bar->Min;
}
int RowsOf(const ui::Control& control) {
  if (const auto* combo = As<ui::ComboBox>(control)) return combo->Count();
  const auto* list = As<ui::ListBox>(control);
  return list ? list->Count() : 0;
}
bool CanPick(const ui::Control& control) {
  return RowsOf(control) > 0;
}
bool CanOpen(const ui::Control& control) {
  const auto* list = As<ui::ListBox>(control);
  return list && list->OnOpen && list->Count() > 0;
}
bool CanHaveMany(const ui::Control& control) {
  const auto* list = As<ui::ListBox>(control);
  return list && (list->Extends || list->Multi) && list->Count() > 0;
}
bool CanMove(const ui::Control& control) {
  const auto* list = As<ui::ListBox>(control);
  return list && list->OnMove && list->Count() > 0;
}
bool CanArrange(const ui::Control& control) {
  const auto* list = As<ui::ListBox>(control);
  return list && !list->Columns().empty();
}

std::string NoWords(Chance&, const ui::Control&) {
  return {};
}
std::string OnOrOff(Chance&, const ui::Control& control) {
  const auto* box = As<ui::CheckBox>(control);
  return box && box->Checked ? "off" : "on";
}
std::string SomeText(Chance& chance, const ui::Control& control) {
  std::string text = TypedText(chance, control.Text.Get());
  if (As<ui::TextBox>(control)->MultiLine && OneIn(chance, 3)) text += "\nand another line\n";
  return ui::OnOneLine(text);
}
std::string SomePlace(Chance& chance, const ui::Control& control) {
  const auto& bar = *As<ui::ScrollBar>(control);
  if (OneIn(chance, 4)) return std::to_string(OneIn(chance, 2) ? bar.Min : bar.Max);
  return std::to_string(From(chance, bar.Min, bar.Max));
}
std::string SomeRow(Chance& chance, const ui::Control& control) {
  const int rows = RowsOf(control);
  if (OneIn(chance, 8)) return std::to_string(OneIn(chance, 2) ? 1 : rows);
  return std::to_string(From(chance, 1, rows));
}
std::string SomeRows(Chance& chance, const ui::Control& control) {
  std::string words;
  for (int left = From(chance, 0, 6); left > 0; --left)
    words += (words.empty() ? "" : " ") + SomeRow(chance, control);
  return words;
}
std::string TwoRows(Chance& chance, const ui::Control& control) {
  return SomeRow(chance, control) + " " + SomeRow(chance, control);
}
std::string SomeNumber(Chance& chance, const ui::Control&) {
  return std::to_string(From(chance, 0, 99999));
}

constexpr Act kActs[] = {
    {"click", CanClick, NoWords, 6},   {"check", CanCheck, OnOrOff, 4},
    {"type", CanType, SomeText, 4},    {"slide", CanSlide, SomePlace, 4},
    {"pick", CanPick, SomeRow, 8},     {"open", CanOpen, SomeRow, 4},
    {"also", CanHaveMany, SomeRow, 4}, {"rows", CanHaveMany, SomeRows, 2},
    {"move", CanMove, TwoRows, 2},     {kArranging, CanArrange, SomeNumber, 1}};

constexpr const char* kTexts[] = {"",
                                  "Pat Lee",
                                  "PWX",
                                  "a",
                                  " ",
                                  "The Long Road Home",
                                  "0",
                                  "1",
                                  "-1",
                                  "50",
                                  "100",
                                  "101",
                                  "1000",
                                  "32767",
                                  "32768",
                                  "-32768",
                                  "65535",
                                  "65536",
                                  "2147483647",
                                  "2147483648",
                                  "-2147483648",
                                  "99999999999999999999999",
                                  "1e9",
                                  "0x10",
                                  "3.5",
                                  "+7",
                                  " 12 ",
                                  "1 000",
                                  "$500",
                                  "50%",
                                  "%s%n%d",
                                  "..",
                                  "/",
                                  "a/b",
                                  "\"quoted\"",
                                  "<b>&amp;</b>",
                                  "'; --",
                                  "{name}",
                                  "[a]",
                                  "#",
                                  "\\n",
                                  "None",
                                  "Vacant",
                                  "TO BE DELETED",
                                  "one",
                                  "two",
                                  "extra",
                                  "home/data",
                                  "31/12/2026",
                                  "2026-02-30",
                                  "\x01\x02\x07\x1b[31m",
                                  "\t",
                                  "\x7f",
                                  "\xe9\xdf\xff\x80\x9f"};

std::string EveryLetter() {
  std::string text;
  for (int letter = 0x20; letter < 0x100; ++letter) text += static_cast<char>(letter);
  return text;
}

}  // namespace

std::span<const Act> Acts() {
  return kActs;
}

bool IsWorked(const ui::Control& control) {
  const auto* bar = As<ui::ScrollBar>(control);
  const bool isList = As<ui::ListBox>(control) || As<ui::ComboBox>(control);
  return isList || (bar && !bar->Tells) || As<ui::OptionButton>(control) || CanClick(control) ||
         CanCheck(control) || CanType(control);
}

std::string TypedText(Chance& chance, const std::string& current) {
  switch (Pick(chance, 12)) {
    case 0:
      return std::string(300, 'M');
    case 1:
      return EveryLetter();
    case 2:
      return current + static_cast<char>(From(chance, 'a', 'z'));
    case 3:
      return current.substr(0, current.size() / 2);
    case 4:
    case 5:
      return std::to_string(From(chance, 0, 120));
    case 6:
      return std::to_string(From(chance, -40000, 40000));
    case 7:
      return "Name " + std::to_string(From(chance, 1, 99));
    default:
      return kTexts[Pick(chance, std::size(kTexts))];
  }
}

}  // namespace grapplemont::test
