#include "support/diskstate.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace grapplemont::test {

namespace {

constexpr auto kPageBytes = static_cast<std::size_t>(PagedBytes::kPage);
constexpr auto kSectorBytes = static_cast<std::size_t>(PagedBytes::kSector);
constexpr std::size_t kSectors = kPageBytes / kSectorBytes;

std::size_t PageOf(std::int64_t offset) {
  return static_cast<std::size_t>(offset / PagedBytes::kPage);
}

PagedBytes::Page CopyOf(const PagedBytes::PageRef& page) {
  return page ? *page : PagedBytes::Page{};
}

PagedBytes::PageRef Shared(const PagedBytes::Page& page) {
  static constexpr PagedBytes::Page kZeros{};
  if (std::memcmp(page.data(), kZeros.data(), kPageBytes) == 0) return nullptr;
  return std::make_shared<const PagedBytes::Page>(page);
}

}  // namespace

void PagedBytes::Read(std::int64_t offset, std::span<std::byte> buffer) const {
  while (!buffer.empty()) {
    const auto within = static_cast<std::size_t>(offset % kPage);
    const std::size_t count = std::min(buffer.size(), kPageBytes - within);
    if (const PageRef page = At(PageOf(offset))) {
      std::memcpy(buffer.data(), page->data() + within, count);
    } else {
      std::memset(buffer.data(), 0, count);
    }
    buffer = buffer.subspan(count);
    offset += static_cast<std::int64_t>(count);
  }
}

std::vector<std::size_t> PagedBytes::Write(std::int64_t offset, ByteSpan bytes) {
  std::vector<std::size_t> touched;
  size_ = std::max(size_, offset + std::ssize(bytes));
  while (!bytes.empty()) {
    const std::size_t page = PageOf(offset);
    const auto within = static_cast<std::size_t>(offset % kPage);
    const std::size_t count = std::min(bytes.size(), kPageBytes - within);
    Page contents = CopyOf(At(page));
    std::memcpy(contents.data() + within, bytes.data(), count);
    Put(page, Shared(contents));
    touched.push_back(page);
    bytes = bytes.subspan(count);
    offset += static_cast<std::int64_t>(count);
  }
  return touched;
}

std::vector<std::size_t> PagedBytes::Resize(std::int64_t size) {
  const bool cut = size < size_ && size % kPage != 0;
  Settle(size);
  return cut ? std::vector{PageOf(size)} : std::vector<std::size_t>{};
}

void PagedBytes::Put(std::size_t page, PageRef contents) {
  if (page >= pages_.size()) pages_.resize(page + 1);
  pages_[page] = std::move(contents);
}

void PagedBytes::Settle(std::int64_t size) {
  size_ = size;
  pages_.resize(PageOf(size + kPage - 1));
  const auto within = static_cast<std::size_t>(size % kPage);
  if (within == 0 || !pages_.back()) return;
  Page contents = *pages_.back();
  std::fill(contents.begin() + static_cast<std::ptrdiff_t>(within), contents.end(), std::byte{0});
  pages_.back() = Shared(contents);
}

DiskState::DiskState() {
  nodes_[kRoot].Folder = true;
}

std::optional<DiskState::Node> DiskState::Find(Node folder, const std::string& name) const {
  const auto& names = nodes_.at(folder).Live;
  const auto found = names.find(name);
  return found == names.end() ? std::nullopt : std::optional(found->second);
}

DiskState::Node DiskState::Make(Node parent, const std::string& name, bool folder) {
  const Node made = next_++;
  nodes_[made].Folder = folder;
  Rename(parent, {{name, made}});
  return made;
}

void DiskState::Dirty(Node file, const std::vector<std::size_t>& pages) {
  NodeState& state = nodes_.at(file);
  for (const std::size_t page : pages) state.Pages.push_back({page, state.Seen.At(page), now_});
}

void DiskState::Write(Node file, std::int64_t offset, ByteSpan bytes) {
  NodeState& state = nodes_.at(file);
  const std::int64_t before = state.Seen.Size();
  ++now_;
  Dirty(file, state.Seen.Write(offset, bytes));
  if (state.Seen.Size() != before) state.Sizes.push_back({state.Seen.Size(), now_});
}

void DiskState::Resize(Node file, std::int64_t size) {
  NodeState& state = nodes_.at(file);
  ++now_;
  Dirty(file, state.Seen.Resize(size));
  state.Sizes.push_back({size, now_});
}

void DiskState::Rename(Node folder, std::vector<NameChange> changes) {
  NodeState& state = nodes_.at(folder);
  for (const NameChange& change : changes) {
    if (change.To)
      state.Live[change.Name] = *change.To;
    else
      state.Live.erase(change.Name);
  }
  state.Names.push_back({std::move(changes), ++now_});
}

void DiskState::Move(Node from, const std::string& name, Node to, const std::string& newName) {
  const Node moved = nodes_.at(from).Live.at(name);
  Rename(from, {{name, std::nullopt}});
  Rename(to, {{newName, moved}});
  nodes_.at(to).Names.back().When = now_ - 1;
  nodes_.at(from).Names.back().With = to;
  nodes_.at(to).Names.back().With = from;
}

void DiskState::Sync(Node file) {
  NodeState& state = nodes_.at(file);
  for (const PageWrite& write : state.Pages)
    if (write.Page < PageOf(state.Seen.Size() + PagedBytes::kPage - 1))
      state.Kept.Put(write.Page, state.Seen.At(write.Page));
  state.Kept.Settle(state.Seen.Size());
  state.Pages.clear();
  state.Sizes.clear();
}

void DiskState::SyncFolder(Node folder) {
  NodeState& state = nodes_.at(folder);
  state.Durable = state.Live;
  for (const NamesChange& change : std::exchange(state.Names, {}))
    if (change.With && !nodes_.at(*change.With).Names.empty()) SyncFolder(*change.With);
}

void DiskState::FailSync(Node file, Chance& chance) {
  NodeState& state = nodes_.at(file);
  const std::int64_t size = state.Kept.Size();
  for (const PageWrite& write : state.Pages)
    if (Pick(chance, 3) == 0) state.Kept.Put(write.Page, write.Contents);
  state.Kept.Settle(size);
  state.Pages.clear();
}

/// How much of what was under way lands.
struct DiskState::Landing {
  enum class Style { Nothing, Everything, InOrder, Scattered, Torn };
  Style How = Style::Nothing;
  int Until = 0;                   // in order: what was done up to here, the last of it in part
  std::map<int, bool> Moves = {};  // whether each landed, once it is drawn
};

DiskState DiskState::AfterPowerCut(Chance& chance) const {
  DiskState after = *this;
  Landing landing;
  landing.How = static_cast<Landing::Style>(Pick(chance, 5));
  landing.Until = static_cast<int>(Pick(chance, static_cast<std::uint64_t>(now_) + 1));
  if (Pick(chance, 2) == 0) landing.Until = now_ - static_cast<int>(Pick(chance, 12));
  for (auto& [node, state] : after.nodes_) {
    if (state.Folder)
      CutFolder(state, landing, chance);
    else
      CutFile(state, landing, chance);
  }
  return after;
}

void DiskState::CutFile(NodeState& file, const Landing& landing, Chance& chance) {
  using Style = Landing::Style;
  // Each file has luck of its own: some are written out whole, others not at all.
  const std::uint64_t luck = Pick(chance, 5);
  const auto lands = [&](int when) {
    switch (landing.How) {
      case Style::Nothing:
        return false;
      case Style::Everything:
        return true;
      case Style::InOrder:
        return when < landing.Until || (when == landing.Until && Pick(chance, 2));
      default:
        return Pick(chance, 4) < luck;
    }
  };
  std::int64_t size = file.Kept.Size();
  for (const SizeChange& change : file.Sizes)
    if (lands(change.When)) size = change.Size;
  for (const PageWrite& write : file.Pages) {
    PagedBytes::Page page = CopyOf(file.Kept.At(write.Page));
    const PagedBytes::Page written = CopyOf(write.Contents);
    for (std::size_t sector = 0; sector < kSectors; ++sector)
      if (lands(write.When))
        std::memcpy(page.data() + sector * kSectorBytes, written.data() + sector * kSectorBytes,
                    kSectorBytes);
    // The sector that the head was over when the power went.
    if (landing.How == Style::Torn && Pick(chance, 6) == 0) {
      const std::size_t sector = Pick(chance, kSectors);
      for (std::size_t i = 0; i < kSectorBytes; ++i)
        page[sector * kSectorBytes + i] = static_cast<std::byte>(Pick(chance, 256));
    }
    file.Kept.Put(write.Page, Shared(page));
  }
  file.Kept.Settle(size);
  file.Seen = file.Kept;
  file.Pages.clear();
  file.Sizes.clear();
}

void DiskState::CutFolder(NodeState& folder, Landing& landing, Chance& chance) {
  using Style = Landing::Style;
  for (const NamesChange& change : folder.Names) {
    bool lands = landing.How == Style::Everything ||
                 (landing.How == Style::InOrder && change.When <= landing.Until) ||
                 (landing.How > Style::InOrder && Pick(chance, 2) == 0);
    if (change.With) lands = landing.Moves.try_emplace(change.When, lands).first->second;
    if (!lands) continue;
    for (const NameChange& name : change.Changes) {
      if (name.To)
        folder.Durable[name.Name] = *name.To;
      else
        folder.Durable.erase(name.Name);
    }
  }
  folder.Live = folder.Durable;
  folder.Names.clear();
}

}  // namespace grapplemont::test
