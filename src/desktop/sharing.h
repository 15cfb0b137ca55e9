#pragma once

#include <QMenu>
#include <QPixmap>
#include <QString>
#include <functional>
#include <string>

#include "ui/share.h"

namespace grapplemont::desktop {

/// What can be shared: its text in any form, and how it looks.
struct Shareable {
  std::function<std::string(ui::Form form)> Text;
  std::function<QPixmap()> Picture;
};
class ScreenView;

/// A page, its lists as `view` has them arranged; its picture is `view` as it is seen.
Shareable PageToShare(ui::Screen& screen, ScreenView& view);
/// The same with a picture of all its words, however far they would have to be scrolled.
Shareable WordsToShare(std::function<std::string(ui::Form form)> text);

/// Writes it to a file, in the form that its ending means (md, html, txt for BBCode, png for the
/// picture; Markdown for any other). Why it could not, empty if it has.
QString WriteShared(const QString& file, const Shareable& shared);
/// What is to be said of a file, in red if it could not be written; no words if none was named.
struct FileTold {
  QString Words = {};
  ui::Tone As = ui::Tone::Plain;
};
/// Asks for a file and writes it.
FileTold SaveShared(QWidget* parent, const QString& name, const Shareable& shared);
void CopyShared(const Shareable& shared, ui::Form form);
void CopyPictureOf(const Shareable& shared);

/// An entry for each form of text, and one for the picture.
void AddSharing(QMenu& menu, const Shareable& shared);

}  // namespace grapplemont::desktop
