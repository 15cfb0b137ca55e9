#include "booking/matchsteps.h"
#include "booking/screens/stepscreens.h"

namespace grapplemont {

namespace {

struct Choice {
  std::string Says;
  int Code;
};

std::vector<Choice> Kinds(const World&, const Segment&) {
  std::vector<Choice> kinds;
  for (const Term& kind : kSegmentKinds)
    if (kind.Code != kEmptySegment) kinds.push_back({std::string(kind.Says), kind.Code});
  return kinds;
}

std::vector<Choice> Styles(const World&, const Segment&) {
  std::vector<Choice> styles;
  for (const MatchStyleRow& style : kMatchStyles)
    styles.push_back({std::string(style.Says), style.Code});
  return styles;
}

std::vector<Choice> Types(const World& world, const Segment& segment) {
  std::vector<Choice> types;
  for (const MatchTypeRow* type : OfferedMatchTypes(world, segment.Style))
    types.push_back({std::string(type->Says), type->Code});
  return types;
}

/// A step that is a single list of codes.
struct ChoiceRow {
  std::string_view Screen, Title, List, Column;
  std::vector<Choice> (*Offers)(const World&, const Segment&);
  Word Segment::*Field;
};
constexpr ChoiceRow kChoices[] = {
    {"frmBookStyle", "Select Segment Type", "lststyle", "Segment", Kinds, &Segment::Kind},
    {"frmBookType", "Select Match Style", "lsttype", "Match style", Styles, &Segment::Style},
    {"frmBookMatchStyle", "Select Match Type", "lststyle", "Match type", Types,
     &Segment::MatchType},
};

const ChoiceRow& RowOf(const std::string& name) {
  for (const ChoiceRow& row : kChoices)
    if (row.Screen == name) return row;
  return kChoices[0];
}

class frmBookChoice : public StepScreen {
 public:
  frmBookChoice(Game& game, WizardHost& host, const std::string& name)
      : StepScreen(game, host, name, std::string(RowOf(name).Title)),
        row_(RowOf(name)),
        list_(*this, std::string(row_.List), {{std::string(row_.Column)}}, {}, [this] { GoOn(); }) {
    list_.EmptyText = "Nothing of this kind can be booked.";
  }

 private:
  void Prepare() override {
    for (const Choice& choice : row_.Offers(world(), buffer()))
      list_.Add({choice.Says}, choice.Code);
    list_.Select(list_.Count() > 0 ? 1 : 0);
    AllowDone(list_.Count() > 0, list_.EmptyText);
  }

  ui::Box Body() override { return ui::Group("", {ui::Grow(list_)}); }

  bool Store() override {
    buffer().*row_.Field = list_.Key();
    return true;
  }

  const ChoiceRow& row_;
  ui::ListBox list_;
};

}  // namespace

std::unique_ptr<ui::Screen> MakeChoiceStep(Game& game, WizardHost& host, const std::string& name) {
  return std::make_unique<frmBookChoice>(game, host, name);
}

}  // namespace grapplemont
