#include "ui/game.h"

#include <algorithm>
#include <cctype>
#include <utility>

#include "records/checks/checkworld.h"
#include "records/store/commandlog.h"
#include "records/store/playedslot.h"
#include "records/store/slotcare.h"
#include "records/store/slotfolder.h"
#include "records/world.h"
#include "ui/goingback.h"

namespace grapplemont {

namespace {

void TellMended(const std::vector<Fault>& mended, std::vector<std::string>& remarks) {
  if (mended.empty()) return;
  remarks.push_back("Numbers that no game can go on with were brought back into their ranges:");
  for (const Fault& fault : mended) remarks.push_back(fault.Line());
}

}  // namespace

Game::Game(ui::Desk& desk, grapplemont::Disk& disk, Options options)
    : desk_(desk), disk_(disk), options_(std::move(options)) {
  desk_.SetWork(this);
  ConnectGoingBack(*this);
  desk_.NoteAct = [this](ui::Act act) { HearAct(std::move(act)); };
}

void Game::HearAct(ui::Act act) {
  // What is answered before the main screen has come up belongs to the machine, not to the career.
  if (slot_ && slot_->Records() && IsOnMainScreen(desk_)) step_.Commands += act.Line + "\n";
  if (act.Name.empty()) return;
  step_.Is = PlayedStep::Click;
  step_.Name = std::move(act.Name);
  step_.GoesOn = act.GoesOn;
  step_.Page = PageOnHub(desk_);
}

void Game::CommitAs(PlayedStep step) {
  step.Commands = std::move(step_.Commands);
  step_ = std::move(step);
}

Game::~Game() {
  desk_.NoteAct = {};
  desk_.Undo = desk_.Redo = {};
  desk_.SetWork(nullptr);
}

std::unique_ptr<Draws> Game::NewDraws(Stream stream) {
  return options_.Seed ? DrawsOf(*options_.Seed, stream)
                       : std::make_unique<SeededDraws>(MachineSeed());
}

std::unique_ptr<Draws> Game::DrawsOf(std::uint64_t seed, Stream stream) {
  // Streams of one seed lie far apart, and no stream of a seed is another's of the next seed.
  constexpr std::uint64_t kApart = 0x9E3779B97F4A7C15;
  return std::make_unique<SeededDraws>(seed ^ (kApart * stream));
}

std::uint64_t Game::NewWorldId() {
  return MachineSeed();
}

std::vector<std::string> Game::OpenSlot(int slot, bool dropDamaged) {
  CloseSlot();
  SlotOptions options;
  options.Contents = [this](const std::string& file) { return CommittedOf(file); };
  auto files = std::make_unique<PlayedSlot>(disk_, SlotFolder(slot),
                                            dropDamaged ? Damage::Drop : Damage::Refuse, options);
  // What is recorded is played again with the same chance.
  const auto seed = options_.Seed;
  if (files->Records() && !seed) options_.Seed = MachineSeed();
  step_ = {.Commands = files->Records() ? "session " + std::to_string(*options_.Seed) + " " +
                                              IsoDate(PresentDay()) + "\n"
                                        : std::string()};
  auto world = std::make_unique<grapplemont::World>(NewDraws(kPlay), NewDraws(kReportProse),
                                                    NewDraws(kLife));
  options_.Seed = seed;
  world->Load(files->Files());
  RequireKnownTotals(*world);
  files->Forget();
  world->Session.StartSize = world->Player().Size;
  slot_ = std::move(files);
  slotNumber_ = slot;
  world_ = std::move(world);
  opened_ = {slot, ReadWorldId(disk_, SlotFolder(slot)).value_or(0)};
  MarkCommitted(world_->Changes());
  std::vector<std::string> remarks = slot_->Remarks();
  if (!isOver_) TellMended(MendNumbers(*world_), remarks);
  return remarks;
}

std::vector<std::string> Game::Layers(const std::string& name) const {
  std::vector<std::string> folders{Path(name)};
  if (!options_.Share.empty()) folders.push_back(options_.Share + "/" + name);
  return folders;
}

std::string Game::PageFile(int slot) const {
  return PageOf(SlotFolder(slot));
}

void Game::CloseSlot() {
  if (!slot_) return;
  if (KeepPage) KeepPage(PageFile(slotNumber_));
  const std::unique_ptr<PlayedSlot> closing = std::move(slot_);
  std::string gone;
  try {
    if (closing->Records()) closing->Record(std::exchange(step_.Commands, {}));
  } catch (const DiskError&) {
    // Clicks that changed nothing are all that is lost.
  }
  try {
    closing->Checkpoint();
  } catch (const SlotGone& fault) {
    gone = fault.what();
  } catch (const DiskError&) {
    // The journal still holds every commit; the next opening replays it.
  }
  world_.reset();
  if (!gone.empty()) desk_.Say("Error!", gone);
}

std::optional<Bytes> Game::CommittedOf(const std::string& file) const {
  if (world_)
    for (const Table* table : std::as_const(*world_).Tables())
      if (table->File() == file && table->CommittedExists()) return table->Committed();
  return std::nullopt;
}

World& Game::World() {
  if (!world_) throw std::logic_error("No game is open.");
  return *world_;
}

PlayedSlot& Game::OpenedSlot() {
  if (!slot_) throw std::logic_error("No game is open.");
  return *slot_;
}

void Game::Commit() {
  PlayedStep step = std::exchange(step_, {.Commands = step_.Commands});
  if (joined_) joined_->Commit();
  if (!world_) return;
  // What was gone back to is just what it was.
  if (Watch && !isOver_ && step.Is == PlayedStep::Click) Watch();
  const auto changes = world_->Changes();
  if (changes.empty()) return;
  if (!MayChange(changes)) throw std::logic_error(kCareerIsOver);
  if (IsLookedAt(changes)) step.Name.clear();
  try {
    slot_->Commit(changes, step);
  } catch (const DiskError&) {
    const bool isKept = slot_->Committed();
    if (isKept) MarkCommitted(changes);
    NoteDiskFault(isKept);
    throw;
  }
  MarkCommitted(changes);
  step_.Commands.clear();  // those of an event that kept nothing belong to the next
  if (Kept) Kept(changes);
}

/// What the player has done stays in the record, since controls and chance have moved with it; that
/// the disk failed does too, since the world has not.
void Game::NoteDiskFault(bool isKept) {
  const bool isRecorded = !step_.Commands.empty();
  if (isKept) step_.Commands.clear();
  if (isRecorded) step_.Commands += std::string(isKept ? kDiskKept : kDiskTookBack) + "\n";
}

void Game::MarkCommitted(const std::vector<FileChange>& changes) {
  world_->MarkCommitted(changes);
  isOver_ = HasEnded(world_->Game());
}

/// The player has but looked at a page: mails are read, steps of the guide seen.
bool Game::IsLookedAt(const std::vector<FileChange>& changes) const {
  return std::ranges::all_of(changes, [this](const FileChange& change) {
    return change.Name == world_->ReadMails().File() || change.Name == world_->Guides().File();
  });
}

bool Game::MayChange(const std::vector<FileChange>& changes) const {
  if (!isOver_ || !HasEnded(world_->Game())) return true;
  return std::ranges::all_of(changes, [this](const FileChange& change) {
    return change.Name == world_->News().File() || change.Name == world_->ReadMails().File() ||
           change.Name == world_->Notes().File();
  });
}

void Game::Rollback() {
  step_ = {.Commands = std::move(step_.Commands)};
  if (joined_) joined_->Rollback();
  if (world_) world_->Rollback();
}

std::string Game::Explain(const std::exception& fault) const {
  const auto* overflow = dynamic_cast<const FieldOverflow*>(&fault);
  if (overflow && world_) return world_->Explain(*overflow);
  return joined_ ? joined_->Explain(fault) : fault.what();
}

GameScreen::GameScreen(Game& game, std::string name, std::string title, const Frame& frame)
    : Screen(game.Desk(), std::move(name), std::move(title), frame.Is),
      game_(game),
      cmdback(*this, frame.BackName, frame.Back, [this] { cmdback_Click(); }),
      manages_(frame.Manages) {
  KeepLast(cmdback);
}

/// Whether it is a page with nothing but the hub below it.
bool GameScreen::LiesOnHub() {
  const auto& screens = desk().Screens();
  const auto at = std::ranges::find_if(
      screens, [this](const std::shared_ptr<ui::Screen>& screen) { return screen.get() == this; });
  return Is() == ui::Role::Page && at != screens.begin() && at != screens.end() &&
         (*std::prev(at))->Is() == ui::Role::Hub;
}

ui::Page GameScreen::PageOf(ui::Box body, ui::Label* facts, std::vector<ui::Button*> actions,
                            ui::Button* main) {
  ui::Page page;
  page.Facts = facts;
  page.More = Notes();
  page.Actions = std::move(actions);
  page.Actions.push_back(&cmdback);
  if (main) page.Actions.push_back(main);
  const bool justLeaves = cmdback.Text.Get() == "Back" || cmdback.Text.Get() == "Done";
  const bool leavesEnter = justLeaves && LiesOnHub();
  page.Main = main ? main : leavesEnter ? nullptr : &cmdback;
  page.Cancel = &cmdback;
  page.Body = std::move(body);
  return page;
}

std::vector<ui::Label*> GameScreen::Notes() {
  const std::string note = game_.NoteOn && game_.HasWorld() ? game_.NoteOn(Name()) : std::string();
  if (!lblguide_ && note.empty()) return {};
  if (!lblguide_) lblguide_ = std::make_unique<ui::Label>(*this, "lblguide");
  lblguide_->Colour = ui::Tone::Gold;
  lblguide_->Text = note;
  lblguide_->Visible = !note.empty();
  return {lblguide_.get()};
}

void GameScreen::cmdback_Click() {
  Close();
  if (manages_ && game_.RefreshMainScreen) game_.RefreshMainScreen();
}

void Waiting::Done() {
  if (screen_) game_.Desk().Close(*screen_);
  screen_ = nullptr;
}

void Waiting::Tell(std::string_view step) {
  if (!screen_) {
    if (!game_.Desk().Knows("frmWait")) return;
    game_.Desk().Open("frmWait");
    screen_ = game_.Desk().Top();
  }
  if (ui::Control* label = screen_->Find("lblstep")) label->Text = InWords(step);
  game_.Desk().Repaint();
}

std::string InWords(std::string_view name) {
  std::string words;
  for (const char letter : name) {
    const auto byte = static_cast<unsigned char>(letter);
    if (std::isupper(byte) && !words.empty() && words.back() != ' ') words += ' ';
    words += words.empty() ? letter : static_cast<char>(std::tolower(byte));
  }
  return words;
}

}  // namespace grapplemont
