#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <map>

#include "records/store/disk.h"
#include "records/store/machine.h"

// Linux and its relatives.

namespace grapplemont {

namespace {

[[noreturn]] void Fail(std::string_view path, std::string_view action) {
  // The plain English reason: the program's texts do not follow the machine's language.
  const char* reason = ::strerrordesc_np(errno);
  throw DiskError(path, action, reason ? reason : "unknown reason");
}

/// Repeats a call that a signal interrupted.
template <class Call>
auto Persist(Call call) {
  decltype(call()) result;
  do {
    result = call();
  } while (result == -1 && errno == EINTR);
  return result;
}

bool NotOffered() {
  return errno == EINVAL || errno == ENOSYS || errno == EOPNOTSUPP;
}

/// Seconds within which file systems may give two changes one time.
constexpr std::int64_t kCoarsestClock = 3;

class MachineDisk : public Disk {
 public:
  explicit MachineDisk(Syncs syncs) : syncs_(syncs) {}
  ~MachineDisk() override {
    for (const auto& [path, handle] : locks_) ::close(handle);
    for (const auto& [handle, file] : files_) ::close(handle);
  }
  MachineDisk(const MachineDisk&) = delete;
  MachineDisk& operator=(const MachineDisk&) = delete;

  Kind Look(const std::string& path) override {
    struct stat about {};
    if (::lstat(path.c_str(), &about) != 0) {
      if (errno == ENOENT || errno == ENOTDIR) return Kind::Nothing;
      Fail(path, "look at");
    }
    if (S_ISREG(about.st_mode)) return Kind::File;
    return S_ISDIR(about.st_mode) ? Kind::Folder : Kind::Other;
  }

  std::vector<std::string> List(const std::string& folder) override {
    DIR* open = ::opendir(folder.c_str());
    if (!open) Fail(folder, "read the folder");
    std::vector<std::string> names;
    errno = 0;
    while (const dirent* entry = ::readdir(open)) {
      const std::string name = entry->d_name;
      if (name != "." && name != "..") names.push_back(name);
      errno = 0;
    }
    const int reason = errno;
    ::closedir(open);
    errno = reason;
    if (reason != 0) Fail(folder, "read the folder");
    std::sort(names.begin(), names.end());
    return names;
  }

  Handle Open(const std::string& path, bool create) override {
    // Without O_NONBLOCK a pipe that somebody put there would hold the program for ever.
    constexpr int kAlways = O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK;
    const int wanted = O_RDWR | kAlways | (create ? O_CREAT : 0);
    int handle = Persist([&] { return ::open(path.c_str(), wanted, 0644); });
    if (handle < 0 && !create && (errno == EACCES || errno == EROFS || errno == EPERM))
      handle = Persist([&] { return ::open(path.c_str(), O_RDONLY | kAlways); });
    if (handle < 0 && errno == ELOOP) throw DiskError(path, "open", "it is a link");
    if (handle < 0) Fail(path, create ? "create" : "open");
    struct stat about {};
    if (::fstat(handle, &about) != 0 || !S_ISREG(about.st_mode)) {
      ::close(handle);
      throw DiskError(path, "open", "it is not a plain file");
    }
    files_[handle] = {path, about.st_dev, about.st_ino};
    return handle;
  }

  void Close(Handle file) override {
    if (files_.erase(file) > 0) ::close(file);
  }

  std::int64_t Size(Handle file) override {
    struct stat about {};
    if (::fstat(file, &about) != 0) Fail(PathOf(file), "measure");
    return about.st_size;
  }

  bool IsAt(Handle file, const std::string& path) override {
    const auto opened = files_.find(file);
    if (opened == files_.end()) return false;
    struct stat there {};
    if (::lstat(path.c_str(), &there) != 0) {
      if (errno == ENOENT || errno == ENOTDIR) return false;
      Fail(path, "look at");
    }
    return opened->second.Device == there.st_dev && opened->second.Number == there.st_ino;
  }

  std::optional<FolderState> StateOf(const std::string& folder) override {
    struct stat about {};
    timespec now{};
    if (::stat(folder.c_str(), &about) != 0 || ::clock_gettime(CLOCK_REALTIME, &now) != 0)
      return std::nullopt;
    const std::int64_t since = now.tv_sec - about.st_ctim.tv_sec;
    if (since < kCoarsestClock) return std::nullopt;  // below 0 where the clock was set back
    return FolderState{about.st_dev, about.st_ino, about.st_ctim.tv_sec, about.st_ctim.tv_nsec};
  }

  void ReadAt(Handle file, std::int64_t offset, std::span<std::byte> buffer) override {
    while (!buffer.empty()) {
      const ssize_t got =
          Persist([&] { return ::pread(file, buffer.data(), buffer.size(), offset); });
      if (got < 0) Fail(PathOf(file), "read");
      if (got == 0) throw DiskError(PathOf(file), "read", "it is shorter than expected");
      buffer = buffer.subspan(static_cast<std::size_t>(got));
      offset += got;
    }
  }

  void WriteAt(Handle file, std::int64_t offset, ByteSpan bytes) override {
    while (!bytes.empty()) {
      const ssize_t put =
          Persist([&] { return ::pwrite(file, bytes.data(), bytes.size(), offset); });
      if (put < 0) Fail(PathOf(file), "write");
      bytes = bytes.subspan(static_cast<std::size_t>(put));
      offset += put;
    }
  }

  void Sync(Handle file) override {
    // Never repeated, not even after a signal: what a second call says is worth nothing.
    if (syncs_ == Syncs::Real && ::fdatasync(file) != 0) Fail(PathOf(file), "secure");
  }

  void SyncFolder(const std::string& folder) override {
    if (syncs_ == Syncs::None) return;
    const int handle =
        Persist([&] { return ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); });
    if (handle < 0) Fail(folder, "open the folder");
    const int result = ::fsync(handle);
    const int reason = errno;
    ::close(handle);
    errno = reason;
    // Some file systems keep names without being asked and say so with "invalid".
    if (result != 0 && reason != EINVAL) Fail(folder, "secure the folder");
  }

  void Allocate(Handle file, std::int64_t size) override {
    if (size <= 0) return;
    if (Persist([&] { return ::fallocate(file, FALLOC_FL_KEEP_SIZE, 0, size); }) == 0) return;
    // File systems without reservations find out when they write.
    if (!NotOffered()) Fail(PathOf(file), "reserve room for");
  }

  void Resize(Handle file, std::int64_t size) override {
    if (Persist([&] { return ::ftruncate(file, size); }) != 0) Fail(PathOf(file), "resize");
  }

  void Rename(const std::string& from, const std::string& to) override {
    if (::rename(from.c_str(), to.c_str()) != 0) Fail(from, "rename");
  }

  bool Exchange(const std::string& a, const std::string& b) override {
    if (::renameat2(AT_FDCWD, a.c_str(), AT_FDCWD, b.c_str(), RENAME_EXCHANGE) == 0) return true;
    if (!NotOffered()) Fail(a, "swap in");
    return false;
  }

  void Remove(const std::string& path) override {
    if (::remove(path.c_str()) != 0) Fail(path, "remove");
  }

  void MakeFolder(const std::string& path) override {
    if (::mkdir(path.c_str(), 0755) == 0) return;
    const int reason = errno;
    if (reason == EEXIST && Look(path) == Kind::Folder) return;
    errno = reason;
    Fail(path, "make the folder");
  }

  bool Lock(const std::string& path) override {
    if (locks_.contains(path)) return false;
    const int handle = Persist([&] {
      return ::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK, 0644);
    });
    if (handle < 0) Fail(path, "create");
    if (Persist([&] { return ::flock(handle, LOCK_EX | LOCK_NB); }) != 0) {
      const int reason = errno;
      ::close(handle);
      errno = reason;
      if (reason != EWOULDBLOCK) Fail(path, "lock");
      return false;
    }
    locks_[path] = handle;
    return true;
  }

  void Unlock(const std::string& path) override {
    const auto held = locks_.find(path);
    if (held == locks_.end()) return;
    ::close(held->second);
    locks_.erase(held);
  }

 private:
  std::string PathOf(Handle file) const {
    const auto found = files_.find(file);
    return found == files_.end() ? "a closed file" : found->second.Path;
  }

  Syncs syncs_;
  struct OpenFile {
    std::string Path;
    dev_t Device;
    ino_t Number;
  };
  std::map<Handle, OpenFile> files_;
  std::map<std::string, Handle> locks_;
};

}  // namespace

std::unique_ptr<Disk> RealDisk(Syncs syncs) {
  return std::make_unique<MachineDisk>(syncs);
}

namespace {

/// The game's folder in the base folder that the environment names, else in the user's home.
std::string BaseFolder(const char* variable, const std::string& inHome) {
  // A path that is not whole does not count, by the rules of the desktop's base folders.
  if (const char* named = std::getenv(variable); named && *named == '/')
    return std::string(named) + "/grapplemont";
  const char* user = std::getenv("HOME");
  return user && *user ? std::string(user) + "/" + inHome + "/grapplemont" : std::string();
}

}  // namespace

UserFolders FoldersOfUser() {
  return {BaseFolder("XDG_DATA_HOME", ".local/share"), BaseFolder("XDG_CONFIG_HOME", ".config"),
          BaseFolder("XDG_STATE_HOME", ".local/state")};
}

std::string ProgramFile() {
  std::array<char, PATH_MAX> path;
  const ssize_t length = ::readlink("/proc/self/exe", path.data(), path.size());
  return length > 0 ? std::string(path.data(), static_cast<std::size_t>(length)) : std::string();
}

bool IsTerminal(Stream stream) {
  return ::isatty(static_cast<int>(stream)) != 0;
}

int TerminalColumns() {
  winsize size{};
  return ::ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 ? size.ws_col : 0;
}

std::vector<std::string> WordsOf(int count, char** words) {
  return {words + std::min(count, 1), words + count};
}

}  // namespace grapplemont
