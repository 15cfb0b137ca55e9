#include "editor/screens/screenrecordform.h"

#include <algorithm>

#include "editor/keeping.h"

namespace grapplemont {

RecordForm::RecordForm(ui::Screen& screen, const RecordPage& page, ui::Handler edited)
    : page_(page), edited_(std::move(edited)) {
  for (const FormGroup& group : page.Groups)
    for (const FormEntry& entry : group.Entries)
      fields_.push_back(MakeFormField(screen, page.Kind, entry, [this] { Follow(); }));
  Clear();
}

void RecordForm::Show(const World& world, Bytes record) {
  world_ = &world;
  record_ = std::move(record);
  for (const auto& field : fields_) {
    field->Show(world, record_.data());
    field->Control().Enabled = true;
  }
}

void RecordForm::Clear() {
  const World nobody;
  record_ = NewRecord(page_.Kind);
  for (const auto& field : fields_) {
    field->Show(nobody, record_.data());
    field->Control().Enabled = false;
  }
  world_ = nullptr;
}

bool RecordForm::Changed() const {
  return std::ranges::any_of(fields_, [](const auto& field) { return field->Changed(); });
}

std::string RecordForm::Take(Bytes& record) const {
  record = record_;
  std::string wrong;
  for (const auto& field : fields_) {
    const std::string why = field->Take(record.data());
    if (why.empty()) continue;
    if (!wrong.empty()) wrong += "\n";
    wrong += why;
  }
  return wrong;
}

void RecordForm::Follow() {
  if (!world_) return;
  Bytes record;
  Take(record);
  for (const auto& field : fields_) field->Follow(*world_, record.data());
  if (edited_) edited_();
}

ui::Box RecordForm::TabBody(std::string_view tab) {
  std::vector<std::vector<ui::Box>> columns;
  std::size_t at = 0;
  for (const FormGroup& group : page_.Groups) {
    std::vector<ui::Box> parts;
    for (const FormEntry& entry : group.Entries) {
      ui::Control& control = fields_[at++]->Control();
      if (control.Is() == ui::Kind::CheckBox)
        parts.emplace_back(control);
      else
        parts.push_back(ui::Field(std::string(entry.Label), control));
    }
    if (group.Tab != tab) continue;
    columns.resize(std::max(columns.size(), static_cast<std::size_t>(group.Column)));
    columns[static_cast<std::size_t>(group.Column - 1)].push_back(
        ui::Group(std::string(group.Title), std::move(parts)));
  }
  std::vector<ui::Box> beside;
  for (auto& column : columns) {
    column.push_back(ui::Spacer());
    beside.push_back(ui::Rows(std::move(column)).Grow());
  }
  return beside.size() == 1 ? std::move(beside.front()) : ui::Columns(std::move(beside));
}

ui::Box RecordForm::Body() {
  std::vector<ui::Box> tabs;
  std::string_view last;
  for (const FormGroup& group : page_.Groups) {
    if (!tabs.empty() && group.Tab == last) continue;
    last = group.Tab;
    tabs.push_back(ui::Group(std::string(group.Tab), {TabBody(group.Tab)}));
  }
  if (tabs.size() == 1) return TabBody(last);
  return ui::Tabs(std::move(tabs));
}

}  // namespace grapplemont
