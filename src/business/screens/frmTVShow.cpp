#include "business/screens/frmTVShow.h"

#include "business/networks.h"
#include "business/screens/frmTelevision.h"
#include "business/tvshows.h"
#include "records/fields/wording.h"
#include "records/modWresCheck.h"
#include "storylines/storynames.h"

namespace grapplemont {

namespace {

/// Talks with the network about a show.
class frmTVContract : public ShowScreen {
 public:
  frmTVContract(Game& game, std::string show)
      : ShowScreen(game, "frmTVContract", "Network Talks", std::move(show)) {
    txtwants.Brief = true;
  }

  ui::Page Layout() override {
    ui::Page page =
        PageOf(ui::Rows({ui::Group("", {txtwants}),
                         ui::Group("", {ui::Columns({cmdask, cmdcontract, cmdtime, cmdend})})}),
               &lblfacts);
    page.Main = nullptr;  // Enter does nothing
    return page;
  }

  void Return() override {
    if (const Show* show = FindShow()) ShowDeal(*show);
  }

 private:
  /// The show with its network, as long as both are there.
  struct Deal {
    Show* Airs = nullptr;
    const Network* With = nullptr;
  };
  Deal DealOrLeave() {
    Show* show = ShowOrLeave();
    if (!show) return {};
    const Network* network = world().FindNetwork(show->Network);
    if (!network) {
      desk().Say("Error!", "The network of " + show->Name.Str() + " is no longer there.");
      Close();
    }
    return {show, network};
  }

  void ShowDeal(const Show& show) {
    const Network* network = world().FindNetwork(show.Network);
    lblfacts.Text = show.Name + ", " + show.Day.Str() + ", " + std::string(SlotName(show.Slot)) +
                    ", on " + NetworkName(world(), show.Network) + ". " +
                    Counted(show.ContractWeeks, "week") + " to run.";
    txtwants.WriteLines(network ? WantsText(world(), show, *network) : "");
  }

  void cmdask_Click() {
    if (const Deal deal = DealOrLeave(); deal.With)
      SayAll(desk(), AskNetwork(world().Player(), *deal.Airs, *deal.With));
  }

  void cmdcontract_Click() {
    const Deal deal = DealOrLeave();
    if (!deal.With) return;
    const ExtensionTalk talk = TalkOfExtension(world().Player(), *deal.Airs, *deal.With);
    if (talk.Weeks == 0) return desk().Say("Rejection!", talk.Text);
    if (!desk().Ask("Offer!", talk.Text + "\nAccept?")) return;
    deal.Airs->ContractWeeks += talk.Weeks;
    ShowDeal(*deal.Airs);
  }

  void cmdtime_Click() {
    const Deal deal = DealOrLeave();
    if (!deal.With) return;
    const MoveTalk talk = TalkOfMove(world(), world().Player(), *deal.Airs, *deal.With);
    if (talk.Slot.empty()) return desk().Say("Rejection!", talk.Text);
    if (!desk().Ask("Offer!", talk.Text + "\nContinue?")) return;
    deal.Airs->Slot = talk.Slot;
    ShowDeal(*deal.Airs);
  }

  void cmdend_Click() {
    const Deal deal = DealOrLeave();
    if (!deal.With) return;
    const EndingTalk talk = TalkOfEnding(world().Player(), *deal.Airs, *deal.With);
    if (!desk().Ask("End Deal?", talk.Text + "\nContinue?", ui::Default::No)) return;
    EndDeal(world(), *deal.Airs, talk.Penalty);
    Close();
  }

  ui::Label lblfacts{*this, "lblfacts"};
  ui::Report txtwants{*this, "txtwants"};
  ui::Button cmdask{*this, "cmdask", "Ask The Network", &frmTVContract::cmdask_Click};
  ui::Button cmdcontract{*this, "cmdcontract", "Extend The Deal",
                         &frmTVContract::cmdcontract_Click};
  ui::Button cmdtime{*this, "cmdtime", "Move The Slot", &frmTVContract::cmdtime_Click};
  ui::Button cmdend{*this, "cmdend", "End The Deal", &frmTVContract::cmdend_Click};
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
    std::string why = WhyNoShowName(name);
    if (why.empty() && ShowNameTaken(world(), name)) why = "This show name already exists!";
    if (!why.empty()) return desk().Say("Error!", why);
    show->Name = name;
    Close();
  }

  ui::TextBox txtname{*this, "txtname"};
  ui::Label lblpast{*this, "lblpast", "Its charts begin anew: the past keeps the old name."};
  ui::Button cmdchange{*this, "cmdchange", "Change Name", &frmShowName::cmdchange_Click};
};

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
    std::vector<ui::ListBox::Row> rows;
    for (const Commentator& person : people_)
      rows.push_back({RowOf(person), static_cast<int>(rows.size()) + 1});
    lststaff.Fill(std::move(rows));
    const int wanted = WantedTalent(world().Player().Size);
    lblfacts.Text =
        "For a promotion of our size people expect a talent of " + std::to_string(wanted) + ".";
    SelectSeated();
  }
  void Return() override { Load(); }

 private:
  static std::vector<ui::Cell> RowOf(const Commentator& person) {
    if (person.Uid == 0) return {person.Name, "", "", ""};
    return {person.Name, person.IsWorker ? "Worker" : "Staff", ui::Cell(person.Skill),
            person.Speaks ? ui::Cell("") : ui::Cell("Cannot speak", ui::Tone::Red)};
  }

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
    if (const std::string why = WhyNot(*show, person); !why.empty())
      return desk().Say("Error!", why);
    if (chair_ == kPrimary) {
      show->Announcer = person.Uid;
    } else {
      show->Colour = person.Uid;
      show->ColourIsWorker = person.IsWorker;
    }
    Close();
  }

  using K = ui::ColumnKind;
  Chair chair_;
  std::vector<Commentator> people_;  // "None" first
  ui::Label lblfacts{*this, "lblfacts"};
  ui::ListBox lststaff{*this,
                       "lststaff",
                       {{"Name", K::Text, 4},
                        {"Is", K::Text, 2},
                        {"Talent", K::Percent, 3, "A worker's is his charisma."},
                        {"", K::Text, 2}},
                       ui::Handler{},
                       cmdassign};
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
    page.Main = nullptr;  // Enter does nothing
    page.Large = true;
    return page;
  }

  void Return() override {
    const Show* ours = FindShow();
    if (!ours) return;
    lblfacts.Text =
        ours->Name + ", " + ours->Day.Str() + ", " + std::string(SlotName(ours->Slot)) + ".";
    lstdirect.Clear();
    lstindirect.Clear();
    for (const Show& show : world().Shows()) {
      if (show.Owner == ours->Owner || show.Day != ours->Day) continue;
      ui::ListBox& list = show.Slot == ours->Slot ? lstdirect : lstindirect;
      list.Add({show.Name.View(), PromotionInitials(world(), show.Owner), SlotName(show.Slot),
                NetworkName(world(), show.Network), RatingCell(show, show.Rating3)});
    }
  }

 private:
  using K = ui::ColumnKind;
  static std::vector<ui::Column> RivalColumns() {
    return {{"Show", K::Text, 4},
            {"Promotion", K::Text, 2},
            {"Time", K::Text, 3},
            {"Network", K::Text, 4},
            {"Last", K::Number, 2, "Its last rating."}};
  }
  ui::Label lblfacts{*this, "lblfacts"};
  ui::ListBox lstdirect{*this, "lstdirect", RivalColumns()};
  ui::ListBox lstindirect{*this, "lstindirect", RivalColumns()};
};

}  // namespace

std::unique_ptr<ui::Screen> MakefrmTVContract(Game& game, std::string show) {
  return std::make_unique<frmTVContract>(game, std::move(show));
}

std::unique_ptr<ui::Screen> MakefrmShowName(Game& game, std::string show) {
  return std::make_unique<frmShowName>(game, std::move(show));
}

std::unique_ptr<ui::Screen> MakefrmAnnouncer(Game& game, std::string show) {
  return std::make_unique<frmCommentator>(game, frmCommentator::kPrimary, std::move(show));
}

std::unique_ptr<ui::Screen> MakefrmColourMan(Game& game, std::string show) {
  return std::make_unique<frmCommentator>(game, frmCommentator::kColour, std::move(show));
}

std::unique_ptr<ui::Screen> MakefrmTVRivals(Game& game, std::string show) {
  return std::make_unique<frmTVRivals>(game, std::move(show));
}

}  // namespace grapplemont
