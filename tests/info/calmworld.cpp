#include "info/calmworld.h"

namespace grapplemont::test {

namespace {

// What fits each place of the card in a Regional promotion.
constexpr int kOverOfPlace[] = {60, 50, 40, 30, 15, 5};

void People(SmallWorld& small, const std::string& house, int count) {
  for (int i = 1; i <= count; ++i) {
    const int place = (i - 1) * 6 / count;
    small.Worker(house + " " + std::to_string(i), kMainEvent + place, kOverOfPlace[place],
                 [i](Worker& w) {
                   w.Disposition = i % 2 == 0 ? "H" : "F";
                   w.Debuted = true;
                   w.Condition = 100;
                   w.Morale = 70;
                   w.Loyalty = 60;
                   w.Behaviour = 60;
                 });
  }
}

void Staffed(SmallWorld& small) {
  small.Owner("Ruth Vane");
  for (const auto& [name, post] : {std::pair{"Abel Mike", kAnnouncer},
                                   {"Bea Count", kReferee},
                                   {"Cy Lamp", kProduction},
                                   {"Dot Plaster", kMedical},
                                   {"Eve Pen", kWriter},
                                   {"Eva Ink", kWriter},
                                   {"Fay Road", kRoadAgent},
                                   {"Gil Drill", kTrainer}})
    small.Staff(name, post, 60);
}

}  // namespace

SmallWorld CalmWorld() {
  SmallWorld small;
  small.Network("Nine").Promotion("CWA", kRegional, [](Promotion& p) {
    p.TicketPrice = 30;
    p.Production = 40;
    p.Merchandising = 25;
  });
  Staffed(small);
  People(small, "CWA", 18);
  small.Title("CWA Crown", "CWA 1", {}, [](Title& t) { t.Image = 60; })
      .Show("Friday Fire", "Friday", "Nine",
            [](Show& s) {
              s.Announcer = 2;
              s.Colour = 3;
              s.Rating1 = s.Rating2 = s.Rating3 = 400;
            })
      .Event(3);
  for (int i = 1; i <= 4; ++i) small.Sponsor("Sponsor " + std::to_string(i));
  small.Promotion("NEW", kSmall).Owner("Tom Rival");
  People(small, "NEW", 6);
  small.Game("CWA", kMeeting, [](GameInfo& g) { g.Economy = 50; });
  for (const auto& [one, two] : {std::pair{"CWA 1", "CWA 2"}, {"CWA 3", "CWA 4"}})
    small.Feud(one, two, [](Feud& f) {
      f.Heat = 50;
      f.Started = kMeeting;
    });
  return small;
}

}  // namespace grapplemont::test
