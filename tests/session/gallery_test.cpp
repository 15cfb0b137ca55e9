#include <gtest/gtest.h>
#include "support/checkout.h"

#include <filesystem>
#include <fstream>
#include <optional>

// The pictures of gfx/ are what the waiting and title screens expect.

namespace grapplemont::test {
namespace {

namespace fs = std::filesystem;

struct Pixels {
  int Width, Height;
};

/// The size that a JPEG file's frame header tells; nothing for another file, or a progressive one.
std::optional<Pixels> JpegSize(const std::string& bytes) {
  const auto at = [&](std::size_t i) { return static_cast<unsigned char>(bytes.at(i)); };
  if (bytes.size() < 4 || at(0) != 0xFF || at(1) != 0xD8) return std::nullopt;
  for (std::size_t i = 2; i + 9 < bytes.size();) {
    const int marker = at(i + 1);
    if (at(i) != 0xFF || marker == 0xC2) return std::nullopt;
    if (marker == 0xC0) return Pixels{at(i + 7) * 256 + at(i + 8), at(i + 5) * 256 + at(i + 6)};
    i += 2 + static_cast<std::size_t>(at(i + 2) * 256 + at(i + 3));
  }
  return std::nullopt;
}

std::string Bytes(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

TEST(Gallery, IsWholeAndFitsTheWindow) {
  std::vector<std::string> names = {"vxm_back", "vxm_title"};
  for (int i = 1; i <= 4; ++i) names.push_back("VXM_load" + std::to_string(i));
  for (int i = 1; i <= 6; ++i) names.push_back("VXM_Set1_0" + std::to_string(i));
  const fs::path gfx = Checkout("/gfx");
  for (const std::string& name : names) {
    const std::string bytes = Bytes(gfx / (name + ".jpg"));
    const auto size = JpegSize(bytes);
    ASSERT_TRUE(size) << name;
    EXPECT_GE(size->Width, 1280) << name;
    EXPECT_GE(size->Height, 800) << name;
    EXPECT_LT(bytes.size(), 300'000u) << name;
    EXPECT_TRUE(fs::exists(gfx / "source" / (name + ".svg"))) << name << " has no drawing";
  }
  EXPECT_EQ(Bytes(gfx / "icon.png").substr(1, 3), "PNG");
}

TEST(Gallery, ShowsNoPictureWithoutADrawing) {
  for (const auto& entry : fs::directory_iterator(Checkout("/gfx")))
    if (entry.path().extension() == ".jpg") {
      EXPECT_TRUE(
          fs::exists(fs::path(Checkout("/gfx/source")) / (entry.path().stem().string() + ".svg")))
          << entry.path();
    }
}

}  // namespace
}  // namespace grapplemont::test
