#include "ui/share.h"

#include <gtest/gtest.h>

#include "support/scriptdesk.h"

namespace grapplemont::test {
namespace {

/// A page with what may stand on one, and letters that mean something to every form.
class Yearbook : public ui::Screen {
 public:
  explicit Yearbook(ui::Desk& desk) : Screen(desk, "frmYear", "The [best] of *2026*") {
    lstnobody.EmptyText = "Nobody yet.";
    lblgone.Visible = false;
    lblchosen.Fleeting = true;
    cmbyear.Filters = true;
    for (const char* year : {"All years", "2026"}) cmbyear.Add(year);
    cmbyear.Select(1);
    lstpeople.Add({"Bram <the Ox>", 71, "", "$1,200"}, 1);
    lstpeople.Add({"Dane | Rory", 9, "", "$90"}, 2);
    rptyear.Write({{ui::Report::Style::Heading, "A year"},
                   {ui::Report::Style::Strong, "January"},
                   {ui::Report::Style::Body, "Bells & ropes."}});
    chtmoney.Captions = std::vector<std::string>{"Jan", "Feb"};
    chtmoney.Lines = std::vector<ui::Chart::Series>{{"Money", {12, -3.5}}};
  }
  ui::Page Layout() override {
    return {.Facts = &lblfacts,
            .Actions = {&cmdback},
            .Body = ui::Rows({ui::Group("People", {ui::Grow(lstpeople), lstnobody}),
                              ui::Group("Gone", {lblgone, cmdback}),
                              ui::Group("Facts", {ui::Field("Owner", lblowner), chkopen,
                                                  ui::Field("Year", cmbyear), lblchosen}),
                              rptyear, chtmoney})};
  }
  using K = ui::ColumnKind;
  ui::Label lblfacts{*this, "lblfacts", "One line\nand another"};
  ui::ListBox lstpeople{
      *this, "lstpeople", {{"Name"}, {"Over", K::Percent}, {"", K::Button}, {"Wage", K::Number}}};
  ui::ListBox lstnobody{*this, "lstnobody", {{"Name"}}};
  ui::Label lblgone{*this, "lblgone", "Hidden"};
  ui::Label lblowner{*this, "lblowner", "Ruth_Vane"};
  ui::Label lblchosen{*this, "lblchosen", "2 are chosen."};
  ui::ComboBox cmbyear{*this, "cmbyear"};
  ui::CheckBox chkopen{*this, "chkopen", "Open", true};
  ui::Report rptyear{*this, "rptyear"};
  ui::Chart chtmoney{*this, "chtmoney"};
  ui::Button cmdback{*this, "cmdback", "Back"};
};

TEST(AScreen, IsSharedInEveryForm) {
  ScriptDesk desk;
  Yearbook year(desk);
  EXPECT_EQ(ui::Shared(year, *ui::FormNamed("markdown")),
            "# The \\[best\\] of \\*2026\\*\n\nOne line  \nand another\n\n## People\n\n"
            "| Name | Over | Wage |\n| --- | ---: | ---: |\n"
            "| Bram \\<the Ox\\> | 71 | $1,200 |\n| Dane \\| Rory | 9 | $90 |\n\n"
            "Nobody yet.\n\n## Facts\n\n**Owner**: Ruth\\_Vane\n\n**Open**: yes\n\n"
            "## A year\n\n**January**\n\nBells & ropes.\n\n**Money**: Jan 12, Feb -3.5\n\n");
  EXPECT_EQ(ui::Shared(year, *ui::FormNamed("html")),
            "<!DOCTYPE html>\n<meta charset=\"utf-8\">\n<h1>The [best] of *2026*</h1>\n"
            "<p>One line<br>\nand another</p>\n<h2>People</h2>\n<table>\n"
            "<tr><th>Name</th><th>Over</th><th>Wage</th></tr>\n"
            "<tr><td>Bram &lt;the Ox&gt;</td><td style=\"text-align: right\">71</td>"
            "<td style=\"text-align: right\">$1,200</td></tr>\n"
            "<tr><td>Dane | Rory</td><td style=\"text-align: right\">9</td>"
            "<td style=\"text-align: right\">$90</td></tr>\n</table>\n<p>Nobody yet.</p>\n"
            "<h2>Facts</h2>\n<p><strong>Owner</strong>: Ruth_Vane</p>\n"
            "<p><strong>Open</strong>: yes</p>\n<h2>A year</h2>\n"
            "<p><strong>January</strong></p>\n<p>Bells &amp; ropes.</p>\n"
            "<p><strong>Money</strong>: Jan 12, Feb -3.5</p>\n");
  const std::string code = ui::Shared(year, *ui::FormNamed("bbcode"));
  EXPECT_TRUE(code.starts_with("[size=150][b]The &#91;best&#93; of *2026*[/b][/size]\n\n")) << code;
  EXPECT_NE(code.find("[tr][td]Dane | Rory[/td][td]9[/td][td]$90[/td][/tr]\n"), code.npos);
  EXPECT_FALSE(ui::FormNamed("word"));
}

TEST(AScreen, TellsItsStoryBeforeTheListsThatChooseIt) {
  ScriptDesk desk;
  Yearbook year(desk);
  const std::string story(500, 'a');
  year.rptyear.Write({{ui::Report::Style::Body, story}});
  const std::string page = ui::Shared(year, ui::Form::Markdown);
  EXPECT_TRUE(page.starts_with("# The \\[best\\] of \\*2026\\*\n\nOne line  \nand another\n\n" +
                               story + "\n\n## People\n"))
      << page;
}

TEST(ATable, IsSharedAsThePlayerHasArrangedIt) {
  ScriptDesk desk;
  Yearbook year(desk);
  ui::Table table(year.lstpeople);
  table.TurnSort(1, false);
  table.TurnSort(1, false);
  table.Show(3, false);
  EXPECT_EQ(ui::Shared(table, ui::Form::BbCode),
            "[table]\n[tr][th]Name[/th][th]Over[/th][/tr]\n"
            "[tr][td]Dane | Rory[/td][td]9[/td][/tr]\n"
            "[tr][td]Bram <the Ox>[/td][td]71[/td][/tr]\n[/table]\n\n");
  year.lstpeople.Select(1);
  EXPECT_EQ(ui::Shared(table, ui::Form::BbCode, true),
            "[table]\n[tr][th]Name[/th][th]Over[/th][/tr]\n"
            "[tr][td]Bram <the Ox>[/td][td]71[/td][/tr]\n[/table]\n\n");
  year.cmbyear.Select(2);
  const std::string page =
      ui::Shared(year, ui::Form::Markdown, [&](const ui::ListBox& list) -> const ui::Table* {
        return &list == &year.lstpeople ? &table : nullptr;
      });
  EXPECT_NE(page.find("| Name | Over |\n"), page.npos) << page;
  EXPECT_NE(page.find("**Year**: 2026"), page.npos) << "a filter that hides something";
}

}  // namespace
}  // namespace grapplemont::test
