#pragma once

#include <QString>
#include <string>
#include <string_view>

// The program's texts are Windows-1252; Qt's are Unicode.

namespace grapplemont::desktop {

QString Shown(std::string_view text);

/// What can be kept of a typed text, and the letters that cannot: each once, in order.
struct Keepable {
  std::string Text;
  QString Refused;
};
Keepable Keep(const QString& typed);

/// The sentence for letters that cannot be kept.
QString RefusalOf(const QString& letters);

}  // namespace grapplemont::desktop
