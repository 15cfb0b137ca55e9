#include "desktop/letters.h"

#include <QList>

#include "records/fields/charset.h"

namespace grapplemont::desktop {

QString Shown(std::string_view text) {
  return QString::fromStdString(ToUtf8(text));
}

Keepable Keep(const QString& typed) {
  // An accent typed after its letter becomes one letter with it; line ends of elsewhere become
  // ours.
  QString text = typed.normalized(QString::NormalizationForm_C);
  text.replace("\r\n", "\n").replace(QChar::ParagraphSeparator, '\n');
  Keepable kept;
  std::string utf8 = text.toStdString();
  for (;;) {
    const std::string foreign = FirstForeignLetter(utf8);
    if (foreign.empty()) break;
    kept.Refused += QString::fromStdString(foreign);
    for (std::size_t at = utf8.find(foreign); at != utf8.npos; at = utf8.find(foreign, at))
      utf8.erase(at, foreign.size());
  }
  kept.Text = FromUtf8(utf8).value_or("");
  return kept;
}

QString RefusalOf(const QString& letters) {
  QString quoted;
  const auto points = letters.toUcs4();
  for (const char32_t point : points)
    quoted += (quoted.isEmpty() ? "" : ", ") + ("\"" + QString::fromUcs4(&point, 1) + "\"");
  return points.size() == 1 ? "The letter " + quoted + " cannot be written in this game."
                            : "The letters " + quoted + " cannot be written in this game.";
}

}  // namespace grapplemont::desktop
