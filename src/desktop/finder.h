#pragma once

#include <QLineEdit>
#include <QListWidget>
#include <functional>
#include <vector>

#include "desktop/card.h"
#include "ui/desk.h"

namespace grapplemont::desktop {

/// "Search everything": a line that finds whatever can be done at present and whatever has a name,
/// by some of its letters, under headings, what was chosen lately first.
class Finder : public Veil {
 public:
  struct Entry {
    QString Heading, Words, Where, Key;
    std::function<void()> Run;
    ui::Handler Open = {};  // of what was found by its name, in place of Run
    ui::Drawing Picture = {};
    QString Also = {};   // other words that people say for it
    bool IsOff = false;  // it cannot be done now, and Where says why
    int Fit = 0;         // how far it is from what is typed; 0 is best
    friend bool Same(const Entry& a, const Entry& b) {
      return a.Heading == b.Heading && a.Words == b.Words;
    }
  };
  struct Sources {
    std::vector<Entry> Commands;
    ui::NameSearch Names;
    std::vector<Entry> Recent;  // the last first
  };
  Finder(QWidget* ground, Sources sources);
  /// Called with what was chosen, nullptr when nothing was; then the finder goes.
  std::function<void(const Entry* chosen)> Done;

  /// A row of the list: an entry, or a heading above some.
  struct Row {
    QString Heading;
    const Entry* Is = nullptr;
  };

 protected:
  void mousePressEvent(QMouseEvent*) override { Finish(nullptr); }
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  using Entries = std::vector<const Entry*>;
  void Filter(const QString& letters);
  /// All that fit what is typed.
  Entries CommandsFor(const QString& letters);
  void FindNames(const QString& letters);
  static void DropSlips(Entries& entries);
  void AddRecent();
  /// Adds entries below their headings, the heading of the best first; those that were chosen
  /// lately lead under each.
  void AddRows(Entries entries, const QString& letters);
  void ShowRows(const QString& letters);
  bool IsRecent(const Entry& entry) const;
  void Step(int by);
  void Choose();
  void Finish(const Entry* chosen);

  Sources from_;
  std::vector<Entry> names_;  // what the letters have found
  std::vector<Row> rows_;
  QLineEdit* line_ = nullptr;
  QListWidget* list_ = nullptr;
  bool done_ = false;
};

}  // namespace grapplemont::desktop
