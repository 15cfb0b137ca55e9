#include <algorithm>
#include <set>

#include "info/mailbox.h"
#include "records/fields/wording.h"
#include "records/modVar.h"
#include "records/readmail.h"
#include "storylines/screens/screenpeople.h"
#include "ui/game.h"

namespace grapplemont {

namespace {

/// The mailbox: the newest on top, the selected mail beside the list. What other promotions' news
/// tell of one day is one row, under the number of the latest of them.
class frmNews : public GameScreen {
 public:
  explicit frmNews(Game& game) : GameScreen(game, "frmNews", "News") {
    lstdigest.EmptyText = "Choose a row \"Around the rings\" to read what others did that day.";
    lstnews.EmptyText = "No mail. What the world has to tell you arrives here.";
  }

  ui::Page Layout() override {
    return PageOf(
        ui::Columns(
            {ui::Group("",
                       {ui::Columns({ui::Field("From", cmbfrom), chkdigest}), ui::Grow(lstnews)})
                 .Grow(3),
             ui::Group("", {lblfrom, lbldate, ui::Grow(txtbody), ui::Grow(lstdigest)}).Grow(2)}),
        &lblfacts, {&cmdread, &cmdempty, &cmddelete});
  }

  void Return() override {
    ShowSenders();
    ShowMails();
    if (lstnews.Selected() == 0) lstnews.Select(1);
    lstnews_Click();
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

  bool Gathers() const { return chkdigest.Checked && From().empty(); }

  void ShowMails() {
    unread_.clear();
    for (const bool worldNews : {false, true})
      for (const int number : UnreadMails(world(), worldNews)) unread_.insert(number);
    digests_ = Gathers() ? DigestsOf(world()) : std::vector<Digest>{};
    std::vector<ui::ListBox::Row> rows;
    for (const int number : MailsNewestFirst(world(), From())) {
      if (const Digest* digest = DigestAt(number))
        rows.push_back(RowOf(*digest));
      else if (!Gathers() || !IsWorldNews(world(), world().News()[number]))
        rows.push_back(grapplemont::RowOf(mails_, world().News()[number], number));
    }
    lstnews.Fill(std::move(rows));
    ShowCount();
  }

  /// The digest that stands in the place of this mail; nullptr for none.
  const Digest* DigestAt(int number) const {
    const auto found = std::ranges::find(digests_, number,
                                         [](const Digest& digest) { return digest.Mails.front(); });
    return found == digests_.end() ? nullptr : &*found;
  }
  static ui::ListBox::Row RowOf(const Digest& digest) {
    const int number = digest.Mails.front();
    return {{ui::Cell("Around the rings", digest.IsUnread ? ui::Tone::Gold : ui::Tone::Plain),
             ui::Cell(number, digest.Date, ui::Tone::Muted), digest.Words,
             digest.IsUnread ? ui::Cell("unread", ui::Tone::Gold) : ui::Cell("")},
            number};
  }
  /// What the selected row stands for.
  std::vector<int> ChosenMails() const {
    const int number = lstnews.Key();
    if (number == 0) return {};
    const Digest* digest = DigestAt(number);
    return digest ? digest->Mails : std::vector<int>{number};
  }

  void ShowCount() {
    const int all = world().News().Count();
    lblfacts.Text = Counted(all, "mail") + ".";
    const int shown = static_cast<int>(MailsNewestFirst(world(), From()).size());
    if (shown < all) lblfacts.Text = std::to_string(shown) + " of " + lblfacts.Text.Get();
    EnableUnless(cmdread, unread_.empty() ? "Every mail has been read." : "");
    cmdread.Badge = unread_.empty() ? std::string() : std::to_string(unread_.size());
    EnableUnless(cmdempty, HasNews(world()) ? "" : "There is no mail to delete.");
  }

  /// What is shown has been read.
  void lstnews_Click() {
    const std::vector<int> chosen = ChosenMails();
    const Digest* digest = DigestAt(lstnews.Key());
    ShowMail(lstnews.Key());
    ShowDigest(digest);
    if (MarkRead(world(), chosen)) ShowMails();
    EnableUnless(cmddelete, !chosen.empty() ? "" : "Pick a mail first.");
  }

  void ShowMail(int number) {
    const Mail mail = number == 0 ? Mail{} : world().News()[number];
    lblfrom.Text = mail.From.Str();
    lbldate.Text = mail.Date.Str();
    txtbody.Write(mail.Body.View());
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
    MarkRead(world(), MailsNewestFirst(world()));
    Return();
    if (game_.RefreshMainScreen) game_.RefreshMainScreen();
  }

  void cmbfrom_Click() {
    lstnews.Select(0);
    ShowMails();
    lstnews.Select(1);
    lstnews_Click();
  }

  /// The place in the list stays, so that several can be deleted one after the other.
  void cmddelete_Click() {
    const int place = lstnews.Selected();
    // From the last to the first, since those behind move up.
    for (const int number : ChosenMails()) world().News().Erase(number);
    lstnews.Select(0);
    ShowSenders();
    ShowMails();
    lstnews.Select(std::min(place, lstnews.Count()));
    lstnews_Click();
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
      {{"From", K::Text, 2}, [](const Mail& mail) { return mail.From.View(); }},
      {{"Date", K::Date, 1},
       [this](const Mail& mail) {
         return ui::Cell(world().News().NumberOf(mail), mail.Date.Str(), ui::Tone::Muted);
       }},
      {{"Mail", K::Text, 5}, [](const Mail& mail) { return mail.Body.View(); }},
      {{"", K::Tag, 1, "Whether it has been read."}, [this](const Mail& mail) {
         return unread_.contains(world().News().NumberOf(mail)) ? ui::Cell("unread", ui::Tone::Gold)
                                                                : ui::Cell("");
       }}};
  std::vector<Digest> digests_;
  std::set<int> unread_;
  ui::ListBox lstnews{*this, "lstnews", HeadingsOf(mails_), &frmNews::lstnews_Click};
  ui::Label lblfrom{*this, "lblfrom"};
  ui::Label lbldate{*this, "lbldate"};
  ui::Report txtbody{*this, "txtbody"};
  ui::ListBox lstdigest{
      *this, "lstdigest", {{"From", K::Text, 2}, {"News", K::Text, 5}}, &frmNews::lstdigest_Click};
  ui::CheckBox chkdigest{*this, "chkdigest", "One row a day for others", true,
                         &frmNews::chkdigest_Click};
  ui::Button cmdread{*this, "cmdread", "Mark All Read", &frmNews::cmdread_Click};
  ui::Button cmdempty{*this, "cmdempty", "Empty Mailbox", &frmNews::cmdempty_Click};
  ui::Button cmddelete{*this, "cmddelete", "Delete", &frmNews::cmddelete_Click};
};

}  // namespace

SCREEN(frmNews)

}  // namespace grapplemont
