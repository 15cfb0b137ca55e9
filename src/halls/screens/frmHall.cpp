#include <algorithm>
#include <memory>

#include "halls/hall.h"
#include "records/fields/wording.h"
#include "storylines/screens/screenpeople.h"
#include "ui/game.h"

namespace grapplemont {

namespace {

using K = ui::ColumnKind;
using Style = ui::Report::Style;

constexpr std::size_t kNextShown = 20;
constexpr int kMembersShown = 8;  // without scrolling

/// The hall of fame: its members, what earned them their place, who is near it, and the rule.
class frmHall : public GameScreen {
 public:
  explicit frmHall(Game& game) : GameScreen(game, "frmHall", "Hall of Fame") {
    lstmembers.EmptyText = "Nobody has been elected yet. The vote is held on 31 December.";
    lstnext.EmptyText = "Nobody has been seen for a month yet.";
    lstnext.Room = 6;
  }

  ui::Page Layout() override {
    const int share = members_.empty() ? 0 : 3;  // an empty hall leaves the room to who is near it
    return PageOf(
        ui::Columns({ui::Rows({ui::Group("Members", {ui::Grow(lstmembers, share)}).Grow(share),
                               ui::Group("Nearest to the hall", {ui::Grow(lstnext)}).Grow(2)})
                         .Grow(5),
                     ui::Rows({ui::Group("What counts for them", {ui::Grow(txtmember)}).Grow(),
                               ui::Group("The rule", {ui::Grow(txtrule)}).Grow(2)})
                         .Grow(3)}),
        &lblfacts, {&cmdpage});
  }

  void Load() override {
    WriteRule();
    Return();
    if (lstmembers.Count() > 0)
      lstmembers.Select(1);
    else if (lstnext.Count() > 0)
      lstnext.Select(1);
    lstnext.Selected() != 0 ? ShowNext() : ShowMember();
  }

  void Return() override {
    past_ = std::make_unique<Ledger>(PastOf(world()));
    members_ = HallOf(world());
    FillPlaces(lstmembers, memberTable_, members_);
    lstmembers.Room = members_.empty() ? 1 : kMembersShown;
    lstmembers.Least = std::min(lstmembers.Room, 3);
    next_ = NomineesOf(*past_, kNextShown);
    FillPlaces(lstnext, nextTable_, next_);
    lblfacts.Text = members_.empty() ? "The hall is still empty."
                                     : Counted(static_cast<int>(members_.size()), "member") + ".";
    ShowButtons();
  }

 private:
  void WriteRule() {
    std::vector<ui::Report::Paragraph> words = {
        {Style::Line, "On 31 December up to " + std::to_string(kElectedAYear) +
                          " are elected: those with the most points, and at least " +
                          std::to_string(kHallBar) + "."},
        {Style::Line, "They must have retired or be " + std::to_string(kHallAge) +
                          " or older, and must have been under contract for " +
                          Counted(kHallYears, "year") + " since the game began."},
        {Style::Strong, "Points"}};
    for (const HallMerit& merit : Merits())
      words.push_back({Style::Line, std::string(merit.Name) + ": " + merit.Rule + "."});
    txtrule.Write(std::move(words));
  }

  const HallMember* Chosen() const {
    const int key = lstmembers.Key();
    return key >= 1 && key <= static_cast<int>(members_.size())
               ? members_[static_cast<std::size_t>(key - 1)]
               : nullptr;
  }

  void ShowMember() {
    if (lstmembers.Selected() != 0) lstnext.Select(0);
    std::vector<ui::Report::Paragraph> words = {{Style::Muted, "Choose somebody to see it."}};
    if (const HallMember* member = Chosen()) {
      words = {{Style::Heading, member->Name.Str()},
               {Style::Muted, std::to_string(member->From) + " to " + std::to_string(member->To) +
                                  ", most of it with " + member->Initials + "."}};
      for (const std::string& line : MeritLines(*member)) words.push_back({Style::Line, line});
    }
    txtmember.Write(std::move(words));
    ShowButtons();
  }

  /// Of the one in this place among the next.
  std::string ChanceOf(int place) const {
    const auto behind = next_.begin() + place - 1;
    if (!behind->WhyNot.empty()) return behind->WhyNot;
    const auto before =
        std::count_if(next_.begin(), behind, [](const Nominee& one) { return one.WhyNot.empty(); });
    return before < kElectedAYear ? "Would be elected today."
                                  : "Would be elected today, if two others were not worth more.";
  }

  void ShowNext() {
    lstmembers.Select(0);
    std::vector<ui::Report::Paragraph> words;
    if (const int key = lstnext.Key(); key >= 1 && key <= static_cast<int>(next_.size())) {
      const Nominee& nominee = next_[static_cast<std::size_t>(key - 1)];
      words = {{Style::Heading, nominee.Of.Of->Name.Str()}, {Style::Muted, ChanceOf(key)}};
      for (const HallMerit& merit : Merits())
        if (const int count = merit.Count(nominee.Of); count > 0)
          words.push_back({Style::Line, std::string(merit.Name) + ": " + std::to_string(count) +
                                            " (" + Counted(merit.PointsFor(count), "point") + ")"});
    }
    txtmember.Write(std::move(words));
    ShowButtons();
  }

  /// Of a member or of one who is near; 0 for who has left the world.
  int UidOfMember(int key) const {
    if (key < 1 || key > static_cast<int>(members_.size()) || !past_) return 0;
    const int place = past_->PlaceOf(members_[static_cast<std::size_t>(key - 1)]->Career);
    return place < 0 ? 0 : int(past_->Careers[static_cast<std::size_t>(place)].Worker);
  }
  int UidOfNext(int key) const {
    return key < 1 || key > static_cast<int>(next_.size())
               ? 0
               : int(next_[static_cast<std::size_t>(key - 1)].Of.Of->Worker);
  }
  int ChosenUid() const {
    return lstnext.Selected() != 0 ? UidOfNext(lstnext.Key()) : UidOfMember(lstmembers.Key());
  }

  void ShowButtons() {
    const bool any = lstmembers.Selected() != 0 || lstnext.Selected() != 0;
    EnableUnless(cmdpage, !any               ? "Choose somebody first."
                          : ChosenUid() == 0 ? "They are not in the business any more."
                                             : "");
  }
  void cmdpage_Click() { game_.OpenWorker(ChosenUid()); }

  ui::Drawing FaceIn(int uid) const {
    return uid == 0 ? ui::Drawing() : FaceOf(game_.World(), uid);
  }

  std::unique_ptr<Ledger> past_;
  std::vector<const HallMember*> members_;
  std::vector<Nominee> next_;
  const CellColumns<HallMember> memberTable_ = {
      {{.Title = "Member",
        .Width = 5,
        .Draws = [this](int key) { return FaceIn(UidOfMember(key)); }},
       [](const HallMember& member) { return ui::Cell(member.Name.View(), ui::Tone::Gold); }},
      {{"Elected", K::Number}, [](const HallMember& member) { return YearOf(member.On); }},
      {{"Points", K::Number}, [](const HallMember& member) { return PointsOf(member); }},
      {{"Mostly with", K::Text, 2},
       [](const HallMember& member) { return member.Initials.View(); }},
      {{"Career", K::Text, 3}, [](const HallMember& member) {
         return std::to_string(member.From) + " to " + std::to_string(member.To);
       }}};
  const CellColumns<Nominee> nextTable_ = {
      {{.Title = "Who", .Width = 4, .Draws = [this](int key) { return FaceIn(UidOfNext(key)); }},
       [](const Nominee& nominee) { return nominee.Of.Of->Name.View(); }},
      {{"Points", K::Number}, [](const Nominee& nominee) { return nominee.Points; }},
      {{"Why not yet", K::Text, 5},
       [](const Nominee& nominee) {
         return nominee.WhyNot.empty() ? ui::Cell("Awaits the next vote.", ui::Tone::Gold)
                                       : ui::Cell(nominee.WhyNot, ui::Tone::Muted);
       }},
      {{"Career", K::Text, 3}, [](const Nominee& nominee) { return YearsOf(*nominee.Of.Of); }}};
  ui::Label lblfacts{*this, "lblfacts"};
  ui::Button cmdpage{*this, "cmdpage", "Open Page", &frmHall::cmdpage_Click};
  ui::ListBox lstmembers{*this, "lstmembers", HeadingsOf(memberTable_), &frmHall::ShowMember,
                         cmdpage};
  ui::ListBox lstnext{*this, "lstnext", HeadingsOf(nextTable_), &frmHall::ShowNext, cmdpage};
  ui::Report txtmember{*this, "txtmember"};
  ui::Report txtrule{*this, "txtrule"};
};

}  // namespace

SCREEN(frmHall)

}  // namespace grapplemont
