#include <algorithm>
#include <functional>
#include <utility>

#include "info/mailbox.h"
#include "info/screens/infoscreens.h"
#include "records/fields/wording.h"
#include "records/modVar.h"
#include "records/readmail.h"
#include "roster/screens/screenmany.h"
#include "storylines/screens/screenpeople.h"
#include "ui/game.h"

namespace grapplemont {

namespace {

/// The share of a day's news in the room that is left beside nothing.
constexpr int kMostOfIt = 20;

/// Some of the mails, by their numbers.
class MailSet {
 public:
  void Add(const std::vector<int>& numbers) {
    for (const int number : numbers) {
      const auto at = static_cast<std::size_t>(number);
      if (at >= has_.size()) has_.resize(at + 1);
      count_ += !has_[at];
      has_[at] = true;
    }
  }
  /// Those behind the mail move up by one.
  void Erase(int number) {
    if (static_cast<std::size_t>(number) >= has_.size()) return;
    Drop(number);
    has_.erase(has_.begin() + number);
  }
  void Drop(int number) {
    if (!Has(number)) return;
    has_[static_cast<std::size_t>(number)] = false;
    --count_;
  }
  bool Has(int number) const {
    const auto at = static_cast<std::size_t>(number);
    return at < has_.size() && has_[at];
  }
  int Count() const { return count_; }

 private:
  std::vector<bool> has_;
  int count_ = 0;
};

/// The mailbox: on top what is the player's own and was unread when the page came up, then day by
/// day, on each the own before the rest; the selected mail beside the list. What other promotions'
/// news tell of one day is one row below it, under the number of the latest of them.
class frmNews : public GameScreen {
 public:
  /// Open at a mail, or at the row that it is gathered in; 0 for the first row.
  explicit frmNews(Game& game, int number = 0)
      : GameScreen(game, "frmNews", "News"), first_(number) {
    lstnews.Extends = true;
    lstnews.Least = 1;  // in the smallest window the letter begins in sight below it
    lstnews.Acts = {{&cmdsubject}, {&cmdread}, {&cmddelete}};
    lstdigest.OpenWith(cmdsubject);
    txtbody.Brief = true;
    cmbfrom.Filters = true;
    lstdigest.EmptyText = "Choose a row \"Around the rings\" to read what others did that day.";
    lstnews.EmptyText = "No mail. What the world has to tell you arrives here.";
  }

  ui::Page Layout() override {
    return PageOf(
        ui::Columns({ui::Group("", {ui::Columns({ui::Field("From", cmbfrom), chkdigest}),
                                    ui::Grow(lstnews)})
                         .Grow(3),
                     ui::Group("", {ui::Columns({ui::Rows({lblfrom, lbldate}).Grow(), cmdsubject}),
                                    txtbody, ui::Grow(lstdigest, kMostOfIt), ui::Spacer()})
                         .Grow(2)}),
        &lblfacts, {&cmdread, &cmdempty, &cmddelete});
  }

  void Return() override {
    ShowSenders();
    const Unread unread = UnreadOf(world());
    top_ = {};
    top_.Add(unread.Own);
    ShowMails(unread);
    const int wanted = std::exchange(first_, 0);
    if (wanted != 0) lstnews.SelectKey(RowKeyOf(wanted));
    if (lstnews.Selected() == 0) lstnews.SelectKey(firstOwn_);
    if (lstnews.Selected() == 0) lstnews.Select(1);
    lstnews_Click();
    if (!lstdigest.Visible || wanted == 0) return;
    lstdigest.SelectKey(wanted);
    lstdigest_Click();
  }

 private:
  /// Empty for everybody.
  std::string From() const { return cmbfrom.Selected() <= 1 ? std::string() : cmbfrom.Text.Get(); }

  /// A sender whose last mail has gone leaves the list, and the filter with them.
  void ShowSenders() {
    const std::string kept = From();
    cmbfrom.Clear();
    cmbfrom.Add("Everybody");
    cmbfrom.Select(1);
    for (const std::string& sender : MailSenders(world())) {
      cmbfrom.Add(sender);
      if (sender == kept && !kept.empty()) cmbfrom.Select(cmbfrom.Count());
    }
  }

  /// Gold for what is the player's own and unread.
  ui::Tone ToneOf(const Mail& mail) {
    return own_.Has(world().News().NumberOf(mail)) ? ui::Tone::Gold : ui::Tone::Plain;
  }

  bool Gathers() const { return chkdigest.Checked && From().empty(); }

  void ShowMails(const Unread& unread) {
    own_ = {};
    own_.Add(unread.Own);
    unread_ = own_;
    unread_.Add(unread.Others);
    digests_ = Gathers() ? DigestsOf(world()) : std::vector<Digest>{};
    lstnews.FillLate(RowKeys(), [this](int key, int column) { return CellOf(key, column); });
    ShowCount();
  }

  /// What the list shows has been read meanwhile.
  void ShowRead(const std::vector<int>& numbers) {
    for (const int number : numbers) {
      own_.Drop(number);
      unread_.Drop(number);
    }
    const int key = lstnews.Key();
    if (const auto digest = FindDigest(key); digest != digests_.end()) {
      digest->IsUnread = false;
      lstnews.ChangeRow(lstnews.Selected(), RowOf(*digest).Cells);
    } else {
      lstnews.ChangeRow(lstnews.Selected(),
                        grapplemont::RowOf(mails_, world().News()[key], key).Cells);
    }
    ShowCount();
  }

  bool IsOnTop(int number) const { return Gathers() && top_.Has(number); }

  ui::Cell CellOf(int key, int column) {
    const auto place = static_cast<std::size_t>(column);
    if (const Digest* digest = DigestAt(key)) return RowOf(*digest).Cells[place];
    return key <= world().News().Count() ? mails_[place].Show(world().News()[key]) : ui::Cell("");
  }

  /// The news of others stand below all else that came on their day.
  std::vector<int> RowKeys() {
    MailSet gathered;
    for (const Digest& digest : digests_) gathered.Add(digest.Mails);
    std::vector<int> keys;
    const auto add = [&](int number) {
      if (firstOwn_ == 0) firstOwn_ = number;
      keys.push_back(number);
    };
    firstOwn_ = 0;
    const std::vector<int> numbers = MailsNewestFirst(world(), From());
    for (const int number : numbers)
      if (IsOnTop(number)) add(number);
    const Digest* waits = nullptr;
    const auto close = [&] {
      if (const Digest* digest = std::exchange(waits, nullptr))
        keys.push_back(digest->Mails.front());
    };
    for (const int number : numbers) {
      const Mail& mail = world().News()[number];
      if (waits && mail.Date != waits->Date) close();
      if (const Digest* digest = gathered.Has(number) ? DigestAt(number) : nullptr) waits = digest;
      if (!gathered.Has(number) && !IsOnTop(number)) add(number);
    }
    close();
    return keys;
  }

  /// Of the row that a mail is in.
  int RowKeyOf(int number) const {
    for (const Digest& digest : digests_)
      if (std::ranges::find(digest.Mails, number) != digest.Mails.end())
        return digest.Mails.front();
    return number;
  }

  /// The digest that stands in the place of this mail; nullptr for none.
  const Digest* DigestAt(int number) const {
    const auto found = const_cast<frmNews*>(this)->FindDigest(number);
    return found == digests_.end() ? nullptr : &*found;
  }
  std::vector<Digest>::iterator FindDigest(int number) {
    const auto latest = [](const Digest& digest) { return digest.Mails.front(); };
    const auto found = std::ranges::lower_bound(digests_, number, std::greater<>(), latest);
    return found == digests_.end() || latest(*found) != number ? digests_.end() : found;
  }
  static ui::ListBox::Row RowOf(const Digest& digest) {
    const int number = digest.Mails.front();
    return {{"Around the rings", digest.Words, ui::Cell(number, digest.Date, ui::Tone::Muted),
             digest.IsUnread ? "unread" : ""},
            number};
  }
  /// What the row of a mail stands for.
  std::vector<int> MailsOf(int number) const {
    if (number == 0) return {};
    const Digest* digest = DigestAt(number);
    return digest ? digest->Mails : std::vector<int>{number};
  }
  /// Of all selected rows, from the last mail to the first.
  std::vector<int> ChosenMails() const {
    std::vector<int> chosen;
    for (const int number : lstnews.Keys()) {
      const std::vector<int> mails = MailsOf(number);
      chosen.insert(chosen.end(), mails.begin(), mails.end());
    }
    std::ranges::sort(chosen, std::greater<>());
    return chosen;
  }
  bool SeveralChosen() const { return lstnews.Keys().size() > 1; }

  void ShowCount() {
    const int all = world().News().Count();
    lblfacts.Text = Counted(all, "mail") + ".";
    const int shown =
        From().empty() ? all : static_cast<int>(MailsNewestFirst(world(), From()).size());
    if (shown < all) lblfacts.Text = std::to_string(shown) + " of " + lblfacts.Text.Get();
    EnableUnless(cmdread, unread_.Count() == 0 ? "Every mail has been read." : "");
    cmdread.Text = SeveralChosen() ? CaptionFor("Mark Read", lstnews.Keys()) : "Mark All Read";
    cmddelete.Text = CaptionFor("Delete", lstnews.Keys());
    const int waiting =
        Gathers()
            ? own_.Count() + static_cast<int>(std::ranges::count_if(digests_, &Digest::IsUnread))
            : unread_.Count();
    cmdread.Badge = waiting == 0 ? std::string() : std::to_string(waiting);
    EnableUnless(cmdempty, HasNews(world()) ? "" : "There is no mail to delete.");
  }

  /// What is shown has been read.
  void lstnews_Click() {
    const std::vector<int> shown = MailsOf(lstnews.Key());
    const Digest* digest = DigestAt(lstnews.Key());
    ShowMail(lstnews.Key());
    ShowDigest(digest);
    // Read again is what the player opens, not what comes up when a click is taken back.
    !game_.ComesUpAgain&& MarkRead(world(), shown) ? ShowRead(shown) : ShowCount();
    EnableUnless(cmddelete, !shown.empty() ? "" : "Pick a mail first.");
  }

  void ShowMail(int number) {
    const Mail mail = number == 0 ? Mail{} : world().News()[number];
    lblfrom.Text = mail.From.Str();
    lbldate.Text = mail.Date.Str();
    txtbody.Write(mail.Body.View());
    ShowSubject();
  }

  /// The first who has a page of those that the mail is about, else who sent it.
  std::vector<ui::Link> Subject(std::string& words) {
    for (const std::string& text : {txtbody.Text.Get(), lblfrom.Text.Get()}) {
      words = text;
      if (auto links = desk().LinksIn(text); !links.empty()) return links;
    }
    return {};
  }

  void ShowSubject() {
    std::string words;
    const std::vector<ui::Link> links = Subject(words);
    cmdsubject.Text =
        "Open" + (links.empty() ? "" : " " + words.substr(links[0].From, links[0].Length));
    EnableUnless(cmdsubject, links.empty() ? "Nobody in this mail has a page." : "");
  }

  void cmdsubject_Click() {
    std::string words;
    if (const std::vector<ui::Link> links = Subject(words); !links.empty()) links[0].Open();
  }

  /// The day's news one below the other, each to be read alone.
  void ShowDigest(const Digest* digest) {
    std::vector<ui::ListBox::Row> rows;
    if (digest)
      for (const int number : digest->Mails) {
        const Mail& mail = world().News()[number];
        rows.push_back({{mail.From.View(), mail.Body.View()}, number});
      }
    lstdigest.Visible = digest != nullptr;
    lstdigest.Fill(std::move(rows), false);
    lstdigest.Select(digest ? 1 : 0);
  }
  void lstdigest_Click() { ShowMail(lstdigest.Key()); }

  void chkdigest_Click() {
    lstnews.Select(0);
    Return();
  }

  void cmdread_Click() {
    if (SeveralChosen())
      MarkRead(world(), ChosenMails());
    else
      MarkAllRead(world());
    Return();
  }

  void cmbfrom_Click() {
    lstnews.Select(0);
    ShowMails(UnreadOf(world()));
    lstnews.Select(1);
    lstnews_Click();
  }

  /// The place in the list stays, so that several can be deleted one after the other.
  void cmddelete_Click() {
    const int place = lstnews.Selected();
    // From the last to the first, since those behind move up.
    for (const int number : ChosenMails()) Erase(number);
    lstnews.Select(0);
    ShowSenders();
    ShowMails(UnreadOf(world()));
    lstnews.Select(std::min(place, lstnews.Count()));
    lstnews_Click();
  }

  void Erase(int number) {
    world().News().Erase(number);
    top_.Erase(number);
  }

  void cmdempty_Click() {
    const int all = world().News().Count();
    const std::string what = all == 1 ? "the one mail" : "all " + std::to_string(all) + " mails";
    if (!desk().Ask("Empty?", "Are you sure you want to delete " + what + "?", ui::Default::No))
      return;
    world().News().Rewrite({});
    Return();
    if (game_.RefreshMainScreen) game_.RefreshMainScreen();
  }

  using K = ui::ColumnKind;
  ui::Label lblfacts{*this, "lblfacts"};
  ui::ComboBox cmbfrom{*this, "cmbfrom", &frmNews::cmbfrom_Click};
  /// Sorted by date a mailbox is in the order in which the mails came.
  const CellColumns<Mail> mails_ = {
      {{"From", K::Text, 2},
       [this](const Mail& mail) { return ui::Cell(mail.From.View(), ToneOf(mail)); }},
      {{"Mail", K::Text, 5}, [](const Mail& mail) { return mail.Body.View(); }},
      {{"Date", K::Date, 1},
       [this](const Mail& mail) {
         return ui::Cell(world().News().NumberOf(mail), mail.Date.Str(), ui::Tone::Muted);
       }},
      {{"", K::Tag, 0, "Whether it has been read."}, [this](const Mail& mail) {
         return unread_.Has(world().News().NumberOf(mail)) ? ui::Cell("unread", ToneOf(mail))
                                                           : ui::Cell("");
       }}};
  int first_;
  std::vector<Digest> digests_;
  MailSet unread_, own_;  // own_: those of them that are the player's own
  MailSet top_;           // the player's own that were unread when the page came up
  int firstOwn_ = 0;      // the first row that is no digest
  ui::ListBox lstnews{*this, "lstnews", HeadingsOf(mails_), &frmNews::lstnews_Click};
  ui::Label lblfrom{*this, "lblfrom"};
  ui::Label lbldate{*this, "lbldate"};
  ui::Button cmdsubject{*this, "cmdsubject", "Open", &frmNews::cmdsubject_Click};
  ui::Report txtbody{*this, "txtbody"};
  ui::ListBox lstdigest{
      *this, "lstdigest", {{"From", K::Text, 2}, {"News", K::Text, 5}}, &frmNews::lstdigest_Click};
  ui::CheckBox chkdigest{*this, "chkdigest", "Others' news as one digest a day", true,
                         &frmNews::chkdigest_Click};
  ui::Button cmdread{*this, "cmdread", "Mark All Read", &frmNews::cmdread_Click};
  ui::Button cmdempty{*this, "cmdempty", "Empty Mailbox", &frmNews::cmdempty_Click};
  ui::Button cmddelete{*this, "cmddelete", "Delete", &frmNews::cmddelete_Click};
};

}  // namespace

SCREEN(frmNews)

std::unique_ptr<ui::Screen> MailScreen(Game& game, int number) {
  return std::make_unique<frmNews>(game, number);
}

}  // namespace grapplemont
