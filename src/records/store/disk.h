#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace grapplemont {

using Bytes = std::vector<std::byte>;
using ByteSpan = std::span<const std::byte>;

/// A disk that would not do what it was asked: which file, which action and the system's own
/// reason, in one sentence for the player.
class DiskError : public std::runtime_error {
 public:
  DiskError(std::string_view path, std::string_view action, std::string_view reason);
  /// The same fault, followed by a sentence on what becomes of the player's step.
  DiskError(const DiskError& fault, std::string_view consequence);
  const std::string& Path() const { return path_; }

 private:
  std::string path_;
};

/// What is said in place of the system's own word for it.
inline constexpr const char* kOutOfMemory = "There is not enough memory for this.";

/// What tells a folder from what it was: another once a name in it comes, goes or leads elsewhere,
/// or another folder has its place.
struct FolderState {
  std::uint64_t Device = 0, Number = 0;
  std::int64_t Seconds = 0, Nanoseconds = 0;  // when it was changed last
  bool operator==(const FolderState&) const = default;
};

/// All file access of the program. Paths are relative to nothing but themselves; "/" parts folders.
/// Every call throws DiskError when it fails, unless it says otherwise.
class Disk {
 public:
  using Handle = int;
  enum class Kind { Nothing, File, Folder, Other };  // Other: a link, a device, a pipe

  virtual ~Disk() = default;
  /// What stands at the path, links not followed.
  virtual Kind Look(const std::string& path) = 0;
  /// The names in a folder, sorted.
  virtual std::vector<std::string> List(const std::string& folder) = 0;
  /// Opens a plain file for reading and writing (one that may only be read, for reading); `create`
  /// makes it if absent. Links are not followed.
  virtual Handle Open(const std::string& path, bool create) = 0;
  virtual void Close(Handle file) = 0;  // never throws
  virtual std::int64_t Size(Handle file) = 0;
  /// Whether the path (still) leads to this very file.
  virtual bool IsAt(Handle file, const std::string& path) = 0;
  /// Nothing where the system keeps nothing of the kind, or where the last change of the folder is
  /// so fresh that a further one could not be told from it. Never throws.
  virtual std::optional<FolderState> StateOf(const std::string& /*folder*/) { return std::nullopt; }
  /// Fills the whole buffer; a file too short for it is a DiskError.
  virtual void ReadAt(Handle file, std::int64_t offset, std::span<std::byte> buffer) = 0;
  virtual void WriteAt(Handle file, std::int64_t offset, ByteSpan bytes) = 0;
  virtual void Sync(Handle file) = 0;                      // contents and length, as fdatasync
  virtual void SyncFolder(const std::string& folder) = 0;  // its names
  /// Room up to `size`, where the file system can promise it; the length stays.
  virtual void Allocate(Handle file, std::int64_t size) = 0;
  virtual void Resize(Handle file, std::int64_t size) = 0;
  virtual void Rename(const std::string& from, const std::string& to) = 0;  // replaces a file
  /// Swaps two folders (or files) that both exist, in one step; false where the file system knows
  /// no such step, and then nothing was done.
  virtual bool Exchange(const std::string& a, const std::string& b) = 0;
  virtual void Remove(const std::string& path) = 0;  // a file or an empty folder
  /// Its parent exists; an existing folder is no error.
  virtual void MakeFolder(const std::string& path) = 0;
  /// Takes the lock that this file stands for, until Unlock or for as long as this Disk lives;
  /// false when anybody, this Disk included, has it. The file stays.
  virtual bool Lock(const std::string& path) = 0;
  virtual void Unlock(const std::string& path) = 0;  // never throws
};

/// Whether a disk's syncs wait for the hardware. Without, a power cut may cost anything; a killed
/// process still costs nothing.
enum class Syncs { Real, None };

/// The machine's own files.
std::unique_ptr<Disk> RealDisk(Syncs syncs = Syncs::Real);

/// A file that is closed on every way out.
class OpenedFile {
 public:
  OpenedFile(Disk& disk, const std::string& path, bool create)
      : disk_(disk), handle_(disk.Open(path, create)) {}
  ~OpenedFile() { disk_.Close(handle_); }
  OpenedFile(const OpenedFile&) = delete;
  OpenedFile& operator=(const OpenedFile&) = delete;
  operator Disk::Handle() const { return handle_; }

 private:
  Disk& disk_;
  Disk::Handle handle_;
};

/// A folder, or a link to one.
bool IsFolder(Disk& disk, const std::string& path);
/// The folder that a path lies in; "." for a bare name.
std::string ParentOf(const std::string& path);
/// The file's first bytes, `most` at most: nobody knows how long a file has become.
Bytes ReadStart(Disk& disk, const std::string& path, std::int64_t most);
/// The whole file; nothing when it is longer than `most` bytes.
std::optional<Bytes> ReadWithin(Disk& disk, const std::string& path, std::int64_t most);
/// Makes or replaces a file by another's contents, piece by piece; they are on disk when this
/// returns, the name is not.
void CopyFile(Disk& disk, const std::string& from, const std::string& to);
/// Makes a file, or a new one in its place; its contents are on disk when this returns, its name is
/// not.
void WriteNewFile(Disk& disk, const std::string& path, ByteSpan bytes);
/// Replaces or makes the file: written beside it (".tmp"), synced, renamed over it.
void WriteFile(Disk& disk, const std::string& path, ByteSpan bytes);
/// Removes a folder and all in it, or a file; nothing there is no error.
void RemoveTree(Disk& disk, const std::string& path);

}  // namespace grapplemont
