#pragma once

#include <filesystem>
#include <random>
#include <string>

namespace grapplemont::test {

/// An empty folder on the machine's own disk, gone with its test.
class ScratchFolder {
 public:
  ScratchFolder() {
    std::random_device any;
    std::filesystem::path folder;
    do {
      folder = std::filesystem::temp_directory_path() / ("grapplemont-" + std::to_string(any()));
    } while (!std::filesystem::create_directory(folder));
    path_ = folder.generic_string();
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
