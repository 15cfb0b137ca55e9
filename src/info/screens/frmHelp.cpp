#include <algorithm>
#include <set>

#include "info/screens/glossary.h"
#include "info/screens/helprows.h"
#include "info/screens/helpscreens.h"
#include "records/fields/wording.h"
#include "storylines/screens/screenpeople.h"
#include "ui/game.h"
#include "words/help.h"

namespace grapplemont {

namespace {

using Style = ui::Report::Style;
using Paragraphs = std::vector<ui::Report::Paragraph>;

/// The entry of the screen's own name, else that of the longest beginning; nullptr for none.
const HelpRow* RowFor(std::string_view screen) {
  const HelpRow* best = nullptr;
  for (const HelpRow& row : kHelpRows) {
    if (row.Screen == screen) return &row;
    const bool isStarred = row.Screen.ends_with('*');
    const bool fits = isStarred && screen.starts_with(row.Screen.substr(0, row.Screen.size() - 1));
    if (fits && (!best || row.Screen.size() > best->Screen.size())) best = &row;
  }
  return best;
}

bool IsThere(const ui::Control* control) {
  return control && control->Visible;
}

void AddLine(Paragraphs& words, std::string line) {
  words.push_back({Style::Line, std::move(line)});
}

/// Adds what `add` adds under a heading, and no heading where that is nothing.
template <class Add>
void AddPart(Paragraphs& words, const char* heading, Add add) {
  words.push_back({Style::Strong, heading});
  const std::size_t before = words.size();
  add();
  if (words.size() == before) words.pop_back();
}

/// "Ctrl+, - Larger text": a colon would run into a key.
void PartKey(std::string& line) {
  if (const auto colon = line.find(": "); colon != line.npos) line.replace(colon, 2, " \x96 ");
}

using ShellKeys = std::function<std::vector<std::string>(ui::Screen& of)>;

/// The keys that do something on this page; those that can be set come from the shell.
void AddKeys(Paragraphs& words, ui::Screen& screen, const ShellKeys& keys) {
  const ui::Page page = screen.Layout();
  const bool waits = IsThere(page.Then) && !(IsThere(page.Main) && page.Main->Enabled);
  const ui::Button* const main = waits ? page.Then : page.Main;
  if (IsThere(main)) AddLine(words, "Enter: " + main->Text.Get());
  // Nothing leads back from the hub.
  if (IsThere(page.Cancel) && screen.Is() != ui::Role::Hub)
    AddLine(words, "Escape: " + page.Cancel->Text.Get());
  bool opens = false, lists = false, reads = false;
  for (const ui::Control* control : screen.Controls()) {
    const auto* report = dynamic_cast<const ui::Report*>(control);
    reads = reads || IsThere(report);
    if (const auto* list = dynamic_cast<const ui::ListBox*>(control); IsThere(list)) {
      lists = true;
      opens = opens || list->OnOpen;
    }
  }
  if (opens) AddLine(words, "Double click or Ctrl+Enter: open the row");
  if (reads)
    AddLine(words, "Left, Right and Ctrl+Enter: the names in a report, and the page of one");
  if (lists) {
    AddLine(words, "Backspace: all of a filtered list again");
    AddLine(words, "Menu key or Shift+F10: what can be done to the row; sort, filter, columns");
    AddLine(words, "Ctrl+C: copy the list, or of it the chosen rows");
  }
  if (keys)
    for (std::string& line : keys(screen)) AddLine(words, std::move(line));
  for (ui::Report::Paragraph& word : words) PartKey(word.Words);
}

void AddLabels(const ui::Box& box, std::vector<std::string>& headings) {
  if (box.Is == ui::Box::Kind::Field) headings.push_back(box.Title);
  for (const ui::Box& part : box.Parts) AddLabels(part, headings);
}

/// The headings of the page's lists and fields that the glossary knows, each once.
void AddWords(Paragraphs& words, ui::Screen& screen) {
  std::vector<std::string> headings;
  for (const ui::Control* control : screen.Controls())
    if (const auto* list = dynamic_cast<const ui::ListBox*>(control); IsThere(list))
      for (const ui::Column& column : list->Columns()) headings.push_back(column.Meant());
  AddLabels(screen.Layout().Body, headings);
  std::set<const GlossaryTerm*> told;
  for (const std::string& heading : headings)
    if (const GlossaryTerm* term = FindTerm(heading); term && told.insert(term).second)
      AddLine(words, term->Name + ": " + term->Line());
}

void AddDisabled(Paragraphs& words, ui::Screen& screen) {
  for (const ui::Control* control : screen.Controls())
    if (IsThere(control) && !control->Enabled && !control->Tip->empty())
      AddLine(words, control->Text.Get() + ": " + control->Tip.Get());
}

Paragraphs HelpFor(ui::Screen& screen) {
  Paragraphs words;
  if (const HelpRow* row = RowFor(screen.Name())) {
    words.push_back({Style::Body, std::string(row->For)});
    words.push_back({Style::Body, std::string(row->How)});
  }
  AddPart(words, "Not possible now", [&] { AddDisabled(words, screen); });
  AddPart(words, "Words", [&] { AddWords(words, screen); });
  return words;
}

Paragraphs KeysFor(ui::Screen& screen, const ShellKeys& keys) {
  Paragraphs words;
  AddPart(words, "Keys", [&] { AddKeys(words, screen, keys); });
  if (screen.Is() != ui::Role::Hub)
    words.push_back(
        {Style::Muted, "The keys of the whole window stand in the main screen's help."});
  return words;
}

constexpr ui::Role kOver = ui::Role::Dialog;

/// What the page below is for, what stands against what it cannot do now, its words and its keys.
class frmHelp : public GameScreen {
 public:
  frmHelp(Game& game, ui::Screen& of)
      : GameScreen(game, "frmHelp", "Help: " + of.Title.Get(), {.Is = kOver}) {
    txthelp.Write(HelpFor(of));
    txtkeys.Write(KeysFor(of, desk().Help.Keys));
    // A short sheet is as high as its words, a long one fills the window and scrolls.
    constexpr std::size_t kShort = 12;
    const bool isShort = txthelp.Paragraphs().size() + txtkeys.Paragraphs().size() <= kShort;
    txthelp.Brief = txtkeys.Brief = isShort;
  }

  ui::Page Layout() override {
    ui::Page page = PageOf(ui::Columns({ui::Group("", {ui::Grow(txthelp)}).Grow(),
                                        ui::Group("", {ui::Grow(txtkeys)}).Grow()}),
                           nullptr, {&cmdglossary});
    page.Large = !txthelp.Brief;
    return page;
  }
  void Return() override {}

 private:
  ui::Report txthelp{*this, "txthelp"};
  ui::Report txtkeys{*this, "txtkeys"};
  ui::Button cmdglossary{*this, "cmdglossary", "Glossary", [this] { desk().OpenGlossary({}); }};
};

const CellColumns<GlossaryTerm> kTermTable = {
    {{"Term", ui::ColumnKind::Text, 3}, [](const GlossaryTerm& term) { return term.Name; }},
    {{"Range", ui::ColumnKind::Text, 4},
     [](const GlossaryTerm& term) {
       return term.Range.empty() ? ui::Cell("-", ui::Tone::Muted) : ui::Cell(term.Range);
     }},
    {{"Belongs to", ui::ColumnKind::Text, 2}, [](const GlossaryTerm& term) { return term.Of; }}};

/// Every term and number.
class frmGlossary : public GameScreen {
 public:
  explicit frmGlossary(Game& game, std::string_view term = {})
      : GameScreen(game, "frmGlossary", "Glossary", {.Is = kOver}) {
    FillPlaces(lstterms, kTermTable, Glossary());
    const GlossaryTerm* found = FindTerm(term);
    lstterms.Select(found ? static_cast<int>(found - Glossary().data()) + 1 : 1);
  }

  ui::Page Layout() override {
    ui::Page page = PageOf(ui::Columns(
        {ui::Group("", {ui::Grow(lstterms)}).Grow(3), ui::Group("", {ui::Grow(txtterm)}).Grow(2)}));
    page.Large = true;
    return page;
  }

  void Return() override {
    const int row = lstterms.Key();
    if (row == 0) return txtterm.Write(Paragraphs());
    const GlossaryTerm& term = Glossary()[static_cast<std::size_t>(row - 1)];
    Paragraphs words = {{Style::Heading, term.Name}, {Style::Body, term.Means}};
    const auto add = [&](const char* heading, const std::string& text) {
      if (text.empty()) return;
      words.push_back({Style::Strong, heading});
      words.push_back({Style::Body, text});
    };
    add("Range", term.Range);
    add("What moves it", term.Moves);
    add("Also", Joined(term.Also));
    txtterm.Write(std::move(words));
  }

 private:
  ui::ListBox lstterms{*this, "lstterms", HeadingsOf(kTermTable), &frmGlossary::Return};
  ui::Report txtterm{*this, "txtterm"};
};

}  // namespace

SCREEN(frmGlossary)

bool HasHelp(std::string_view screen) {
  return RowFor(screen) != nullptr;
}

void ConnectHelp(Game& game) {
  ui::HelpPages& help = game.Desk().Help;
  help.About = [&game](ui::Screen& of) -> std::unique_ptr<ui::Screen> {
    const bool isHelp = of.Name() == "frmHelp" || of.Name() == "frmGlossary";
    return isHelp ? nullptr : std::make_unique<frmHelp>(game, of);
  };
  help.Glossary = [&game](std::string_view term) -> std::unique_ptr<ui::Screen> {
    return std::make_unique<frmGlossary>(game, term);
  };
  help.Meaning = [](std::string_view heading) {
    const GlossaryTerm* term = FindTerm(heading);
    return term ? term->Line() : std::string();
  };
}

}  // namespace grapplemont
