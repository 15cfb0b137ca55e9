#include "records/fields/charset.h"
#include "session/build.h"
#include "session/faultlog.h"
#include "session/layers.h"
#include "ui/game.h"

namespace grapplemont {

namespace {

using Style = ui::Report::Style;
using Paragraphs = std::vector<ui::Report::Paragraph>;

/// What the program is made with, and under which terms.
struct Library {
  const char *Name, *For, *Licence;
};
constexpr Library kLibraries[] = {
    {"Qt 6", "the window, its pictures and sounds", "LGPL 3"},
    {"xxHash", "the checksums of what is saved", "BSD, 2 clauses"},
    {"zlib", "what makes exported games small", "zlib licence"},
    {"JSON for Modern C++", "what the console and the tool tell programs", "MIT"},
    {"libedit", "lines typed at the console", "BSD, 3 clauses"},
    {"Inter, DejaVu", "the letters, where they are installed", "OFL 1.1, Bitstream Vera"}};

Paragraphs AboutProgram() {
  Paragraphs told{
      {Style::Heading, std::string("Grapplemont ") + kProgramVersion},
      {Style::Body,
       "A management simulation of professional wrestling, told in text. Everybody in it "
       "is invented."},
      {Style::Strong, "Licence"},
      {Style::Body,
       "Grapplemont is free software: you may pass it on and change it under the terms of the GNU "
       "General Public License, version 3 or, as you like, any later one. It comes without any "
       "warranty."},
      {Style::Strong, "Libraries"}};
  for (const Library& library : kLibraries)
    told.push_back({Style::Body,
                    std::string(library.Name) + ": " + library.For + " (" + library.Licence + ")"});
  return told;
}

/// The lines of a text file, those that belong together in one paragraph. What begins like a
/// heading or a point of a list begins anew.
Paragraphs ParagraphsOf(std::string_view text) {
  Paragraphs told;
  bool open = false;
  while (!text.empty()) {
    std::string_view line = text.substr(0, text.find('\n'));
    text.remove_prefix(std::min(line.size() + 1, text.size()));
    if (line.ends_with('\r')) line.remove_suffix(1);  // of a checkout on Windows
    const auto first = line.find_first_not_of(" #-");
    const bool isHeading = line.starts_with("#");
    if (first == line.npos) {
      open = false;
    } else if (!isHeading && !line.starts_with("-") && open) {
      told.back().Words += " " + ForScreen(line.substr(first));
    } else {
      told.push_back({isHeading ? Style::Strong : Style::Body, ForScreen(line.substr(first))});
      open = !isHeading;
    }
  }
  return told;
}

class frmAbout : public GameScreen {
 public:
  explicit frmAbout(Game& game) : GameScreen(game, "frmAbout", "About") {
    rptabout.Write(AboutProgram());
    Tell(rptnew, "CHANGELOG.md", "What is new is told in the CHANGELOG of the program.");
    Tell(rptlicence, "LICENSE", "The licence can be read at gnu.org/licenses.");
  }

  ui::Page Layout() override {
    return PageOf(ui::Tabs({ui::Group("This game", {ui::Grow(rptabout)}),
                            ui::Group("What is new", {ui::Grow(rptnew)}),
                            ui::Group("The licence", {ui::Grow(rptlicence)}),
                            ui::Group("Faults", {lblfaults, ui::Grow(rptfaults)})}));
  }

  void Return() override {
    const std::string& file = game_.FaultFile();
    const std::string faults = file.empty() ? "" : LatestFaults(game_.Disk(), file);
    lblfaults.Text = faults.empty()
                         ? "No fault has been noted."
                         : "Put these lines into a report of what went wrong. They are in " +
                               ForScreen(file) + ".";
    Paragraphs lines;
    for (std::string_view left = faults; !left.empty();) {
      const std::string_view line = left.substr(0, left.find('\n'));
      left.remove_prefix(std::min(line.size() + 1, left.size()));
      lines.push_back({Style::Line, FromUtf8(line).value_or(ForScreen(line))});
    }
    rptfaults.Write(std::move(lines));
  }

 private:
  /// A text that came with the program, or what to read in its place.
  void Tell(ui::Report& report, const char* name, const char* without) {
    constexpr std::int64_t kLongest = 1 << 20;
    const std::string file = FileIn(game_.Disk(), {game_.Share()}, name);
    const Bytes text = file.empty() ? Bytes() : ReadStart(game_.Disk(), file, kLongest);
    Paragraphs told = ParagraphsOf({reinterpret_cast<const char*>(text.data()), text.size()});
    if (told.empty()) told.push_back({Style::Body, without});
    report.Write(std::move(told));
  }

  ui::Report rptabout{*this, "rptabout"}, rptnew{*this, "rptnew"};
  ui::Report rptlicence{*this, "rptlicence"}, rptfaults{*this, "rptfaults"};
  ui::Label lblfaults{*this, "lblfaults"};
};

}  // namespace

SCREEN(frmAbout)

}  // namespace grapplemont
