#pragma once

#include "records/fields/companies.h"
#include "records/fields/people.h"
#include "ui/drawings.h"

// Which facts of a record a drawn picture is made from.

namespace grapplemont {

ui::Portrait PortraitOf(const Worker& worker);
ui::Portrait PortraitOf(const Staff& person);
ui::Crest CrestOf(const Promotion& promotion);
/// `number` is the record's.
ui::TitlePlate PlateOf(const Title& title, int number);

}  // namespace grapplemont
