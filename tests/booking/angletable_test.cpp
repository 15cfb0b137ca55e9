#include "angletable.h"

#include <gtest/gtest.h>

#include <map>

#include "records/angles.h"

namespace grapplemont::test {
namespace {

std::string OfferedText(const Angle& angle) {
  std::string text;
  const auto add = [&](const std::string& part) { text += (text.empty() ? "" : ", ") + part; };
  if (angle.RiskOver != -1) add("Risk over " + std::to_string(angle.RiskOver));
  if (angle.SizeUnder != 7) add("Size under " + std::to_string(angle.SizeUnder));
  if (angle.NeedsCommissioner) add("Commissioner");
  if (!angle.Date.empty()) add(std::string(angle.Date));
  return text;
}

std::string RoleText(const Role& role) {
  static const std::map<Casting, std::string> kLists = {
      {Casting::Plain, ""},
      {Casting::Commissioner, " [Commissioner]"},
      {Casting::Managers, " [manager]"},
      {Casting::DebutManagers, " [debut manager]"},
      {Casting::Turners, " [turner]"},
      {Casting::Women, " [women]"},
      {Casting::Men, " [men]"},
      {Casting::Debuts, " [debut]"},
      {Casting::Stables, " [stable]"},
      {Casting::SinglesTitles, " [singles title]"},
      {Casting::TagTitles, " [tag title]"},
  };
  return (role.Place == 0 ? "-" : std::to_string(role.Place)) + " " + std::string(role.Caption) +
         kLists.at(role.From) + (role.Optional ? " optional" : "");
}

std::string RolesText(const Angle& angle) {
  std::string text;
  for (const Role& role : angle.Roles)
    if (!role.Caption.empty()) text += (text.empty() ? "" : "; ") + RoleText(role);
  return text;
}

TEST(AllAngles, AreThoseThatWereWrittenDown) {
  ASSERT_EQ(AllAngles().size(), std::size(kAngleRows));
  for (const AngleRow& row : kAngleRows) {
    const Angle* angle = FindAngle(row.Number);
    ASSERT_TRUE(angle) << row.Number;
    EXPECT_EQ(angle->Number, row.Number);
    EXPECT_EQ(angle->Says, row.Says);
    EXPECT_EQ(angle->Sheet, row.Sheet) << row.Says;
    EXPECT_EQ(OfferedText(*angle), row.Offered) << row.Says;
    EXPECT_EQ(RolesText(*angle), row.Roles) << row.Says;
    EXPECT_EQ(angle->Summary.empty() ? angle->Says : angle->Summary, row.Summary);
    EXPECT_EQ(angle->Text, row.Text) << row.Says;
  }
  EXPECT_FALSE(FindAngle(0));
  EXPECT_FALSE(FindAngle(80));
}

}  // namespace
}  // namespace grapplemont::test
