#include "ui/game.h"

#include "records/slot.h"
#include "records/world.h"

namespace grapplemont {

Game::Game(ui::Desk& desk, grapplemont::Disk& disk, Options options)
    : desk_(desk), disk_(disk), options_(std::move(options)) {
  desk_.SetWork(this);
}

Game::~Game() {
  desk_.SetWork(nullptr);
}

std::unique_ptr<Draws> Game::NewDraws(std::uint64_t stream) {
  return std::make_unique<SeededDraws>(options_.Seed ? *options_.Seed + stream : MachineSeed());
}

std::uint64_t Game::NewWorldId() {
  return MachineSeed();
}

void Game::OpenSlot(int slot) {
  CloseSlot();
  auto files = std::make_unique<Slot>(disk_, SlotFolder(slot), KnownFiles());
  auto world = std::make_unique<grapplemont::World>(NewDraws(0), NewDraws(1));
  world->Load(files->Files());
  files->Forget();
  world->Session.StartSize = world->Player().Size;
  slot_ = std::move(files);
  world_ = std::move(world);
}

void Game::CloseSlot() {
  if (!slot_) return;
  const std::unique_ptr<Slot> closing = std::move(slot_);
  world_.reset();
  closing->Checkpoint();
}

World& Game::World() {
  if (!world_) throw std::logic_error("No game is open.");
  return *world_;
}

void Game::Commit() {
  if (!world_) return;
  const auto changes = world_->Changes();
  if (changes.empty()) return;
  slot_->Commit(changes);
  world_->MarkCommitted();
}

void Game::Rollback() {
  if (world_) world_->Rollback();
}

std::string Game::Explain(const std::exception& fault) const {
  const auto* overflow = dynamic_cast<const FieldOverflow*>(&fault);
  return overflow && world_ ? world_->Explain(*overflow) : fault.what();
}

}  // namespace grapplemont
