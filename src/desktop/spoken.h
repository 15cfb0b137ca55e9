#pragma once

#include <QAccessible>
#include <QWidget>

#include "ui/controls.h"
#include "ui/drawings.h"

// What a screen reader hears beyond what Qt knows of its own widgets.

namespace grapplemont::desktop {

/// Says what a widget that is painted by hand is. Before anybody asks for it: in its constructor.
void Means(QWidget& widget, QAccessible::Role role);

/// Names a control's widget and the parts of it that take the keyboard, except for those that have
/// a name already.
void NameParts(QWidget& widget, const QString& name);
/// Whether a control of this kind says itself what it is.
bool NamesItself(ui::Kind kind);

/// "Crest of CWA"; empty for no drawing.
QString WordsFor(const ui::Drawing& drawing);
/// The lines of a chart in words: "Money: 12 values, 4 to 9, now 7".
QString WordsFor(const ui::Chart& chart);

/// Lets a screen reader speak at once.
void Announce(QWidget& widget);

}  // namespace grapplemont::desktop
