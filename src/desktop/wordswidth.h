#pragma once

#include <QFont>
#include <QPainter>
#include <QString>

// Words as they stand in the window. Each measuring and each drawing shapes every letter; what has
// been shaped once is known here.

namespace grapplemont::desktop {

/// How wide words are in one line, rounded up.
int WordsWidth(const QFont& font, const QString& words);
/// The same to the nearest pixel, for widths that are added to each other.
int WordsAdvance(const QFont& font, const QString& words);
/// How high words are in lines that break at this width.
int WordsHeight(const QFont& font, const QString& words, int width);
/// The words, cut with an ellipsis where they are wider than this.
QString WordsWithin(const QFont& font, const QString& words, int width);

/// Draws words in one line with the painter's pen, cut where the room ends.
void DrawWords(QPainter& painter, const QRectF& room, Qt::Alignment align, const QFont& font,
               const QString& words);
/// The same in lines that break where the room ends.
void DrawWrapped(QPainter& painter, const QRectF& room, Qt::Alignment align, const QFont& font,
                 const QString& words);

/// Numbers that are written below each other: every figure takes the same room.
int FiguresWidth(const QFont& font, const QString& text);
void DrawFigures(QPainter& painter, const QRectF& room, Qt::Alignment align, const QFont& font,
                 const QString& text);

}  // namespace grapplemont::desktop
