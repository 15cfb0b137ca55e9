#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "records/fields/outside.h"
#include "records/store/disk.h"
#include "records/store/playedstep.h"
#include "ui/desk.h"

namespace grapplemont {

class PlayedSlot;
class World;
struct FileChange;
struct WhatIf;

/// Why a player whose career has ended can change nothing any more.
inline constexpr const char* kCareerIsOver = "Your career is over: the world can be read.";

/// The running program: its desk, its disk, its home folder, and the slot that is open. Every event
/// of the desk is a commit of the open slot. Once the career has ended, what a player would change
/// is taken back: all but their own mails and notes.
class Game : public ui::Work {
 public:
  struct Options {
    std::string Home = ".";  // holds s1/ to s8/, and data/ and gfx/ of the player's own
    Clock Today = MachineToday;
    std::optional<std::uint64_t> Seed = {};  // none: from the operating system
    std::string Share = {};   // data/ and gfx/ as they came with the program; empty for none
    std::string Faults = {};  // the file where faults are noted; empty for none
    int Worlds = 100;         // copies of the world that are played for a look ahead
  };
  Game(ui::Desk& desk, Disk& disk, Options options);
  ~Game() override;

  ui::Desk& Desk() { return desk_; }
  grapplemont::Disk& Disk() { return disk_; }
  const std::string& Home() const { return options_.Home; }
  /// The player's own; what lies there is over what came with the program.
  std::string DataFolder() const { return Path("data"); }
  /// Folders over each other, the player's own first.
  std::vector<std::string> DataFolders() const { return Layers("data"); }
  std::vector<std::string> PictureFolders() const { return Layers("gfx"); }
  const std::string& Share() const { return options_.Share; }
  const std::string& FaultFile() const { return options_.Faults; }
  /// The data as they came with the program; empty for none.
  std::string PristineData() const {
    return options_.Share.empty() ? std::string() : options_.Share + "/data";
  }
  /// "s1" to "s8" in the home.
  std::string SlotFolder(int slot) const { return Path("s" + std::to_string(slot)); }
  /// The picture of the page that was seen last in a slot; it need not be there.
  std::string PageFile(int slot) const;
  Day PresentDay() const { return options_.Today(); }
  int Worlds() const { return options_.Worlds; }
  /// What chance is for; each has a stream of its own.
  enum Stream : std::uint64_t {
    kPlay,
    kReportProse,
    kWorldMaking,
    kWorldProse,
    kPictures,
    kLife,
    kWorldLife
  };
  /// A source of chance: from the seed if one was given, else from the operating system.
  std::unique_ptr<Draws> NewDraws(Stream stream);
  /// The stream of a seed.
  static std::unique_ptr<Draws> DrawsOf(std::uint64_t seed, Stream stream);

  /// Chance comes from a number that was named: what is played can be played again.
  bool HasSeed() const { return options_.Seed.has_value(); }

  /// A number that no other world has, for a slot that is made.
  std::uint64_t NewWorldId();

  /// How the main screen ends a day; booking sheets and shows end in it. Set when the main screen
  /// is registered.
  std::function<void(bool cancelled)> AdvanceDay;

  /// Runs before each commit of a world: what watches the player notes there what it has seen. Must
  /// not throw.
  std::function<void()> Watch;

  /// What a page says under its title to somebody who is new, by the page's name; empty for
  /// nothing.
  std::function<std::string(std::string_view screen)> NoteOn;

  /// Runs after each commit that has changed a world, with its files: what is always in sight shows
  /// the world as it is now. Must not throw.
  std::function<void(const std::vector<FileChange>& changes)> Kept;

  /// Brings what the main screen shows up to date, and opens what waits for the player; screens
  /// that manage something call it when they close. Set when the main screen is registered.
  std::function<void()> RefreshMainScreen;

  /// Opens the page of a worker, a promotion, by uid: what a name on any screen leads to. Empty
  /// until the rooms that have the pages are registered.
  std::function<void(int uid)> OpenWorker, OpenPromotion;
  /// Opens the report of the promotion's show of a day, while its words are kept.
  std::function<void(Day on, int promotionUid)> OpenReport;
  /// Opens the family tree of a promotion's Title.
  std::function<void(int promotionUid, const std::string& title)> OpenTree;
  /// Opens the mailbox at the mail of a number.
  std::function<void(int number)> OpenMail;

  /// Plays both answers to a question in copies of the world and shows what becomes of them.
  std::function<void(WhatIf asked)> OpenWhatIf;

  /// Opens the chronicle at a chapter: of "Workers" or "Promotions" by uid, of "Titles" by the
  /// promotion's uid and the name.
  std::function<void(std::string_view kind, int number, std::string_view name)> OpenChapter;
  /// Writes the whole chronicle in a voice's words into a file as PDF, and says why it could not;
  /// set by a shell that can.
  std::function<std::string(const std::string& file, int voice)> WritePdf;

  /// Keeps a picture of what is shown in a file; set by a shell that has pictures. Called when a
  /// slot is left, and must not throw.
  std::function<void(const std::string& file)> KeepPage;

  /// Makes the slot's world the open one. Throws SlotBusy, DiskError, WorldFault, and SlotDamaged
  /// unless the commits behind the damage may be dropped; then none is open. Gives what was left
  /// aside, a line each.
  std::vector<std::string> OpenSlot(int slot, bool dropDamaged = false);
  /// Brings the open world's files up to date and lets go of it.
  void CloseSlot();
  bool HasWorld() const { return world_ != nullptr; }
  /// The open slot from 1 and the id of its world, which no other game has; 0 for none.
  struct OpenGame {
    int Slot = 0;
    std::uint64_t World = 0;
  };
  OpenGame Opened() const { return HasWorld() ? opened_ : OpenGame(); }
  /// Requires an open world.
  grapplemont::World& World();
  /// The slot of the open world, with what can be gone back to.
  PlayedSlot& OpenedSlot();
  /// Says what the commit at the end of this event is, where it is no click.
  void CommitAs(PlayedStep step);
  /// Pages come up as they were before a click that was taken back: what opening one does to the
  /// world is not done again.
  bool ComesUpAgain = false;

  /// What else every event is a transaction of, while a room keeps something of its own open (the
  /// editor the default data); nullptr for nothing.
  void Join(std::shared_ptr<ui::Work> work) { joined_ = std::move(work); }
  const std::shared_ptr<ui::Work>& Joined() const { return joined_; }

  void Commit() override;
  void Rollback() override;
  std::string Explain(const std::exception& fault) const override;

 private:
  void MarkCommitted(const std::vector<FileChange>& changes);
  void NoteDiskFault(bool isKept);
  bool MayChange(const std::vector<FileChange>& changes) const;
  bool IsLookedAt(const std::vector<FileChange>& changes) const;
  void HearAct(ui::Act act);
  std::string Path(const std::string& name) const { return options_.Home + "/" + name; }
  std::vector<std::string> Layers(const std::string& name) const;
  std::optional<Bytes> CommittedOf(const std::string& file) const;

  ui::Desk& desk_;
  grapplemont::Disk& disk_;
  Options options_;
  std::unique_ptr<PlayedSlot> slot_;
  PlayedStep step_;  // what the next commit is
  OpenGame opened_;
  int slotNumber_ = 0;  // of slot_
  std::unique_ptr<grapplemont::World> world_;
  bool isOver_ = false;  // as of the last commit
  std::shared_ptr<ui::Work> joined_;
};

/// What differs between the frames of screens.
struct Frame {
  ui::Role Is = ui::Role::Page;
  const char* Back = "Back";  // the caption of the way back
  const char* BackName = "cmdback";
  bool Manages = false;  // something of the main screen's: leaving brings that up to date
};

/// What every screen of the game has: the world, and the way back, its last control.
class GameScreen : public ui::Screen {
 public:
  GameScreen(Game& game, std::string name, std::string title, const Frame& frame = {});
  /// Most screens come up as they come back.
  void Load() override { Return(); }

 protected:
  World& world() { return game_.World(); }
  /// The actions, then the way back, which Escape presses; then `main`, which Enter presses.
  /// Without one Enter goes back, too, but for a page that lies on the hub and is left by a plain
  /// "Back" or "Done": there Enter is the hub's.
  ui::Page PageOf(ui::Box body, ui::Label* facts = nullptr, std::vector<ui::Button*> actions = {},
                  ui::Button* main = nullptr);
  /// For a screen that has controls behind the way back, of which this is the first.
  void BackBefore(const ui::Control& control) { PutBefore(cmdback, control); }
  virtual void cmdback_Click();

  Game& game_;
  ui::Button cmdback;

 private:
  bool LiesOnHub();
  std::vector<ui::Label*> Notes();

  bool manages_;
  std::unique_ptr<ui::Label> lblguide_;  // once there has been a note on this page
};

/// Puts the waiting screen up and tells on it what is going on. A handler that throws takes it down
/// with all else that it opened.
class Waiting {
 public:
  explicit Waiting(Game& game) : game_(game) {}
  Waiting(const Waiting&) = delete;
  Waiting& operator=(const Waiting&) = delete;
  /// "RivalWorkerHiring" is shown as "Rival worker hiring".
  void Tell(std::string_view step);
  /// Takes it down; the screen below shows the world as it is.
  void Done();

 private:
  Game& game_;
  ui::Screen* screen_ = nullptr;
};

/// The words of a name written in one: "RivalNewTvShows" gives "Rival new tv shows".
std::string InWords(std::string_view name);

}  // namespace grapplemont

/// How the desk makes a screen that it opens by its name; program/screens.cpp has a row for each.
#define SCREEN(name)                                   \
  std::unique_ptr<ui::Screen> Make##name(Game& game) { \
    return std::make_unique<name>(game);               \
  }
