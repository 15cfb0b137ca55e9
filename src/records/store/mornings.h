#pragma once

#include <optional>
#include <string>
#include <vector>

#include "records/fields/fields.h"
#include "records/store/wayback.h"

// The moments of a game that can be gone back to: a file of the slot like any other, in which each
// moment tells the world as it was by what it is at the next one, and the last by what it is now.

namespace grapplemont {

inline constexpr const char* kMorningsName = "mornings";
/// No file of moments is longer.
inline constexpr std::int64_t kMostMornings = 4 << 20;

enum class MomentKind : std::uint8_t {
  Click,    // before a click of today's
  Morning,  // a day as it began
  Named,    // the player has named it
  Left,     // as it was left to go back to an earlier day
};

struct Moment {
  MomentKind Is = MomentKind::Click;
  Day On{};
  std::uint64_t Digest = 0;        // of the world's own files
  std::string Name;                // of the click, the player's own; in UTF-8 or the game's letters
  Day Target{};                    // of Left: the day that was gone back to
  std::uint64_t TargetDigest = 0;  // of Left: of the moment that was gone back to; 0 if not known
  std::string Page = {};           // PlayedStep::Page; nobody stores it
};

/// The file of moments, in memory, with what the commit that is being made does to it.
class Mornings {
 public:
  /// How many are kept. What is past its time may stay a little longer, until several can go at
  /// once.
  static constexpr int kDays = 7, kFirsts = 12, kNamed = 12, kLeft = 8, kClicks = 60;

  /// As it was stored; nothing for a game that has none yet. A spoiled file keeps nothing.
  explicit Mornings(std::optional<Bytes> file = std::nullopt);
  /// Of a game that never goes back.
  static Bytes NoWayBack();

  /// False for such a game.
  bool Keeps() const { return keeps_; }
  /// What was stored was no such file, or is broken.
  bool WasSpoiled() const { return spoiled_; }
  /// Oldest first.
  std::size_t Count() const { return entries_.size(); }
  const Moment& operator[](std::size_t at) const { return entries_[at].Of; }
  /// What leads there from the present; nothing where it cannot be read.
  std::optional<WayBack> WayTo(std::size_t at) const;
  /// What leads there from the moment behind it.
  std::optional<WayBack> Step(std::size_t at) const;
  /// The moment that goes when one more of this kind comes, which is Named or Left; nothing while
  /// there is room. The first road that was left goes never.
  std::optional<std::size_t> WouldGo(MomentKind kind) const;

  // Each change belongs to a commit: Reach when that stands, PutBack when it does not.
  /// The world was this a moment ago, and `way` leads back there; now it is `after`. A click that
  /// is the first of its day is the morning's moment. Clicks become part of the day as soon as it
  /// is over.
  void Add(Moment of, const WayBack& way, Day after);
  /// The last moment is the present again.
  void DropLast();
  /// One that the player has named is a moment no more.
  void Forget(std::size_t at);
  /// The world is, or is but for a little, what it was at the moment `click`; `way` leads from
  /// there to what it was till now, `digest` is what it is. Of the moments from the click on only
  /// what the player has named stays.
  void TakeBack(std::size_t click, const WayBack& way, std::uint64_t digest);
  void Clear();
  /// What the commit has to write; nothing where nothing has changed.
  std::optional<FileChange> Change() const;
  void Reach();
  void PutBack();

 private:
  struct Entry {
    Moment Of;
    std::size_t At = 0, Size = 0;
  };
  using Entries = std::vector<Entry>;
  /// What a commit that fails brings back.
  struct Past {
    std::size_t Count, Length, Start;
    std::size_t From;                           // what lies behind it is not what it was
    Bytes Tail = {};                            // as it was from there on
    std::optional<Entries> All = std::nullopt;  // where more than appended ones are others
  };

  /// An entry where it stands now, and its way where that is another.
  struct Staying {
    Moment Of;
    std::size_t At;
    std::optional<WayBack> Way;
  };

  bool Read();
  bool IsNewDay(Day on) const;
  std::optional<WayBack> Onward(WayBack nearer, std::size_t from, std::size_t to) const;
  Past& Touch();
  void Cut(std::size_t length);
  void Append(Moment of, const WayBack& way);
  void Append(Moment of, const Bytes& packed);
  void DropOldest(std::size_t count);
  void WriteStart();
  void Thin(bool dayIsOver);
  void Fold(std::vector<bool> goes);
  void Keep(std::vector<Staying> stay, std::size_t first);
  void Bound();

  Bytes file_;
  bool keeps_ = true, spoiled_ = false;
  bool isStored_ = false;   // the file in the slot is this one
  bool exists_ = false;     // there is one in the slot
  std::size_t stored_ = 0;  // its length, where it is not this one
  Entries entries_;
  std::size_t start_;  // of the first entry that counts
  std::optional<Past> past_;
};

}  // namespace grapplemont
