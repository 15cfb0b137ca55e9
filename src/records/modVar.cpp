#include "records/modVar.h"

#include "records/fields/fields.h"
#include "records/fields/grouping.h"
#include "records/keepannals.h"
#include "records/store/table.h"

namespace grapplemont {

namespace {

constexpr int kMailsDropped = 1000;
constexpr int kDeedsDropped = 500;

Deed NewDeed(const World& world, DeedKind kind, const Promotion* house, std::string_view who) {
  Deed deed{};
  deed.On = world.Today();
  deed.Kind = kind;
  if (house) {
    deed.Promotion = house->Uid;
    deed.House = house->Initials;
  }
  deed.Who = who;
  return deed;
}

template <class T>
void Look(const Records<T>& records, std::string_view what, std::vector<std::string>& lines) {
  const RecordLayout& layout = LayoutOf<T>();
  if (records.Count() * 10 < layout.Limit * 9) return;
  lines.push_back(std::string(layout.File) + " holds " + std::to_string(records.Count()) + " " +
                  std::string(what) + "; " + std::to_string(layout.Limit) +
                  " is the most. Start the next game from a smaller database.");
}

}  // namespace

void AddNews(World& world, std::string_view from, std::string_view body) {
  Mail mail;
  mail.From = from;
  mail.Date = ShortDate(world.Today());
  mail.Body = body;
  AppendRolling(world.News(), mail, kMailsDropped);
}

bool HasNews(const World& world) {
  return world.News().Count() > 0;
}

std::string RatingText(int value) {
  const int remainder = value % 100;
  const std::string whole = std::to_string(value / 100);
  if (remainder >= 1 && remainder <= 9) return whole + ". 0" + std::to_string(remainder);
  std::string text = whole + "." + std::to_string(remainder);
  if (remainder == 0) text += "0";
  return text;
}

bool ShouldTell(const World& world, int option, int size) {
  return option == 0 || (option == 1 && size <= world.Session.StartSize);
}

void TellOf(World& world, int option, const Promotion& rival, const std::string& body) {
  if (ShouldTell(world, option, rival.Size)) AddNews(world, rival.Initials + " News", body);
}

std::string Dollars(long long amount) {
  return (amount < 0 ? "-$" : "$") + Grouped(amount < 0 ? -amount : amount);
}

void NoteDeed(World& world, DeedKind kind, const Promotion* house, std::string_view who,
              std::string_view other, int number, const Worker* worker) {
  Deed deed = NewDeed(world, kind, house, who);
  deed.Other = other;
  deed.Number = number;
  AppendRolling(world.Deeds(), deed, kDeedsDropped);
  KeepDeed(world, deed, worker);
}

void NoteDeed(World& world, DeedKind kind, const Promotion* house, const Worker& worker,
              std::string_view other, int number) {
  NoteDeed(world, kind, house, worker.Name, other, number, &worker);
}

void NoteShow(World& world, DeedKind kind, const Promotion& house, std::string_view show, int draw,
              int viewers, int people) {
  Deed deed = NewDeed(world, kind, &house, show);
  deed.Number = draw;
  deed.Viewers = viewers;
  deed.People = people;
  AppendRolling(world.Deeds(), deed, kDeedsDropped);
}

std::vector<std::string> NearlyFullFiles(const World& world) {
  std::vector<std::string> lines;
  Look(world.Workers(), "workers", lines);
  Look(world.AllStaff(), "staff", lines);
  Look(world.Teams(), "Tag Teams", lines);
  Look(world.Stables(), "stables", lines);
  Look(world.Titles(), "Titles", lines);
  Look(world.Shows(), "television shows", lines);
  Look(world.Events(), "Events", lines);
  Look(world.Networks(), "networks", lines);
  Look(world.Sponsors(), "sponsors", lines);
  return lines;
}

}  // namespace grapplemont
