#pragma once

#include <QString>
#include <string_view>
#include <vector>

#include "ui/controls.h"

// The dates that the window shows. Screens write them in English and in one form, which the
// records, the console and prose keep; here that becomes the language and the form of the player's
// choice.

namespace grapplemont::desktop {

/// Game: as the screens have them.
enum class DateForm { Game, Iso, Desktop, German, French, Spanish, Italian, Portuguese, Japanese };
/// What a form is kept under and how it is called, in the order of DateForm.
struct DateFormName {
  const char *Key, *Words;
};
inline constexpr DateFormName kDateForms[] = {{"game", "As the game writes them"},
                                              {"iso", "ISO 8601"},
                                              {"desktop", "As the desktop has them"},
                                              {"de", "German"},
                                              {"fr", "French"},
                                              {"es", "Spanish"},
                                              {"it", "Italian"},
                                              {"pt", "Portuguese"},
                                              {"ja", "Japanese"}};

/// The form of all dates from now on; what is shown already stays until it is shown again.
void UseDateForm(DateForm form);
bool DatesAreTheGames();

/// Long dates in the form in use, for what has to have room for any: the same day of the week in
/// every month, then every day of the week in one of them, that one first.
struct DateSamples {
  std::vector<QString> Months, Days;
};
const DateSamples& SamplesOfDates();

/// A text as it is shown, its dates in the form in use: "Monday, 09 March 2026", "09 March 2026",
/// "March 2026" and "09/03/26". A sentence, which ends with a full stop, stays as it is.
QString Dated(std::string_view text);
/// The same for a text that is a date by itself: also "Mar 2026", "09/03", "March", "Mar" and
/// "Monday".
QString DatedAlone(std::string_view text);
/// A date in the form in use with the short names of its language: "Monday, 09 March 2026" as "Mon,
/// 09 Mar 2026".
QString WithShortNames(QString date);
/// A cell of a table.
QString CellText(const ui::Cell& cell, ui::ColumnKind kind);

}  // namespace grapplemont::desktop
