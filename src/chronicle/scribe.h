#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "chronicle/chapter.h"
#include "report/cast.h"
#include "report/tells.h"

namespace grapplemont {

/// Somebody in a sentence.
struct Somebody {
  int Uid = 0;       // 0 for who has left the world, and for several
  std::string Name;  // as it was; empty for nobody
  AnnalSex Sex = kNobodysSex;
};

/// What a sentence is to tell; `Tells` says what each needs.
struct Telling {
  Tells Of;
  Somebody F = {}, S = {}, X = {};
  std::optional<Day> On = {};
  std::vector<Proof> By = {};
  std::string G = {}, Title = {}, House = {}, Count = {}, Tally = {}, Feud = {};
  int Year = 0;       // where the year is meant and no day
  bool Runs = false;  // it tells of more days than one: the next date is told whole
};

/// Writes sentences, each in other words than the last of its kind.
class Scribe {
 public:
  Scribe(const Archive& archive, const Subject& subject, int voice);

  void Tell(const Telling& telling);
  /// What follows begins a new paragraph.
  void Break();
  /// A new paragraph where this one is long enough, or a year or more has passed.
  void BreakBefore(Day on);
  Chapter& Written() { return chapter_; }

 private:
  std::string_view Choose(Tells of);
  void Cast(char part, const Somebody& who);
  std::string WhenText(const Telling& telling);
  /// Whoever was the only one of the sentence before, or its last, may be a he or a she.
  std::string Again(const Telling& telling, std::string line);
  /// Takes back from the last sentence who came next, where this one tells of that; whether it did.
  bool LeavesItToThis(const Telling& telling);

  const Archive& archive_;
  int voice_, seed_;
  grapplemont::Cast cast_;
  std::map<int, std::pair<std::vector<int>, int>> orders_;  // of lines by band, and how many said
  std::optional<Day> last_;
  std::string alone_;          // who the sentence before was about, if nobody else was in it
  std::string next_;           // who came next by it
  std::string title_;          // of the Title that it was about
  std::size_t nextsFrom_ = 0;  // where it said so
  bool saidHe_ = false;
  Chapter chapter_;
};

/// A worker as they are called today.
Somebody PersonToday(const World& world, const Worker& worker);
/// Whose reign it is.
Somebody HolderOf(const World& world, const TitleReign& reign);
/// The first and the second party of an event.
Somebody FirstOf(const World& world, const Annal& event);
Somebody SecondOf(const World& world, const Annal& event);

/// "143 days", "one day", "less than a day".
std::string DaysText(int days);
/// "once", "twice", "three times".
std::string TimesText(int times);
/// "Ann, Bea and Cy".
std::string AndJoined(const std::vector<std::string>& parts);
/// "67 percent".
std::string PercentText(int percent);
/// "the CWA Crown".
std::string CrownName(const World& world, const CrownLine& line);
/// "regional".
std::string SmallSize(int size);

/// Tells of a reign: how it began and ended.
void TellReign(Scribe& scribe, const Archive& archive, const HeldCrown& held);
/// What a promotion may go through again and again in a year.
enum class Churn { None, Class, Owner };
Churn ChurnOf(const Annal& event);
/// Changes of class or of owner in a year that are told one by one.
inline constexpr std::size_t kChurnsTold = 2;
/// The rise, the fall, the opening and the end of promotions; false for another event.
bool TellOfHouse(Scribe& scribe, const Archive& archive, const Annal& event, bool full = false);
/// Many changes of class, or of owners, of one promotion in a year, in one sentence. Requires some.
void TellChurn(Scribe& scribe, const Archive& archive, std::string house,
               const Archive::Events& events);
/// What it came to; false for another event than the end of a feud.
bool TellFeudsEnd(Scribe& scribe, const Archive& archive, const Annal& event);
void TellAward(Scribe& scribe, const Archive& archive, const YearAward& award);

// The kinds of chapters.
void WriteLife(Scribe& scribe, const Archive& archive, const Subject& subject);
void WriteCrown(Scribe& scribe, const Archive& archive, const Subject& subject);
void WriteFeud(Scribe& scribe, const Archive& archive, const Subject& subject);
void WriteHouse(Scribe& scribe, const Archive& archive, const Subject& subject);
void WriteYear(Scribe& scribe, const Archive& archive, const Subject& subject);

}  // namespace grapplemont
