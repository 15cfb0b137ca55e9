#include "session/screens/frmLoadGame.h"

#include <algorithm>

#include "records/fields/charset.h"
#include "records/fields/wording.h"
#include "records/modVar.h"
#include "records/store/slot.h"
#include "records/world.h"
#include "session/screens/slotscreen.h"
#include "session/slots.h"
#include "storylines/storynames.h"
#include "ui/goingback.h"
#include "ui/pictureof.h"

namespace grapplemont {

namespace {

/// False when the player would rather leave a damaged slot alone.
bool Open(Game& game, int slot) {
  std::vector<std::string> remarks;
  try {
    remarks = game.OpenSlot(slot);
  } catch (const SlotDamaged& damage) {
    if (!game.Desk().Ask("Error Loading", std::string(damage.what()) + "\nLoad it so?",
                         ui::Default::No))
      return false;
    remarks = game.OpenSlot(slot, true);
  }
  for (std::string& line : NearlyFullFiles(game.World())) remarks.push_back(std::move(line));
  if (!remarks.empty()) game.Desk().Say("Loading", Joined(remarks, "\n"));
  return true;
}

constexpr const char* kNoGame = "No game is kept in this slot.";
constexpr const char* kAllInUse = "All slots are in use. Delete a game first.";
constexpr const char* kExportEnding = ".grapplemont";

/// Shows what the file is and asks; false where the player says no.
bool ImportInto(Game& game, int slot, const std::string& path, const std::string& title,
                const std::string& question) {
  World scratch(game.NewDraws(Game::kWorldMaking), game.NewDraws(Game::kWorldProse),
                game.NewDraws(Game::kWorldLife));
  const Importable found = ReadExported(game.Disk(), path, scratch);
  if (!game.Desk().Ask(title, found.Preview + "\n" + question, ui::Default::Yes)) return false;
  ImportSlot(game.Disk(), found, game.SlotFolder(slot), game.NewWorldId());
  return true;
}

}  // namespace

void EnterSlot(Game& game, int slot) {
  if (!Open(game, slot)) return;
  try {
    game.Desk().CloseAll();
    game.Desk().Open("frmMainScreen");
  } catch (...) {
    // The start-up screens come back; a game left open behind them would keep its slot locked.
    game.CloseSlot();
    throw;
  }
  RememberPlayed(game.Disk(), game.Home(), slot);
}

void OfferImport(Game& game, const std::string& path) {
  const auto slot = FreeSlot(game.Disk(), game.Home());
  if (!slot)
    return game.Desk().Say("Import", ForScreen(path) + " cannot be imported. " + kAllInUse);
  if (ImportInto(game, *slot, path, "Import?",
                 "Put it into slot " + std::to_string(*slot) + ", which is empty, and play it?"))
    EnterSlot(game, *slot);
}

namespace {

/// "1 more day", "4 more days".
std::string MoreDays(int days) {
  return std::to_string(days) + (days == 1 ? " more day" : " more days");
}

class frmLoadGame : public SlotScreen {
 public:
  explicit frmLoadGame(Game& game) : SlotScreen(game, "frmLoadGame", "Load Game") {
    imgplayed.Height = 112;
    lblpromotion.Colour = ui::Tone::Gold;
    lblplayed.Colour = ui::Tone::Muted;
    cmdimport.Tip = "Puts a game that was exported to a file into the first empty slot.";
  }

  ui::Page Layout() override {
    ui::Page page;
    page.Facts = &lblfacts;
    page.Actions = {&cmdlook, &cmdimport, &cmdnewgame, &cmdback};
    page.Main = &cmdcontinue;
    page.Cancel = &cmdback;
    ui::Box card = ui::Group(
        "", {ui::Columns(
                {imgplayed,
                 ui::Rows({lblplayed, lblpromotion, lbltoday,
                           ui::Columns({ui::Field("Image", lblimage), ui::Field("Money", lblmoney),
                                        ui::Field("Last show", lbllastshow), ui::Spacer()})})
                     .Grow(),
                 ui::Rows({imgpage, ui::Columns({ui::Spacer(), cmdcontinue})})})});
    page.Body = ui::Rows(
        {std::move(card), ui::Columns({lbldeleted, ui::Grow(cmbdeleted), cmdrestore}), Cards()});
    return page;
  }

  void Load() override {
    ClearDeleted(game_.Disk(), game_.Home(), game_.PresentDay());
    ShowSlots();
  }

  /// What a disk that fails has done to a slot shows once it can be read again.
  void Return() override {
    try {
      ShowSlots();
    } catch (const DiskError& fault) {
      cmdlook.Visible = true;
      lblfacts.Text = "The slots could not be read: " + std::string(fault.what());
    }
  }

 private:
  void Offer(ui::Button& button, const SlotSummary& summary) override {
    button.Enabled = summary.Playable;
    button.Tip = summary.Empty ? kNoGame : summary.Playable ? "" : "This slot can't be loaded.";
    button.Plain = summary.Empty;
  }
  std::string WhatGoesIn() const override {
    return "A new game, a copy of another slot or a file goes here.";
  }
  std::vector<ui::Box> Acts(int slot) override {
    return {cmdcopy(slot),     cmdrename(slot), cmdexport(slot), cmddelete(slot),
            cmdmornings(slot), cmdnew(slot),    cmdbring(slot)};
  }
  void cmdload_Click(int slot) override { EnterSlot(game_, slot); }

  void ShowSlots() {
    SlotScreen::Return();
    ShowPlayed();
    ShowActs();
    ShowDeleted();
    cmdlook.Visible = false;
  }

  void ShowPlayed() {
    played_ =
        SlotToContinue(game_.Disk(), game_.Home(), [this](int slot) { return In(slot).Playable; });
    const bool any = played_ > 0;
    for (ui::Control* control : std::initializer_list<ui::Control*>{
             &imgplayed, &imgpage, &lblplayed, &lblpromotion, &lbltoday, &lblimage, &lblmoney,
             &lbllastshow, &cmdcontinue})
      control->Visible = any;
    if (!any) return;
    const SlotSummary& summary = In(played_);
    lblplayed.Text =
        "Slot " + std::to_string(played_) + ", " + summary.Caption + ", " + summary.Level;
    lblpromotion.Text = summary.Own ? summary.Own->Name.Str() : "";
    lbltoday.Text = summary.Today;
    for (ui::Control* fact : std::initializer_list<ui::Control*>{&lblimage, &lblmoney, &imgplayed})
      fact->Visible = summary.Own.has_value();
    if (summary.Own) {
      lblimage.Text = std::to_string(summary.Own->Image) + "%";
      lblmoney.Text = Dollars(summary.Own->Money);
      imgplayed.Drawn = CrestOf(*summary.Own);
    }
    lbllastshow.Text = summary.LastShow;
    lbllastshow.Visible = !summary.LastShow.empty();
    ShowPage(played_, imgpage);
    imglast(played_).Visible = false;  // it is the same
  }

  void ShowActs() {
    int used = 0;
    for (int slot = 1; slot <= kSlots; ++slot) used += In(slot).Empty ? 0 : 1;
    lblfacts.Text = std::to_string(used) + " of " + std::to_string(kSlots) +
                    " slots in use. A game saves itself with every click.";
    const bool room = FreeSlot(game_.Disk(), game_.Home()).has_value();
    cmdimport.Enabled = room;
    cmdimport.Tip =
        room ? "Puts a game that was exported to a file into the first empty slot." : kAllInUse;
    for (int slot = 1; slot <= kSlots; ++slot) {
      const SlotSummary& summary = In(slot);
      for (ui::Button* act : {&cmdcopy(slot), &cmdrename(slot), &cmdexport(slot), &cmddelete(slot),
                              &cmdmornings(slot)})
        act->Visible = !summary.Empty;
      for (ui::Button* act : {&cmdnew(slot), &cmdbring(slot)}) act->Visible = summary.Empty;
      cmdbring(slot).Enabled = IsFree(game_.Disk(), game_.Home(), slot);
      cmdbring(slot).Tip = cmdbring(slot).Enabled
                               ? "Puts a game that was exported to a file into this slot."
                               : "Its folder is not empty.";
      for (ui::Button* act :
           {&cmdcopy(slot), &cmdrename(slot), &cmdexport(slot), &cmdmornings(slot)}) {
        act->Enabled = summary.Playable;
        act->Tip = summary.Playable ? "" : "This slot can't be loaded.";
      }
      if (summary.Playable && !summary.GoesBack) {
        cmdmornings(slot).Enabled = false;
        cmdmornings(slot).Tip = "No way back: a rule of this game's house.";
      }
      if (summary.Playable && !room) {
        cmdcopy(slot).Enabled = false;
        cmdcopy(slot).Tip = kAllInUse;
      }
    }
  }

  void ShowDeleted() {
    deleted_ = DeletedSlots(game_.Disk(), game_.Home(), game_.PresentDay());
    cmbdeleted.Clear();
    for (const DeletedSlot& deleted : deleted_)
      cmbdeleted.Add(deleted.Name + ", deleted on " + LongDate(deleted.Deleted) + ", kept for " +
                     MoreDays(deleted.DaysLeft));
    cmbdeleted.Select(deleted_.empty() ? 0 : 1);
    for (ui::Control* control :
         std::initializer_list<ui::Control*>{&lbldeleted, &cmbdeleted, &cmdrestore})
      control->Visible = !deleted_.empty();
    cmdrestore.Enabled = FreeSlot(game_.Disk(), game_.Home()).has_value();
    cmdrestore.Tip = cmdrestore.Enabled ? "" : kAllInUse;
  }

  /// Asks for the name of a game; empty when the player would rather not.
  std::string AskName(const std::string& title, const std::string& offered) {
    const std::string name(detail::Trimmed(desk().Prompt(title, "Save Game Name:", offered)));
    return name.empty() || desk().Objects(WhyNotPlain(name)) ? std::string() : name;
  }

  void cmdcontinue_Click() { EnterSlot(game_, played_); }
  void cmdnewgame_Click() { desk().Open("frmNewGame"); }

  void Copy(int slot) {
    const std::string &whole = In(slot).Caption, copy = whole + " copy";
    const std::string name =
        AskName("Duplicate", copy.size() > sizeof(GameInfo::SaveName) ? whole : copy);
    const auto to = FreeSlot(game_.Disk(), game_.Home());
    if (name.empty() || !to) return;
    CopySlot(game_.Disk(), game_.SlotFolder(slot), game_.SlotFolder(*to), name, game_.NewWorldId());
    Return();
    lblfacts.Text =
        "Slot " + std::to_string(*to) + " now holds a copy of slot " + std::to_string(slot) + ".";
  }

  void Rename(int slot) {
    const std::string name = AskName("Rename", In(slot).Caption);
    if (name.empty()) return;
    const auto remarks = RenameSlot(game_.Disk(), game_.SlotFolder(slot), name);
    if (!remarks.empty()) desk().Say("Loading", Joined(remarks, "\n"));
    Return();
  }

  std::string AskFile(const std::string& title, const std::string& text, const std::string& offered,
                      ui::Desk::Use use) {
    const std::string typed(detail::Trimmed(desk().ChooseFile(title, text, offered, use)));
    return typed.empty() ? std::string() : PathInHome(game_.Home(), typed);
  }

  void Export(int slot) {
    std::string offered = In(slot).Caption + kExportEnding;
    std::ranges::replace(offered, '/', '-');
    const std::string path =
        AskFile("Export", "The file to write, in the game's folder or a whole path:", offered,
                ui::Desk::Use::Write);
    if (path.empty()) return;
    if (game_.Disk().Look(path) != Disk::Kind::Nothing &&
        !desk().Ask("Replace?", ForScreen(path) + " is there already. Write over it?",
                    ui::Default::No))
      return;
    TakenAlong along;
    along.History = HasHistory(game_.Disk(), game_.SlotFolder(slot)) &&
                    desk().Ask("Export",
                               "Take along what this game can go back to? The file is larger then, "
                               "and whoever opens it can go back too.",
                               ui::Default::No);
    along.Record = IsRecorded(game_.Disk(), game_.SlotFolder(slot)) &&
                   desk().Ask("Export",
                              "Take along the record of what you did, so that others can play it "
                              "again? It has every text that you typed, and the names of files.",
                              ui::Default::Yes);
    ExportSlot(game_.Disk(), game_.SlotFolder(slot), path, along);
    lblfacts.Text = "Wrote " + In(slot).Caption + " to " + ForScreen(path) + ".";
  }

  void New(int slot) { desk().Open(MakefrmNewGame(game_, slot)); }

  void GoBack(int slot) {
    EnterSlot(game_, slot);
    if (game_.HasWorld()) OpenMornings(game_);
  }

  void cmdimport_Click() {
    if (const auto free = FreeSlot(game_.Disk(), game_.Home())) Import(*free);
  }

  void Import(int slot) {
    const std::string path =
        AskFile("Import", "The file to read, in the game's folder or a whole path:", "",
                ui::Desk::Use::Read);
    if (path.empty()) return;
    if (!ImportInto(game_, slot, path, "Import", "Put it into slot " + std::to_string(slot) + "?"))
      return;
    Return();
    lblfacts.Text = "Slot " + std::to_string(slot) + " now holds " + In(slot).Caption + ".";
  }

  void Delete(int slot) {
    const std::string name = In(slot).Caption;
    if (!desk().Ask("Delete?",
                    "Are you sure you want to delete " + name + "?\nIt is kept for " +
                        std::to_string(kDaysKept) + " days and can be brought back until then.",
                    ui::Default::No))
      return;
    DeleteSlot(game_.Disk(), game_.SlotFolder(slot), game_.PresentDay());
    Return();
    lblfacts.Text = "Deleted " + name + ".";
  }

  void cmdrestore_Click() {
    if (cmbdeleted.Selected() == 0) return;
    const DeletedSlot deleted = deleted_[static_cast<std::size_t>(cmbdeleted.Selected() - 1)];
    const int slot = RestoreSlot(game_.Disk(), game_.Home(), deleted);
    Return();
    lblfacts.Text = deleted.Name + " is back, in slot " + std::to_string(slot) + ".";
  }

  /// A link on each card.
  ui::Array<ui::Button> EachAct(const std::string& name, const char* caption,
                                void (frmLoadGame::*act)(int slot)) {
    return {name, kSlots, [this, name, caption, act](const std::string&, int slot) {
              auto button =
                  std::make_unique<ui::Button>(*this, name + std::to_string(slot), caption,
                                               [this, act, slot] { (this->*act)(slot); });
              button->Plain = true;
              return button;
            }};
  }

  int played_ = 0;
  std::vector<DeletedSlot> deleted_;
  ui::Label lblfacts{*this, "lblfacts"};
  ui::Picture imgplayed{*this, "imgplayed"};
  ui::Label lblplayed{*this, "lblplayed"};
  ui::Label lblpromotion{*this, "lblpromotion"};
  ui::Label lbltoday{*this, "lbltoday"};
  ui::Label lblimage{*this, "lblimage"};
  ui::Label lblmoney{*this, "lblmoney"};
  ui::Label lbllastshow{*this, "lbllastshow"};
  ui::Picture imgpage{*this, "imgpage"};
  ui::Label lbldeleted{*this, "lbldeleted", "Deleted games"};
  ui::ComboBox cmbdeleted{*this, "cmbdeleted"};
  ui::Button cmdrestore{*this, "cmdrestore", "Bring Back", &frmLoadGame::cmdrestore_Click};
  ui::Array<ui::Button> cmdcopy = EachAct("cmdcopy", "Duplicate", &frmLoadGame::Copy);
  ui::Array<ui::Button> cmdrename = EachAct("cmdrename", "Rename", &frmLoadGame::Rename);
  ui::Array<ui::Button> cmdexport = EachAct("cmdexport", "Export", &frmLoadGame::Export);
  ui::Array<ui::Button> cmddelete = EachAct("cmddelete", "Delete", &frmLoadGame::Delete);
  ui::Array<ui::Button> cmdmornings = EachAct("cmdmornings", "Go Back", &frmLoadGame::GoBack);
  ui::Array<ui::Button> cmdnew = EachAct("cmdnew", "New Game", &frmLoadGame::New);
  ui::Array<ui::Button> cmdbring = EachAct("cmdbring", "Import", &frmLoadGame::Import);
  ui::Button cmdlook{*this, "cmdlook", "Look Again", [this] { Return(); }};
  ui::Button cmdimport{*this, "cmdimport", "Import A File", &frmLoadGame::cmdimport_Click};
  ui::Button cmdnewgame{*this, "cmdnewgame", "New Game", &frmLoadGame::cmdnewgame_Click};
  ui::Button cmdcontinue{*this, "cmdcontinue", "Continue", &frmLoadGame::cmdcontinue_Click};
};

}  // namespace

SCREEN(frmLoadGame)

}  // namespace grapplemont
