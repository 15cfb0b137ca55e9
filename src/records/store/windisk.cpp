#include <windows.h>
// What follows needs what comes before.
#include <io.h>
#include <shellapi.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <map>
#include <utility>

#include "records/store/disk.h"
#include "records/store/machine.h"

// Windows. Paths come as UTF-8 and go to the system as UTF-16; "/" is as good as "\" to it.

namespace grapplemont {

namespace {

std::wstring Wide(const std::string& text) {
  const int size = static_cast<int>(text.size());
  std::wstring wide(
      static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, text.data(), size, nullptr, 0)),
      L'\0');
  MultiByteToWideChar(CP_UTF8, 0, text.data(), size, wide.data(), static_cast<int>(wide.size()));
  return wide;
}

std::string Narrow(std::wstring_view wide) {
  const int size = static_cast<int>(wide.size());
  std::string text(static_cast<std::size_t>(WideCharToMultiByte(CP_UTF8, 0, wide.data(), size,
                                                                nullptr, 0, nullptr, nullptr)),
                   '\0');
  WideCharToMultiByte(CP_UTF8, 0, wide.data(), size, text.data(), static_cast<int>(text.size()),
                      nullptr, nullptr);
  return text;
}

/// The reasons that a player meets, in the words that other systems have for them.
constexpr std::pair<DWORD, const char*> kReasons[] = {
    {ERROR_FILE_NOT_FOUND, "No such file or directory"},
    {ERROR_PATH_NOT_FOUND, "No such file or directory"},
    {ERROR_ACCESS_DENIED, "Permission denied"},
    {ERROR_WRITE_PROTECT, "Read-only file system"},
    {ERROR_SHARING_VIOLATION, "Another program has it open"},
    {ERROR_DISK_FULL, "No space left on device"},
    {ERROR_HANDLE_DISK_FULL, "No space left on device"},
    {ERROR_DIR_NOT_EMPTY, "Directory not empty"},
    {ERROR_ALREADY_EXISTS, "File exists"},
    {ERROR_FILENAME_EXCED_RANGE, "File name too long"},
    {ERROR_NOT_READY, "The drive is not ready"}};

[[noreturn]] void Fail(std::string_view path, std::string_view action,
                       DWORD reason = GetLastError()) {
  for (const auto& [code, words] : kReasons)
    if (code == reason) throw DiskError(path, action, words);
  throw DiskError(path, action, "the system's reason " + std::to_string(reason));
}

bool IsMissing(DWORD reason) {
  return reason == ERROR_FILE_NOT_FOUND || reason == ERROR_PATH_NOT_FOUND ||
         reason == ERROR_INVALID_NAME || reason == ERROR_DIRECTORY;
}

bool IsNotOffered(DWORD reason) {
  return reason == ERROR_INVALID_FUNCTION || reason == ERROR_NOT_SUPPORTED ||
         reason == ERROR_INVALID_PARAMETER || reason == ERROR_CALL_NOT_IMPLEMENTED;
}

constexpr DWORD kAnybody = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

HANDLE OpenAt(const std::string& path, DWORD access, DWORD how, DWORD share = kAnybody) {
  return CreateFileW(Wide(path).c_str(), access, share, nullptr, how,
                     FILE_ATTRIBUTE_NORMAL | FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
}

/// Where in a file a call reads or writes.
OVERLAPPED At(std::int64_t offset) {
  OVERLAPPED at{};
  at.Offset = static_cast<DWORD>(static_cast<std::uint64_t>(offset) & 0xFFFFFFFFu);
  at.OffsetHigh = static_cast<DWORD>(static_cast<std::uint64_t>(offset) >> 32);
  return at;
}

DWORD PieceOf(std::size_t bytes) {
  return static_cast<DWORD>(std::min<std::size_t>(bytes, 1 << 30));
}

/// Its volume and its number there.
using FileId = std::array<DWORD, 3>;

/// Taken when a file is opened: Wine forgets the volume of one that is renamed while it is open.
FileId IdOf(const BY_HANDLE_FILE_INFORMATION& about) {
  return {about.dwVolumeSerialNumber, about.nFileIndexHigh, about.nFileIndexLow};
}

class MachineDisk : public Disk {
 public:
  explicit MachineDisk(Syncs syncs) : syncs_(syncs) {}
  ~MachineDisk() override {
    for (const auto& [path, handle] : locks_) CloseHandle(handle);
    for (const auto& [number, file] : files_) CloseHandle(file.Opened);
  }
  MachineDisk(const MachineDisk&) = delete;
  MachineDisk& operator=(const MachineDisk&) = delete;

  Kind Look(const std::string& path) override {
    const DWORD about = GetFileAttributesW(Wide(path).c_str());
    if (about == INVALID_FILE_ATTRIBUTES) {
      if (IsMissing(GetLastError())) return Kind::Nothing;
      Fail(path, "look at");
    }
    // Behind "/." a link to a folder is followed.
    if ((about & FILE_ATTRIBUTE_REPARSE_POINT) && !path.ends_with("/.")) return Kind::Other;
    if (about & FILE_ATTRIBUTE_DEVICE) return Kind::Other;
    return (about & FILE_ATTRIBUTE_DIRECTORY) ? Kind::Folder : Kind::File;
  }

  std::vector<std::string> List(const std::string& folder) override {
    WIN32_FIND_DATAW entry;
    const HANDLE search = FindFirstFileW(Wide(folder + "/*").c_str(), &entry);
    if (search == INVALID_HANDLE_VALUE) Fail(folder, "read the folder");
    std::vector<std::string> names;
    do {
      const std::string name = Narrow(entry.cFileName);
      if (name != "." && name != "..") names.push_back(name);
    } while (FindNextFileW(search, &entry));
    const DWORD reason = GetLastError();
    FindClose(search);
    if (reason != ERROR_NO_MORE_FILES) Fail(folder, "read the folder", reason);
    std::sort(names.begin(), names.end());
    return names;
  }

  Handle Open(const std::string& path, bool create) override {
    const DWORD how = create ? OPEN_ALWAYS : OPEN_EXISTING;
    HANDLE opened = OpenAt(path, GENERIC_READ | GENERIC_WRITE, how);
    if (opened == INVALID_HANDLE_VALUE && !create &&
        (GetLastError() == ERROR_ACCESS_DENIED || GetLastError() == ERROR_WRITE_PROTECT))
      opened = OpenAt(path, GENERIC_READ, how);
    if (opened == INVALID_HANDLE_VALUE) {
      const DWORD reason = GetLastError();
      if (Look(path) == Kind::Folder) throw DiskError(path, "open", "it is not a plain file");
      Fail(path, create ? "create" : "open", reason);
    }
    BY_HANDLE_FILE_INFORMATION about{};
    const bool isFile =
        GetFileType(opened) == FILE_TYPE_DISK && GetFileInformationByHandle(opened, &about);
    const bool isLink = (about.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
    if (!isFile || isLink) {
      CloseHandle(opened);
      throw DiskError(path, "open", isLink ? "it is a link" : "it is not a plain file");
    }
    files_[++last_] = {path, opened, IdOf(about)};
    return last_;
  }

  void Close(Handle file) override {
    const auto found = files_.find(file);
    if (found == files_.end()) return;
    CloseHandle(found->second.Opened);
    files_.erase(found);
  }

  std::int64_t Size(Handle file) override {
    LARGE_INTEGER size{};
    if (!GetFileSizeEx(Of(file), &size)) Fail(PathOf(file), "measure");
    return size.QuadPart;
  }

  bool IsAt(Handle file, const std::string& path) override {
    const auto open = files_.find(file);
    if (open == files_.end()) return false;
    const HANDLE there =
        CreateFileW(Wide(path).c_str(), 0, kAnybody, nullptr, OPEN_EXISTING,
                    FILE_FLAG_OPEN_REPARSE_POINT | FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (there == INVALID_HANDLE_VALUE) {
      if (IsMissing(GetLastError())) return false;
      Fail(path, "look at");
    }
    BY_HANDLE_FILE_INFORMATION about{};
    const bool known = GetFileInformationByHandle(there, &about);
    CloseHandle(there);
    return known && IdOf(about) == open->second.Id;
  }

  void ReadAt(Handle file, std::int64_t offset, std::span<std::byte> buffer) override {
    while (!buffer.empty()) {
      OVERLAPPED at = At(offset);
      DWORD got = 0;
      if (!ReadFile(Of(file), buffer.data(), PieceOf(buffer.size()), &got, &at) &&
          GetLastError() != ERROR_HANDLE_EOF)
        Fail(PathOf(file), "read");
      if (got == 0) throw DiskError(PathOf(file), "read", "it is shorter than expected");
      buffer = buffer.subspan(got);
      offset += got;
    }
  }

  void WriteAt(Handle file, std::int64_t offset, ByteSpan bytes) override {
    while (!bytes.empty()) {
      OVERLAPPED at = At(offset);
      DWORD put = 0;
      if (!::WriteFile(Of(file), bytes.data(), PieceOf(bytes.size()), &put, &at))
        Fail(PathOf(file), "write");
      bytes = bytes.subspan(put);
      offset += put;
    }
  }

  void Sync(Handle file) override {
    if (syncs_ == Syncs::Real && !FlushFileBuffers(Of(file))) Fail(PathOf(file), "secure");
  }

  /// NTFS keeps its names in a journal of its own; nobody may ask it to.
  void SyncFolder(const std::string& folder) override {
    if (Look(folder + "/.") != Kind::Folder) Fail(folder, "open the folder", ERROR_PATH_NOT_FOUND);
  }

  void Allocate(Handle file, std::int64_t size) override {
    if (size <= Size(file)) return;  // less would cut the file short
    FILE_ALLOCATION_INFO room{};
    room.AllocationSize.QuadPart = size;
    if (!SetFileInformationByHandle(Of(file), FileAllocationInfo, &room, sizeof room) &&
        !IsNotOffered(GetLastError()))
      Fail(PathOf(file), "reserve room for");
  }

  void Resize(Handle file, std::int64_t size) override {
    FILE_END_OF_FILE_INFO end{};
    end.EndOfFile.QuadPart = size;
    if (!SetFileInformationByHandle(Of(file), FileEndOfFileInfo, &end, sizeof end))
      Fail(PathOf(file), "resize");
  }

  void Rename(const std::string& from, const std::string& to) override {
    if (!MoveFileExW(Wide(from).c_str(), Wide(to).c_str(),
                     MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH))
      Fail(from, "rename");
  }

  bool Exchange(const std::string&, const std::string&) override { return false; }

  void Remove(const std::string& path) override {
    const std::wstring wide = Wide(path);
    const DWORD about = GetFileAttributesW(wide.c_str());
    if (about == INVALID_FILE_ATTRIBUTES) Fail(path, "remove");
    const bool isFolder = (about & FILE_ATTRIBUTE_DIRECTORY) != 0;
    if (!(isFolder ? RemoveDirectoryW(wide.c_str()) : DeleteFileW(wide.c_str())))
      Fail(path, "remove");
  }

  void MakeFolder(const std::string& path) override {
    if (CreateDirectoryW(Wide(path).c_str(), nullptr)) return;
    const DWORD reason = GetLastError();
    if (Look(path) != Kind::Folder) Fail(path, "make the folder", reason);
  }

  /// A file that nobody may open a second time.
  bool Lock(const std::string& path) override {
    if (locks_.contains(path)) return false;
    const HANDLE handle = OpenAt(path, GENERIC_READ | GENERIC_WRITE, OPEN_ALWAYS, 0);
    if (handle == INVALID_HANDLE_VALUE) {
      if (GetLastError() == ERROR_SHARING_VIOLATION) return false;
      Fail(path, "create");
    }
    locks_[path] = handle;
    return true;
  }

  void Unlock(const std::string& path) override {
    const auto held = locks_.find(path);
    if (held == locks_.end()) return;
    CloseHandle(held->second);
    locks_.erase(held);
  }

 private:
  HANDLE Of(Handle file) const {
    const auto found = files_.find(file);
    return found == files_.end() ? INVALID_HANDLE_VALUE : found->second.Opened;
  }
  std::string PathOf(Handle file) const {
    const auto found = files_.find(file);
    return found == files_.end() ? "a closed file" : found->second.Path;
  }

  Syncs syncs_;
  struct OpenFile {
    std::string Path;
    HANDLE Opened;
    FileId Id;
  };
  std::map<Handle, OpenFile> files_;
  Handle last_ = 0;
  std::map<std::string, HANDLE> locks_;
};

std::string WithSlashes(std::string path) {
  std::ranges::replace(path, '\\', '/');
  return path;
}

}  // namespace

std::unique_ptr<Disk> RealDisk(Syncs syncs) {
  return std::make_unique<MachineDisk>(syncs);
}

UserFolders FoldersOfUser() {
  const wchar_t* local = _wgetenv(L"LOCALAPPDATA");
  if (!local || !*local) return {};
  const std::string game = WithSlashes(Narrow(local)) + "/Grapplemont";
  return {game, game + "/Settings", game + "/State"};
}

std::string ProgramFile() {
  std::array<wchar_t, 32768> path;
  const DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
  return WithSlashes(Narrow({path.data(), length}));
}

bool IsTerminal(Stream stream) {
  return _isatty(static_cast<int>(stream)) != 0;
}

int TerminalColumns() {
  CONSOLE_SCREEN_BUFFER_INFO about{};
  return GetConsoleScreenBufferInfo(GetStdHandle(STD_OUTPUT_HANDLE), &about)
             ? about.srWindow.Right - about.srWindow.Left + 1
             : 0;
}

/// The system's own words: those of `main` have lost what its code page lacks.
std::vector<std::string> WordsOf(int, char**) {
  SetConsoleOutputCP(CP_UTF8);
  int count = 0;
  wchar_t** const words = CommandLineToArgvW(GetCommandLineW(), &count);
  std::vector<std::string> given;
  for (int i = 1; i < count; ++i) given.push_back(Narrow(words[i]));
  LocalFree(words);
  return given;
}

}  // namespace grapplemont
