#pragma once

#include <array>
#include <span>
#include <string_view>

// The points that somebody can make at the staff meeting; words/meeting.txt has the words.

namespace grapplemont {

enum class Topic {
  Roster,
  Morale,
  Contracts,
  Health,
  Development,
  Staff,
  Money,
  Image,
  Feuds,
  Titles,
  Television,
  Events
};

enum class Urgency { Now, Soon, Watch, Good };

/// In the order of their rows.
enum class Point {
  RosterSmall,
  RosterLarge,
  PositionThin,
  HeldLow,
  PushedHigh,
  Undebuted,
  OneSided,
  WalkOut,
  Boycott,
  SittingOut,
  Unhappy,
  RoomLow,
  RoomHappy,
  ContractsEnd,
  ContractsSoon,
  WillNotSign,
  MovingOn,
  StaffContracts,
  Retiring,
  Injured,
  Suspended,
  WornOut,
  Tired,
  TerritoryIdle,
  TerritoryOutgrown,
  CampIdle,
  CampEmpty,
  CampLearned,
  PostShort,
  PostEmpty,
  NearBankruptcy,
  Debt,
  Runway,
  Profit,
  WageShare,
  NoIncome,
  Advertising,
  LoanShort,
  LoanMissed,
  LoanRuns,
  TicketFree,
  TicketNobody,
  TicketWrong,
  Merchandise,
  SponsorsFree,
  SponsorsRisk,
  SponsorsEnd,
  SponsorsOrder,
  ImageFalling,
  ImageSlips,
  ImageDanger,
  ImageNext,
  LastShow,
  FeudsFew,
  FeudHurt,
  FeudCold,
  FeudRipe,
  FeudHot,
  TitleVacant,
  TitleAway,
  TitleLeaving,
  TitleOutshines,
  TitleLong,
  TitlesNone,
  TvWeeks,
  TvTerrible,
  TvLow,
  TvGreat,
  TvStrikes,
  TvRisk,
  TvProduction,
  TvEmptyChair,
  TvWeakTable,
  TvSpeechless,
  TvSlot,
  TvSlotDown,
  TvOffer,
  TvNone,
  EventNone,
  EventCost,
  EventNear,
  kCount
};

struct PointRow {
  Point Is;
  Topic About;
  Urgency How;
  int Post;            // a code of Staff.Position; 0: Maeve
  const char* Screen;  // empty for none
  std::string_view Slots;
};
const PointRow& RowOf(Point point);
std::span<const PointRow> PointRows();

/// Who speaks for a post that nobody holds.
std::string_view StandInFor(int post);
std::string_view TopicText(Topic topic);
std::string_view UrgencyText(Urgency urgency);

}  // namespace grapplemont
