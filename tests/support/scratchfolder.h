#pragma once

#include <unistd.h>

#include <filesystem>
#include <string>

namespace grapplemont::test {

/// An empty folder on the machine's own disk, gone with its test.
class ScratchFolder {
 public:
  ScratchFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "grapplemont-XXXXXX").string();
    if (!::mkdtemp(name.data())) throw std::filesystem::filesystem_error("mkdtemp", name, {});
    path_ = name;
  }
  ~ScratchFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;
  const std::string& Path() const { return path_; }
  std::string operator/(const std::string& name) const { return path_ + "/" + name; }

 private:
  std::string path_;
};

}  // namespace grapplemont::test
