#include "ui/desk.h"

#include <algorithm>
#include <new>
#include <stdexcept>

#include "records/store/disk.h"

namespace grapplemont::ui {

Desk::Desk() = default;
Desk::~Desk() = default;

bool Desk::Objects(const std::string& why) {
  if (!why.empty()) Say("Error!", why);
  return !why.empty();
}

void Desk::Register(std::string name, Factory make) {
  factories_.insert_or_assign(std::move(name), std::move(make));
}

bool Desk::Knows(std::string_view name) const {
  return factories_.contains(name);
}

void Desk::Open(std::string_view name) {
  const auto found = factories_.find(name);
  if (found == factories_.end()) throw std::logic_error("No screen named " + std::string(name));
  Open(found->second());
}

void Desk::Open(std::unique_ptr<Screen> screen) {
  if (depth_ == 0) return Event([&] { Open(std::move(screen)); });
  screens_.push_back(std::move(screen));
  LoadTop();
}

void Desk::LoadTop() {
  Screen& top = *screens_.back();
  if (top.loaded_) {
    top.Return();
  } else {
    top.loaded_ = true;
    top.Load();
  }
}

void Desk::Close(Screen& screen) {
  const auto found =
      std::ranges::find_if(screens_, [&](auto& held) { return held.get() == &screen; });
  if (found == screens_.end()) return;
  const bool wasTop = found + 1 == screens_.end();
  closed_.push_back(std::move(*found));
  screens_.erase(found);
  if (wasTop && !screens_.empty()) LoadTop();
  if (depth_ == 0) closed_.clear();
}

void Desk::CloseAll() {
  for (auto& screen : screens_) closed_.push_back(std::move(screen));
  screens_.clear();
  if (depth_ == 0) closed_.clear();
}

bool Desk::Holds(const Screen& screen) const {
  return std::ranges::any_of(screens_, [&](auto& held) { return held.get() == &screen; });
}

void Desk::Event(const Handler& handler) {
  if (!handler) return;
  if (depth_ > 0) return handler();
  const Stack before = screens_;
  ++moment_;
  ++depth_;
  try {
    handler();
    if (work_) work_->Commit();
  } catch (const std::exception& fault) {
    TakeBack(before, fault);
  }
  --depth_;
  closed_.clear();
}

std::vector<Link> Desk::LinksIn(std::string_view text) const {
  return FindLinks && !text.empty() ? FindLinks(text) : std::vector<Link>();
}

NameSearch Desk::NewSearch() const {
  if (BeginSearch) return BeginSearch();
  return [](std::string_view, std::size_t) { return std::vector<Finding>(); };
}

void Desk::Visit(const Finding& found) {
  NoteOwn({"visit " + found.Heading + ": " + found.Words, found.Words});
  const Handler open = found.Open;
  Event(open);
}

std::string Desk::Take(const TakingBack& back) {
  std::string what = back.What ? back.What() : std::string();
  if (what.empty() || (Top() && Top()->Is() == Role::Wait)) return {};
  NoteOwn({&back == &Undo ? "undo" : "redo"});
  Event(back.Do);
  return what;
}

bool Desk::OpenHelp() {
  Screen* const top = Top();
  if (!Help.About || !top || top->Is() == Role::Wait) return false;
  std::unique_ptr<Screen> page = Help.About(*top);
  if (!page) return false;
  NoteOwn({"explain"});
  Open(std::move(page));
  return true;
}

bool Desk::OpenGlossary(std::string_view term) {
  if (!Help.Glossary) return false;
  NoteOwn({"explain " + std::string(term)});
  Open(Help.Glossary(term));
  return true;
}

std::string Desk::MeaningOf(std::string_view heading) const {
  return Help.Meaning && !heading.empty() ? Help.Meaning(heading) : std::string();
}

void Desk::TakeBack(const Stack& before, const std::exception& fault) {
  std::string reason = Explained(fault);
  const auto attempt = [&](const Handler& step) {
    try {
      step();
    } catch (const std::exception& worse) {
      reason += "\n" + Explained(worse);
    }
  };
  if (work_) attempt([this] { work_->Rollback(); });
  for (auto& screen : screens_) closed_.push_back(screen);
  screens_ = before;
  for (auto& screen : before)
    if (screen->loaded_) attempt([&] { screen->Return(); });
  if (NoteFault) NoteFault((Top() ? Top()->Name() : "nowhere") + ": " + reason);
  Say("Error!", reason);
}

std::string Desk::Explained(const std::exception& fault) const {
  if (dynamic_cast<const std::bad_alloc*>(&fault)) return kOutOfMemory;
  return work_ ? work_->Explain(fault) : fault.what();
}

}  // namespace grapplemont::ui
