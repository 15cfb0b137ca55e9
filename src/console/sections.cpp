#include "console/sections.h"

#include <algorithm>
#include <set>

namespace grapplemont::console {

namespace {

class Arrangement {
 public:
  void Begin(const std::string& heading) { sections_.push_back({heading, {}}); }

  void Add(const ui::Control* control, const std::string& label = {}) {
    if (!control || !control->Visible || !placed_.insert(control).second) return;
    if (sections_.empty()) Begin({});
    sections_.back().Parts.push_back({control, label});
  }

  void Add(const ui::Box& box) {
    const bool isGroup = box.Is == ui::Box::Kind::Group;
    if (isGroup) Begin(box.Title);
    Add(box.Shown, box.Title);
    for (const ui::Box& part : box.Parts) Add(part);
    if (isGroup) Begin({});
  }

  std::vector<Section> Done() && {
    std::erase_if(sections_, [](const Section& section) { return section.Parts.empty(); });
    return std::move(sections_);
  }

 private:
  std::vector<Section> sections_;
  std::set<const ui::Control*> placed_;
};

}  // namespace

std::vector<Section> Sections(ui::Screen& screen) {
  const ui::Page page = screen.Layout();
  Arrangement all;
  for (const ui::Label* label : page.Top) all.Add(label);
  all.Add(page.Facts);
  all.Begin({});
  all.Add(page.Body);
  for (const ui::SideGroup& group : page.Side) {
    all.Begin(group.Title);
    for (const auto& command : group.Commands) all.Add(command.Press);
  }
  all.Begin({});
  for (const ui::Button* button : page.Actions) all.Add(button);
  for (const ui::Button* button : page.TopActions) all.Add(button);
  all.Add(page.Main);
  all.Add(page.Cancel);
  all.Begin({});
  for (const ui::Control* control : screen.Controls()) all.Add(control);
  return std::move(all).Done();
}

}  // namespace grapplemont::console
