#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "ui/cells.h"
#include "ui/controlarray.h"
#include "ui/drawings.h"

namespace grapplemont::ui {

/// A value of a control that counts its changes, so that a shell redraws only what has changed.
template <class T>
class Property {
 public:
  Property(unsigned& revision, T value) : revision_(revision), value_(std::move(value)) {}
  Property(const Property&) = delete;
  Property& operator=(const Property&) = delete;

  template <class V>
  Property& operator=(V&& value) {
    T next(std::forward<V>(value));
    if (next != value_) {
      value_ = std::move(next);
      ++revision_;
    }
    return *this;
  }
  operator const T&() const { return value_; }
  const T& Get() const { return value_; }
  const T* operator->() const { return &value_; }

 private:
  unsigned& revision_;
  T value_;
};

// The controls of a screen: values that a shell shows and a player works. They know no toolkit. A
// screen sets them freely; what the player does comes through acts.h and runs the handlers.

class Screen;

using Handler = std::function<void()>;

enum class Kind {
  Label,
  TextBox,
  Button,
  ListBox,
  ComboBox,
  CheckBox,
  OptionButton,
  ScrollBar,
  Picture,
  Chart,
  Report
};
/// "Label", "TextBox" and so on.
std::string_view KindName(Kind kind);

class Control {
  unsigned revision_ = 1;  // stands before the properties that count in it

 public:
  Control(Screen& screen, std::string name, Kind kind, std::string text = {});
  virtual ~Control();
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  const std::string& Name() const { return name_; }
  Kind Is() const { return kind_; }
  Screen& Parent() const { return screen_; }
  /// Grows with every change that can be seen.
  unsigned Revision() const { return revision_; }

  Property<bool> Enabled{revision_, true};
  Property<bool> Visible{revision_, true};
  Property<std::string> Tip{revision_, {}};
  /// A caption, the contents of a box, or the chosen row of a ComboBox.
  Property<std::string> Text;
  Property<Tone> Colour{revision_, Tone::Plain};

 protected:
  unsigned& Changes() { return revision_; }
  /// Wraps a screen's member function as a handler.
  template <class S>
  static Handler Bind(Screen& screen, void (S::*method)()) {
    return [&screen, method] { (static_cast<S&>(screen).*method)(); };
  }

 private:
  Screen& screen_;
  std::string name_;
  Kind kind_;
};

class Label : public Control {
 public:
  Label(Screen& screen, std::string name, std::string text = {});
  bool Large = false;  // a figure that stands out
  /// Where the number in the text is heading: an arrow up beside it above 0, down below 0.
  Property<int> Trend{Changes(), 0};
  bool Fleeting = false;  // says how the page is being worked, which is no part of what it tells
};

class Button : public Control {
 public:
  Button(Screen& screen, std::string name, std::string caption, Handler click = {});
  template <class S>
  Button(Screen& screen, std::string name, std::string caption, void (S::*click)())
      : Button(screen, std::move(name), std::move(caption), Bind(screen, click)) {}
  Handler OnClick;
  /// A short word or number in a spot beside the caption, such as the count of mails.
  Property<std::string> Badge{Changes(), {}};
  Property<bool> Plain{Changes(), false};  // words without a frame, for one of many small acts
  std::string Key;  // "Alt+3" presses it wherever the keyboard is; a shell may do so
  /// Milliseconds after which a shell that has a clock presses it by itself, again and again; 0 for
  /// never.
  Property<int> Every{Changes(), 0};
  bool Fleeting = false;  // steers what goes on by the clock, which nobody plays again
};

class TextBox : public Control {
 public:
  TextBox(Screen& screen, std::string name, std::string text = {}, int maxLength = 0);
  Handler OnChange;
  int MaxLength;           // 0: any; typing beyond it is cut
  bool MultiLine = false;  // many lines of plain text
  std::string Hint;        // shown in an empty box
};

class CheckBox : public Control {
 public:
  CheckBox(Screen& screen, std::string name, std::string caption, bool checked = false,
           Handler click = {});
  template <class S>
  CheckBox(Screen& screen, std::string name, std::string caption, bool checked, void (S::*click)())
      : CheckBox(screen, std::move(name), std::move(caption), checked, Bind(screen, click)) {}
  Property<bool> Checked;
  Handler OnClick;
};

/// One of a group of which exactly one is checked.
class OptionButton : public Control {
 public:
  OptionButton(Screen& screen, std::string name, std::string caption, std::string group,
               bool checked = false, Handler click = {});
  Property<bool> Checked;
  std::string Group;
  Handler OnClick;
};

class ScrollBar : public Control {
 public:
  ScrollBar(Screen& screen, std::string name, int min, int max, Handler change = {});
  template <class S>
  ScrollBar(Screen& screen, std::string name, int min, int max, void (S::*change)())
      : ScrollBar(screen, std::move(name), min, max, Bind(screen, change)) {}
  Property<int> Min, Max, Value;
  Handler OnChange;
  bool Tells = false;  // how far something is; nobody moves it
};

/// A picture of the folder gfx/, named by its file, or one that is drawn; it may be clicked when it
/// has a handler.
class Picture : public Control {
 public:
  Picture(Screen& screen, std::string name, std::string file = {}, Handler click = {});
  template <class S>
  Picture(Screen& screen, std::string name, std::string file, void (S::*click)())
      : Picture(screen, std::move(name), std::move(file), Bind(screen, click)) {}
  Property<std::string> File;              // for example "vxm_title.jpg"
  Property<Drawing> Drawn{Changes(), {}};  // goes before the file
  int Height = 104;                        // pixels of what is drawn
  Handler OnClick;
};

class ComboBox : public Control {
 public:
  ComboBox(Screen& screen, std::string name, Handler pick = {});
  template <class S>
  ComboBox(Screen& screen, std::string name, void (S::*pick)())
      : ComboBox(screen, std::move(name), Bind(screen, pick)) {}
  void Clear();
  /// `key` is what the row stands for: a uid, a code, a record number.
  void Add(std::string text, int key = 0);
  const std::vector<std::string>& Rows() const { return rows_; }
  int Count() const { return static_cast<int>(rows_.size()); }
  int Selected() const { return selected_; }  // from 1; 0 none
  int Key() const;                            // of the selected row; 0 none
  int KeyOf(int row) const;
  /// Selects without telling the handler; 0 none.
  void Select(int row);
  void SelectKey(int key);
  bool Filters = false;  // of a list on the page; the first row leaves all in it
  Handler OnPick;

 private:
  std::vector<std::string> rows_;
  std::vector<int> keys_;
  int selected_ = 0;
};

/// A table: any number of typed columns, one row or several selected.
class ListBox : public Control {
 public:
  ListBox(Screen& screen, std::string name, std::vector<Column> columns = {{}}, Handler pick = {},
          Handler open = {});
  ListBox(Screen& screen, std::string name, std::vector<Column> columns, Handler pick,
          Button& opens);
  template <class S>
  ListBox(Screen& screen, std::string name, std::vector<Column> columns, void (S::*pick)(),
          void (S::*open)() = nullptr)
      : ListBox(screen, std::move(name), std::move(columns), Bind(screen, pick),
                open ? Bind(screen, open) : Handler{}) {}
  template <class S>
  ListBox(Screen& screen, std::string name, std::vector<Column> columns, void (S::*pick)(),
          Button& opens)
      : ListBox(screen, std::move(name), std::move(columns), Bind(screen, pick), opens) {}
  /// To open a row is to pick it and to press the button, if it can be pressed then.
  void OpenWith(Button& button);

  struct Row {
    std::vector<Cell> Cells;
    int Key = 0;
    bool Selected = false;
    friend bool operator==(const Row&, const Row&) = default;
  };
  const std::vector<Column>& Columns() const { return columns_; }
  void SetColumns(std::vector<Column> columns);
  /// Whole rows, each and every one: of a long table that makes its rows late, better RowOf.
  const std::vector<Row>& Rows() const;
  /// A row, from 1.
  const Row& RowOf(int row) const;
  /// The key of a row, from 1.
  int KeyOf(int row) const { return rows_[static_cast<std::size_t>(row - 1)].Key; }
  bool IsSelected(int row) const { return rows_[static_cast<std::size_t>(row - 1)].Selected; }
  /// A cell of a row from 1 and a column from 0, without making the rest of the row; an empty one
  /// where the row has none.
  Cell CellOf(int row, int column) const;
  void Clear();
  void Add(std::vector<Cell> cells, int key = 0);
  /// Puts other rows in; the selection stays on the same key when `keepSelection`.
  void Fill(std::vector<Row> rows, bool keepSelection = true);
  /// How a key stands in a column, from 0.
  using CellMaker = std::function<Cell(int key, int column)>;
  /// Puts rows of these keys in, whose cells are made when somebody first asks for them: most rows
  /// of a long table are never seen. The maker lives as long as the rows, and knows every key.
  void FillLate(const std::vector<int>& keys, CellMaker makes, bool keepSelection = true);
  /// Puts other cells into one row, from 1; all else stays.
  void ChangeRow(int row, std::vector<Cell> cells);
  int Count() const { return static_cast<int>(rows_.size()); }
  /// Grows with every change of columns or rows; picking leaves it as it is.
  unsigned Contents() const { return contents_; }
  int Selected() const;           // the first selected row, from 1; 0 none
  int Key() const;                // its key; 0 none
  std::vector<int> Keys() const;  // of all selected rows
  /// Selects one row alone (0 none) without telling the handler.
  void Select(int row);
  void SelectKey(int key);
  /// Turns one row of a list that takes several.
  void Toggle(int row);
  /// Selects these rows alone, without telling the handler.
  void SelectRows(const std::vector<int>& rows);
  bool Multi = false;    // every pick turns a row
  bool Extends = false;  // a pick chooses one row; more can be added to it

  /// What can be done to the chosen rows: a button of the screen, and a box to choose from first.
  struct Act {
    Button* Press;
    ComboBox* With = nullptr;
  };
  std::vector<Act> Acts;
  /// Columns that are looked at together, by their titles.
  struct View {
    std::string Name;
    std::vector<std::string> Columns;
  };
  std::vector<View> Views;
  TextBox* Search = nullptr;  // the screen's own line to find rows by; none: a shell may have one
  int Room = 12;              // the most rows that it asks room for
  int Least = 3;              // the rows that it has room for in the smallest window
  std::string EmptyText;      // what belongs here and how to get it
  Handler OnPick;
  Handler OnOpen;
  /// A row is dragged to another's place, by their keys; empty where rows stay.
  std::function<void(int from, int to)> OnMove;

 private:
  void ContentsChanged();
  void KeepSelected(std::vector<Row>& rows) const;
  bool IsMade(const Row& row) const { return !makes_ || !row.Cells.empty(); }

  std::vector<Column> columns_;
  mutable std::vector<Row> rows_;  // of those that are made late some have no cells yet
  mutable CellMaker makes_;        // none: all have theirs
  unsigned contents_ = 1;
};

/// Lines or bars over time.
class Chart : public Control {
 public:
  struct Series {
    std::string Name;
    std::vector<double> Values;
    Tone Colour = Tone::Blue;
    friend bool operator==(const Series&, const Series&) = default;
  };
  /// What lies between two values a place, behind the lines; where they are no numbers, nothing.
  struct Band {
    std::vector<double> Low, High;
    Tone Colour = Tone::Blue;
    friend bool operator==(const Band&, const Band&) = default;
  };
  Chart(Screen& screen, std::string name, bool bars = false);
  bool Bars;
  bool Thin = false;  // one line from 0 to 100 without an axis, as high as a line of words
  std::string Unit;   // what stands before a value: "$"
  /// A value as it is read: "-$1,284,500", "3.62".
  std::string Figure(double value) const;
  Property<std::vector<std::string>> Captions{Changes(), {}};  // one a value, below the axis
  Property<std::vector<Series>> Lines{Changes(), {}};
  Property<std::vector<Band>> Bands{Changes(), {}};
  /// Values that mean something, and what: lines across the chart where they lie within.
  Property<std::vector<std::pair<double, std::string>>> Levels{Changes(), {}};
  /// Where a value stands along the axis, such as a day's number, one a value and none below the
  /// one before; empty: all at equal distances.
  Property<std::vector<double>> Places{Changes(), {}};
};

/// Long prose in paragraphs. `Text` holds the same, a paragraph a line.
class Report : public Control {
 public:
  /// Body is prose; Line is a short fact in the letters of tables.
  enum class Style { Body, Heading, Strong, Muted, Line };
  /// Some of the words lead somewhere, whatever they say; `Key` is the screen's.
  struct Lead {
    std::size_t From = 0, Length = 0;
    int Key = 0;
    friend bool operator==(const Lead&, const Lead&) = default;
  };
  struct Paragraph {
    Style As = Style::Body;
    std::string Words;
    std::vector<Lead> Leads = {};  // in their order; none overlaps another
    friend bool operator==(const Paragraph&, const Paragraph&) = default;
  };
  Report(Screen& screen, std::string name);
  void Write(std::vector<Paragraph> paragraphs);
  void Write(std::string_view plain);       // line breaks part paragraphs
  void WriteLines(std::string_view plain);  // the same in short facts
  const std::vector<Paragraph>& Paragraphs() const { return paragraphs_; }
  std::function<void(int key)> OnLead;  // the way of a Lead
  bool Brief = false;                   // takes no more room than its words need
  int Room = 10;                        // the lines that it asks room for, else
  bool Grows = false;  // what is written goes on from what stood there: its end stays in sight

 private:
  std::vector<Paragraph> paragraphs_;
};

}  // namespace grapplemont::ui
