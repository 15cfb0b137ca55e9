#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace grapplemont {

using Bytes = std::vector<std::byte>;
using ByteSpan = std::span<const std::byte>;

/// A disk that would not do what it was asked: which file, which action and the system's own reason, in one sentence
/// for the player.
class DiskError : public std::runtime_error {
 public:
  DiskError(std::string_view path, std::string_view action, std::string_view reason);
  const std::string& Path() const { return path_; }

 private:
  std::string path_;
};

/// All file access of the program. Paths are relative to nothing but themselves; "/" parts folders. Every call throws
/// DiskError when it fails, unless it says otherwise.
class Disk {
 public:
  using Handle = int;
  enum class Kind { Nothing, File, Folder, Other };  // Other: a link, a device, a pipe

  virtual ~Disk() = default;
  /// What stands at the path, links not followed.
  virtual Kind Look(const std::string& path) = 0;
  /// The names in a folder, sorted.
  virtual std::vector<std::string> List(const std::string& folder) = 0;
  /// Opens for reading and writing; `create` makes the file if absent.
  virtual Handle Open(const std::string& path, bool create) = 0;
  virtual void Close(Handle file) = 0;  // never throws
  virtual std::int64_t Size(Handle file) = 0;
  /// Fills the whole buffer; a file too short for it is a DiskError.
  virtual void ReadAt(Handle file, std::int64_t offset, std::span<std::byte> buffer) = 0;
  virtual void WriteAt(Handle file, std::int64_t offset, ByteSpan bytes) = 0;
  virtual void Sync(Handle file) = 0;                             // contents and length, as fdatasync
  virtual void SyncFolder(const std::string& folder) = 0;         // its names
  virtual void Allocate(Handle file, std::int64_t size) = 0;      // room up to `size`; never shortens
  virtual void Resize(Handle file, std::int64_t size) = 0;
  virtual void Rename(const std::string& from, const std::string& to) = 0;  // replaces a file
  /// Swaps two folders (or files) that both exist, in one step.
  virtual void Exchange(const std::string& a, const std::string& b) = 0;
  virtual void Remove(const std::string& path) = 0;               // a file or an empty folder
  virtual void MakeFolder(const std::string& path) = 0;           // its parent exists; an existing folder is no error
  /// Takes the lock that this file stands for, for as long as this Disk lives or until Unlock; false when another
  /// program (or another Disk) has it.
  virtual bool Lock(const std::string& path) = 0;
  virtual void Unlock(const std::string& path) = 0;
};

/// The machine's own files.
std::unique_ptr<Disk> RealDisk();

/// The whole file.
Bytes ReadFile(Disk& disk, const std::string& path);
/// Replaces or makes the file: written beside it, synced, renamed over it.
void WriteFile(Disk& disk, const std::string& path, ByteSpan bytes);
/// Removes a folder and all in it; nothing there is no error.
void RemoveTree(Disk& disk, const std::string& folder);

}  // namespace grapplemont
