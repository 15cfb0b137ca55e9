#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>

#include "records/store/disk.h"

namespace grapplemont::tools {

/// A disk for who does what a file of somebody else's says: everything lies in its one folder. What
/// leads out of it leads to a place of its own within it; one other folder may be read, and no
/// more.
class ConfinedDisk : public Disk {
 public:
  /// Both absolute, without slashes at their end; `readable` may be empty.
  ConfinedDisk(Disk& disk, std::string folder, std::string readable);
  /// Says of a file that is about to be written whether that fails; empty where it never does.
  std::function<bool(const std::string& path)> Fails;

  Kind Look(const std::string& path) override { return disk_.Look(ToRead(path)); }
  std::vector<std::string> List(const std::string& path) override;
  Handle Open(const std::string& path, bool create) override;
  void Close(Handle file) override;
  std::int64_t Size(Handle file) override { return disk_.Size(file); }
  bool IsAt(Handle file, const std::string& path) override;
  void ReadAt(Handle file, std::int64_t offset, std::span<std::byte> buffer) override;
  void WriteAt(Handle file, std::int64_t offset, ByteSpan bytes) override;
  void Sync(Handle file) override { disk_.Sync(file); }
  void SyncFolder(const std::string& folder) override { disk_.SyncFolder(ToWrite(folder)); }
  void Allocate(Handle file, std::int64_t size) override;
  void Resize(Handle file, std::int64_t size) override;
  void Rename(const std::string& from, const std::string& to) override;
  bool Exchange(const std::string& a, const std::string& b) override;
  void Remove(const std::string& path) override { disk_.Remove(ToWrite(path)); }
  void MakeFolder(const std::string& path) override { disk_.MakeFolder(ToWrite(path)); }
  bool Lock(const std::string& path) override { return disk_.Lock(ToWrite(path)); }
  void Unlock(const std::string& path) override { disk_.Unlock(ToWrite(path)); }

 private:
  std::string ToRead(const std::string& path) const;
  std::string ToWrite(const std::string& path);
  void RequireOwn(Handle file) const;

  Disk& disk_;
  std::string folder_, readable_;
  std::map<Handle, std::string> places_;  // of the open files
};

}  // namespace grapplemont::tools
