#pragma once

#include <QBoxLayout>
#include <QGridLayout>
#include <memory>
#include <vector>

#include "desktop/card.h"
#include "desktop/controlview.h"
#include "desktop/formgrid.h"
#include "ui/screen.h"

namespace grapplemont::desktop {

class TableView;
class LevelColumn;
class EvenGrid;
class TurningLayout;

inline constexpr int kClose = 8;   // between what stands within a card
inline constexpr int kLetter = 7;  // the width that a page reckons with for one

/// Makes widgets and layouts of a screen's boxes.
class LayoutBuilder {
 public:
  /// On a cover, buttons are large and stand in the middle.
  /// `title` is what a control is called that has no label and stands below no heading.
  LayoutBuilder(Stage& stage, QWidget* holder, bool cover, const QString& title)
      : stage_(stage), holder_(holder), heading_(title), cover_(cover) {}

  /// Puts a box into a column, where it fills what room there is.
  void Build(const ui::Box& root, QVBoxLayout* into);

  /// In the order of the boxes.
  const std::vector<ControlView*>& Views() const { return views_; }
  /// A card is shown while one of the controls on it is, and the page is as wide as it asks for.
  struct CardContents {
    QWidget* Sheet;  // nullptr: these are some of the controls of another card
    std::vector<ControlView*> Views;
    int From;      // in pixels
    bool Filters;  // it holds nothing but what is chosen for a table elsewhere
  };
  const std::vector<CardContents>& Cards() const { return cards_; }

 private:
  using Peers = std::vector<const LevelColumn*>;
  using Run = std::vector<const ui::Box*>;
  using Forms = std::shared_ptr<FormGrid::Peers>;
  static Forms NewForms() { return std::make_shared<FormGrid::Peers>(); }
  ControlView* View(ui::Control& control);
  void AddAll(const std::vector<ui::Box>& boxes, QBoxLayout* into);
  std::size_t AddRun(const std::vector<ui::Box>& boxes, std::size_t from, QBoxLayout* into);
  void Add(const ui::Box& box, QBoxLayout* into);
  void AddItem(const ui::Box& box, QBoxLayout* into);
  void AddRowButtons(const ui::Box& box, TableView& table);
  void AddColumns(const ui::Box& box, QBoxLayout* into);
  void AddAlike(const ui::Box& box, EvenGrid* grid, QBoxLayout* into);
  void AddGroup(const ui::Box& box, QBoxLayout* into);
  void AddPartOfCard(const ui::Box& box, QBoxLayout* into);
  void AddSearch(const std::vector<ControlView*>& views, bool untitled, TurningLayout& head);
  void AddTabs(const ui::Box& box, QBoxLayout* into);
  void AddForm(const Run& fields, QBoxLayout* into);
  void AddBeside(const ui::Box& field, QWidget& shown, QGridLayout& form, int& row);
  void AddButtons(const Run& buttons, QBoxLayout* into);
  void AddGrid(const Run& rows, QBoxLayout* into);
  void AddCards(const Run& rows, QBoxLayout* into);

  Stage& stage_;
  QWidget* holder_;
  QString heading_;  // of what is being built
  bool cover_;
  bool inCard_ = false;
  std::shared_ptr<Peers> peers_;  // of the next card; none for one that stands for itself
  Forms forms_ = NewForms();      // of the next form
  bool calm_ = false;             // the next card takes no more width than its prose can be read in
  std::vector<ControlView*> views_;
  std::vector<CardContents> cards_;
};

/// The width of a card in which prose can just be read in full lines.
int CalmWidth();

/// The table among the views; nullptr for none and for several.
TableView* OnlyTable(const std::vector<ControlView*>& views);

}  // namespace grapplemont::desktop
