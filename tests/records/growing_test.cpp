#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

#include "records/world.h"
#include "support/cutdisk.h"
#include "support/storeworld.h"

// What a growing file says of itself is what a comparison of all its bytes would say.

namespace grapplemont::test {
namespace {

static_assert(kGrows<Mail> && !kGrows<Worker>);

/// A mail of a few that look alike, so that a change may be none.
Mail AnyMail(Chance& chance) {
  Mail mail;
  mail.Body = std::string(1, static_cast<char>('a' + Pick(chance, 3)));
  return mail;
}

int AnyNumber(Chance& chance, const Records<Mail>& mails) {
  return 1 + static_cast<int>(Pick(chance, static_cast<std::size_t>(mails.Count())));
}

void DoAnything(Chance& chance, Records<Mail>& mails) {
  const auto act = Pick(chance, 40);
  if (act < 14) {
    for (auto more = 1 + Pick(chance, 20); more > 0; --more) mails.Append(AnyMail(chance));
  } else if (act == 14) {
    Bytes bytes(Pick(chance, 40 * sizeof(Mail)));
    mails.Load(bytes);  // most often with a surplus
  } else if (act == 15) {
    mails.Remove();
  } else if (act == 16) {
    mails.ExpectAnyChange();
  } else if (mails.Count() == 0) {
    mails.Rewrite({});
  } else if (act < 28) {
    mails.Change(AnyNumber(chance, mails)) = AnyMail(chance);
  } else if (act < 31) {
    mails.EditEach([&](Mail& mail) {
      if (Pick(chance, 9) == 0) mail = AnyMail(chance);
    });
  } else if (act < 34) {
    mails.DropFirst(AnyNumber(chance, mails));
  } else if (act < 36) {
    mails.Erase(AnyNumber(chance, mails));
  } else if (act < 38) {
    mails.Keep([&](const Mail&) { return Pick(chance, 30) != 0; });
  } else {
    mails.Rewrite({mails.begin(), mails.begin() + AnyNumber(chance, mails)});
  }
}

Bytes BytesIn(const Table& table) {
  const ByteSpan bytes = table.Contents();
  return {bytes.begin(), bytes.end()};
}

/// The change that the table tells leads from what was to what is, block by block.
void ExpectRightChange(const Table& mails, bool existed, const Bytes& before) {
  const Bytes now = BytesIn(mails);
  EXPECT_EQ(before, mails.Committed());
  const auto change = mails.Difference();
  ASSERT_EQ(existed != mails.Exists() || before != now, change.has_value());
  if (!change) return;
  EXPECT_EQ(std::pair(existed, mails.Exists()),
            std::pair(change->ExistsBefore, change->ExistsAfter));
  EXPECT_EQ(std::ssize(before), change->LengthBefore);
  Bytes made = before;
  made.resize(now.size());
  std::size_t end = 0;
  for (const JournalRange& range : change->Ranges) {
    const auto at = static_cast<std::size_t>(range.Offset);
    EXPECT_EQ(0u, at % kJournalBlock);
    EXPECT_TRUE(at > end || end == 0);
    end = at + range.Contents.size();
    EXPECT_TRUE(end % kJournalBlock == 0 || end == now.size());
    std::copy(range.Contents.begin(), range.Contents.end(), made.begin() + range.Offset);
  }
  EXPECT_EQ(now, made);
  // A last block that only became longer or shorter is written too.
  for (const JournalRange& wanted : ChangedRanges(before, now))
    EXPECT_TRUE(std::ranges::any_of(change->Ranges, [&](const JournalRange& range) {
      return range.Offset <= wanted.Offset && range.Offset + std::ssize(range.Contents) >=
                                                  wanted.Offset + std::ssize(wanted.Contents);
    }));
}

TEST(AGrowingFile, KnowsWhatChangedAndGoesBack) {
  for (std::uint64_t seed = 1; seed <= 60; ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    Chance chance(seed);
    Records<Mail> mails;
    Bytes before;
    bool existed = false;
    for (int step = 0; step < 120; ++step) {
      for (auto acts = Pick(chance, 4); acts > 0; --acts) DoAnything(chance, mails);
      ExpectRightChange(mails, existed, before);
      ASSERT_FALSE(testing::Test::HasFailure()) << "step " << step;
      switch (Pick(chance, 3)) {
        case 0:
          mails.Rollback();
          EXPECT_EQ(std::pair(before, existed), std::pair(BytesIn(mails), mails.Exists()));
          break;
        case 1:
          mails.MarkCommitted();
          before = BytesIn(mails);
          existed = mails.Exists();
          EXPECT_FALSE(mails.Changed());
      }
    }
  }
}

TEST(AGrowingFile, WritesItsEndAndWhatWasChangedAndNothingElse) {
  Records<Mail> mails;
  for (int i = 0; i < 1000; ++i) mails.Append({});
  mails.MarkCommitted();
  mails.Append({});
  mails.Change(300).Body = "news";
  const auto change = mails.Difference();
  ASSERT_TRUE(change);
  ASSERT_EQ(2u, change->Ranges.size());
  EXPECT_EQ(299 * 290 / kJournalBlock * kJournalBlock, change->Ranges[0].Offset);
  EXPECT_EQ(kJournalBlock, std::ssize(change->Ranges[0].Contents));
  EXPECT_EQ(290'000 / kJournalBlock * kJournalBlock, change->Ranges[1].Offset);
}

TEST(AGrowingFile, GivesBackTheMemoryOfWhatHasGone) {
  std::vector<Mail> mails(1000);
  GrowingPast<Mail> past;
  past.Commit(mails, {});
  past.NoteGone(mails, mails.size());
  EXPECT_GE(past.Held(), 1000 * sizeof(Mail));
  past.Commit(mails, {});
  EXPECT_EQ(0u, past.Held());
}

TEST(AGrowingFile, TellsOfAllThatHappensToItsRecordsButAnAppend) {
  Records<Mail> mails;
  mails.Append({});
  unsigned changes = mails.Changes(), moves = mails.Moves();
  const auto told = [&] {
    const std::pair now(std::exchange(changes, mails.Changes()) != mails.Changes(),
                        std::exchange(moves, mails.Moves()) != mails.Moves());
    return std::string(now.first ? "changed" : "") + (now.second ? ", moved" : "");
  };
  mails.Append({});
  EXPECT_EQ("", told());
  mails.Change(1).Body = "other";
  EXPECT_EQ("changed", told());
  mails.DropFirst(1);
  EXPECT_EQ("changed, moved", told());
  mails.MarkCommitted();
  EXPECT_EQ("", told());
  mails.Append({});
  mails.Rollback();
  EXPECT_EQ("changed, moved", told());
}

}  // namespace
}  // namespace grapplemont::test
