#pragma once

#include <string>
#include <vector>

#include "numbers/Int16.h"
#include "numbers/Single.h"
#include "state/LifeChecks.h"
#include "state/LoadCase.h"

namespace norlaplan {

/// The envelope of a search: as entered, in display units, and in inches.
struct SearchCriteria {
    Single minBoreDisplay, maxOdDisplay, minHeightDisplay, maxHeightDisplay;
    Single minBore, maxOd, minHeight, maxHeight;

    bool operator==(const SearchCriteria&) const = default;
};

/// The style of the search path: one of the six captions with its table letter.
struct BearingStyle {
    std::string searchStyleCaption;
    std::string searchStyleLetter;  ///< "A", "C" or "X"
};

/// One row of the results: its columns as texts, as they are shown, and how far its life is to be trusted.
struct SearchHit {
    std::string name, speedLimit, l10Revolutions, l10Hours, boreText, odText, heightText, stock;
    LifeChecks checks{};

    bool operator==(const SearchHit&) const = default;
};

/// The columns of a row as a sort names them: by their places, counted from 1.
enum SortColumn {
    kSortByName = 1,
    kSortByLimitSpeed,
    kSortByLife,
    kSortByHours,
    kSortByBore,
    kSortByOd,
    kSortByHeight,
    kSortByAvailability
};

/// What a search was asked: as long as the state would ask the same, its rows are the answer.
struct SearchQuestion {
    std::string styleCaption, unitSystem;
    SearchCriteria criteria;
    LoadCase loads;

    bool operator==(const SearchQuestion&) const = default;
};

/// The rows of the last search and how they stand.
struct SearchResults {
    std::vector<SearchHit> rows;
    SearchQuestion question;  ///< that the rows answer
    Int16 hitCount;           ///< the next free row number: 1 when there is no row
    Single lastHours;  ///< of the last row that had a speed: the rows of a search without one list them
    bool noResultFlag = false;
    bool listOnlyFlag = false;  ///< the list is to be rebuilt from the rows, nothing computed
    bool sorted = false;
    Int16 sortColumn = kSortByBore;
    std::string sortDirection = "UP";
    std::string chosenName;  ///< of the row chosen last, also in the list before: it is found again
};

}  // namespace norlaplan
