#include <algorithm>

#include "calendar/advanceday.h"
#include "info/meeting.h"
#include "info/screens/infotables.h"
#include "records/fields/wording.h"
#include "ui/game.h"

namespace grapplemont {

namespace {

using Style = ui::Report::Style;

using K = ui::ColumnKind;

ui::Cell WhenCell(const Advice& advice) {
  constexpr ui::Tone kTones[] = {ui::Tone::Red, ui::Tone::Amber, ui::Tone::Plain, ui::Tone::Green};
  const auto how = static_cast<std::size_t>(advice.How);
  return {static_cast<double>(how), std::string(UrgencyText(advice.How)), kTones[how]};
}

const CellColumns<Advice> kTable = {
    {{"When", K::Tag, 2, "How long it can wait."}, WhenCell},
    {{"About", K::Text, 2}, [](const Advice& advice) { return TopicText(advice.About); }},
    {{"Says", K::Text, 6}, [](const Advice& advice) { return advice.Says; }},
    {{"Who", K::Text, 3},
     [](const Advice& advice) { return ui::Cell(advice.Speaker, ui::Tone::Muted); }}};

/// The staff meeting: everything that somebody has to say, the most urgent first.
class frmTalk : public GameScreen {
 public:
  explicit frmTalk(Game& game) : GameScreen(game, "frmTalk", "Staff Meeting") { BackBefore(cmdgo); }

  ui::Page Layout() override {
    return PageOf(ui::Columns({ui::Group("On the table", {ui::Grow(lsttalk)}).Grow(3),
                               ui::Group("", {ui::Grow(txtsays)}).Grow(2)}),
                  &lblfacts, {}, &cmdgo);
  }

  /// What has been seen to in the meantime is off the table.
  void Return() override {
    HoldIt();
    if (lsttalk.Selected() == 0 && !advice_.empty()) lsttalk.Select(1);
    lsttalk_Click();
  }

 private:
  void HoldIt() {
    const std::string why = WhyNoMeeting(world());
    advice_ = why.empty() ? HoldMeeting(world()) : std::vector<Advice>();
    lsttalk.EmptyText = why.empty() ? "Nobody has anything to say." : why;
    lblfacts.Text = why.empty() ? Summary() : why;
    lsttalk.Fill(NumberedRows(kTable, advice_));
  }

  std::string Summary() const {
    const auto urgent = std::count_if(advice_.begin(), advice_.end(), [](const Advice& advice) {
      return advice.How == Urgency::Now;
    });
    return LongDate(game_.World().Today()) + ": " + Counted(std::ssize(advice_), "point") +
           " on the table, " + (urgent == 0 ? "none" : std::to_string(urgent)) + " of them urgent.";
  }

  const Advice* Chosen() const {
    const int key = lsttalk.Key();
    return key == 0 ? nullptr : &advice_[static_cast<std::size_t>(key - 1)];
  }

  void lsttalk_Click() {
    const Advice* advice = Chosen();
    const bool leads = advice && desk().Knows(advice->Screen);
    EnableUnless(cmdgo, leads ? "" : "There is nothing to be done about it.");
    if (!advice) return txtsays.Write({{Style::Muted, lsttalk.EmptyText}});
    std::vector<ui::Report::Paragraph> words = {
        {Style::Heading, std::string(TopicText(advice->About))},
        {Style::Strong, advice->Speaker + (advice->Post.empty() ? "" : " (" + advice->Post + ")")},
        {Style::Body, "'" + advice->Says + "'"}};
    if (!advice->Do.empty()) {
      words.push_back({Style::Strong, "What to do"});
      words.push_back({Style::Body, advice->Do});
    }
    txtsays.Write(std::move(words));
  }

  void cmdgo_Click() {
    const Advice* advice = Chosen();
    if (!advice || !desk().Knows(advice->Screen)) return;
    if (const ui::Handler page = PageOfTheOne(*advice)) return page();
    desk().Open(advice->Screen);
  }

  /// Where what there is to see concerns one person alone, their page; else nothing.
  ui::Handler PageOfTheOne(const Advice& advice) {
    if (std::string_view(advice.Screen) != "frmRoster") return {};
    const std::string_view says = advice.Says;
    const std::vector<ui::Link> links = desk().LinksIn(says);
    const auto name = [&](const ui::Link& link) { return says.substr(link.From, link.Length); };
    const bool one = !links.empty() && std::all_of(links.begin(), links.end(), [&](auto& link) {
      return name(link) == name(links.front());
    });
    return one ? links.front().Open : ui::Handler{};
  }

  std::vector<Advice> advice_;
  ui::Label lblfacts{*this, "lblfacts"};
  ui::ListBox lsttalk{*this, "lsttalk", HeadingsOf(kTable), &frmTalk::lsttalk_Click,
                      &frmTalk::cmdgo_Click};
  ui::Report txtsays{*this, "txtsays"};
  ui::Button cmdgo{*this, "cmdgo", "See To It", &frmTalk::cmdgo_Click};
};

}  // namespace

SCREEN(frmTalk)

}  // namespace grapplemont
