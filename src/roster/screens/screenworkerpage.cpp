#include "roster/screens/screenworkerpage.h"

namespace grapplemont {

namespace {

using Style = ui::Report::Style;
using Paragraphs = std::vector<ui::Report::Paragraph>;

constexpr std::size_t kAtLeft = 3;  // groups that everybody has: himself, his work, his skill

Paragraphs Told(std::span<const FactGroup> groups) {
  Paragraphs words;
  for (const FactGroup& group : groups) {
    words.push_back({Style::Strong, group.Heading});
    for (const std::string& line : group.Lines) words.push_back({Style::Line, line});
  }
  return words;
}

}  // namespace

void WriteFacts(ui::Report& page, std::span<const FactGroup> facts) {
  Paragraphs words = Told(facts);
  words.front().As = Style::Heading;
  page.Write(std::move(words));
}

void WriteWorkerPage(ui::Report& page, const World& world, const Worker* worker,
                     const std::string& nobody) {
  if (!worker) return page.Write({{Style::Muted, nobody}});
  WriteFacts(page, WorkerFacts(world, *worker));
}

void WriteWorkerPages(ui::Report& left, ui::Report& right, const World& world, const Worker* worker,
                      const std::string& nobody) {
  right.Write(Paragraphs());
  if (!worker) return left.Write({{Style::Muted, nobody}});
  const std::vector<FactGroup> facts = WorkerFacts(world, *worker);
  const std::span<const FactGroup> all = facts;
  Paragraphs words = Told(all.first(kAtLeft));
  words.erase(words.begin());
  left.Write(std::move(words));
  right.Write(Told(all.subspan(kAtLeft)));
}

}  // namespace grapplemont
