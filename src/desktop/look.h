#pragma once

#include <QFont>
#include <QPainter>
#include <QString>

// Sizes and letters of the window. The look is drawn for text 13 pixels high; everything grows with
// the player's text.

namespace grapplemont::desktop {

enum class Scheme { System, Dark, Light };

inline constexpr int kUsualText = 13;
inline constexpr int kSmallestText = 11, kLargestText = 28;

/// Remembers what the desktop says about colours and text. Requires the application, before the
/// first ApplyLook.
void ReadDesktop();
/// The text height that the desktop asks for, at least the usual one.
int DesktopText();
/// System: as the desktop has it, and dark where it says nothing.
bool IsDark(Scheme scheme);

/// Gives the application style, colours and letters.
void ApplyLook(Scheme scheme, int textHeight);

/// Pixels of the drawing at the present size of text.
int Px(double drawn);
/// A letter of so many drawn pixels; the style's sans serif.
QFont TextFont(double drawn = kUsualText, QFont::Weight weight = QFont::Normal);
QFont ProseFont(double drawn = 15);

/// Text whose figures are all of one width, so that columns of numbers stand straight.
void DrawFigures(QPainter& painter, const QRectF& where, Qt::Alignment align, const QString& text);
int FiguresWidth(const QFontMetricsF& metrics, const QString& text);

}  // namespace grapplemont::desktop
