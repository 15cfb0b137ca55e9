#pragma once

#include <QMenu>
#include <QString>
#include <functional>

#include "ui/share.h"

namespace grapplemont::desktop {

/// Writes what the screen tells to a file, in the form that its ending means (md, html, txt for
/// BBCode, png for a picture of `view`; Markdown for any other). Why it could not, empty if it has.
QString WritePage(const QString& file, ui::Screen& screen, QWidget& view);

/// An entry for each form of text.
void AddSharing(QMenu& menu, const std::function<void(ui::Form form)>& share);

}  // namespace grapplemont::desktop
