#include "editor/screens/screenformfields.h"

#include <algorithm>
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

/// Texts, numbers and dates.
class TextEntry : public FormField {
 public:
  TextEntry(ui::Screen& screen, FieldPlace place, const FormEntry& entry, const ui::Handler& edited)
      : place_(place),
        label_(entry.Label),
        box_(screen, std::string(entry.Control), "",
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
        box_(screen, std::string(entry.Control), std::string(entry.Label), false, edited) {}
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

/// One of several words. `Value` is what the record holds for one of them.
template <class Value>
class PickEntry : public FormField {
 public:
  PickEntry(ui::Screen& screen, const FormEntry& entry, const ui::Handler& edited)
      : box_(screen, std::string(entry.Control), edited) {}
  ui::Control& Control() override { return box_; }
  bool Changed() const override { return box_.Selected() > 0 && box_.Selected() != shown_; }
  std::string Take(std::byte* record) const override {
    if (Changed()) Put(record, values_[static_cast<std::size_t>(box_.Selected() - 1)]);
    return {};
  }

 protected:
  virtual void Put(std::byte* record, const Value& value) const = 0;

  void Clear() {
    box_.Clear();
    values_.clear();
  }
  void Add(std::string says, Value value) {
    box_.Add(std::move(says), static_cast<int>(values_.size()) + 1);
    values_.push_back(std::move(value));
  }
  /// False when no row stands for it.
  bool Select(const Value& value) {
    const auto found = std::find(values_.begin(), values_.end(), value);
    if (found == values_.end()) return false;
    box_.Select(static_cast<int>(found - values_.begin()) + 1);
    return true;
  }
  void CountAsShown() { shown_ = box_.Selected(); }
  /// Rows have changed, and what was shown at first is another one of them, or none.
  void CountAsShown(const Value& value) {
    const auto found = std::find(values_.begin(), values_.end(), value);
    shown_ = found == values_.end() ? 0 : static_cast<int>(found - values_.begin()) + 1;
  }
  const Value* Picked() const {
    return box_.Selected() > 0 ? &values_[static_cast<std::size_t>(box_.Selected() - 1)] : nullptr;
  }

 private:
  ui::ComboBox box_;
  std::vector<Value> values_;
  int shown_ = 0;
};

/// A word of a vocabulary, by its code; what is none of them is shown as it is.
class WordEntry : public PickEntry<std::string> {
 public:
  WordEntry(ui::Screen& screen, FieldPlace place, const FormEntry& entry, const ui::Handler& edited)
      : PickEntry(screen, entry, edited),
        place_(place),
        words_(entry.Words.empty() ? place.Of->Words : entry.Words) {}
  void Show(const World&, const std::byte* record) override {
    Clear();
    for (const Term& term : words_) Add(std::string(term.Says), CodeOf(term));
    const std::string code = CodeIn(record);
    if (!Select(code)) {
      Add("Unknown (" + code + ")", code);
      Select(code);
    }
    CountAsShown();
  }

 private:
  bool IsText() const { return place_.Of->Kind == FieldKind::Text; }
  std::string CodeOf(const Term& term) const {
    return IsText() ? std::string(term.Stored) : std::to_string(term.Code);
  }
  std::string CodeIn(const std::byte* record) const {
    if (IsText()) return std::string(FieldText(*place_.Of, record, place_.Index));
    const long long code = FieldNumber(*place_.Of, record, place_.Index);
    return std::to_string(place_.Of->Kind == FieldKind::Flag && code != 0 ? -1 : code);
  }
  void Put(std::byte* record, const std::string& code) const override {
    if (IsText())
      SetFieldText(*place_.Of, record, place_.Index, code);
    else
      SetFieldNumber(*place_.Of, record, place_.Index, std::stoll(code));
  }

  FieldPlace place_;
  Vocabulary words_;
};

/// Three flags that say how a finisher is done.
class FinisherEntry : public PickEntry<int> {
 public:
  FinisherEntry(ui::Screen& screen, const FormEntry& entry, int slot, const ui::Handler& edited)
      : PickEntry(screen, entry, edited), slot_(slot) {}
  void Show(const World&, const std::byte* record) override {
    Clear();
    for (const FinisherType type : {FinisherType::Impact, FinisherType::Submission,
                                    FinisherType::TopRope, FinisherType::Ground})
      Add(std::string(FinisherText(type)), static_cast<int>(type));
    Select(static_cast<int>(FinisherTypeOf(As<Worker>(record), slot_)));
    CountAsShown();
  }

 private:
  void Put(std::byte* record, const int& type) const override {
    FinisherFlags(As<Worker>(record), slot_, static_cast<FinisherType>(type));
  }
  int slot_;
};

/// Another record, by name.
class ReferenceEntry : public PickEntry<std::string> {
 public:
  ReferenceEntry(ui::Screen& screen, RecordKind kind, FieldPlace place, const FormEntry& entry,
                 const ui::Handler& edited)
      : PickEntry(screen, entry, edited), kind_(kind), place_(place) {}
  void Show(const World& world, const std::byte* record) override {
    at_ = ValueIn(record);
    Fill(world, record);
    if (!Select(at_)) {
      Add(NameOfValue(world) + " (as it stands)", at_);
      Select(at_);
    }
    CountAsShown();
  }
  void Follow(const World& world, const std::byte* record) override {
    if (!HangsOnTheRecord(kind_, *place_.Of)) return;
    // What stands there though it may not goes only when the player moves the record elsewhere.
    if (ChoicesFor(world, kind_, place_, record) == choices_) return;
    const std::string picked = Picked() ? *Picked() : std::string();
    Fill(world, record);
    CountAsShown(at_);
    if (!Select(picked)) Select(None());
  }

 private:
  bool IsName() const { return place_.Of->Kind == FieldKind::Text; }
  std::string None() const { return IsName() ? "None" : "0"; }

  void Fill(const World& world, const std::byte* record) {
    Clear();
    Add("None", None());
    choices_ = ChoicesFor(world, kind_, place_, record);
    for (const Choice& choice : choices_)
      Add(choice.Says, IsName() ? choice.Says : std::to_string(choice.Uid));
  }
  /// A uid as text, a commentator from the roster below 0; or a name.
  std::string ValueIn(const std::byte* record) const {
    if (IsName()) {
      const auto name = FieldText(*place_.Of, record, place_.Index);
      return name.empty() ? "None" : std::string(name);
    }
    long long uid = FieldNumber(*place_.Of, record, place_.Index);
    if (place_.Of->To == Refers::Commentator) {
      if (As<grapplemont::Show>(record).ColourIsWorker) uid = -uid;
    } else if (uid == kNoEnd && place_.Of->MayBeNone) {
      uid = 0;
    }
    return std::to_string(uid);
  }
  std::string NameOfValue(const World& world) const {
    return IsName() ? at_ : NameOfUid(world, place_.Of->To, std::stoi(at_));
  }
  void Put(std::byte* record, const std::string& value) const override {
    if (IsName()) return SetFieldText(*place_.Of, record, place_.Index, value);
    const int uid = std::stoi(value);
    if (place_.Of->To == Refers::Commentator)
      As<grapplemont::Show>(record).ColourIsWorker = uid < 0;
    SetFieldNumber(*place_.Of, record, place_.Index,
                   place_.Of->To == Refers::Commentator ? std::abs(uid) : uid);
  }

  RecordKind kind_;
  FieldPlace place_;
  std::string at_;  // what the record held when it was shown
  std::vector<Choice> choices_;
};

std::unique_ptr<FormField> Make(ui::Screen& screen, RecordKind kind, FieldPlace place,
                                const FormEntry& entry, const ui::Handler& edited) {
  const Field& field = *place.Of;
  if (entry.As == EntryAs::Finisher1Type || entry.As == EntryAs::Finisher2Type)
    return std::make_unique<FinisherEntry>(screen, entry,
                                           entry.As == EntryAs::Finisher1Type ? 1 : 2, edited);
  if (field.To != Refers::Nothing)
    return std::make_unique<ReferenceEntry>(screen, kind, place, entry, edited);
  if (!entry.Words.empty() || !field.Words.empty())
    return std::make_unique<WordEntry>(screen, place, entry, edited);
  if (field.Kind == FieldKind::Flag)
    return std::make_unique<FlagEntry>(screen, place, entry, edited);
  return std::make_unique<TextEntry>(screen, place, entry, edited);
}

}  // namespace

std::string TipOf(const Field& field) {
  std::string tip(field.Help);
  if (IsNumber(field) && field.Words.empty() && field.To == Refers::Nothing)
    tip += " " + RangeOf(field) + ".";
  return tip;
}

std::unique_ptr<FormField> MakeFormField(ui::Screen& screen, RecordKind kind,
                                         const FormEntry& entry, const ui::Handler& edited) {
  const FieldPlace place = FieldNamed(kind, entry.Field);
  auto made = Make(screen, kind, place, entry, edited);
  const bool isType = entry.As == EntryAs::Finisher1Type || entry.As == EntryAs::Finisher2Type;
  made->Control().Tip = isType ? "How the finisher is done." : TipOf(*place.Of);
  return made;
}

}  // namespace grapplemont
