#include "desktop/boxshape.h"

#include <algorithm>

namespace grapplemont::desktop {

using ui::Box;
using Kind = ui::Box::Kind;

namespace {

bool GrowsByItself(const ui::Control& control) {
  switch (control.Is()) {
    case ui::Kind::ListBox:
    case ui::Kind::Chart:
      return true;
    case ui::Kind::Report:
      return !dynamic_cast<const ui::Report&>(control).Brief;
    case ui::Kind::TextBox:
      return dynamic_cast<const ui::TextBox&>(control).MultiLine;
    default:
      return false;
  }
}

}  // namespace

bool IsButton(const Box& box) {
  return box.Is == Kind::Item && box.Shown->Is() == ui::Kind::Button;
}

bool IsLink(const Box& box) {
  return IsButton(box) && dynamic_cast<const ui::Button&>(*box.Shown).Plain;
}

bool IsCalmButton(const Box& box) {
  return IsButton(box) && box.Stretch == 0;
}

bool IsPlainRow(const Box& box) {
  return box.Is == Kind::Columns && box.Parts.size() > 1 &&
         std::ranges::all_of(
             box.Parts, [](const Box& part) { return part.Is == Kind::Item && !Grows(part); }) &&
         !std::ranges::all_of(box.Parts, IsButton);
}

bool IsRowOfCards(const Box& box) {
  return box.Is == Kind::Columns && box.Parts.size() > kFew &&
         std::ranges::all_of(
             box.Parts, [](const Box& part) { return part.Is == Kind::Group && !Grows(part); });
}

namespace {

/// What is chosen from, ticked or told in a word.
bool IsShort(const Box& box) {
  if (box.Is != Kind::Item && box.Is != Kind::Field) return false;
  const ui::Kind kind = box.Shown->Is();
  return kind == ui::Kind::ComboBox || kind == ui::Kind::CheckBox ||
         (kind == ui::Kind::Label && box.Is == Kind::Field);
}

}  // namespace

bool HasFilterRow(const Box& card) {
  if (!card.Title.empty() || card.Parts.size() < 2) return false;
  const Box& first = card.Parts.front();
  const bool isForm = first.Is == Kind::Field && card.Parts[1].Is == Kind::Field;
  const bool isLine = first.Is == Kind::Columns && std::ranges::any_of(first.Parts, IsShort) &&
                      std::ranges::all_of(first.Parts, [](const Box& part) {
                        return IsShort(part) || part.Is == Kind::Spacer;
                      });
  if (isForm || !(IsShort(first) || isLine)) return false;
  std::vector<ui::Control*> controls;
  CollectControls(card, controls);
  return std::ranges::count(controls, ui::Kind::ListBox, &ui::Control::Is) == 1;
}

namespace {

std::ptrdiff_t FiltersIn(const Box& box) {
  std::vector<ui::Control*> controls;
  CollectControls(box, controls);
  return std::ranges::count_if(controls, [](const ui::Control* control) {
    const auto* combo = dynamic_cast<const ui::ComboBox*>(control);
    return combo && combo->Filters;
  });
}

}  // namespace

bool HasFilters(const Box& box) {
  return FiltersIn(box) > 0;
}

bool IsAllFilters(const Box& card) {
  return card.Title.empty() && FiltersIn(card) > 1 && !Grows(card);
}

bool Grows(const Box& box) {
  switch (box.Is) {
    case Kind::Item:
    case Kind::Field:
      return GrowsByItself(*box.Shown) || (box.Stretch > 0 && box.Shown->Is() == ui::Kind::Picture);
    case Kind::Tabs:
      return true;
    default:
      return std::ranges::any_of(box.Parts, Grows);
  }
}

bool IsProse(const Box& box) {
  if (box.Is != Kind::Group) return false;
  std::vector<ui::Control*> controls;
  CollectControls(box, controls);
  std::erase_if(controls, [](const ui::Control* control) { return !GrowsByItself(*control); });
  return !controls.empty() && std::ranges::all_of(controls, [](const ui::Control* control) {
    return control->Is() == ui::Kind::Report;
  });
}

bool IsAllProse(const Box& box) {
  return box.Is == Kind::Tabs ? std::ranges::all_of(box.Parts, IsProse) : IsProse(box);
}

int ShareOf(const Box& box) {
  return std::max(box.Stretch, Grows(box) ? 1 : 0);
}

void CollectControls(const Box& box, std::vector<ui::Control*>& controls) {
  if (box.Shown) controls.push_back(box.Shown);
  for (const Box& part : box.Parts) CollectControls(part, controls);
}

}  // namespace grapplemont::desktop
