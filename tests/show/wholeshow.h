#pragma once

#include <gtest/gtest.h>

#include "records/fields/fields.h"
#include "show/holdshow.h"
#include "show/recap.h"
#include "showrig.h"

// Two shows reckoned by hand from first bell to last, all draws scripted: every record must come
// out as the working beside it says.

namespace grapplemont::test {
struct Hand {
  const char* Name;
  const char* Side;
  int Position, Over, Charisma;
  int Brawl, Technical, Speed;
  int Attitude;
  Change<Worker> More = {};
};

inline void Hire(SmallWorld& small, const std::vector<Hand>& hands) {
  for (const Hand& hand : hands)
    small.Worker(hand.Name, [&](Worker& w) {
      w.Disposition = hand.Side;
      w.Position = hand.Position;
      w.Over = hand.Over;
      w.Charisma = hand.Charisma;
      w.Brawl = hand.Brawl;
      w.Technical = hand.Technical;
      w.Speed = hand.Speed;
      w.Attitude = hand.Attitude;
      w.Potential = 100;
      if (hand.More) hand.More(w);
    });
}

/// The sheet in the making, and later the world as it should have become.
struct Sheet {
  World& W;

  Worker& operator[](std::string_view name) { return Named(W.Workers(), name); }
  int Uid(std::string_view name) { return name.empty() ? 0 : int((*this)[name].Uid); }

  Segment& Book(int row, int kind, int style, int type, const std::vector<const char*>& people) {
    std::vector<int> uids;
    for (const char* name : people) uids.push_back(Uid(name));
    return W.Segments()[row] = SegmentOf(kind, style, type, uids);
  }
  Segment& Match(int row, int style, int type, const std::vector<const char*>& people,
                 const char* winner, const char* loser, int finish, int aftermath, int purpose) {
    Segment& match = Book(row, kMatch, style, type, people);
    match.Winner = Uid(winner);
    match.Loser = *loser ? Uid(loser) : kNoLoser;
    match.Finish = finish;
    match.Aftermath = aftermath;
    match.Purpose = purpose;
    return match;
  }

  void Becomes(std::string_view name, int over, int condition, int morale) {
    Worker& worker = (*this)[name];
    worker.Over = over;
    worker.Condition = condition;
    worker.Morale = morale;
    worker.Debuted = true;
  }
  void Rate(std::initializer_list<std::pair<int, int>> ratings) {
    for (const auto& [row, rating] : ratings) W.Segments()[row].Rating = rating;
  }
  void Mails(std::initializer_list<std::pair<const char*, const char*>> mails) {
    for (const auto& [from, body] : mails) {
      Mail mail;
      mail.From = from;
      mail.Date = ShortDate(W.Today());
      mail.Body = body;
      W.News().Append(mail);
    }
  }
  /// New champions since today.
  void Wins(std::string_view title, std::string_view holder, std::string_view partner,
            std::string_view known) {
    Title& won = Named(W.Titles(), title);
    won.Holder = Uid(holder);
    won.Partner = Uid(partner);
    won.Reigns[1] = won.Reigns[0];
    won.Reigns[1].Lost = W.Today();
    won.Reigns[0].Won = W.Today();
    won.Reigns[0].Holder = known;
  }
};

inline void OpenRows(World& world, int rows) {
  world.Segments().Rewrite(std::vector<Segment>(static_cast<std::size_t>(rows), EmptySegment()));
}

}  // namespace grapplemont::test
