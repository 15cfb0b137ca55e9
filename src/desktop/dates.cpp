#include "desktop/dates.h"

#include <QDate>
#include <QLocale>
#include <QRegularExpression>
#include <algorithm>

#include "desktop/look.h"
#include "records/fields/fields.h"

namespace grapplemont::desktop {

namespace {

/// How a language writes dates, in Qt's signs: with the day of the week, without it, a month, and
/// the same in brief.
struct DatePattern {
  QLocale::Language Speaks;
  const char16_t *Long, *Plain, *Month, *Short, *DayAndMonth, *ShortMonth;
};
// In the order of DateForm from German on.
constexpr DatePattern kPatterns[] = {
    {QLocale::German, u"dddd, d. MMMM yyyy", u"d. MMMM yyyy", u"MMMM yyyy", u"dd.MM.yy", u"dd.MM.",
     u"MMM yyyy"},
    {QLocale::French, u"dddd d MMMM yyyy", u"d MMMM yyyy", u"MMMM yyyy", u"dd/MM/yy", u"dd/MM",
     u"MMM yyyy"},
    {QLocale::Spanish, u"dddd, d 'de' MMMM 'de' yyyy", u"d 'de' MMMM 'de' yyyy", u"MMMM 'de' yyyy",
     u"dd/MM/yy", u"dd/MM", u"MMM yyyy"},
    {QLocale::Italian, u"dddd d MMMM yyyy", u"d MMMM yyyy", u"MMMM yyyy", u"dd/MM/yy", u"dd/MM",
     u"MMM yyyy"},
    {QLocale::Portuguese, u"dddd, d 'de' MMMM 'de' yyyy", u"d 'de' MMMM 'de' yyyy",
     u"MMMM 'de' yyyy", u"dd/MM/yy", u"dd/MM", u"MMM yyyy"},
    {QLocale::Japanese, u"yyyy\u5E74M\u6708d\u65E5dddd", u"yyyy\u5E74M\u6708d\u65E5",
     u"yyyy\u5E74M\u6708", u"yy/MM/dd", u"MM/dd", u"yyyy\u5E74M\u6708"},
};
constexpr DatePattern kIsoPattern = {
    QLocale::C, u"dddd, yyyy-MM-dd", u"yyyy-MM-dd", u"yyyy-MM", u"yyyy-MM-dd", u"MM-dd", u"yyyy-MM",
};
/// Of a desktop that speaks another language, where it does not say it itself.
constexpr DatePattern kOtherPattern = {
    QLocale::AnyLanguage, u"dddd, d MMMM yyyy", u"d MMMM yyyy", u"MMMM yyyy", u"dd/MM/yy", u"dd/MM",
    u"MMM yyyy",
};

/// The form in use.
struct DateWriter {
  DateForm Form = DateForm::Game;
  QLocale Speaks = QLocale::c();
  QString Long, Plain, Month, Short, DayAndMonth, ShortMonth;
  DateSamples Samples;
};
DateWriter& TheDates() {
  static DateWriter dates;
  return dates;
}

void WriteAs(const DatePattern& pattern) {
  const auto text = [](const char16_t* signs) { return QString::fromUtf16(signs); };
  TheDates().Long = text(pattern.Long);
  TheDates().Plain = text(pattern.Plain);
  TheDates().Month = text(pattern.Month);
  TheDates().Short = text(pattern.Short);
  TheDates().DayAndMonth = text(pattern.DayAndMonth);
  TheDates().ShortMonth = text(pattern.ShortMonth);
}

/// What a desktop says of dates; how it would write a month is known of some languages alone.
void FollowDesktop() {
  TheDates().Speaks = QLocale::system();
  const auto* known =
      std::ranges::find(kPatterns, TheDates().Speaks.language(), &DatePattern::Speaks);
  WriteAs(known == std::end(kPatterns) ? kOtherPattern : *known);
  TheDates().Long = TheDates().Speaks.dateFormat(QLocale::LongFormat);
  TheDates().Short = TheDates().Speaks.dateFormat(QLocale::ShortFormat);
  static const QRegularExpression kWeekday("(,\\s*)?\\(?dddd\\)?(,?\\s*)");
  TheDates().Plain = QString(TheDates().Long).remove(kWeekday);
}

/// The place of an English month that begins with these letters, from 1; 0 for none.
int MonthNamed(const QString& letters, qsizetype least) {
  for (int month = 1; month <= 12; ++month)
    if (letters.size() >= least && Shown(MonthName(month)).startsWith(letters)) return month;
  return 0;
}

/// Games are played between 1980 and 2079.
QDate DayOf(QStringView day, QStringView month, QStringView year) {
  constexpr int kFirstYear = 80;
  const int last = year.toInt();
  return {last + (last < kFirstYear ? 2000 : 1900), month.toInt(), day.toInt()};
}

const QRegularExpression& DatesInTexts() {
  static const QRegularExpression kDates(
      "\\b(?:(?:(?:(Monday|Tuesday|Wednesday|Thursday|Friday|Saturday|Sunday), )?(\\d\\d) )?"
      "(January|February|March|April|May|June|July|August|September|October|November|December) "
      "(\\d{4}))\\b|(?<![\\d/])(\\d\\d)/(\\d\\d)/(\\d\\d)(?![\\d/])");
  return kDates;
}

/// What a date that was found becomes; itself if there is no such day.
QString Rewritten(const QRegularExpressionMatch& found) {
  const bool brief = found.hasCaptured(5), noDay = !brief && found.capturedView(2).isEmpty();
  const QDate day = brief
                        ? DayOf(found.capturedView(5), found.capturedView(6), found.capturedView(7))
                        : QDate(found.capturedView(4).toInt(), MonthNamed(found.captured(3), 3),
                                noDay ? 1 : found.capturedView(2).toInt());
  if (!day.isValid()) return found.captured();
  const QString& form = brief                             ? TheDates().Short
                        : noDay                           ? TheDates().Month
                        : found.capturedView(1).isEmpty() ? TheDates().Plain
                                                          : TheDates().Long;
  return TheDates().Speaks.toString(day, form);
}

bool IsSentence(const QString& text) {
  return text.endsWith('.') || text.endsWith('!') || text.endsWith('?');
}

/// "Mar 2026", "09 Mar", "09 Mar 2026", "March", "Mar" and "Monday"; empty for anything else.
QString PieceOfDate(const QString& text) {
  const QLocale& speaks = TheDates().Speaks;
  static const QRegularExpression kMonth("^([A-Z][a-z]{2}) (\\d{4})$"),
      kDay("^(\\d\\d) ([A-Z][a-z]{2})( \\d{4})?$");
  if (const auto found = kMonth.match(text); found.hasMatch())
    if (const QDate day(found.capturedView(2).toInt(), MonthNamed(found.captured(1), 3), 1);
        day.isValid())
      return speaks.toString(day, TheDates().ShortMonth);
  constexpr int kLeapYear = 2000;
  if (const auto found = kDay.match(text); found.hasMatch()) {
    const bool hasYear = found.hasCaptured(3);
    const QDate day(hasYear ? found.capturedView(3).mid(1).toInt() : kLeapYear,
                    MonthNamed(found.captured(2), 3), found.capturedView(1).toInt());
    if (day.isValid())
      return speaks.toString(day, hasYear ? TheDates().Short : TheDates().DayAndMonth);
  }
  if (const int month = MonthNamed(text, 3); month > 0) {
    if (text == Shown(MonthName(month))) return speaks.standaloneMonthName(month);
    if (text.size() == 3) return speaks.standaloneMonthName(month, QLocale::ShortFormat);
  }
  const int weekday = DayNumber(text.toStdString());
  return weekday == 0 ? QString() : speaks.standaloneDayName(weekday);
}

}  // namespace

void UseDateForm(DateForm form) {
  TheDates() = DateWriter();
  TheDates().Form = form;
  if (form == DateForm::Game) return;
  if (form == DateForm::Iso) return WriteAs(kIsoPattern);
  if (form == DateForm::Desktop) return FollowDesktop();
  const DatePattern& pattern =
      kPatterns[static_cast<std::size_t>(form) - static_cast<std::size_t>(DateForm::German)];
  TheDates().Speaks = QLocale(pattern.Speaks);
  WriteAs(pattern);
}

bool DatesAreTheGames() {
  return TheDates().Form == DateForm::Game;
}

const DateSamples& SamplesOfDates() {
  DateSamples& samples = TheDates().Samples;
  if (!samples.Days.empty()) return samples;
  using namespace std::chrono;
  for (int month = 1; month <= 12; ++month)  // the fourth Wednesday, which has two figures
    samples.Months.push_back(Dated(LongDate(Day{year{2000} / month / Wednesday[4]})));
  for (int days = 0; days < 7; ++days)
    samples.Days.push_back(
        Dated(LongDate(Day{year{2000} / May / Wednesday[3]} + std::chrono::days{days})));
  return samples;
}

QString Dated(std::string_view text) {
  QString shown = Shown(text);
  const bool mayHave = text.find_first_of("0123456789") != text.npos;
  if (DatesAreTheGames() || !mayHave || IsSentence(shown)) return shown;
  QString written;
  qsizetype done = 0;
  for (auto dates = DatesInTexts().globalMatch(shown); dates.hasNext();) {
    const QRegularExpressionMatch date = dates.next();
    written += QStringView(shown).mid(done, date.capturedStart() - done);
    written += Rewritten(date);
    done = date.capturedEnd();
  }
  written += QStringView(shown).mid(done);
  return written;
}

QString DatedAlone(std::string_view text) {
  if (DatesAreTheGames()) return Shown(text);
  const QString piece = PieceOfDate(Shown(text));
  return piece.isEmpty() ? Dated(text) : piece;
}

QString WithShortNames(QString date) {
  const QLocale& speaks = TheDates().Speaks;
  const auto shorten = [&date](const QString& name, const QString& brief) {
    if (brief.size() < name.size()) date.replace(name, brief);
  };
  constexpr auto kShort = QLocale::ShortFormat;
  for (int month = 1; month <= 12; ++month)
    shorten(speaks.monthName(month), speaks.monthName(month, kShort));
  for (int day = 1; day <= 7; ++day) shorten(speaks.dayName(day), speaks.dayName(day, kShort));
  return date;
}

QString CellText(const ui::Cell& cell, ui::ColumnKind kind) {
  return kind == ui::ColumnKind::Date ? DatedAlone(cell.Text) : Dated(cell.Text);
}

}  // namespace grapplemont::desktop
