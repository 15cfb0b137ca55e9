#include <algorithm>

#include "booking/screens/screenstep.h"
#include "booking/wizard/matchrules.h"
#include "records/fields/wording.h"
#include "records/modWresCheck.h"
#include "storylines/partners.h"
#include "storylines/screens/screenpeople.h"
#include "storylines/storynames.h"
#include "storylines/titles.h"

namespace grapplemont {

namespace {

struct Choice {
  std::string_view Says;
  int Code;
  std::string_view Means = {};
};

std::vector<Choice> Kinds(const World&, const Segment&) {
  std::vector<Choice> kinds;
  for (const Term& kind : kSegmentKinds)
    if (kind.Code != kEmptySegment) kinds.push_back({kind.Says, kind.Code});
  return kinds;
}

template <const auto& rows>
std::vector<Choice> AllOf(const World&, const Segment&) {
  std::vector<Choice> all;
  for (const auto& row : rows) all.push_back({row.Says, row.Code});
  return all;
}

std::vector<Choice> Types(const World& world, const Segment& segment) {
  std::vector<Choice> types;
  for (const MatchTypeRow* type : OfferedMatchTypes(world, segment.Style))
    types.push_back({type->Says, type->Code, type->Means});
  return types;
}

/// A step that is a single list of codes.
struct ChoiceRow {
  std::string_view List, Heading;
  std::vector<Choice> (*Offers)(const World&, const Segment&);
  Word Segment::*Field;
};
constexpr ChoiceRow kKindChoice = {"lststyle", "Segment", Kinds, &Segment::Kind};
constexpr ChoiceRow kStyleChoice = {"lsttype", "Match style", AllOf<kMatchStyles>, &Segment::Style};
constexpr ChoiceRow kTypeChoice = {"lststyle", "Match type", Types, &Segment::MatchType};
constexpr ChoiceRow kTalkStyleChoice = {"lsttype", "Interview style", AllOf<kInterviewStyles>,
                                        &Segment::Style};

const ChoiceRow& RowOf(const Wizard& wizard) {
  if (wizard.Step == kKindStep) return kKindChoice;
  if (wizard.Step == kTypeStep) return kTypeChoice;
  return wizard.Buffer.Kind == kInterview ? kTalkStyleChoice : kStyleChoice;
}

/// Not everybody knows every match type.
std::vector<ui::Column> ColumnsOf(const ChoiceRow& row) {
  std::vector<ui::Column> columns = {{std::string(row.Heading), ui::ColumnKind::Text, 2}};
  if (&row == &kTypeChoice) columns.push_back({"What it is", ui::ColumnKind::Text, 5});
  return columns;
}

class frmBookChoice : public StepScreen {
 public:
  frmBookChoice(Game& game, WizardHost& host) : StepScreen(game, host), row_(RowOf(wizard())) {
    list_.EmptyText = "Nothing of this kind can be booked.";
  }

 private:
  void Prepare() override {
    for (const Choice& choice : row_.Offers(world(), buffer())) {
      std::vector<ui::Cell> cells = {choice.Says};
      if (list_.Columns().size() > 1) cells.emplace_back(choice.Means, ui::Tone::Muted);
      list_.Add(std::move(cells), choice.Code);
    }
    list_.Select(list_.Count() > 0 ? 1 : 0);
    AllowDone(list_.Count() > 0, list_.EmptyText);
  }

  ui::Box Body() override { return ui::Group("", {ui::Grow(list_)}); }

  void Recall(const Segment& earlier) override { Choose(list_, earlier.*row_.Field); }

  Segment Draft() override {
    Segment draft = buffer();
    draft.*row_.Field = list_.Key();
    return draft;
  }

  bool Store() override {
    buffer() = Draft();
    return true;
  }

  const ChoiceRow& row_;
  ui::ListBox list_{*this, std::string(row_.List), ColumnsOf(row_), [this] { ShowOutlook(); },
                    [this] { GoOn(); }};
};

constexpr const char* kChooseAll = "Choose somebody in every list.";

/// Who stands in the match: a list a place, the lists of a side together.
class frmBookPeople : public MatchStepScreen {
 public:
  frmBookPeople(Game& game, WizardHost& host)
      : MatchStepScreen(game, host), style_(*FindMatchStyle(buffer().Style)) {}

 private:
  void Prepare() override {
    const auto roster = EligibleRoster(world(), wizard().View);
    for (int place = 1; place <= lstwres.Count(); ++place) {
      lstwres(place).EmptyText = "Nobody on the roster can be booked.";
      FillRoster(lstwres(place), roster);
    }
    ShowWhoIsMissing();
    AllowNext();
  }

  ui::Box Body() override {
    std::vector<ui::Box> rows;
    for (int first = 0; first < style_.Sides; first += SidesAbreast()) {
      std::vector<ui::Box> sides;
      for (int side = first; side < std::min(first + SidesAbreast(), style_.Sides); ++side)
        sides.push_back(SideBox(side));
      rows.push_back(ui::Columns(std::move(sides)).Grow());
    }
    rows.push_back(lblmissing);
    return ui::Rows(std::move(rows));
  }

  /// The most popular who cannot be chosen, with the reason, and how many they are.
  void ShowWhoIsMissing() {
    std::vector<const Worker*> missing = SeenOnShows(world());
    std::erase_if(missing,
                  [&](auto* worker) { return IsEligible(world(), *worker, wizard().View); });
    lblmissing.Visible = !missing.empty();
    if (missing.empty()) return;
    const Worker& first = *missing.front();
    const std::string why = first.Status != "Nor"            ? StatusLine(first)
                            : first.Position == kNonWrestler ? "not in the ring on television"
                                                             : "of another split";
    const auto others = std::ssize(missing) - 1;
    lblmissing.Text = "Not listed: " + first.Name.Str() + " (" + why + ")" +
                      (others > 0 ? " and " + Counted(static_cast<int>(others), "other") : "") +
                      ".";
    lblmissing.Colour = ui::Tone::Muted;
  }

  ui::Box SideBox(int side) {
    std::vector<ui::Box> lists;
    for (int member = 1; member <= style_.PerSide; ++member)
      lists.push_back(ui::Grow(lstwres(side * style_.PerSide + member)));
    const std::string title = (style_.PerSide > 1 ? "Team " : "Worker ") + std::to_string(side + 1);
    ui::Box box = HasRowsOfMates() ? ui::Columns(std::move(lists)) : ui::Rows(std::move(lists));
    return ui::Group(title, {std::move(box).Grow()}).Grow();
  }

  void Recall(const Segment& earlier) override {
    for (int place = 1; place <= lstwres.Count(); ++place)
      Choose(lstwres(place), UidAt(earlier, place));
    AllowNext();
  }

  Segment Draft() override {
    Segment draft = buffer();
    std::ranges::copy(Chosen(), draft.Worker.begin());
    return draft;
  }

  bool Store() override { return Accept(Draft(), kPeopleStep); }

  bool HasRowsOfMates() const { return style_.PerSide > 2; }
  /// Four alone stand two by two, so that the lists keep their width.
  int SidesAbreast() const {
    if (HasRowsOfMates()) return 1;
    return style_.Code == kFourWay ? 2 : style_.Sides;
  }
  int ListsAbreast() const override { return HasRowsOfMates() ? style_.PerSide : SidesAbreast(); }

  /// Their uids by place; 0 for nobody yet.
  std::vector<int> Chosen() {
    std::vector<int> uids;
    for (int place = 1; place <= lstwres.Count(); ++place) uids.push_back(lstwres(place).Key());
    return uids;
  }
  bool IsChosen(int uid) { return std::ranges::count(Chosen(), uid) > 0; }

  void lstwres_Click(int place) {
    lblpartner.Text = style_.PerSide > 1 ? OfferPartner(place) : "";
    AllowNext();
    ShowOutlook();
  }

  /// The way on is open once nobody is missing or there twice. Done says the same in a box.
  void AllowNext() {
    AllowDone(!IsChosen(0), kChooseAll);
    if (!IsChosen(0)) EnableUnless(*cmdnext, WhyNotLeft(Draft(), kPeopleStep));
  }

  /// Who belongs to a Tag Team mostly stands beside their partner, as long as a place of the side
  /// is free; says who was put there, or who could be.
  std::string OfferPartner(int place) {
    const int uid = lstwres(place).Key(), first = place - (place - 1) % style_.PerSide;
    std::string told;
    for (const int partner : PartnersOf(world(), uid)) {
      const std::string team = SideText(world(), {uid, partner});
      for (int beside = first; beside < first + style_.PerSide; ++beside) {
        if (lstwres(beside).Key() == partner) return team + " stand together.";
        if (style_.PerSide > 2 || lstwres(beside).Key() != 0 || IsChosen(partner)) continue;
        lstwres(beside).SelectKey(partner);
        if (lstwres(beside).Key() != 0)
          return SideText(world(), {partner}) + " has been put beside the other of " + team + ".";
      }
      if (told.empty()) told = SideText(world(), {partner}) + " is the other of " + team + ".";
    }
    return told;
  }

  const MatchStyleRow& style_;
  ui::Label lblmissing{*this, "lblmissing"};
  ui::Array<ui::ListBox> lstwres{
      "lstwres", style_.Sides* style_.PerSide, [this](const std::string&, int place) {
        return std::make_unique<ui::ListBox>(
            *this, "lstwres" + std::to_string(place), PeopleColumns(ListsAbreast()),
            [this, place] { lstwres_Click(place); }, [this] { GoOn(); });
      }};
};

/// The field of a battle royal: the roster at the left, who has been entered at the right, in the
/// order of entry.
class frmBookSpecial : public MatchStepScreen {
 public:
  frmBookSpecial(Game& game, WizardHost& host) : MatchStepScreen(game, host) {
    lstroster.Multi = true;
    lstroster.EmptyText = "Nobody is left on the roster who could be entered.";
    lstenter.EmptyText = "Nobody has been entered. Choose from the roster.";
  }

 private:
  void Prepare() override { ShowLists(); }

  ui::Box Body() override {
    return ui::Columns({ui::Group("", {lblroster, ui::Grow(lstroster), cmdadd}).Grow(),
                        ui::Group("", {lblenter, ui::Grow(lstenter), cmdrem}).Grow()});
  }

  void Recall(const Segment& earlier) override {
    const auto roster = EligibleRoster(world(), wizard().View);
    for (const int uid : PeopleOf(earlier))
      if (std::ranges::any_of(roster, [&](auto* worker) { return worker->Uid == uid; }))
        entered_.push_back(uid);
    ShowLists();
  }

  Segment Draft() override {
    Segment draft = buffer();
    const auto places = std::min(entered_.size(), draft.Worker.size());
    std::copy_n(entered_.begin(), places, draft.Worker.begin());
    return draft;
  }

  bool Store() override { return Accept(Draft(), kPeopleStep); }

  int ListsAbreast() const override { return 2; }

  void ShowLists() {
    auto left = EligibleRoster(world(), wizard().View);
    std::erase_if(left, [&](auto* w) { return std::ranges::count(entered_, int(w->Uid)) > 0; });
    FillRoster(lstroster, left);
    FillPeople(lstenter, WorkersOf(entered_));
    lblroster.Text = "Roster : " + std::to_string(left.size());
    lblenter.Text = "Entered : " + std::to_string(entered_.size());
    const auto needed = static_cast<std::size_t>(EntrantsOf(buffer()));
    AllowDone(entered_.size() == needed, std::to_string(needed) +
                                             " workers must be entered; so far it is " +
                                             std::to_string(entered_.size()) + ".");
    ShowButtons();
    ShowOutlook();
  }

  void ShowButtons() {
    EnableUnless(cmdadd, lstroster.Key() == 0 ? "Choose somebody on the roster." : "");
    EnableUnless(cmdrem, lstenter.Key() == 0 ? "Choose somebody who has been entered." : "");
  }

  void cmdadd_Click() {
    for (const int uid : lstroster.Keys()) entered_.push_back(uid);
    ShowLists();
  }

  void cmdrem_Click() {
    std::erase(entered_, lstenter.Key());
    ShowLists();
  }

  std::vector<int> entered_;  // uids
  ui::Label lblroster{*this, "lblroster"};
  ui::ListBox lstroster{*this, "lstroster", PeopleColumns(ListsAbreast()),
                        &frmBookSpecial::ShowButtons, cmdadd};
  ui::Button cmdadd{*this, "cmdadd", "Add", &frmBookSpecial::cmdadd_Click};
  ui::Label lblenter{*this, "lblenter"};
  ui::ListBox lstenter{*this, "lstenter", PeopleColumns(ListsAbreast()),
                       &frmBookSpecial::ShowButtons, cmdrem};
  ui::Button cmdrem{*this, "cmdrem", "Remove", &frmBookSpecial::cmdrem_Click};
};

/// What the match is for.
class frmBookBelt : public MatchStepScreen {
 public:
  using MatchStepScreen::MatchStepScreen;

 private:
  void Prepare() override {
    for (const grapplemont::Title* title : OfferedTitles(world(), buffer()))
      lsttitle.Add({title->Name.View(), ChampionText(world(), *title), ui::Cell(title->Image)},
                   world().Titles().NumberOf(*title));
    lsttitle.Add({"None", "", ""});
    lsttitle.Select(lsttitle.Count());
  }

  ui::Box Body() override { return ui::Group("", {ui::Grow(lsttitle)}); }

  void Recall(const Segment& earlier) override {
    if (const auto* title = FindTitle(world(), earlier.TitleName))
      Choose(lsttitle, world().Titles().NumberOf(*title));
  }

  Segment Draft() override {
    Segment draft = buffer();
    draft.TitleName = "None";
    if (lsttitle.Key() != 0) draft.TitleName = world().Titles()[lsttitle.Key()].Name;
    return draft;
  }

  bool Store() override {
    buffer().TitleName = "None";
    if (lsttitle.Key() == 0) return true;
    const grapplemont::Title& title = world().Titles()[lsttitle.Key()];
    const std::string who = FindMatchStyle(buffer().Style)->PerSide == 2
                                ? "The tag team champions are"
                                : "The champion is";
    if (IsChampionMissing(buffer(), title) &&
        !desk().Ask("Continue?", who + " not present in this match! Continue?"))
      return false;
    buffer().TitleName = title.Name;
    return true;
  }

  using K = ui::ColumnKind;
  ui::ListBox lsttitle{*this,
                       "lsttitle",
                       {{"Title", K::Text, 4}, {"Holder", K::Text, 4}, {"Image", K::Percent, 2}},
                       [this] { ShowOutlook(); },
                       [this] { GoOn(); }};
};

}  // namespace

STEP(MakeChoiceStep, frmBookChoice)
std::unique_ptr<ui::Screen> MakePeopleStep(Game& game, WizardHost& host) {
  if (host.State().Buffer.Style == kSpecial) return std::make_unique<frmBookSpecial>(game, host);
  return std::make_unique<frmBookPeople>(game, host);
}

STEP(MakeTitleStep, frmBookBelt)

}  // namespace grapplemont
