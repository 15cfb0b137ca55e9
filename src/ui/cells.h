#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>

#include "ui/drawings.h"

// What a table is made of.

namespace grapplemont::ui {

/// What a colour says; a shell has one colour for each.
enum class Tone : unsigned char { Plain, Muted, Gold, Blue, Red, Green, Amber };

/// How a column's cells are shown, aligned and sorted.
enum class ColumnKind {
  Text,
  Number,   // right-aligned, sorted by Cell::Number
  Percent,  // a bar with the number beside it, green to amber to red
  Tag,      // one of a few words in a frame, by the cell's tone
  Tags,     // several, parted by ", ", each by Column::ToneOf
  Date,     // sorted by Cell::Number (day count)
  Button    // empty cells, in which the buttons of the rows stand (screen.h, WithButtons)
};

struct Column {
  std::string Title;
  ColumnKind Kind = ColumnKind::Text;
  int Width = 0;  // share of the width; 0: by contents
  std::string Tip = {};
  /// The small picture before a cell's text, by the key of its row.
  std::function<Drawing(int key)> Draws = {};
  /// What a word of Tags says by its colour.
  Tone (*ToneOf)(std::string_view word) = nullptr;
  /// The sign that a Tag, or a word of Tags, is drawn as, with the number behind the word; the
  /// words are read out and told in tips. None: the word itself; nullptr: words alone.
  Sign (*SignOf)(std::string_view word) = nullptr;
  /// What stands above it where the column before it says the rest; empty: the title.
  std::string Short = {};
  /// A sentence below a cell's text, by the key of its row; it makes cards of the rows.
  std::function<std::string(int key)> Under = {};
  /// What the glossary calls it; empty: the title.
  std::string Term = {};

  const std::string& Meant() const { return Term.empty() ? Title : Term; }
};

struct Cell {
  std::string Text;
  double Number = 0;
  Tone Colour = Tone::Plain;
  int Tick = -1;      // what a percentage is compared with, a tick on its bar; -1 for nothing
  bool Best = false;  // of those it stands beside

  Cell(std::string text, Tone tone = Tone::Plain) : Text(std::move(text)), Colour(tone) {}
  Cell(const char* text, Tone tone = Tone::Plain) : Text(text), Colour(tone) {}
  Cell(std::string_view text, Tone tone = Tone::Plain) : Text(text), Colour(tone) {}
  /// A number that is shown as it is, or behind a text that reads otherwise ("$1,284,500").
  Cell(int number, Tone tone = Tone::Plain)
      : Text(std::to_string(number)), Number(number), Colour(tone) {}
  Cell(double number, std::string text, Tone tone = Tone::Plain)
      : Text(std::move(text)), Number(number), Colour(tone) {}
  friend bool operator==(const Cell&, const Cell&) = default;
};

}  // namespace grapplemont::ui
