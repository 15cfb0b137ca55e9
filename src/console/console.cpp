#include "console/console.h"

#include <algorithm>

#include "console/command.h"
#include "console/interruption.h"
#include "records/fields/charset.h"
#include "ui/acts.h"
#include "ui/asnumber.h"
#include "ui/share.h"

namespace grapplemont::console {

namespace {

constexpr std::size_t kLongestError = 300;

/// Line breaks and backslashes of a long text box as they are typed on one line.
std::string Unescaped(std::string_view typed) {
  std::string text;
  for (std::size_t i = 0; i < typed.size(); ++i) {
    const char next = typed[i] == '\\' && i + 1 < typed.size() ? typed[i + 1] : '\0';
    if (next != 'n' && next != '\\') {
      text += typed[i];
      continue;
    }
    text += next == 'n' ? '\n' : '\\';
    ++i;
  }
  return text;
}

/// What a `type` puts into its box, and what there is to say of it.
struct ForBox {
  std::string Text, Note;
};

ForBox Typed(const ui::Screen& screen, const Command& command) {
  const auto* box = dynamic_cast<const ui::TextBox*>(screen.Find(command.Name));
  ForBox typed{box && box->MultiLine ? Unescaped(command.Text) : command.Text, {}};
  if (box && box->MaxLength > 0 && std::ssize(typed.Text) > box->MaxLength)
    typed.Note = "There is room for " + std::to_string(box->MaxLength) +
                 " characters; the rest is left out.";
  return typed;
}

std::string Check(ui::Desk& desk, ui::Screen& screen, const Command& command) {
  if (command.Text != "on" && command.Text != "off")
    return "Write it as \"" + std::string(RowOf(command.Is).Form) + "\".";
  return ui::Check(desk, screen, command.Name, command.Text == "on");
}

std::string Slide(ui::Desk& desk, ui::Screen& screen, const Command& command) {
  const auto value = ui::AsNumber(command.Text);
  if (!value)
    return "\"" + command.Text + "\" is not a whole number that a scroll bar could go to.";
  return ui::Slide(desk, screen, command.Name, *value);
}

/// The name of the control that a click means: of that name, else the only one that says this.
std::string Clicked(const ui::Screen& screen, const std::string& nameOrWords) {
  if (screen.Find(nameOrWords)) return nameOrWords;
  const ui::Control* found = nullptr;
  for (const ui::Control* control : screen.Controls()) {
    const ui::Kind kind = control->Is();
    const bool says =
        kind == ui::Kind::Button || kind == ui::Kind::CheckBox || kind == ui::Kind::OptionButton;
    if (!says || !control->Visible || control->Text.Get() != nameOrWords) continue;
    if (found) return nameOrWords;
    found = control;
  }
  return found ? found->Name() : nameOrWords;
}

/// What answers a box, and how that is told. In the order of Box::Kind.
struct Answering {
  Verb One, Other;
  const char* Told;
};
constexpr Answering kAnswering[] = {{Verb::Ok, Verb::Ok, "\"ok\""},
                                    {Verb::Yes, Verb::No, "\"yes\" or \"no\""},
                                    {Verb::Enter, Verb::Cancel, "\"enter TEXT\" or \"cancel\""}};

}  // namespace

Console::Console(std::istream& in, std::ostream& out, Settings settings)
    : in_(in), out_(out), settings_(settings), due_(settings.Prompt) {}

void Console::Run() {
  while (!ended_ && !Empty())
    if (const auto command = NextCommand()) Perform(*command);
  if (Empty()) GiveAnswer();
}

void Console::Refuse(std::string why) {
  if (why.size() > kLongestError) why.replace(kLongestError, std::string::npos, "...");
  answer_.Error = ToUtf8(why);
}

void Console::GiveAnswer() {
  if (due_) {
    answer_.Top = Top();
    answer_.Open = box_ ? &*box_ : nullptr;
    out_ << (settings_.Json ? JsonAnswer(answer_) + "\n" : TextAnswer(answer_, settings_.Width));
  }
  due_ = false;
  answer_ = {};
}

std::optional<Line> Console::NextLine() {
  constexpr const char* kPrompt = "> ";
  const bool asks = settings_.Prompt && settings_.Ask;
  if (settings_.Prompt && !asks) out_ << kPrompt;
  out_.flush();
  if (!out_) return std::nullopt;
  if (!asks) return ReadLine(in_);
  return settings_.Ask(kPrompt, [this](std::string_view before) { return CompletionsOf(before); });
}

namespace {

bool IsWorked(const ui::Control& control, Verb by) {
  if (!control.Visible || (by != Verb::Show && !control.Enabled)) return false;
  const ui::Kind kind = control.Is();
  const bool hasRows = kind == ui::Kind::ListBox || kind == ui::Kind::ComboBox;
  const bool isBox = kind == ui::Kind::CheckBox || kind == ui::Kind::OptionButton;
  switch (by) {
    case Verb::Show:
      return true;
    case Verb::Click:
      return kind == ui::Kind::Button || kind == ui::Kind::Picture || isBox;
    case Verb::Type:
      return kind == ui::Kind::TextBox;
    case Verb::Pick:
      return hasRows;
    case Verb::Also:
    case Verb::Open:
      return kind == ui::Kind::ListBox;
    case Verb::Check:
      return isBox;
    case Verb::Slide:
      return kind == ui::Kind::ScrollBar;
    default:
      return false;
  }
}

}  // namespace

std::vector<std::string> Console::CompletionsOf(std::string_view before) const {
  const std::size_t blank = before.find_last_of(' ');
  const std::string_view last = before.substr(blank == before.npos ? 0 : blank + 1);
  std::vector<std::string> words;
  const auto add = [&](std::string_view word) {
    if (word.starts_with(last)) words.emplace_back(word);
  };
  if (blank == before.npos) {
    for (const VerbRow& row : Verbs()) add(row.Word);
  } else {
    const std::string_view first = before.substr(0, before.find(' '));
    const auto verb = std::ranges::find(Verbs(), first, &VerbRow::Word);
    if (verb != Verbs().end() && first.size() == blank && Top() && !box_)
      for (const ui::Control* control : Top()->Controls())
        if (IsWorked(*control, verb->Is)) add(control->Name());
  }
  std::ranges::sort(words);
  return words;
}

std::optional<Command> Console::NextCommand() {
  for (;;) {
    GiveAnswer();
    const auto line = NextLine();
    if (!line) {
      if (settings_.Prompt) out_ << "\n";
      break;
    }
    due_ = true;
    std::string why;
    const auto letters = Letters(*line, answer_.Error);
    const auto command = letters ? ReadCommand(*letters, why) : std::nullopt;
    if (!why.empty()) Refuse(why);
    if (!command) continue;
    if (command->Is == Verb::Quit) break;
    if (!Look(*command)) return command;
  }
  due_ = false;
  ended_ = true;
  return std::nullopt;
}

bool Console::Look(const Command& command) {
  if (command.Is == Verb::Help) {
    answer_.Help = HelpText();
  } else if (command.Is == Verb::Find) {
    Find(command.Text);
  } else if (command.Is == Verb::Share) {
    const auto form = ui::FormNamed(command.Text);
    if (!Top() || !form)
      Refuse("Write it as \"" + std::string(RowOf(command.Is).Form) + "\".");
    else
      answer_.Shared = ToUtf8(ui::Shared(*Top(), *form));
  } else if (command.Is != Verb::Show) {
    return false;
  } else if (!command.Name.empty()) {
    const ui::Control* control = Top() ? Top()->Find(command.Name) : nullptr;
    if (control && control->Visible)
      answer_.Only = command.Name;
    else
      Refuse("There is no \"" + command.Name + "\" to be seen.");
  }
  return true;
}

void Console::Find(const std::string& typed) {
  constexpr std::size_t kMost = 10;  // under a heading
  found_ = NewSearch()(typed, kMost);
  answer_.Found = &found_;
}

std::string Console::Visit(const std::string& number) {
  const auto place = ui::AsNumber(number);
  if (!place || *place < 1 || *place > std::ssize(found_))
    return "Nothing was found under \"" + number + "\"; \"find TEXT\" looks.";
  const ui::Finding found = found_[static_cast<std::size_t>(*place - 1)];
  ui::Desk::Visit(found);
  return {};
}

std::string Console::Explain(const std::string& term) {
  const bool told = term.empty() ? OpenHelp() : OpenGlossary(term);
  return told ? "" : "There is no help here.";
}

std::string Console::TakeBack(const ui::Desk::TakingBack& back, const char* told,
                              const char* none) {
  const std::string what = Take(back);
  if (what.empty()) return none;
  answer_.Help = ToUtf8(told + what) + "\n";
  return {};
}

void Console::Type(ui::Screen& top, const Command& command) {
  const ForBox typed = Typed(top, command);
  Refuse(ui::Type(*this, top, command.Name, typed.Text));
  if (answer_.Error.empty()) answer_.Note = typed.Note;
}

void Console::Perform(const Command& command) {
  ui::Screen& top = *Top();
  switch (command.Is) {
    case Verb::Click:
      return Refuse(ui::Click(*this, top, Clicked(top, command.Name)));
    case Verb::Type:
      return Type(top, command);
    case Verb::Pick:
      return Refuse(ui::Pick(*this, top, command.Name, command.Text));
    case Verb::Also:
      return Refuse(ui::PickToo(*this, top, command.Name, command.Text));
    case Verb::Open:
      return Refuse(ui::OpenRow(*this, top, command.Name, command.Text));
    case Verb::Check:
      return Refuse(Check(*this, top, command));
    case Verb::Slide:
      return Refuse(Slide(*this, top, command));
    case Verb::Follow:
      return Refuse(ui::Follow(*this, top, command.Text));
    case Verb::Visit:
      return Refuse(Visit(command.Text));
    case Verb::Explain:
      return Refuse(Explain(command.Text));
    case Verb::Undo:
      return Refuse(TakeBack(Undo, "Taken back: ", "Nothing was done today that can be undone."));
    case Verb::Redo:
      return Refuse(TakeBack(Redo, "Done again: ", "Nothing was undone."));
    default:
      return Refuse("No box is open.");
  }
}

bool Console::WaitUntil(const std::function<bool()>& isOver) {
  const Interruption asked;
  if (settings_.Prompt)
    out_ << "Please wait. Ctrl+C stops here and shows what there is by then.\n" << std::flush;
  bool over = false;
  while (!(over = isOver()) && !asked.Met()) {
  }
  return over;
}

std::optional<Command> Console::AnswerTo(Box box) {
  if (ended_) return std::nullopt;
  const auto& [one, other, told] = kAnswering[static_cast<std::size_t>(box.Is)];
  box_ = std::move(box);
  std::optional<Command> command;
  while ((command = NextCommand()) && command->Is != one && command->Is != other)
    Refuse("A box is open; answer it with " + std::string(told) + ".");
  box_.reset();
  return command;
}

void Console::Say(const std::string& title, const std::string& text) {
  AnswerTo({Box::Kind::Ok, title, text});
  Note({"ok"});
}

bool Console::Ask(const std::string& title, const std::string& text, ui::Default answer) {
  const auto command =
      AnswerTo({Box::Kind::YesNo, title, text, answer == ui::Default::Yes ? "yes" : "no"});
  const bool yes = command && command->Is == Verb::Yes;
  Note({yes ? "yes" : "no"});
  return yes;
}

std::string Console::Prompt(const std::string& title, const std::string& text,
                            const std::string& offered) {
  const auto command = AnswerTo({Box::Kind::Input, title, text, offered});
  std::string typed = command && command->Is == Verb::Enter ? command->Text : std::string();
  Note({typed.empty() ? "cancel" : "enter " + typed});
  return typed;
}

}  // namespace grapplemont::console
