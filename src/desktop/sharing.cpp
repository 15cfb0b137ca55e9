#include "desktop/sharing.h"

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QClipboard>
#include <QFileDialog>
#include <QFileInfo>
#include <QPainter>
#include <QSaveFile>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextOption>
#include <algorithm>

#include "desktop/pieces.h"
#include "desktop/window.h"

// What a page or a table says, as a text or a picture: to the clipboard or a file.

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

/// As much of a picture as programs can be trusted to open.
constexpr double kMostPixels = 30000;

/// Prose keeps to a width that can be read; a table has what its columns ask for, so far as there
/// is a limit to it.
void SetWidth(QTextDocument& words) {
  constexpr int kProseWidths = 4;
  words.setTextWidth(kProseWidths * ReadableWidth());
  double width = ReadableWidth() + 2 * words.documentMargin();
  for (QTextFrame* table : words.rootFrame()->childFrames())
    width = std::max(
        width, words.documentLayout()->frameBoundingRect(table).right() + words.documentMargin());
  words.setTextWidth(width);
}

/// HTML on white paper, whole.
QPixmap PaintedWords(const QString& html) {
  constexpr int kSide = 24, kAbove = 2, kBeside = 6;  // of the whole, and of a cell
  QTextDocument words;
  words.setDefaultFont(TextFont());
  words.setDocumentMargin(Px(kSide));
  QTextOption option = words.defaultTextOption();
  option.setWrapMode(QTextOption::WordWrap);  // never amid a name
  words.setDefaultTextOption(option);
  words.setDefaultStyleSheet(
      QString("td, th { padding: %1px %2px; }").arg(Px(kAbove)).arg(Px(kBeside)));
  words.setHtml(html);
  SetWidth(words);
  const QSizeF size = words.size().boundedTo({kMostPixels, kMostPixels});
  QPixmap picture(size.toSize().expandedTo({1, 1}));
  picture.fill(Qt::white);
  QPainter painter(&picture);
  QAbstractTextDocumentLayout::PaintContext context;
  context.palette.setColor(QPalette::Text, Qt::black);
  context.clip = picture.rect();
  words.documentLayout()->draw(&painter, context);
  return picture;
}

}  // namespace

Shareable PageToShare(ui::Screen& screen, ScreenView& view) {
  const ui::TableFinder arranged = [&view](const ui::ListBox& list) { return view.TableOf(list); };
  return {[&screen, arranged](ui::Form form) { return ui::Shared(screen, form, arranged); },
          [&view] { return view.grab(); }};
}

Shareable WordsToShare(std::function<std::string(ui::Form form)> text) {
  return {text, [text] { return PaintedWords(Shown(text(ui::Form::Html))); }};
}

QString WriteShared(const QString& file, const Shareable& shared) {
  QSaveFile out(file);
  if (!out.open(QIODevice::WriteOnly))
    return "Could not write " + file + ": " + out.errorString() + ".";
  const QString ending = QFileInfo(file).suffix().toLower();
  bool written = true;
  if (ending == kPicture) {
    written = shared.Picture().save(&out, "PNG");
  } else {
    const auto* text =
        std::ranges::find_if(kTexts, [&](const Sharing& row) { return ending == row.Ending; });
    const ui::Form form = text == std::end(kTexts) ? ui::Form::Markdown : text->As;
    const QByteArray bytes = Shown(shared.Text(form)).toUtf8();
    written = out.write(bytes) == bytes.size();
  }
  if (written && out.commit()) return {};
  return "Could not write " + file + ": " + out.errorString() + ".";
}

FileTold SaveShared(QWidget* parent, const QString& name, const Shareable& shared) {
  QStringList kinds, endings;
  const auto add = [&](const char* words, const char* ending) {
    kinds << QString("%1 (*.%2)").arg(QString(words), QString(ending));
    endings << ending;
  };
  for (const Sharing& row : kTexts) add(row.Words, row.Ending);
  add("Picture", kPicture);
  QString kind;
  QString file = QFileDialog::getSaveFileName(parent, "Save to a file", name + "." + endings[0],
                                              kinds.join(";;"), &kind);
  if (file.isEmpty()) return {};
  // A name without an ending is of the kind that was chosen beside it.
  if (QFileInfo(file).suffix().isEmpty())
    file += "." + endings.value(kinds.indexOf(kind), endings[0]);
  const QString why = WriteShared(file, shared);
  if (!why.isEmpty()) return {why, ui::Tone::Red};
  return {"Wrote " + file + "."};
}

void CopyShared(const Shareable& shared, ui::Form form) {
  QApplication::clipboard()->setText(Shown(shared.Text(form)));
}

void CopyPictureOf(const Shareable& shared) {
  QApplication::clipboard()->setPixmap(shared.Picture());
}

void AddSharing(QMenu& menu, const Shareable& shared) {
  for (const Sharing& row : kTexts)
    menu.addAction(QString("Copy as ") + row.Words, &menu,
                   [shared, form = row.As] { CopyShared(shared, form); });
  menu.addAction("Copy as a picture", &menu, [shared] { CopyPictureOf(shared); });
}

/// A page as it is seen, and all its words: a long report is seen only in part.
std::vector<Window::OwnCommand> Window::SharingCommands() {
  std::vector<OwnCommand> commands;
  if (!TopView() || !top_) return commands;
  const Shareable page = PageToShare(*top_, *TopView()), words = WordsToShare(page.Text);
  // What people look for who do not know how it is called here.
  const auto add = [&](const QString& caption, const char* also, std::function<void()> share) {
    commands.push_back({caption, std::move(share), also});
  };
  const auto addCopy = [&](const QString& as, const char* also, const QString& done,
                           std::function<void()> share) {
    add("Copy " + as, also, [this, done, share = std::move(share)] {
      share();
      Hint(*this, done, ui::Tone::Plain);
    });
  };
  for (const Sharing& row : kTexts)
    addCopy(QString("this page as ") + row.Words, "share export clipboard post",
            "The page is in the clipboard.", [page, form = row.As] { CopyShared(page, form); });
  constexpr const char* kPictureWords = "share export clipboard screenshot image png";
  const QString done = "The picture is in the clipboard.";
  addCopy("this page as a picture", kPictureWords, done, [page] { CopyPictureOf(page); });
  addCopy("all words of this page as a picture", kPictureWords, done,
          [words] { CopyPictureOf(words); });
  constexpr const char* kFileWords = "share export screenshot image png markdown html bbcode";
  add("Save this page to a file", kFileWords, [this, page] { SavePage(page); });
  add("Save all words of this page to a file", kFileWords, [this, words] { SavePage(words); });
  return commands;
}

void Window::SavePage(const Shareable& shared) {
  const FileTold told = SaveShared(this, Shown(top_->Title.Get()), shared);
  if (!told.Words.isEmpty()) Hint(*this, told.Words, told.As);
}

}  // namespace grapplemont::desktop
