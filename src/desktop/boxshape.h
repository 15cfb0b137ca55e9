#pragma once

#include <vector>

#include "ui/screen.h"

// What kind of thing a box of a page is, before anything is built of it.

namespace grapplemont::desktop {

/// Parts of a row up to which they are never shared out among two lines.
inline constexpr std::size_t kFew = 3;

bool IsButton(const ui::Box& box);
/// A button that is words alone.
bool IsLink(const ui::Box& box);
/// A button that takes no more room than it needs.
bool IsCalmButton(const ui::Box& box);
/// A row of controls alone, such as one of several alike below each other.
bool IsPlainRow(const ui::Box& box);
/// A row of many cards on which nothing grows, such as one of several below each other.
bool IsRowOfCards(const ui::Box& box);
/// A card without a title whose one table stands below a line of what is chosen for it: there the
/// table's own search finds room.
bool HasFilterRow(const ui::Box& card);
/// Whether a drop-down in it filters a table.
bool HasFilters(const ui::Box& box);
/// A card without a title that holds several drop-downs, which filter a table elsewhere.
bool IsAllFilters(const ui::Box& card);
/// Whether a box makes use of more room than it needs, upright.
bool Grows(const ui::Box& box);
/// A card on which nothing grows but prose.
bool IsProse(const ui::Box& box);
/// Such a card, or a choice of such cards.
bool IsAllProse(const ui::Box& box);
/// The share of the room left over that a box takes.
int ShareOf(const ui::Box& box);
/// Adds every control of the box, in its order.
void CollectControls(const ui::Box& box, std::vector<ui::Control*>& controls);

}  // namespace grapplemont::desktop
