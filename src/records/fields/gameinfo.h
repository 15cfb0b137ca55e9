#pragma once

#include <array>

#include "records/fields/field.h"
#include "records/fields/vocabulary.h"

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
GM_RECORD(GameInfo, 440);

/// GameInfo.EndCode: 0 while the career goes on, 1 to 9 once it has ended. Only 1 to 3 are given
/// here.
enum EndOfCareer { kGoesOn = 0, kEndLoan, kEndBankrupt, kEndBoard, kLastEnd = 9 };
/// GameInfo.EndCode while the career goes on and a stranger waits to be seen.
inline constexpr int kStrangerWaits = 100;

/// Whether the career has ended.
bool HasEnded(const GameInfo& game);

/// The version that a slot must have to be played.
inline constexpr std::string_view kVersion = "Version 2.0";

/// ShowRun.Stage.
enum ShowStage { kNoShow = 0, kShowRuns, kShowClosed };

/// A show that is under way: the one record of showrun.dat, there from "Start The Show!" until the
/// day moves on. It is what a program that was killed during a show needs to go on with the Segment
/// that was to come.
struct ShowRun {
  Word Stage;
  Flag IsEvent;
  Word Current;        // the record of match.dat that was reported last; 0 before the first
  Word PreviousCrowd;  // of the last match reported; 0 before the first
  Word LastOverall;    // of the Segment reported last; it counts once more at the close
  Flag FlatNight;
  std::array<Flag, 8> FeudTouched;
  RangedWord<-32768, 32767> ShowSum;  // ratings and charges so far; at the close the show's rating
  Natural ShowSegments;               // ratings in the sum
  Word Announcer;                     // Staff uid; 0 none
  Word Colour;                        // uid of a Staff, or of a Worker
  Flag ColourIsWorker;
  Word AnnouncerCharge;                   // what the primary announcer cost the sum
  Word ColourCharge;                      // what the colour commentator cost it
  Word ProductionCharge;                  // what poor production cost it
  Word ExtraBonus;                        // what an Event's extra added to it
  RangedLong<0, kMostDollars> ExtraCost;  // dollars that the extra was charged
};
GM_RECORD(ShowRun, 50);

/// How far the player has come with the guide through the first week: the one record of guide.dat.
/// A game without one has none.
struct GuideState {
  Word Tour;  // 1 Backyard, 2 television
  std::array<Flag, 8> Done;
  Flag Closed;
};
GM_RECORD(GuideState, 20);

/// What makes two games of the same day and the same people differ in what nobody decides: who has
/// a gift, how a card went that nobody saw. The one record of worldkey.dat, drawn with the game.
struct WorldKey {
  Long Key;
};
GM_RECORD(WorldKey, 4);

}  // namespace grapplemont
