#pragma once

#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "records/fields/chronicle.h"
#include "records/fields/wording.h"

// What this room says: the files of words/ that are its own, and what the lines under each of their
// headings may name. The meeting's points are in meetingpoints.h.

namespace grapplemont {

namespace words {
Blocks Meeting();
Blocks News();
Blocks Rumours();
Blocks Fans();
}  // namespace words

/// The lines of a point of the meeting: a number of ways to say it, then what to do, if anything.
inline constexpr int kWaysToSay = 2;

/// How a deed is reported.
struct DeedRow {
  DeedKind Kind;
  std::string_view What;
  std::string_view Slots;
};
inline constexpr DeedRow kDeedRows[] = {
    {kDeedSigned, "Signing", "who house"},
    {kDeedStolen, "Signing", "who house other"},
    {kDeedFired, "Departure", "who house"},
    {kDeedLeft, "Departure", "who house"},
    {kDeedRetiring, "Retirement", "who"},
    {kDeedRetired, "Retirement", "who"},
    {kDeedInjured, "Injury", "who house other months"},
    {kDeedOnAir, "Television", "who house other weeks"},
    {kDeedRenewed, "Television", "who house other weeks"},
    {kDeedOffAir, "Television", "who house other"},
    {kDeedFounded, "Promotion", "who size"},
    {kDeedMissed, "Money", "who"},
    {kDeedWarned, "Money", "who"},
    {kDeedClosed, "Promotion", "who"},
    {kDeedBought, "Promotion", "who other"},
    {kDeedRisen, "Standing", "who size"},
    {kDeedFallen, "Standing", "who size"},
    {kDeedOwner, "Owner", "who house"},
    {kDeedOwnerQuit, "Owner", "who house"},
    {kDeedTvHeld, "Show", "who house rating people"},
    {kDeedEventHeld, "Event", "who house people"},
    {kDeedCalledOff, "Show", "who"},
    {kDeedTeamed, "Story", "who house other"},
    {kDeedTeamSplit, "Story", "who house other"},
    {kDeedStableFounded, "Story", "who house other"},
    {kDeedStableEnded, "Story", "who house"},
    {kDeedJoined, "Story", "who house other"},
    {kDeedGrudge, "Story", "who house other"},
    {kDeedSettled, "Story", "who house other"},
    {kDeedManaged, "Story", "who house other"},
    {kDeedManager, "Story", "who house"},
    {kDeedTitleMade, "Title", "who house"},
    {kDeedRenamed, "Story", "who house other"},
};
/// What becomes of a Title, as headings of the news beside the kinds of deeds. {other} had it
/// before.
enum TitleNews { kTitleFound = 103, kTitleLost, kTitleWon };
struct TitleNewsRow {
  TitleNews Is;
  std::string_view Slots;
};
inline constexpr TitleNewsRow kTitleNewsRows[] = {
    {kTitleFound, "who title"}, {kTitleLost, "title other"}, {kTitleWon, "who title other"}};

/// What is whispered.
enum class Whisper {
  ContractEnds,
  Handshake,
  Unhappy,
  NearBankruptcy,
  InDebt,
  Saving,
  Spending,
  NoOwner,
  AboutToRise,
  AboutToFall,
  Back,
  OldBones,
  LongReign,
  NetworkCold,
  ShortDeal,
  Turn,
  Bonfire,
  FreeStar,
  HeldDown,
  NoChampion,
  Slipping,
  kCount
};
struct WhisperRow {
  Whisper Is;
  std::string_view Slots;
};
inline constexpr WhisperRow kWhisperRows[] = {
    {Whisper::ContractEnds, "who house n"},
    {Whisper::Handshake, "who house"},
    {Whisper::Unhappy, "who house"},
    {Whisper::NearBankruptcy, "house"},
    {Whisper::InDebt, "house"},
    {Whisper::Saving, "house"},
    {Whisper::Spending, "house"},
    {Whisper::NoOwner, "house"},
    {Whisper::AboutToRise, "house n what"},
    {Whisper::AboutToFall, "house n what"},
    {Whisper::Back, "who house"},
    {Whisper::OldBones, "who house n"},
    {Whisper::LongReign, "who house n what"},
    {Whisper::NetworkCold, "who house other"},
    {Whisper::ShortDeal, "who house other n"},
    {Whisper::Turn, "who house"},
    {Whisper::Bonfire, "who house other"},
    {Whisper::FreeStar, "who n"},
    {Whisper::HeldDown, "who house what"},
    {Whisper::NoChampion, "house what"},
    {Whisper::Slipping, "house n"},
};
/// No more rumours of a kind at a time, each in other words.
inline constexpr int kMostOfAKind = 3;

/// What a fan's post is about; the names under which fans write stand under a heading as well.
enum class FanMood {
  Superb,
  Good,
  Fair,
  Weak,
  Awful,
  CalledOff,
  Stolen,
  Bored,
  Star,
  Full,
  Empty,
  Again,
  Handles
};
struct FanRow {
  FanMood Is;
  std::string_view Slots;
};
inline constexpr FanRow kFanRows[] = {
    {FanMood::Superb, "show house"},
    {FanMood::Good, "show house"},
    {FanMood::Fair, "show house"},
    {FanMood::Weak, "show house"},
    {FanMood::Awful, "show house"},
    {FanMood::CalledOff, "show house"},
    {FanMood::Stolen, "show house what"},
    {FanMood::Bored, "show house what"},
    {FanMood::Star, "show house who"},
    {FanMood::Full, "show house"},
    {FanMood::Empty, "show house"},
    {FanMood::Again, "show house"},
    {FanMood::Handles, ""},
};

/// Names in a line, without their braces, and the words that go there.
using LineWords = std::vector<std::pair<std::string_view, std::string>>;

/// The line with the words in place of {their names}; a name without words stays. A count may
/// choose between two forms (ReadCounted). The first letter of all is a capital.
std::string FillLine(std::string_view line, const LineWords& words);

/// "the CWA Crown"; a name that brings its article along keeps one.
std::string WithArticle(std::string_view name);

}  // namespace grapplemont
