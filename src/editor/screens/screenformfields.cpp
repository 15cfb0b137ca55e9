#include "editor/screens/screenformfields.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <vector>

#include "editor/choices.h"
#include "records/fields/fields.h"
#include "records/modWresCheck.h"

namespace grapplemont {

namespace {

std::string RangeOf(const Field& field) {
  std::string range = std::to_string(field.Min) + " to " + std::to_string(field.Max);
  if (!field.Unit.empty()) range += " " + std::string(field.Unit);
  return range;
}

bool IsNumber(const Field& field) {
  return field.Kind == FieldKind::Word || field.Kind == FieldKind::Percent ||
         field.Kind == FieldKind::Long;
}

/// A whole number as people write it, "$1,250,000" too.
bool ReadNumber(std::string_view text, long long& number) {
  std::string digits;
  for (const char c : text)
    if (c != ',' && c != '$' && c != ' ') digits += c;
  const char* end = digits.data() + digits.size();
  const auto read = std::from_chars(digits.data(), end, number);
  return !digits.empty() && read.ec == std::errc() && read.ptr == end;
}

/// "cmbsize": the entry's own name for its control, or its field's.
std::string ControlOf(const FormEntry& entry, std::string prefix) {
  if (!entry.Control.empty()) return std::string(entry.Control);
  for (const char c : entry.Field) prefix += static_cast<char>(std::tolower(c));
  return prefix;
}

/// Texts, numbers and dates.
class TextEntry : public FormField {
 public:
  TextEntry(ui::Screen& screen, FieldPlace place, const FormEntry& entry, const ui::Handler& edited)
      : place_(place),
        label_(entry.Label),
        box_(screen, ControlOf(entry, "txt"), "",
             place.Of->Kind == FieldKind::Text ? place.Of->Width : 0) {
    box_.OnChange = edited;
    if (place.Of->Kind == FieldKind::Date) box_.Hint = "yyyy-mm-dd";
  }
  ui::Control& Control() override { return box_; }
  void Show(const World&, const std::byte* record) override {
    shown_ = TextOf(record);
    box_.Text = shown_;
  }
  bool Changed() const override { return Typed() != detail::Trimmed(shown_); }
  std::string Take(std::byte* record) const override {
    if (!Changed()) return {};
    const std::string why = Put(record);
    return why.empty() ? why : std::string(label_) + ": " + why;
  }

 private:
  std::string_view Typed() const { return detail::Trimmed(box_.Text.Get()); }

  std::string TextOf(const std::byte* record) const {
    const Field& field = *place_.Of;
    if (field.Kind == FieldKind::Text) return std::string(FieldText(field, record, place_.Index));
    if (IsNumber(field)) return std::to_string(FieldNumber(field, record, place_.Index));
    Date date;
    date.SetRaw(FieldDate(field, record, place_.Index));
    return date.IsNone() ? "" : IsoDate(date);
  }

  std::string Put(std::byte* record) const {
    const Field& field = *place_.Of;
    if (field.Kind == FieldKind::Text) {
      SetFieldText(field, record, place_.Index, Typed());
      return {};
    }
    return IsNumber(field) ? PutNumber(record) : PutDate(record);
  }

  std::string PutNumber(std::byte* record) const {
    const Field& field = *place_.Of;
    long long number = 0;
    if (!ReadNumber(Typed(), number)) return "needs a number, " + RangeOf(field) + ".";
    const bool isNone = field.MayBeNone && number == kNoEnd;
    if (!isNone && (number < field.Min || number > field.Max)) return RangeOf(field) + ".";
    SetFieldNumber(field, record, place_.Index, number);
    return {};
  }

  std::string PutDate(std::byte* record) const {
    Date date;
    date.SetRaw(0);
    if (!Typed().empty()) {
      const auto day = ParseIsoDate(Typed());
      if (!day) return "needs a day as yyyy-mm-dd, or nothing.";
      date = *day;
    }
    SetFieldDate(*place_.Of, record, place_.Index, date.Raw());
    return {};
  }

  FieldPlace place_;
  std::string_view label_;
  ui::TextBox box_;
  std::string shown_;
};

class FlagEntry : public FormField {
 public:
  FlagEntry(ui::Screen& screen, FieldPlace place, const FormEntry& entry, const ui::Handler& edited)
      : place_(place),
        box_(screen, ControlOf(entry, "chk"), std::string(entry.Label), false, edited) {}
  ui::Control& Control() override { return box_; }
  void Show(const World&, const std::byte* record) override {
    shown_ = FieldNumber(*place_.Of, record, place_.Index) != 0;
    box_.Checked = shown_;
  }
  bool Changed() const override { return box_.Checked != shown_; }
  std::string Take(std::byte* record) const override {
    if (Changed()) SetFieldNumber(*place_.Of, record, place_.Index, box_.Checked ? -1 : 0);
    return {};
  }

 private:
  FieldPlace place_;
  ui::CheckBox box_;
  bool shown_ = false;
};

std::vector<Choice> FinisherTypes() {
  std::vector<Choice> types;
  for (const FinisherType type : {FinisherType::Impact, FinisherType::Submission,
                                  FinisherType::TopRope, FinisherType::Ground})
    types.push_back({std::string(FinisherText(type)), static_cast<int>(type)});
  return types;
}

/// One of several words: of a vocabulary, another record by name, or how a finisher is done. What
/// the record holds is shown as text: a code, a name, or a uid, of a worker who comments below 0.
class PickEntry : public FormField {
 public:
  PickEntry(ui::Screen& screen, RecordKind kind, FieldPlace place, const FormEntry& entry,
            const ui::Handler& edited)
      : kind_(kind),
        place_(place),
        finisher_(entry.Finisher),
        words_(entry.Words.empty() ? place.Of->Words : entry.Words),
        box_(screen, ControlOf(entry, "cmb"), edited) {}
  ui::Control& Control() override { return box_; }
  void Show(const World& world, const std::byte* record) override {
    at_ = ValueIn(record);
    Fill(world, record);
    if (RowOf(at_) == 0) Add(StrangeName(world), at_);
    shown_ = RowOf(at_);
    box_.Select(shown_);
  }
  bool Changed() const override { return box_.Selected() > 0 && box_.Selected() != shown_; }
  std::string Take(std::byte* record) const override {
    if (Changed()) Put(record, values_[static_cast<std::size_t>(box_.Selected() - 1)]);
    return {};
  }
  void Follow(const World& world, const std::byte* record) override {
    if (!IsReference() || !HangsOnTheRecord(kind_, *place_.Of)) return;
    // What stands there though it may not goes only when the player moves the record elsewhere.
    if (ChoicesFor(world, kind_, place_, record) == choices_) return;
    const int row = box_.Selected();
    const std::string picked = row > 0 ? values_[static_cast<std::size_t>(row - 1)] : None();
    Fill(world, record);
    shown_ = RowOf(at_);
    box_.Select(std::max(RowOf(picked), 1));
  }

 private:
  bool IsText() const { return place_.Of->Kind == FieldKind::Text; }
  bool IsReference() const { return place_.Of->To != Refers::Nothing; }
  bool IsCommentator() const { return place_.Of->To == Refers::Commentator; }
  std::string None() const { return IsText() ? "None" : "0"; }

  void Add(std::string says, std::string value) {
    box_.Add(std::move(says), static_cast<int>(values_.size()) + 1);
    values_.push_back(std::move(value));
  }
  void Fill(const World& world, const std::byte* record) {
    box_.Clear();
    values_.clear();
    if (finisher_ != 0) {
      choices_ = FinisherTypes();
    } else if (IsReference()) {
      Add("None", None());
      choices_ = ChoicesFor(world, kind_, place_, record);
    } else {
      for (const Term& term : words_)
        Add(std::string(term.Says),
            IsText() ? std::string(term.Stored) : std::to_string(term.Code));
      return;
    }
    for (const Choice& choice : choices_)
      Add(choice.Says, IsText() ? choice.Says : std::to_string(choice.Uid));
  }
  /// From 1; 0 when no row stands for it.
  int RowOf(const std::string& value) const {
    const auto found = std::find(values_.begin(), values_.end(), value);
    return found == values_.end() ? 0 : static_cast<int>(found - values_.begin()) + 1;
  }
  std::string StrangeName(const World& world) const {
    if (!IsReference()) return "Unknown (" + at_ + ")";
    return (IsText() ? at_ : NameOfUid(world, place_.Of->To, std::stoi(at_))) + " (as it stands)";
  }

  std::string ValueIn(const std::byte* record) const {
    if (finisher_ != 0)
      return std::to_string(static_cast<int>(FinisherTypeOf(As<Worker>(record), finisher_)));
    if (IsText()) {
      const auto text = FieldText(*place_.Of, record, place_.Index);
      return IsReference() && text.empty() ? None() : std::string(text);
    }
    long long number = FieldNumber(*place_.Of, record, place_.Index);
    if (place_.Of->Kind == FieldKind::Flag && number != 0) number = -1;
    if (IsCommentator())
      number *= As<grapplemont::Show>(record).ColourIsWorker ? -1 : 1;
    else if (IsReference() && number == kNoEnd && place_.Of->MayBeNone)
      number = 0;
    return std::to_string(number);
  }
  void Put(std::byte* record, const std::string& value) const {
    if (finisher_ != 0)
      return FinisherFlags(As<Worker>(record), finisher_,
                           static_cast<FinisherType>(std::stoi(value)));
    if (IsText()) return SetFieldText(*place_.Of, record, place_.Index, value);
    const long long number = std::stoll(value);
    if (IsCommentator()) As<grapplemont::Show>(record).ColourIsWorker = number < 0;
    SetFieldNumber(*place_.Of, record, place_.Index, IsCommentator() ? std::abs(number) : number);
  }

  RecordKind kind_;
  FieldPlace place_;
  int finisher_;
  Vocabulary words_;
  ui::ComboBox box_;
  std::vector<std::string> values_;  // a row each
  std::vector<Choice> choices_;
  std::string at_;  // what the record held when it was shown
  int shown_ = 0;   // its row
};

std::unique_ptr<FormField> Make(ui::Screen& screen, RecordKind kind, FieldPlace place,
                                const FormEntry& entry, const ui::Handler& edited) {
  const Field& field = *place.Of;
  if (entry.Finisher != 0 || field.To != Refers::Nothing || !entry.Words.empty() ||
      !field.Words.empty())
    return std::make_unique<PickEntry>(screen, kind, place, entry, edited);
  if (field.Kind == FieldKind::Flag)
    return std::make_unique<FlagEntry>(screen, place, entry, edited);
  return std::make_unique<TextEntry>(screen, place, entry, edited);
}

/// "Skill at brawling. 0 to 100 percent."
std::string TipOf(const Field& field) {
  std::string tip(field.Help);
  if (IsNumber(field) && field.Words.empty() && field.To == Refers::Nothing)
    tip += " " + RangeOf(field) + ".";
  return tip;
}

}  // namespace

std::unique_ptr<FormField> MakeFormField(ui::Screen& screen, RecordKind kind,
                                         const FormEntry& entry, const ui::Handler& edited) {
  const FieldPlace place = FieldNamed(kind, entry.Field);
  auto made = Make(screen, kind, place, entry, edited);
  made->Control().Tip = entry.Finisher != 0 ? "How the finisher is done." : TipOf(*place.Of);
  return made;
}

}  // namespace grapplemont
