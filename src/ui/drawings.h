#pragma once

#include <string>
#include <variant>

// Pictures that are drawn from a few facts of a record, not read from a file: the same facts give
// the same picture. A shell without pictures leaves them out; the name always stands beside them.

namespace grapplemont::ui {

enum class Dress { Brawler, Technician, HighFlyer, Manager, Office };
enum class Mood { Face, Heel, Tweener, None };

/// A person. `Woman` false draws a man; `Age` in years moves beard, grey and lines and nothing
/// else.
struct Portrait {
  int Uid = 0;
  bool Woman = false, Heavy = false, Superstar = false;
  Dress Wears = Dress::Office;
  Mood Shows = Mood::None;
  int Age = 30;
  bool operator==(const Portrait&) const = default;
};

/// The sign of a promotion; `Size` from 1 (Global) to 6 (Backyard) gives its form.
struct Crest {
  int Uid = 0;
  std::string Initials;
  int Size = 6;
  bool operator==(const Crest&) const = default;
};

/// The plate of a Title: its metal by `Image` in percent, its form by `Number`, the Title's own.
struct TitlePlate {
  int Number = 0;
  std::string Name;
  int Image = 0;
  bool Team = false, Vacant = false;
  bool operator==(const TitlePlate&) const = default;
};

/// A word of few that a table says in a small drawing, where several stand abreast.
enum class Sign { None, Crown, Flame, Pair, Row, Rise, Tired, Star, Face, Heel, Tweener };

using Drawing = std::variant<std::monostate, Portrait, Crest, TitlePlate>;

}  // namespace grapplemont::ui
