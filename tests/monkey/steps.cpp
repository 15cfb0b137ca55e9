#include "monkey/steps.h"

#include <cctype>
#include <cstdio>

#include "ui/actlines.h"

namespace grapplemont::test {

Record ReadRecord(std::string_view written, const std::string& died) {
  Record record;
  while (!written.empty()) {
    const std::string_view line = written.substr(0, written.find('\n'));
    written.remove_prefix(std::min(written.size(), line.size() + 1));
    const std::string rest(line.substr(std::min<std::size_t>(2, line.size())));
    if (line.starts_with(kStepMark)) {
      record.Steps.push_back({rest});
    } else if (line.starts_with(kAnswerMark) && !record.Steps.empty()) {
      record.Steps.back().Answers.push_back(rest);
    } else if (line.starts_with(kFaultMark)) {
      record.Fault = ui::InLines(rest);
    } else if (line.starts_with(kKindMark)) {
      record.Kind = rest;
    } else {
      record.Notes.emplace_back(line);
    }
  }
  if (!died.empty()) record.Fault = record.Kind = "died of " + died;
  return record;
}

namespace {

/// A text as C++ has it. A letter behind an escape in figures would be taken for one more of them.
std::string Literal(std::string_view text) {
  std::string literal = "\"";
  bool figures = false;
  for (const char letter : text) {
    const auto byte = static_cast<unsigned char>(letter);
    const bool plain = byte >= 0x20 && byte < 0x7F;
    if (letter == '\n') {
      literal += "\\n";
    } else if (letter == '"' || letter == '\\') {
      literal += {'\\', letter};
    } else if (plain) {
      if (figures && std::isxdigit(byte)) literal += "\" \"";
      literal += letter;
    } else {
      char escape[8];
      std::snprintf(escape, sizeof escape, "\\x%02x", byte);
      literal += escape;
    }
    figures = !plain && letter != '\n';
  }
  return literal + "\"";
}

std::string_view FirstWordOf(std::string_view line) {
  return line.substr(0, line.find(' '));
}
std::string_view Behind(std::string_view line) {
  const std::size_t blank = line.find(' ');
  return blank == line.npos ? std::string_view() : line.substr(blank + 1);
}

std::string Expecting(const std::string& answer) {
  if (answer == "yes" || answer == "no")
    return "  desk.ExpectAsk(kAnyText, kAnyText, " +
           std::string(answer == "yes" ? "true" : "false") + ");\n";
  if (answer == "ok") return {};  // an easy desk reads what it is told
  return "  desk.ExpectPrompt(kAnyText, kAnyText, " + Literal(Behind(answer)) + ");\n";
}

/// The acts that the script desk has a call for, and what stands behind the name.
enum class Argument { None, Text, Number, OnOff };
struct Call {
  std::string_view Verb, Name;
  Argument Takes;
};
constexpr Call kCalls[] = {
    {"click", "Click", Argument::None},  {"type", "Type", Argument::Text},
    {"pick", "Pick", Argument::Number},  {"open", "OpenRow", Argument::Number},
    {"check", "Check", Argument::OnOff}, {"slide", "Slide", Argument::Number}};

std::string CallOf(const Step& step) {
  if (step.Line == "session" || step.Line == "killed")
    return "  desk.CloseAll();\n  home.Play.CloseSlot();\n  desk.Open(\"frmTitleScreen\");\n";
  for (const Call& call : kCalls) {
    if (call.Verb != FirstWordOf(step.Line)) continue;
    const std::string_view behind = Behind(step.Line), rest = Behind(behind);
    std::string line = "  desk." + std::string(call.Name) + "(" + Literal(FirstWordOf(behind));
    if (call.Takes == Argument::Text) line += ", " + Literal(ui::InLines(rest));
    if (call.Takes == Argument::Number) line += ", " + std::string(rest);
    if (call.Takes == Argument::OnOff) line += rest == "on" ? ", true" : ", false";
    return line + ");\n";
  }
  const std::string behind = Literal(Behind(step.Line));
  if (FirstWordOf(step.Line) == "table")
    return "  EXPECT_EQ(\"\", Arrange(*desk.Top(), " + behind + "));\n";
  if (FirstWordOf(step.Line) == "share")
    return "  ui::Shared(*desk.Top(), *ui::FormNamed(" + behind + "));\n";
  return "  EXPECT_EQ(\"\", ui::DoAct(desk, " + Literal(step.Line) + "));\n";
}

}  // namespace

std::string AsTest(std::span<const Step> steps, const std::string& name, const std::string& world,
                   std::uint64_t seed) {
  std::string text = "TEST(AMonkey, " + name + ") {\n  HomeFolder home(" + world + ", " +
                     std::to_string(seed) +
                     ");\n  ScriptDesk& desk = home.Desk;\n  desk.IsEasy = true;\n"
                     "  desk.Open(\"frmTitleScreen\");\n";
  for (const Step& step : steps) {
    for (const std::string& answer : step.Answers) text += Expecting(answer);
    text += CallOf(step);
  }
  return text +
         "  if (home.Play.HasWorld()) EXPECT_TRUE(CheckWorld(home.Play.World()).empty());\n}\n";
}

}  // namespace grapplemont::test
