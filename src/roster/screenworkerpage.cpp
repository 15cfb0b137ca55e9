#include "roster/screenworkerpage.h"

#include "roster/workerfacts.h"

namespace grapplemont {

void WriteWorkerPage(ui::Report& page, const World& world, const Worker* worker,
                     const std::string& nobody) {
  using Style = ui::Report::Style;
  if (!worker) return page.Write({{Style::Muted, nobody}});
  std::vector<ui::Report::Paragraph> words;
  for (const FactGroup& group : WorkerFacts(world, *worker)) {
    words.push_back({words.empty() ? Style::Heading : Style::Strong, group.Heading});
    for (const std::string& line : group.Lines) words.push_back({Style::Line, line});
  }
  page.Write(std::move(words));
}

}  // namespace grapplemont
