#pragma once

#include <span>
#include <string>
#include <string_view>

#include "editor/keeping.h"
#include "ui/controls.h"
#include "ui/game.h"

namespace grapplemont {

/// Makes the editor's screen for every kind of record known to the desk.
void RegisterRecordPages(Game& game);

// How each kind of record is laid out on its screen. What a field holds, its range and its help
// stand in the field lists of the records; here only where it stands and what it is called.

struct FormEntry {
  std::string_view Field;  // "Brawl", "Split3"
  std::string_view Label = Field;
  std::string_view Control = {};  // "txtbrawl", which is the name without one
  Vocabulary Words = {};          // in place of the field's own
  int Finisher = 0;               // 1 or 2: how it is done, by three flags of the record
};

struct FormGroup {
  std::string_view Tab;  // groups of one tab stand together
  int Column;            // within the tab, from 1
  std::string_view Title;
  std::span<const FormEntry> Entries;
};

/// Words that are sorted as their codes are: Monday before Friday.
inline constexpr ui::ColumnKind kByCode = ui::ColumnKind::Date;

struct PageColumn {
  std::string_view Field;
  std::string_view Title = Field;
  ui::ColumnKind Kind = ui::ColumnKind::Text;  // numbers without words stand as what they are
  Vocabulary Words = {};
};

struct RecordPage {
  std::string_view Screen;  // "frmEditWres"
  std::string_view Button;  // on the hub
  std::string_view Title;   // "Workers"
  std::string_view One;     // "worker"
  RecordKind Kind;
  std::span<const PageColumn> Columns;
  std::span<const FormGroup> Groups;
  /// Which of the file's records it shows; all without. What begins here gets `Begin`.
  bool (*Shows)(const std::byte* record) = nullptr;
  void (*Begin)(std::byte* record) = nullptr;

  bool Has(const std::byte* record) const { return !Shows || Shows(record); }
};

/// In the order of the hub.
std::span<const RecordPage> RecordPages();

/// "Popularity is 140, outside 0 to 100." with the field's name as the pages have it.
std::string FaultWords(const Fault& fault);

}  // namespace grapplemont
