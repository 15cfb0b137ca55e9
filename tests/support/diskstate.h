#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include "records/store/disk.h"

// A disk below a system's cache: what every program sees at once, and what a power cut leaves of
// it. Contents go to the hardware by pages of 4096 bytes that land in sectors of 512; names by
// changes of a folder. Until they are synced, each of them may have landed or not, in any order.

namespace grapplemont::test {

using Chance = std::mt19937_64;
/// 0 to n - 1, the same on every machine.
inline std::uint64_t Pick(Chance& chance, std::uint64_t n) {
  return chance() % n;
}

/// A file's bytes in pages that copies share.
class PagedBytes {
 public:
  static constexpr std::int64_t kPage = 4096, kSector = 512;
  using Page = std::array<std::byte, kPage>;
  using PageRef = std::shared_ptr<const Page>;  // nullptr: all zeros

  std::int64_t Size() const { return size_; }
  void Read(std::int64_t offset, std::span<std::byte> buffer) const;
  /// Makes the file longer if it must. Tells the pages that it touched.
  std::vector<std::size_t> Write(std::int64_t offset, ByteSpan bytes);
  /// Tells the page that was cut in two, if one was.
  std::vector<std::size_t> Resize(std::int64_t size);
  PageRef At(std::size_t page) const { return page < pages_.size() ? pages_[page] : nullptr; }
  void Put(std::size_t page, PageRef contents);
  /// Cuts or lengthens to the size, and cleans what lies behind it.
  void Settle(std::int64_t size);

 private:
  std::vector<PageRef> pages_;
  std::int64_t size_ = 0;
};

/// The whole disk. Copies are cheap.
class DiskState {
 public:
  using Node = int;  // a file or a folder, whatever its name
  static constexpr Node kRoot = 0;

  DiskState();

  // What programs see.
  std::optional<Node> Find(Node folder, const std::string& name) const;
  bool IsFolder(Node node) const { return nodes_.at(node).Folder; }
  const std::map<std::string, Node>& Names(Node folder) const { return nodes_.at(folder).Live; }
  const PagedBytes& Contents(Node file) const { return nodes_.at(file).Seen; }

  // What programs do.
  Node Make(Node parent, const std::string& name, bool folder);
  void Write(Node file, std::int64_t offset, ByteSpan bytes);
  void Resize(Node file, std::int64_t size);
  /// Names of one folder that change in one step; nothing takes a name away.
  struct NameChange {
    std::string Name;
    std::optional<Node> To;
  };
  void Rename(Node folder, std::vector<NameChange> changes);
  /// From one folder to another: both change in one step, or neither.
  void Move(Node from, const std::string& name, Node to, const std::string& newName);
  void Sync(Node file);
  void SyncFolder(Node folder);
  /// A sync that reports an error: some pages landed, the rest is forgotten. Programs still see
  /// them, but no later sync writes them.
  void FailSync(Node file, Chance& chance);

  /// The disk as it may be found after a power cut at this moment.
  DiskState AfterPowerCut(Chance& chance) const;

 private:
  struct PageWrite {
    std::size_t Page;
    PagedBytes::PageRef Contents;
    int When;
  };
  struct SizeChange {
    std::int64_t Size;
    int When;
  };
  struct NamesChange {
    std::vector<NameChange> Changes;
    int When;
    std::optional<Node> With = {};  // the other folder of a move
  };
  struct NodeState {
    bool Folder = false;
    PagedBytes Seen, Kept;
    std::vector<PageWrite> Pages;  // written, not synced
    std::vector<SizeChange> Sizes;
    std::map<std::string, Node> Live, Durable;
    std::vector<NamesChange> Names;
  };
  struct Landing;

  void Dirty(Node file, const std::vector<std::size_t>& pages);
  static void CutFile(NodeState& file, const Landing& landing, Chance& chance);
  static void CutFolder(NodeState& folder, Landing& landing, Chance& chance);

  std::map<Node, NodeState> nodes_;
  Node next_ = 1;
  int now_ = 0;
};

}  // namespace grapplemont::test
