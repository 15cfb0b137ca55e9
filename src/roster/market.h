#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "records/world.h"

// The quick filters over lists of workers: tables of rows to choose from, each with its test.

namespace grapplemont {

struct WorkerFilter {
  std::string_view Label;
  bool (*Keeps)(const Worker& worker);
};

/// One ComboBox of filters; its first row keeps everybody.
struct FilterFamily {
  std::string_view Control;  // the ComboBox's name
  std::string_view Caption;
  std::span<const WorkerFilter> Rows;
};

/// By position, sex, disposition, status and months left.
std::span<const FilterFamily> RosterFilters();
/// By contract, sex, kind of work, skill and age.
std::span<const FilterFamily> MarketFilters();

// The workers of other promotions and of the market whom the player keeps an eye on.

bool IsShortlisted(const World& world, int workerUid);
/// Those who are still in the world, in the order in which they were noted.
std::vector<const Worker*> Shortlisted(const World& world);
/// Why they cannot be noted; empty when they can.
std::string WhyNotShortlist(const World& world, const Worker& worker);
/// Takes the first free place, or that of somebody who has left the world.
void AddToShortlist(World& world, int workerUid);
void RemoveFromShortlist(World& world, int workerUid);
/// Where they work and how long they are bound, in a sentence.
std::string MarketStanding(const World& world, const Worker& worker);

}  // namespace grapplemont
