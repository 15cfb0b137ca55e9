#pragma once

#include "records/checks/checkworld.h"

// The rules of a world in order, grouped by what they speak of. Each looks at the whole world and
// notes every fault.

namespace grapplemont {

/// Notes each record of which `wrong` has something to say, and removes it.
template <class T, class Wrong>
void RemoveWrong(Inspection& inspection, Records<T>& records, std::string_view field, Wrong wrong) {
  Removal<T> removal(records);
  for (T& record : records.Unwatched())
    if (std::string what = wrong(record); !what.empty())
      inspection.Note(records, record, field, std::move(what), removal.Of(record));
  removal.Apply();
}

/// A text of a record in quotes, without what a terminal would obey.
std::string QuotedText(std::string_view text);

// Files and fields, by the field lists.
void WholeRecords(Inspection& inspection);
void FieldsHoldWhatTheyMay(Inspection& inspection);
void CountedNumbersLieInTheirRanges(Inspection& inspection);  // of those alone
void NoRecordStandsTwice(Inspection& inspection);
void KeysAreUnique(Inspection& inspection);
void ReferencesLeadSomewhere(Inspection& inspection);

// People.
void UnsackableHasEmployerAndNoEnd(Inspection& inspection);
void UnemployedAreFree(Inspection& inspection);
void StablesOfTheEmployer(Inspection& inspection);
void SplitsOfTheEmployer(Inspection& inspection);
void ManagersOfTheEmployer(Inspection& inspection);
void DivasAreWomen(Inspection& inspection);
void FloorNotAboveOver(Inspection& inspection);
void PotentialOfThirtyAndABirthday(Inspection& inspection);
void OneOwnerEach(Inspection& inspection);
void OfficesAreHeldByTheOwn(Inspection& inspection);

// Promotions and what belongs to them.
void NoTombstones(Inspection& inspection);
void TitlesAgree(Inspection& inspection);
void ChampionsWorkForTheOwner(Inspection& inspection);
void VacantTitlesSaySo(Inspection& inspection);
void TitlesAndStablesHaveOneName(Inspection& inspection);
void NobodyTeamsWithHimself(Inspection& inspection);
void TeamsAreTwo(Inspection& inspection);
void OneEventAMonth(Inspection& inspection);
void ThreeShowsAtMost(Inspection& inspection);
void OneShowASpot(Inspection& inspection);
void SponsorsAgree(Inspection& inspection);

// The running game.
void GameInfoStands(Inspection& inspection);
void ShortlistWithoutDoubles(Inspection& inspection);
void EightFeuds(Inspection& inspection);
void FeudsAreEmptyOrComplete(Inspection& inspection);
void MailsAreDated(Inspection& inspection);

}  // namespace grapplemont
