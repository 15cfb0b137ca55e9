#include "calendar/screens/screenmail.h"

#include "records/fields/wording.h"
#include "records/modVar.h"
#include "records/readmail.h"
#include "storylines/screens/screenpeople.h"

namespace grapplemont {

namespace {

constexpr std::size_t kMailsShown = 40;

}  // namespace

DeskMail::DeskMail(ui::Screen& screen, Game& game)
    : game_(game),
      imgmail(screen, "imgmail"),
      lstmail(screen, "lstmail", {{"From"}, {"Mail", ui::ColumnKind::Text, 1}, {"Date"}},
              ui::Handler{}, [this] { Open(lstmail.Key()); }),
      lblworld(screen, "lblworld"),
      cmdworld(screen, "cmdworld", "Open", [this] {
        const std::vector<Digest> digests = DigestsOf(world(), 1);
        if (!digests.empty()) Open(digests.front().Mails.front());
      }) {
  lstmail.EmptyText = "No unread mail. What is meant for you arrives here; News has all of it.";
  lstmail.Room = 6;
  lstmail.Least = 2;
  lblworld.Colour = ui::Tone::Muted;
  cmdworld.Plain = true;
}

ui::Box DeskMail::Layout() {
  return ui::Group("Unread mail",
                   {ui::Grow(lstmail), ui::Columns({imgmail, ui::Grow(lblworld), cmdworld})});
}

int DeskMail::Show() {
  EnableUnless(imgmail, HasNews(world()) ? "" : "No mail.");
  imgmail.Text = Counted(world().News().Count(), "mail") + " in all";
  ShowDigest();
  const Unread unread = UnreadOf(world());
  std::vector<ui::ListBox::Row> rows;
  for (const int number : unread.Own) {
    if (rows.size() == kMailsShown) break;
    const Mail& mail = world().News()[number];
    rows.push_back(
        {{mail.From.View(), mail.Body.View(), ui::Cell(mail.Date.View(), ui::Tone::Muted)},
         number});
  }
  lstmail.Fill(std::move(rows));
  return unread.Count();
}

/// One line for all news of other promotions from the latest day.
void DeskMail::ShowDigest() {
  const std::vector<Digest> digests = DigestsOf(world(), 1);
  lblworld.Visible = !digests.empty();
  cmdworld.Visible = !digests.empty();
  if (digests.empty()) return;
  lblworld.Text = "Around the rings, " + digests.front().Date + ": " + digests.front().Words +
                  (digests.front().IsUnread ? "" : ", all read");
}

void DeskMail::Open(int number) {
  if (number != 0 && game_.OpenMail) game_.OpenMail(number);
}

}  // namespace grapplemont
