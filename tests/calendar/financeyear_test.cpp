#include <gtest/gtest.h>

#include <array>
#include <charconv>

#include "business/screens/frmSpending.h"
#include "calendar/advanceday.h"
#include "calendar/events.h"
#include "records/fields/fields.h"
#include "records/modVar.h"
#include "session/newgame.h"
#include "support/defaultworld.h"
#include "support/gameonworld.h"

// A year of money on the finance page beside a ledger that is kept by hand: by what the mails say
// has come in, and by what everybody is owed on the day he is paid.

namespace grapplemont::test {
namespace {

using std::chrono::year;

/// The amounts of the page's rows, in its order; costs count as they stand there.
enum Line { kTickets, kMerch, kPpv, kSponsors, kWorkers, kStaff, kProduction, kAds, kMerchCost };
using Ledger = std::array<long long, 9>;

long long In(const Ledger& l) {
  return l[kTickets] + l[kMerch] + l[kPpv] + l[kSponsors];
}
long long Out(const Ledger& l) {
  return l[kWorkers] + l[kStaff] + l[kProduction] + l[kAds] + l[kMerchCost];
}

World Begun(int promotionUid, int difficulty) {
  World world = CopyOf(DefaultWorld());
  world.SetChance(std::make_unique<SeededDraws>(static_cast<std::uint64_t>(promotionUid)));
  NewGameChoice choice;
  choice.PlayerName = "Pat Lee";
  choice.PromotionUid = promotionUid;
  choice.Difficulty = difficulty;
  choice.Start = year{2026} / 3 / 1;
  choice.SaveName = "First";
  NewGame(world, choice);
  return world;
}

/// The sum of what mails from `first` on say in the words "We made $N WHAT".
long long MadeBy(const World& world, int first, std::string_view what) {
  constexpr std::string_view kMade = "We made $";
  long long sum = 0;
  for (int number = first; number <= world.News().Count(); ++number) {
    const std::string body = world.News()[number].Body.Str();
    for (auto at = body.find(kMade); at != std::string::npos; at = body.find(kMade, at + 1)) {
      long long dollars = 0;
      const char* begin = body.data() + at + kMade.size();
      const char* end = std::from_chars(begin, body.data() + body.size(), dollars).ptr;
      if (std::string_view(end, body.data() + body.size()).starts_with(what)) sum += dollars;
    }
  }
  return sum;
}

/// A year in one chair, in which the player spends, borrows and gives as well.
class Year {
 public:
  Year(int uid, int difficulty) : play_(Begun(uid, difficulty)), difficulty_(difficulty) {
    play_.World().SetChance(std::make_unique<SeededDraws>(7));
    money_ = player().Money;
    SignFourSponsors();
  }

  void Play() {
    while (world().Today() < year{2027} / 3 / 2 && !::testing::Test::HasFailure()) {
      if (DayOfMonth(world().Today()) == 10) Spend(MonthOf(world().Today()));
      OneDay();
      ComparePage();
    }
  }
  const Ledger& Whole() const { return whole_; }
  long long Beside() const { return beside_; }

 private:
  World& world() { return play_.World(); }
  Promotion& player() { return world().Player(); }
  ScriptDesk& desk() { return play_.Desk; }

  void SignFourSponsors() {
    int place = 0;
    for (Sponsor& sponsor : world().Sponsors()) {
      if (place == 4) break;
      sponsor.Promotion = player().Uid;
      sponsor.ContractMonths = 30;
      sponsor.Morality = 0;
      sponsor.Pay = 37 + place;
      player().Sponsor[static_cast<std::size_t>(place++)] = sponsor.Uid;
    }
  }

  void OneDay() {
    mails_ = world().News().Count();
    ExpectShow();
    world().Session.ShowRating = 55;
    AdvanceDay(world(), false, [&](std::string_view step) { Watch(step); });
    world().Game().EndCode = 0;  // the books go on, whatever the board thinks
    play_.Play.Commit();
    if (!IsFirstOfMonth(world().Today())) Read(mails_ + 1);
  }

  /// Takes in what the mails from `first` on tell of.
  void Read(int first) {
    present_[kTickets] += MadeBy(world(), first, " from ticket sales.");
    present_[kPpv] += MadeBy(world(), first, " from pay-per-view revenue.");
    present_[kMerch] += MadeBy(world(), first, " off merchandise this month.");
  }

  /// What the show of today will bring from the sponsors, and what an Event costs.
  void ExpectShow() {
    constexpr int kEventCost[] = {0, 1500000, 200000, 25000, 1000};
    const bool event = IsEventDay(world().Today());
    const int type = event ? EventThisMonth(world(), player()) : 0;
    present_[kProduction] += kEventCost[type];
    if (event ? type == 0 : !HasTvToday(world(), world().PlayerUid())) return;
    for (int place = 0; place < 4; ++place) {
      const int pay = 37 + place;
      present_[kSponsors] += 1000LL * (event ? pay : place == 0 ? pay / 4 : pay / 10);
    }
  }

  void Watch(std::string_view step) {
    if (step == "PayWagesAndContracts") OweWages();
    if (step == "LoanRepayments") OweRepayment();
    if (step == "MonthlyCosts") OweCosts();
    if (step == "CloseMonthBooks") {
      Read(mails_ + 1);
      for (std::size_t i = 0; i < present_.size(); ++i) whole_[i] += present_[i];
      last_ = present_;
      present_ = {};
    }
  }

  void OweWages() {
    for (const Worker& worker : world().Workers())
      if (worker.Employer == player().Uid && worker.ContractMonths != -1 &&
          !(worker.Status == "Hom"))
        present_[kWorkers] += worker.Wage * 1000LL;
    for (const Staff& staff : world().AllStaff())
      if (staff.Employer == player().Uid && staff.ContractMonths != -1 && staff.Position != 1)
        present_[kStaff] += staff.Wage * 1000LL;
  }

  void OweRepayment() {
    constexpr int kPercent[] = {0, 0, 2, 5, 8};
    const Promotion& p = player();
    if (p.LoanAmount == 0) return;
    const long long due =
        p.LoanAmount / p.LoanMonths + p.LoanAmount * 1LL * kPercent[difficulty_] / 100;
    if (p.Money >= due) beside_ -= due;
  }

  void OweCosts() {
    const int level = player().Production;
    const int factor = level <= 20 ? 1 : level <= 40 ? 5 : level <= 60 ? 10 : level <= 80 ? 12 : 22;
    present_[kProduction] += level * factor * 1000LL;
    present_[kAds] += player().Advertising * 10000LL;
    present_[kMerchCost] += player().Merchandising * 20000LL;
  }

  /// What the player does on the tenth of a month, by his screens.
  void Spend(int month) {
    desk().Open("frmFinance");
    const long long before = player().Money;
    if (month == 3) Borrow();
    if (month == 4) Advertise();
    if (month == 5) Donate();
    if (month == 7) Raise();
    if (month == 9) Reprice();
    if (month == 11) Borrow();  // nothing while the first loan stands, else another
    beside_ += player().Money - before;
    desk().Close(*desk().Top());
  }

  void Borrow() {
    if (player().LoanAmount > 0 || player().Money < 25000) return;
    desk().Click("cmdloan");
    desk().ExpectAsk(kAnyText, "Are you sure?", true);
    desk().ExpectSay("Accepted!", kAnyText);
    desk().Click("cmddoit");
    desk().Click("cmdback");
  }

  void Advertise() {
    for (const auto open : {OpenAdvertising, OpenMerchandising}) {
      open(play_.Play);
      desk().Slide("hscurrent", 3);
      desk().Click("cmdback");
    }
  }

  void Donate() {
    if (player().Money < 3000) return;
    desk().Click("cmdcharity");
    desk().Slide("hsamount", 3);
    desk().ExpectAsk(kAnyText, kAnyText, true);
    desk().Click("cmddonate");
    desk().Click("cmdback");
  }

  void Raise() {
    if (player().Money < 110000 || player().Production == 100) return;
    desk().Open("frmFedProd");
    desk().ExpectAsk("Finance Report", kAnyText, true);
    desk().Click("cmdraise(1)");
    desk().Click("cmdback");
  }

  void Reprice() {
    desk().Click("cmdtickets");
    desk().Slide("hsticket", player().TicketPrice + 3);
    desk().ExpectAsk("Change price?", kAnyText, true);
    desk().Click("cmddoit");
    desk().Click("cmdback");
  }

  static std::vector<std::string> Column(const Ledger& l) {
    std::vector<long long> amounts(l.begin(), l.begin() + 4);
    amounts.push_back(In(l));
    amounts.insert(amounts.end(), l.begin() + 4, l.end());
    amounts.push_back(Out(l));
    amounts.push_back(In(l) - Out(l));
    std::vector<std::string> texts;
    for (const long long amount : amounts) texts.push_back(Dollars(amount));
    return texts;
  }

  void ComparePage() {
    desk().Open("frmFinance");
    std::vector<std::string> last, present;
    for (const auto& row : desk().Rows("lstbooks")) {
      last.push_back(row[1]);
      present.push_back(row[2]);
    }
    const std::string day = IsoDate(world().Today());
    EXPECT_EQ(last, Column(last_)) << day;
    EXPECT_EQ(present, Column(present_)) << day;
    const long long expected =
        money_ + In(whole_) - Out(whole_) + In(present_) - Out(present_) + beside_;
    EXPECT_EQ(desk().Text("lblmoney"), "Current finance: $" + std::to_string(expected)) << day;
    desk().Close(*desk().Top());
  }

  GameOnWorld play_;
  int difficulty_;
  int mails_ = 0;         // before the day
  long long money_ = 0;   // at the beginning
  long long beside_ = 0;  // what has passed the books by
  Ledger last_{}, present_{}, whole_{};
};

TEST(AYearOnFinance, AgreesToTheDollarWithWhatWasChargedAndTold) {
  for (const auto& [uid, difficulty] :
       {std::pair(4, kRockHard), {8, kMedium}, {12, kHard}, {15, kEasy}}) {
    SCOPED_TRACE(uid);
    Year year(uid, difficulty);
    year.Play();
    for (const Line line : {kTickets, kSponsors, kWorkers, kStaff, kProduction, kAds, kMerchCost})
      EXPECT_GT(year.Whole()[line], 0) << "line " << line << " of the year stayed empty";
    EXPECT_NE(year.Beside(), 0);
  }
}

}  // namespace
}  // namespace grapplemont::test
