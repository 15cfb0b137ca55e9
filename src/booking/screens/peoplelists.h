#pragma once

#include <vector>

#include "booking/marks.h"
#include "ui/controls.h"

namespace grapplemont {

/// The columns of a list of people to book a Segment of this kind from: disposition, Over and what
/// the kind asks for beside the name, and the marks; in short words and signs where lists
/// stand side by side.
std::vector<ui::Column> PeopleColumns(int kind, int listsAbreast = 1);
/// Fills such a list, in the order given. `none` puts "None" on top, preselected.
void FillPeople(ui::ListBox& list, const std::vector<const Worker*>& people, int kind,
                const RosterMarks& marks, bool none = false);

/// Gold for what is held, amber and red for what may hurt, green for what may help.
ui::Tone MarkTone(std::string_view mark);
/// What a mark is drawn as where lists are narrow.
ui::Sign MarkSign(std::string_view mark);

}  // namespace grapplemont
