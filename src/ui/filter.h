#pragma once

#include <compare>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ui/controls.h"

// What a player types to see fewer rows of a table.

namespace grapplemont::ui {

/// Small letters without accents, for comparing texts as people do: "Élan" gives "elan".
std::string Folded(std::string_view text);

/// An expression over the cells of one column: ">70", "<=3", "60..80", "Heel|Tweener" (either),
/// ">20 & <30" (both), "!Injured" (not), "!Heel|Face" (neither), "=Face" (the whole text), else a
/// text that the cell's holds. Any text is one; half-typed comparisons let every cell pass.
class Filter {
 public:
  explicit Filter(std::string_view expression = {});
  bool Empty() const { return alternatives_.empty(); }
  bool Fits(const Cell& cell, ColumnKind kind) const;

 private:
  struct Term {
    bool Not = false;
    bool (*Compares)(std::partial_ordering) = nullptr;  // none: the cell holds the text
    std::string Text;                                   // folded
    std::optional<double> Low, High;  // of a number, an amount or a date; High ends a span
  };
  static std::optional<Term> Read(std::string_view text);
  static bool Fits(const Term& term, const Cell& cell, ColumnKind kind);

  bool not_ = false;                             // none of them may fit
  std::vector<std::vector<Term>> alternatives_;  // one of them with all its terms must fit
};

/// The line above a table, over all columns: terms between commas, all of which must fit. A term is
/// a column's name with an expression ("Over >60", "disp: Heel|Tweener") or words that some column
/// holds; "!words" wants that none does. A comparison alone holds for any number.
class Search {
 public:
  explicit Search(std::string_view line = {}, const std::vector<Column>& columns = {});
  bool Empty() const { return terms_.empty(); }
  bool Fits(const std::vector<Cell>& cells, const std::vector<Column>& columns) const;

 private:
  struct Term {
    std::optional<std::size_t> Column;  // none: any
    bool Not = false;
    bool NumbersAlone = false;
    Filter Wanted;
  };
  std::vector<Term> terms_;
};

/// A column whose cells stand for numbers.
bool IsNumeric(ColumnKind kind);

}  // namespace grapplemont::ui
