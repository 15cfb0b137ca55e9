#include "business/networks.h"
#include "business/screens/frmTelevision.h"
#include "business/tvshows.h"
#include "records/fields/wording.h"
#include "storylines/storynames.h"

namespace grapplemont {

namespace {

using K = ui::ColumnKind;

/// Talks with the network about a show.
class frmTVContract : public ShowScreen {
 public:
  frmTVContract(Game& game, std::string show)
      : ShowScreen(game, "frmTVContract", "Network Talks", std::move(show)) {
    txtwants.Brief = txtwhy.Brief = true;
  }

  ui::Page Layout() override {
    return PageOf(
        ui::Rows({ui::Group("", {ui::Columns({cmdask, cmdcontract, cmdtime, cmdend})}),
                  ui::Group("What they want", {txtwants}),
                  ui::Group("Their last answer", {ui::Columns({cmdwhy, ui::Spacer()}), txtwhy})}),
        &lblfacts);
  }

  void Load() override {
    Answer("", {});
    Return();
  }
  void Return() override {
    if (const Show* show = FindShow()) ShowDeal(*show);
  }

 private:
  /// Keeps their answer for whoever asks why; empty while there is none.
  void Answer(std::string words, Decision why) {
    EnableUnless(cmdwhy, words.empty() ? "Ask them something first." : "");
    txtwhy.Write("");
    if (words.empty()) txtwhy.Write({{ui::Report::Style::Muted, "No answer yet."}});
    said_ = std::move(words);
    why_ = std::move(why);
  }

  using Talk = void (frmTVContract::*)(Show& show, const Network& network);
  /// About the show and with its network, as long as both are there.
  ui::Handler About(Talk talk) {
    return [this, talk] {
      Show* show = ShowOrLeave();
      if (!show) return;
      if (const Network* network = world().FindNetwork(show->Network))
        return (this->*talk)(*show, *network);
      desk().Say("Error!", "The network of " + show->Name.Str() + " is no longer there.");
      Close();
    };
  }

  void ShowDeal(const Show& show) {
    const Network* network = world().FindNetwork(show.Network);
    lblfacts.Text = show.Name + ", " + show.Day.Str() + ", " + std::string(SlotName(show.Slot)) +
                    ", on " + NetworkName(world(), show.Network) + ". " +
                    Counted(show.ContractWeeks, "week") + " to run.";
    txtwants.WriteLines(network ? NetworkWants(world().Player(), show, *network) : "");
  }

  void Ask(Show& show, const Network& network) {
    Decision why;
    const std::vector<TvRemark> remarks = AskNetwork(world().Player(), show, network, &why);
    Answer(remarks.back().Text, std::move(why));
    for (const TvRemark& remark : remarks) desk().Say(remark.Title, remark.Text);
  }

  void Extend(Show& show, const Network& network) {
    const ExtensionTalk talk = TalkOfExtension(world().Player(), show, network);
    Answer(talk.Text, talk.Why);
    if (talk.Weeks == 0) return desk().Say("Rejection!", talk.Text);
    if (!desk().Ask("Offer!", talk.Text + "\nAccept?")) return;
    show.ContractWeeks += talk.Weeks;
    ShowDeal(show);
  }

  void Move(Show& show, const Network& network) {
    const MoveTalk talk = TalkOfMove(world(), world().Player(), show, network);
    Answer(talk.Text, talk.Why);
    if (talk.Slot.empty()) return desk().Say("Rejection!", talk.Text);
    if (!desk().Ask("Offer!", talk.Text + "\nContinue?")) return;
    show.Slot = talk.Slot;
    ShowDeal(show);
  }

  void End(Show& show, const Network& network) {
    const EndingTalk talk = TalkOfEnding(world().Player(), show, network);
    Answer(talk.Text, talk.Why);
    if (!desk().Ask("End Deal?", talk.Text + "\nContinue?", ui::Default::No)) return;
    EndDeal(world(), show, talk.Penalty);
    Close();
  }

  ui::Label lblfacts{*this, "lblfacts"};
  ui::Report txtwants{*this, "txtwants"};
  ui::Button cmdwhy{*this, "cmdwhy", "Why?", [this] { txtwhy.WriteLines(WhyText(said_, why_)); }};
  ui::Report txtwhy{*this, "txtwhy"};
  std::string said_;  // their last answer
  Decision why_;      // and what they weighed
  ui::Button cmdask{*this, "cmdask", "Ask The Network", About(&frmTVContract::Ask)};
  ui::Button cmdcontract{*this, "cmdcontract", "Extend The Deal", About(&frmTVContract::Extend)};
  ui::Button cmdtime{*this, "cmdtime", "Move The Slot", About(&frmTVContract::Move)};
  ui::Button cmdend{*this, "cmdend", "End The Deal", About(&frmTVContract::End)};
};

class frmShowName : public ShowScreen {
 public:
  frmShowName(Game& game, std::string show)
      : ShowScreen(game, "frmShowName", "Show Name", std::move(show)) {
    BackBefore(cmdchange);
  }

  ui::Page Layout() override {
    return PageOf(ui::Group("", {ui::Field("New name", txtname), lblpast}), nullptr, {},
                  &cmdchange);
  }

  void Load() override {
    if (const Show* show = FindShow()) txtname.Text = show->Name.Str();
  }

 private:
  void cmdchange_Click() {
    Show* show = ShowOrLeave();
    if (!show) return;
    const std::string name(TrimmedName(txtname.Text.Get()));
    if (show->Name == name) return Close();
    if (desk().Objects(WhyNoShowName(world(), name, "This show name already exists!"))) return;
    show->Name = name;
    Close();
  }

  ui::TextBox txtname{*this, "txtname"};
  ui::Label lblpast{*this, "lblpast", "Its charts start again: the past keeps the old name."};
  ui::Button cmdchange{*this, "cmdchange", "Change Name", &frmShowName::cmdchange_Click};
};

ui::Cell KindCell(const Commentator& person) {
  return person.Uid == 0 ? "" : person.IsWorker ? "Worker" : "Staff";
}

const CellColumns<Commentator> kCommentatorTable = {
    {{"Name", K::Text, 4}, [](const Commentator& person) { return person.Name; }},
    {{"Works as", K::Text, 2}, KindCell},
    {{"Talent", K::Percent, 3, "A worker's is their charisma."},
     [](const Commentator& person) {
       return person.Uid == 0 ? ui::Cell("") : ui::Cell(person.Skill);
     }},
    {{"", K::Text, 2}, [](const Commentator& person) {
       return person.Speaks ? ui::Cell("") : ui::Cell("Cannot speak", ui::Tone::Red);
     }}};

/// Who sits in one of the two chairs at the table of a show.
class frmCommentator : public ShowScreen {
 public:
  enum Chair { kPrimary, kColour };
  frmCommentator(Game& game, Chair chair, std::string show)
      : ShowScreen(game, chair == kPrimary ? "frmAnnouncer" : "frmColourMan",
                   chair == kPrimary ? "Announcer" : "Colour Commentator", std::move(show)),
        chair_(chair) {
    BackBefore(cmdassign);
  }

  ui::Page Layout() override {
    return PageOf(ui::Group("", {ui::Grow(lststaff)}), &lblfacts, {}, &cmdassign);
  }

  void Load() override {
    people_ = chair_ == kPrimary ? AnnouncersToChoose(world()) : ColourMenToChoose(world());
    people_.insert(people_.begin(), Commentator{"None"});
    FillPlaces(lststaff, kCommentatorTable, people_);
    const int wanted = WantedTalent(world().Player().Size);
    lblfacts.Text =
        "For a promotion of our size people expect a talent of " + std::to_string(wanted) + ".";
    SelectSeated();
  }
  void Return() override { Load(); }

 private:
  void SelectSeated() {
    const Show* show = FindShow();
    if (!show || lststaff.Selected() != 0) return;
    const auto seated =
        chair_ == kPrimary ? AnnouncerOf(world(), *show) : ColourManOf(world(), *show);
    int place = 1;
    for (std::size_t i = 0; seated && i < people_.size(); ++i)
      if (people_[i].Uid == seated->Uid && people_[i].IsWorker == seated->IsWorker)
        place = static_cast<int>(i) + 1;
    lststaff.Select(place);
  }

  std::string WhyNot(const Show& show, const Commentator& person) const {
    return chair_ == kPrimary ? WhyNoTable(person.Uid, show.Colour, show.ColourIsWorker)
                              : WhyNoTable(show.Announcer, person.Uid, person.IsWorker);
  }

  void cmdassign_Click() {
    Show* show = ShowOrLeave();
    if (!show || lststaff.Key() == 0) return;
    const Commentator& person = people_[static_cast<std::size_t>(lststaff.Key() - 1)];
    if (desk().Objects(WhyNot(*show, person))) return;
    if (chair_ == kPrimary) {
      show->Announcer = person.Uid;
    } else {
      show->Colour = person.Uid;
      show->ColourIsWorker = person.IsWorker;
    }
    Close();
  }

  Chair chair_;
  std::vector<Commentator> people_;  // "None" first
  ui::Label lblfacts{*this, "lblfacts"};
  ui::ListBox lststaff{*this, "lststaff", HeadingsOf(kCommentatorTable), ui::Handler{}, cmdassign};
  ui::Button cmdassign{*this, "cmdassign", "Assign", &frmCommentator::cmdassign_Click};
};

/// What else is on when a show of ours is: at the same time, and before or after it.
class frmTVRivals : public ShowScreen {
 public:
  frmTVRivals(Game& game, std::string show)
      : ShowScreen(game, "frmTVRivals", "Television Rivals", std::move(show)) {
    lstdirect.EmptyText = "No Direct Rivals";
    lstindirect.EmptyText = "No Indirect Rivals";
  }

  ui::Page Layout() override {
    ui::Page page = PageOf(
        ui::Rows({ui::Group("Direct rivals: in the same time slot", {ui::Grow(lstdirect)}).Grow(),
                  ui::Group("Indirect rivals: on the same day", {ui::Grow(lstindirect)}).Grow()}),
        &lblfacts);
    page.Large = true;
    return page;
  }

  void Return() override {
    const Show* ours = FindShow();
    if (!ours) return;
    lblfacts.Text =
        ours->Name + ", " + ours->Day.Str() + ", " + std::string(SlotName(ours->Slot)) + ".";
    std::vector<const Show*> direct, indirect;
    for (const Show& show : world().Shows())
      if (show.Owner != ours->Owner && show.Day == ours->Day)
        (show.Slot == ours->Slot ? direct : indirect).push_back(&show);
    lstdirect.Clear();
    lstindirect.Clear();
    FillShows(lstdirect, table_, world(), direct);
    FillShows(lstindirect, table_, world(), indirect);
  }

 private:
  static CellColumns<ShowRow> RivalTable() {
    using enum ShowColumn;
    auto table = ShowTable({ShowColumn::Name, ShowColumn::Promotion, ShowColumn::Time,
                            ShowColumn::Network, ShowColumn::Last});
    table.front().Heading.Width = 4;
    return table;
  }

  ui::Label lblfacts{*this, "lblfacts"};
  const CellColumns<ShowRow> table_ = RivalTable();
  ui::ListBox lstdirect{*this, "lstdirect", HeadingsOf(table_)};
  ui::ListBox lstindirect{*this, "lstindirect", HeadingsOf(table_)};
};

}  // namespace

std::unique_ptr<ui::Screen> MakeShowScreen(Game& game, std::string_view screen, std::string show) {
  if (screen == "frmTVContract") return std::make_unique<frmTVContract>(game, std::move(show));
  if (screen == "frmShowName") return std::make_unique<frmShowName>(game, std::move(show));
  if (screen == "frmTVRivals") return std::make_unique<frmTVRivals>(game, std::move(show));
  const auto chair = screen == "frmAnnouncer" ? frmCommentator::kPrimary : frmCommentator::kColour;
  return std::make_unique<frmCommentator>(game, chair, std::move(show));
}

}  // namespace grapplemont
