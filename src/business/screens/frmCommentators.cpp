#include "business/commentators.h"
#include "business/screens/screentv.h"
#include "business/screens/tvscreens.h"

namespace grapplemont {

namespace {

/// Who sits in one of the two chairs at the table of a show.
class frmCommentator : public ShowScreen {
 public:
  enum Chair { kPrimary, kColour };
  frmCommentator(Game& game, Chair chair, std::string show)
      : ShowScreen(game, chair == kPrimary ? "frmAnnouncer" : "frmColourMan",
                   chair == kPrimary ? "Announcer" : "Colour Commentator", std::move(show)),
        chair_(chair) {}

  ui::Page Layout() override {
    ui::Page page;
    page.Facts = &lblfacts;
    page.Actions = {&cmdback, &cmdassign};
    page.Main = &cmdassign;
    page.Cancel = &cmdback;
    page.Body = ui::Group("", {ui::Grow(lststaff)});
    return page;
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

  void cmdback_Click() { Close(); }

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
  ui::Button cmdback{*this, "cmdback", "Back", &frmCommentator::cmdback_Click};
  ui::Button cmdassign{*this, "cmdassign", "Assign", &frmCommentator::cmdassign_Click};
};

}  // namespace

std::unique_ptr<ui::Screen> MakefrmAnnouncer(Game& game, std::string show) {
  return std::make_unique<frmCommentator>(game, frmCommentator::kPrimary, std::move(show));
}

std::unique_ptr<ui::Screen> MakefrmColourMan(Game& game, std::string show) {
  return std::make_unique<frmCommentator>(game, frmCommentator::kColour, std::move(show));
}

}  // namespace grapplemont
