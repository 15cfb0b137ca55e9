#pragma once

#include <QFont>
#include <QString>

namespace grapplemont::desktop {

/// How wide words are in one line, rounded up. What has been measured is known: each measuring
/// shapes every letter.
int WordsWidth(const QFont& font, const QString& words);
/// The words, cut with an ellipsis where they are wider than this.
QString WordsWithin(const QFont& font, const QString& words, int width);

}  // namespace grapplemont::desktop
