#include "session/screens/slotscreen.h"

#include "records/modVar.h"
#include "ui/pictureof.h"

namespace grapplemont {

namespace {

constexpr int kCardsARow = 4;
constexpr int kCrestHeight = 50;
constexpr int kLettersOfWide = 330;  // of a window in which each card has room for a picture

}  // namespace

SlotScreen::SlotScreen(Game& game, std::string name, std::string title)
    : GameScreen(game, std::move(name), std::move(title), {.Is = ui::Role::Cover}),
      summaries_(kSlots) {
  for (int slot = 1; slot <= kSlots; ++slot) {
    imgfed(slot).Height = kCrestHeight;
    for (ui::Label* label : {&lbldetails(slot), &lblhouse(slot)}) label->Colour = ui::Tone::Muted;
  }
}

ui::Box SlotScreen::Card(int slot) {
  std::vector<ui::Box> parts = {
      ui::Columns({imgfed(slot), ui::Rows({ui::Grow(cmdload(slot)), lblfed(slot)}).Grow()}),
      ui::Field("Today", lblday(slot)),
      ui::Field("Image, money", lblworth(slot)),
      ui::Field("Last show", lbllast(slot)),
      lbldetails(slot),
      lblhouse(slot),
      ui::Group("", {imglast(slot)}).From(kLettersOfWide)};
  std::vector<ui::Box> acts = Acts(slot);
  if (!acts.empty()) parts.push_back(ui::Columns(std::move(acts)));
  return ui::Group("", std::move(parts)).Grow();
}

ui::Box SlotScreen::Cards() {
  std::vector<ui::Box> rows;
  for (int first = 1; first <= kSlots; first += kCardsARow) {
    std::vector<ui::Box> cards;
    for (int slot = first; slot < first + kCardsARow; ++slot) cards.push_back(Card(slot));
    rows.push_back(ui::Columns(std::move(cards)));
  }
  rows.push_back(ui::Spacer());
  return ui::Rows(std::move(rows));
}

void SlotScreen::Show(int slot) {
  const SlotSummary& summary = In(slot);
  cmdload(slot).Text = summary.Caption;
  lbldetails(slot).Text = summary.Empty ? WhatGoesIn() : summary.Details;
  const auto& own = summary.Own;
  imgfed(slot).Visible = own.has_value();
  if (own) imgfed(slot).Drawn = CrestOf(*own);
  lblfed(slot).Text = "Slot " + std::to_string(slot) + (own ? ", " + own->Name.Str() : "");
  // A card has no room for the day of the week.
  lblday(slot).Text = summary.Today.substr(summary.Today.find(' ') + 1);
  lblworth(slot).Text = own ? std::to_string(own->Image) + "%, " + Dollars(own->Money) : "";
  lbllast(slot).Text = summary.LastShow;
  lblhouse(slot).Text = summary.House.empty() ? "" : "House rules: " + summary.House;
  for (ui::Label* label : {&lblday(slot), &lblworth(slot), &lbllast(slot), &lblhouse(slot)})
    label->Visible = !label->Text->empty();
  ShowPage(slot, imglast(slot));
  Offer(cmdload(slot), summary);
}

void SlotScreen::ShowPage(int slot, ui::Picture& picture) {
  const std::string page = game_.PageFile(slot);
  picture.Visible = !In(slot).Empty && game_.Disk().Look(page) == Disk::Kind::File;
  // It lies in the home, where pictures are looked for last.
  picture.File = page.substr(page.rfind('/') + 1);
}

void SlotScreen::Return() {
  for (int slot = 1; slot <= kSlots; ++slot) {
    summaries_[static_cast<std::size_t>(slot - 1)] =
        ReadSlotSummary(game_.Disk(), game_.SlotFolder(slot));
    Show(slot);
  }
}

}  // namespace grapplemont
