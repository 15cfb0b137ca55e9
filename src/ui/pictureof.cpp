#include "ui/pictureof.h"

namespace grapplemont {

namespace {

/// Staff and workers count their uids apart; nobody of one looks like the other's namesake.
constexpr int kStaffFaces = 1'000'000;

ui::Dress DressOf(const Worker& worker) {
  if (worker.Position == kManager) return ui::Dress::Manager;
  if (worker.Position == kNonWrestler) return ui::Dress::Office;
  if (worker.Brawl >= worker.Technical && worker.Brawl >= worker.Speed) return ui::Dress::Brawler;
  return worker.Technical >= worker.Speed ? ui::Dress::Technician : ui::Dress::HighFlyer;
}

ui::Mood MoodOf(const Worker& worker) {
  if (worker.Disposition == "F") return ui::Mood::Face;
  return worker.Disposition == "H" ? ui::Mood::Heel : ui::Mood::Tweener;
}

}  // namespace

ui::Portrait PortraitOf(const Worker& worker) {
  return {.Uid = worker.Uid,
          .Woman = !worker.Gender,
          .Heavy = worker.Weight == "H",
          .Superstar = worker.SuperstarLook,
          .Wears = DressOf(worker),
          .Shows = MoodOf(worker),
          .Age = worker.Age};
}

ui::Portrait PortraitOf(const Staff& person) {
  return {.Uid = kStaffFaces + person.Uid, .Woman = !person.Gender, .Age = person.Age};
}

ui::Crest CrestOf(const Promotion& promotion) {
  return {promotion.Uid, std::string(promotion.Initials), promotion.Size};
}

ui::TitlePlate PlateOf(const Title& title, int number) {
  return {number, std::string(title.Name), title.Image, !title.Singles,
          title.Holder == 0 && title.Reigns[0].Holder == kVacantHolder};
}

}  // namespace grapplemont
