#include "tools/pages.h"

#include "records/tables/tablekinds.h"
#include "support/checkout.h"
#include "toolhome.h"

// Pages of docs/ that a command prints are committed, and stay what it prints.

namespace grapplemont::test {
namespace {

using ToolPages = ToolHome;

std::string Document(const std::string& name) {
  std::ifstream file(Checkout("/docs/") + name, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

TEST_F(ToolPages, FileFormatsAreWhatTheCommandPrints) {
  const Ran ran = Run({"formats"});
  EXPECT_EQ(0, ran.Code);
  EXPECT_TRUE(Document("file-formats.md") == ran.Out)
      << "Run: grapplemont-world formats >docs/file-formats.md";
}

TEST_F(ToolPages, WorldMakingHoldsTheColumnsThatTheCommandPrints) {
  const std::string page = Document("world-making.md");
  constexpr std::string_view kBegin = "<!-- columns -->\n", kEnd = "\n<!-- end of columns -->\n";
  const auto begin = page.find(kBegin), end = page.find(kEnd);
  ASSERT_NE(std::string::npos, begin);
  ASSERT_NE(std::string::npos, end);
  const auto start = begin + kBegin.size();
  EXPECT_TRUE(page.substr(start, end - start) == Run({"columns"}).Out)
      << "Put what grapplemont-world columns prints between the marks of docs/world-making.md.";
}

TEST(Pages, TellEveryFieldOnce) {
  const std::string formats = tools::FormatsPage(), columns = tools::ColumnsPage();
  for (const TableKind& kind : TableKinds()) {
    const auto section = formats.find("\n## " + std::string(kind.Layout->File));
    ASSERT_NE(std::string::npos, section) << kind.Name;
    for (const Field& field : kind.Layout->Fields) {
      const auto row = formats.find("`" + FieldName(field, 0) + "`", section);
      EXPECT_NE(std::string::npos, row) << field.Name;
      EXPECT_FALSE(field.Help.empty()) << kind.Name << " " << field.Name;
    }
    EXPECT_EQ(kind.OfGame, columns.find("### " + std::string(kind.Name)) == std::string::npos);
  }
}

}  // namespace
}  // namespace grapplemont::test
