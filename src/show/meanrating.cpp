#include "show/meanrating.h"

namespace grapplemont {

void MeanRating::Add(const World& world, int uid, int (*rating)(const Worker&)) {
  const Worker* worker = world.FindWorker(uid);
  Add(worker ? worker->Name.View() : "nobody", worker ? rating(*worker) : 0);
}

void MeanRating::Add(std::string_view name, int rating) {
  if (count_ > 0) names_ += ", ";
  names_ += std::string(name) + " " + std::to_string(rating);
  sum_ += rating;
  ++count_;
}

std::string MeanRating::Told(std::string_view what) const {
  return (count_ > 1 ? "mean " : "") + std::string(what) + " of " + names_;
}

}  // namespace grapplemont
