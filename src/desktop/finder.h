#pragma once

#include <QLineEdit>
#include <QListWidget>
#include <functional>
#include <vector>

#include "desktop/card.h"

namespace grapplemont::desktop {

/// "Search everything": a line that finds whatever can be done at present, by some of its letters.
class Finder : public Veil {
 public:
  struct Entry {
    QString Words, Where, Key;
    std::function<void()> Run;
  };
  Finder(QWidget* ground, std::vector<Entry> entries);
  /// Called with what was chosen, nullptr when nothing was; then the finder goes.
  std::function<void(const Entry* chosen)> Done;

 protected:
  void mousePressEvent(QMouseEvent*) override { Finish(nullptr); }
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Filter(const QString& letters);
  void Choose();
  void Finish(const Entry* chosen);

  std::vector<Entry> entries_;
  std::vector<std::pair<int, const Entry*>> found_;  // how well each fits, in the list's order
  QLineEdit* line_ = nullptr;
  QListWidget* list_ = nullptr;
  bool done_ = false;
};

}  // namespace grapplemont::desktop
