#pragma once

#include "records/fields/field.h"

// The words of the records' codes, one table a family.

namespace grapplemont {

enum Size { kGlobal = 1, kNational, kCult, kRegional, kSmall, kBackyard };

/// Worker.Position. Under 7 is the active wrestling roster; 81 to 86 is a roster position sent to
/// the development territory.
enum Position {
  kMainEvent = 1,
  kUpperMidcard,
  kMidcard,
  kLowerMidcard,
  kOpener,
  kJobber,
  kDevelopmentDeal = 7,
  kNonWrestler = 25,
  kManager = 50,
  kTrainingCamp = 75,
  kSentToDevelopment = 80  // added to a roster position
};

inline constexpr int kOldest = 250;     // years; some never retire
inline constexpr int kDearest = 10000;  // thousands of dollars a month

/// Staff.Position.
enum StaffPosition {
  kOwner = 1,
  kAnnouncer,
  kReferee,
  kProduction,
  kMedical,
  kWriter,
  kRoadAgent,
  kTrainer
};

enum Difficulty { kEasy = 1, kMedium, kHard, kRockHard };

inline constexpr Term kGenders[] = {{-1, "", "male"}, {0, "", "female"}};
inline constexpr Term kWeights[] = {{0, "H", "Heavyweight"}, {0, "L", "Lightweight"}};
inline constexpr Term kContracts[] = {{0, "Wri", "Written"}, {0, "Non", "None"}};
inline constexpr Term kDispositions[] = {{0, "F", "Face"}, {0, "H", "Heel"}, {0, "T", "Tweener"}};
inline constexpr Term kStatuses[] = {{0, "Nor", "Normal"},
                                     {0, "Inj", "Injured"},
                                     {0, "Sus", "Suspended"},
                                     {0, "Reh", "In rehab"},
                                     {0, "Hom", "Sitting out contract"}};
inline constexpr Term kStoredPositions[] = {{1, "", "Main Event"},
                                            {2, "", "Upper Midcard"},
                                            {3, "", "Midcard"},
                                            {4, "", "Lower Midcard"},
                                            {5, "", "Opener"},
                                            {6, "", "Jobber"},
                                            {7, "", "Development Deal"},
                                            {25, "", "Non-wrestler"},
                                            {50, "", "Manager"},
                                            {75, "", "Training Camp"},
                                            {81, "", "Main Event (sent to development)"},
                                            {82, "", "Upper Midcard (sent to development)"},
                                            {83, "", "Midcard (sent to development)"},
                                            {84, "", "Lower Midcard (sent to development)"},
                                            {85, "", "Opener (sent to development)"},
                                            {86, "", "Jobber (sent to development)"}};
/// What screens know; a posting to the development territory shows as "Unknown".
inline constexpr Vocabulary kPositions = Vocabulary(kStoredPositions).first(10);
inline constexpr Term kSizes[] = {{1, "", "Global"},   {2, "", "National"}, {3, "", "Cult"},
                                  {4, "", "Regional"}, {5, "", "Small"},    {6, "", "Backyard"}};
inline constexpr Term kWeekDays[] = {{1, "Monday", "Monday"},       {2, "Tuesday", "Tuesday"},
                                     {3, "Wednesday", "Wednesday"}, {4, "Thursday", "Thursday"},
                                     {5, "Friday", "Friday"},       {6, "Saturday", "Saturday"},
                                     {7, "Sunday", "Sunday"}};
inline constexpr Term kCampFacilities[] = {
    {0, "", "None"}, {1, "", "Poor"}, {2, "", "Average"}, {3, "", "Good"}, {4, "", "Superb"}};
inline constexpr Term kTimeSlots[] = {{0, "E", "Early Evening"},
                                      {0, "P", "Prime Time"},
                                      {0, "L", "Late Night"},
                                      {0, "G", "Graveyard"}};
inline constexpr Term kEventTypes[] = {
    {1, "", "Pay-Per-View"}, {2, "", "Large"}, {3, "", "Medium"}, {4, "", "Small"}};
inline constexpr Term kStaffPositions[] = {
    {1, "", "Owner"},   {2, "", "Announcer"}, {3, "", "Referee"},    {4, "", "Production"},
    {5, "", "Medical"}, {6, "", "Writer"},    {7, "", "Road Agent"}, {8, "", "Trainer"}};
inline constexpr Term kDifficulties[] = {
    {1, "", "Easy"}, {2, "", "Medium"}, {3, "", "Hard"}, {4, "", "Rock Hard"}};
inline constexpr Term kSegmentKinds[] = {
    {0, "", "Empty"}, {1, "", "Match"}, {2, "", "Interview"}, {3, "", "Angle"}};
inline constexpr Term kIncidents[] = {
    {0, "", "None"},          {1, "", "Backstage fight"}, {2, "", "Late for the show"},
    {3, "", "Police matter"}, {4, "", "Rehab"},           {5, "", "Injury"},
    {6, "", "Job offer"}};
/// Mail options: who must be concerned for a mail to come.
inline constexpr Term kMailOptions[] = {
    {0, "", "Always"}, {1, "", "Only for direct rivals or above"}, {2, "", "Never"}};

/// The same for reports about the player's own, which have no direct rivals.
inline constexpr Term kTwoWayMailOptions[] = {{0, "", "Always"}, {2, "", "Never"}};

}  // namespace grapplemont
