#pragma once

#include <functional>

#include "booking/auto/autobooker.h"
#include "booking/keptcards.h"
#include "show/holdshow.h"
#include "show/runsegment.h"
#include "ui/game.h"

namespace grapplemont {

std::unique_ptr<ui::Screen> MakefrmDebut(Game& game, bool isEvent);
/// The numbers of a worker, the player's most popular for uid 0.
std::unique_ptr<ui::Screen> MakefrmQuickStat(Game& game, int workerUid);

/// A record of match.dat, and what its sheet is for.
struct SheetPlace {
  int Record = 1;
  bool IsEvent = false;
  bool IsDraft = false;  // for a show to come
};
/// The wizard that fills this record of match.dat.
std::unique_ptr<ui::Screen> MakefrmBookSheet(Game& game, int slot, bool isEvent);
std::unique_ptr<ui::Screen> MakefrmBookSheet(Game& game, const SheetPlace& place);
/// The wizard filled with what is booked in the record.
std::unique_ptr<ui::Screen> MakeEditSheet(Game& game, const SheetPlace& place);
/// A wizard for an empty record on the desk, with its first step open over it.
void OpenWizardAtOnce(Game& game, int slot, bool isEvent);
void OpenWizardAtOnce(Game& game, const SheetPlace& place);

/// A sheet that asks the auto booker for what it has no rows for yet.
struct FillOrder {
  std::string Show = {};
  bool IsEvent = false;
  int OpenRows = 0;
  CommentaryTeam Team = {};            // it is foreseen with
  AutoCard First = {};                 // what is proposed at first
  std::vector<std::string> Also = {};  // what else changes when it is taken, a sentence each
  std::function<void()> Taken = {};    // runs when the card lies on the sheet
};
/// The proposal, with its reasons, before it is taken.
std::unique_ptr<ui::Screen> MakefrmFill(Game& game, FillOrder order);

/// The steps of a forecast, from one of its rehearsals.
std::unique_ptr<ui::Screen> MakefrmForecast(Game& game, const ToldSegment& typical);

/// The sheet of the draft for a show that is still to come.
std::unique_ptr<ui::Screen> MakefrmDraft(Game& game, const ComingShow& show);

}  // namespace grapplemont
