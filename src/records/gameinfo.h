#pragma once

#include <array>

#include "records/field.h"
#include "records/vocabulary.h"

namespace grapplemont {

/// One job of the player's career; the first is the present one.
struct Job {
  Text<40> Promotion;  // "None" for no job
  Date Started;
  Word StartImage;
  Word StartSize;
  Word EndImage;  // 0 while it lasts
  Word EndSize;
};
static_assert(sizeof(Job) == 56);

/// The state of a game: the one record of gameinfo.dat.
struct GameInfo {
  Text<25> PlayerName;
  RangedWord<0, 100> Reputation;
  Date StartDate;
  std::array<Word, 15> Shortlist;
  std::array<Job, 5> Jobs;
  Text<30> SaveName;
  Word LoadingSet;  // 0 default, 1 to 4
  Word TapeWait;
  Word TvOfferWait;
  Word PlayerPromotion;
  Word Difficulty;
  Date Today;
  Word MailOwners;
  Word MailWorkerHire;
  Word MailWorkerFire;
  Word MailStaffHire;
  Word MailStaffFire;
  Word MailTv;
  Word MailRetirement;
  Word MailOtherFed;
  Word MailSponsor;
  Word EndCode;  // an EndOfCareer, or kStrangerWaits
  Word MailShows;
  Word MailTvShow;
  Word MailStaffRetire;
  Word MailDev;
  Word MailTrain;
  Word Reporter;
  RangedWord<-32768, 32767> Economy;
  Flag EconomyRising;
  Text<11> Version;
};

static_assert(sizeof(GameInfo) == 440 && alignof(GameInfo) == 1);
static_assert(offsetof(GameInfo, PlayerName) == 0 && offsetof(GameInfo, Reputation) == 25);
static_assert(offsetof(GameInfo, StartDate) == 27 && offsetof(GameInfo, Shortlist) == 35);
static_assert(offsetof(GameInfo, Jobs) == 65 && offsetof(Job, Promotion) == 0);
static_assert(offsetof(Job, Started) == 40 && offsetof(Job, StartImage) == 48);
static_assert(offsetof(Job, StartSize) == 50 && offsetof(Job, EndImage) == 52);
static_assert(offsetof(Job, EndSize) == 54 && offsetof(GameInfo, SaveName) == 345);
static_assert(offsetof(GameInfo, LoadingSet) == 375 && offsetof(GameInfo, TapeWait) == 377);
static_assert(offsetof(GameInfo, TvOfferWait) == 379);
static_assert(offsetof(GameInfo, PlayerPromotion) == 381 && offsetof(GameInfo, Difficulty) == 383);
static_assert(offsetof(GameInfo, Today) == 385 && offsetof(GameInfo, MailOwners) == 393);
static_assert(offsetof(GameInfo, MailWorkerHire) == 395);
static_assert(offsetof(GameInfo, MailWorkerFire) == 397);
static_assert(offsetof(GameInfo, MailStaffHire) == 399 && offsetof(GameInfo, MailStaffFire) == 401);
static_assert(offsetof(GameInfo, MailTv) == 403 && offsetof(GameInfo, MailRetirement) == 405);
static_assert(offsetof(GameInfo, MailOtherFed) == 407 && offsetof(GameInfo, MailSponsor) == 409);
static_assert(offsetof(GameInfo, EndCode) == 411 && offsetof(GameInfo, MailShows) == 413);
static_assert(offsetof(GameInfo, MailTvShow) == 415 && offsetof(GameInfo, MailStaffRetire) == 417);
static_assert(offsetof(GameInfo, MailDev) == 419 && offsetof(GameInfo, MailTrain) == 421);
static_assert(offsetof(GameInfo, Reporter) == 423 && offsetof(GameInfo, Economy) == 425);
static_assert(offsetof(GameInfo, EconomyRising) == 427 && offsetof(GameInfo, Version) == 429);

template <>
const RecordLayout& LayoutOf<GameInfo>();

/// GameInfo.EndCode: 0 while the career goes on, 1 to 9 once it has ended. Only 1 to 3 are given
/// here.
enum EndOfCareer { kGoesOn = 0, kEndLoan, kEndBankrupt, kEndBoard, kLastEnd = 9 };
/// GameInfo.EndCode while the career goes on and a stranger waits to be seen.
inline constexpr int kStrangerWaits = 100;

/// Whether the career has ended.
bool HasEnded(const GameInfo& game);

/// The version that a slot must have to be played.
inline constexpr std::string_view kVersion = "Version 2.0";

}  // namespace grapplemont
