#include "desktop/sharing.h"

#include <QApplication>
#include <QClipboard>
#include <QFileDialog>
#include <QFileInfo>
#include <QPixmap>
#include <QSaveFile>
#include <algorithm>

#include "desktop/window.h"

// The page that is seen, as a text or a picture: to the clipboard or a file.

namespace grapplemont::desktop {

namespace {

constexpr auto kPicture = "png";

struct Sharing {
  const char* Words;
  const char* Ending;
  ui::Form As;
};
constexpr Sharing kTexts[] = {{"Markdown", "md", ui::Form::Markdown},
                              {"HTML", "html", ui::Form::Html},
                              {"BBCode", "txt", ui::Form::BbCode}};

}  // namespace

QString WritePage(const QString& file, ui::Screen& screen, QWidget& view) {
  QSaveFile out(file);
  if (!out.open(QIODevice::WriteOnly))
    return "Could not write " + file + ": " + out.errorString() + ".";
  const QString ending = QFileInfo(file).suffix().toLower();
  bool written = true;
  if (ending == kPicture) {
    written = view.grab().save(&out, "PNG");
  } else {
    const auto* text =
        std::ranges::find_if(kTexts, [&](const Sharing& row) { return ending == row.Ending; });
    const ui::Form form = text == std::end(kTexts) ? ui::Form::Markdown : text->As;
    const QByteArray bytes = Shown(ui::Shared(screen, form)).toUtf8();
    written = out.write(bytes) == bytes.size();
  }
  if (written && out.commit()) return {};
  return "Could not write " + file + ": " + out.errorString() + ".";
}

void AddSharing(QMenu& menu, const std::function<void(ui::Form)>& share) {
  for (const Sharing& row : kTexts)
    menu.addAction(QString("Copy as ") + row.Words, &menu, [share, form = row.As] { share(form); });
}

std::vector<Window::OwnCommand> Window::SharingCommands() {
  std::vector<OwnCommand> commands;
  if (!TopView()) return commands;
  for (const Sharing& row : kTexts)
    commands.push_back({{}, QString("Copy this page as ") + row.Words, {}, [this, form = row.As] {
                          CopyPage(form);
                        }});
  commands.push_back({{}, "Copy this page as a picture", {}, [this] { CopyPicture(); }});
  commands.push_back({{}, "Save this page to a file", {}, [this] { SavePage(); }});
  return commands;
}

void Window::CopyPage(ui::Form form) {
  if (!top_) return;
  QApplication::clipboard()->setText(Shown(ui::Shared(*top_, form)));
  Hint(*this, "The page is in the clipboard.");
}

void Window::CopyPicture() {
  if (ScreenView* view = TopView()) QApplication::clipboard()->setPixmap(view->grab());
  Hint(*this, "The picture is in the clipboard.");
}

void Window::SavePage() {
  ScreenView* view = TopView();
  if (!view || !top_) return;
  QStringList kinds;
  for (const Sharing& row : kTexts)
    kinds << QString("%1 (*.%2)").arg(QString(row.Words), QString(row.Ending));
  kinds << QString("Picture (*.%1)").arg(kPicture);
  const QString file = QFileDialog::getSaveFileName(
      this, "Save this page", Shown(top_->Title.Get()) + "." + kTexts[0].Ending, kinds.join(";;"));
  if (file.isEmpty()) return;
  const QString why = WritePage(file, *top_, *view);
  Hint(*this, why.isEmpty() ? "Wrote " + file + "." : why);
}

}  // namespace grapplemont::desktop
