#include <algorithm>

#include "info/mailbox.h"
#include "records/fields/wording.h"
#include "records/modVar.h"
#include "storylines/screens/screenpeople.h"
#include "ui/game.h"

namespace grapplemont {

namespace {

/// The mails: the newest on top, the selected mail beside the list.
class frmNews : public GameScreen {
 public:
  explicit frmNews(Game& game) : GameScreen(game, "frmNews", "News") {
    lstnews.EmptyText = "No mail. What the world has to tell you arrives here.";
  }

  ui::Page Layout() override {
    return PageOf(
        ui::Columns({ui::Group("", {ui::Field("From", cmbfrom), ui::Grow(lstnews)}).Grow(3),
                     ui::Group("", {lblfrom, lbldate, ui::Grow(txtbody)}).Grow(2)}),
        &lblfacts, {&cmdempty, &cmddelete});
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

  /// A sender whose last mail has gone leaves the list, and the filter with him.
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

  void ShowMails() {
    std::vector<ui::ListBox::Row> rows;
    for (const int number : MailsNewestFirst(world(), From()))
      rows.push_back(RowOf(mails_, world().News()[number], number));
    lstnews.Fill(std::move(rows));
    ShowCount();
  }

  void ShowCount() {
    const int all = world().News().Count();
    lblfacts.Text = Counted(all, "mail") + ".";
    if (lstnews.Count() < all)
      lblfacts.Text = std::to_string(lstnews.Count()) + " of " + lblfacts.Text.Get();
    EnableUnless(cmdempty, HasNews(world()) ? "" : "There is no mail to delete.");
  }

  void lstnews_Click() {
    const int number = lstnews.Key();
    const Mail mail = number == 0 ? Mail{} : world().News()[number];
    lblfrom.Text = mail.From.Str();
    lbldate.Text = mail.Date.Str();
    txtbody.Write(mail.Body.View());
    EnableUnless(cmddelete, number != 0 ? "" : "Pick a mail first.");
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
    world().News().Erase(lstnews.Key());
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
      {{"Mail", K::Text, 5}, [](const Mail& mail) { return mail.Body.View(); }}};
  ui::ListBox lstnews{*this, "lstnews", HeadingsOf(mails_), &frmNews::lstnews_Click};
  ui::Label lblfrom{*this, "lblfrom"};
  ui::Label lbldate{*this, "lbldate"};
  ui::Report txtbody{*this, "txtbody"};
  ui::Button cmdempty{*this, "cmdempty", "Empty Mailbox", &frmNews::cmdempty_Click};
  ui::Button cmddelete{*this, "cmddelete", "Delete", &frmNews::cmddelete_Click};
};

}  // namespace

SCREEN(frmNews)

}  // namespace grapplemont
