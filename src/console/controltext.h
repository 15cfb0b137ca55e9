#pragma once

#include <string>
#include <vector>

#include "ui/screen.h"

namespace grapplemont::console {

/// What stands under one heading; the heading may be empty.
struct Section {
  struct Part {
    const ui::Control* Shown;
    std::string Label;  // what it is called, where it does not say so itself
  };
  std::string Heading;
  std::vector<Part> Parts;
};

/// Every visible control of the screen once: what is always said, the body by its groups, the side
/// bar, the actions, and whatever the layout leaves out.
std::vector<Section> Sections(ui::Screen& screen);

/// The lines of one control: name, kind, what it says, and below them its rows or its prose; the
/// first few of them unless `whole`, which also tells its tip. In the program's own letters.
std::string ControlText(const Section::Part& part, bool whole, int width);

/// What a Chart says, in lines: "January: Image 61, Money 1200".
std::string ChartText(const ui::Chart& chart);

}  // namespace grapplemont::console
