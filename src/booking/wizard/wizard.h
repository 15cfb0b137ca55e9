#pragma once

#include "booking/wizard/roster.h"
#include "records/segments.h"

namespace grapplemont {

/// A Segment under construction: what the booking wizard knows. Nothing of it reaches match.dat
/// before the booking is completed.
struct Wizard {
  Segment Buffer;
  int Step = 0;                  // the step to be done next, 0 to 9
  bool SegmentComplete = false;  // the last step of the Segment's path has been done
  int CurrentSlot = 1;           // the record of match.dat that is to be filled
  BookingView View;
  bool IsDraft = false;  // for a show to come: nobody's morale moves yet
  // What had been chosen before a step was gone back to: later steps keep what of it still holds.
  Segment Earlier = {};
  int EarlierSteps = 0;  // of it
  Segment Paid = {};     // the booked row that is edited: what it cost has been paid
  /// What was picked in a step that was left without storing, and from where.
  struct LeftStep {
    int Step = -1;
    Segment Buffer = {}, Picks = {};
  } Left = {};
};

/// A wizard in which nothing is chosen yet.
Wizard BeginBooking(int slot, bool isEvent);

/// How many steps the path of the Segment has: 9 for styles 1 and 2, 7 for 7 and 8, 6 for the other
/// matches, 5 for an interview, 3 for an angle; 1 while no kind is chosen.
int StepsOf(const Segment& segment);
/// Counts the step as done.
void StepDone(Wizard& wizard);
/// Undoes the last step: its fields are as if it had not been done. Does nothing at step 0.
void StepBack(Wizard& wizard);
/// Puts into a Segment what the step has put into another of the same kind and style.
void TakeStep(Segment& to, const Segment& from, int step);

/// What the wizard calls a step, and what its summary says of it once it is done.
struct StepText {
  std::string Caption;  // "Select Match Style"; "???" beyond the present step
  std::string Summary;  // "Match Style = 1 vs 1"; empty while it is not done
  std::string Tip;      // who runs in
};
StepText TextOfStep(const World& world, const Wizard& wizard, int step);
/// The screen that does the step, "frmBookType".
std::string ScreenOfStep(const Wizard& wizard, int step);

}  // namespace grapplemont
