#pragma once

#include "session/home.h"
#include "ui/game.h"

namespace grapplemont {

/// The slots as cards: a button each and beside it what is in them.
class SlotScreen : public GameScreen {
 public:
  SlotScreen(Game& game, std::string name, std::string title);
  void Return() override;

 protected:
  /// All cards, four a row.
  ui::Box Cards();
  ui::Button& ButtonOf(int slot) { return cmdload(slot); }
  const SlotSummary& In(int slot) const { return summaries_[static_cast<std::size_t>(slot - 1)]; }
  /// The page that the game was left on.
  void ShowPage(int slot, ui::Picture& picture);
  /// Says whether the slot's button can be pressed.
  virtual void Offer(ui::Button&, const SlotSummary&) {}
  /// What goes into an empty slot.
  virtual std::string WhatGoesIn() const { return "A new game goes here."; }
  /// What can be done with a slot beside that; a row of its card.
  virtual std::vector<ui::Box> Acts(int /*slot*/) { return {}; }
  virtual void cmdload_Click(int slot) = 0;

 private:
  ui::Box Card(int slot);
  void Show(int slot);

  std::vector<SlotSummary> summaries_;
  ui::Picture imgback{*this, "imgback", "vxm_back.jpg"};
  /// Controls of one kind named "cmdload1" to "cmdload8".
  template <class C>
  ui::Array<C> EachSlot(const std::string& name) {
    return {name, kSlots, [this, name](const std::string&, int slot) {
              return std::make_unique<C>(*this, name + std::to_string(slot));
            }};
  }
  ui::Array<ui::Button> cmdload{"cmdload", kSlots, [this](const std::string&, int slot) {
                                  return std::make_unique<ui::Button>(
                                      *this, "cmdload" + std::to_string(slot), "",
                                      [this, slot] { cmdload_Click(slot); });
                                }};
  ui::Array<ui::Label> lbldetails = EachSlot<ui::Label>("lbldetails");
  ui::Array<ui::Picture> imgfed = EachSlot<ui::Picture>("imgfed");
  ui::Array<ui::Label> lblfed = EachSlot<ui::Label>("lblfed");
  ui::Array<ui::Label> lblday = EachSlot<ui::Label>("lblday");
  ui::Array<ui::Label> lblworth = EachSlot<ui::Label>("lblworth");
  ui::Array<ui::Label> lbllast = EachSlot<ui::Label>("lbllast");
  ui::Array<ui::Label> lblhouse = EachSlot<ui::Label>("lblhouse");
  ui::Array<ui::Picture> imglast = EachSlot<ui::Picture>("imglast");
};

}  // namespace grapplemont
