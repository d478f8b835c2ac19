#pragma once

#include <optional>
#include <string>

#include "catalogue/TableFaults.h"
#include "state/BearingSpec.h"

namespace norlaplan {

// Each lookup opens its table, reads from the top and takes the first row whose key is equal. False or
// nothing when there is none. What is no number in the row that was found is noted; where none was found,
// what is no number among the keys, since one of them may have been meant. Errors as those of the tables.

/// Fillet and height from the head rows; sizes, mass, stock, speed index and ball count of the bearing's
/// bore, all as they stand in the table (mm, kg).
bool lookUpCrossSection(const CatalogueSource& source, BearingSpec& bearing);
/// Tolerances, runouts and standard clearances, inches.
bool lookUpPrecision(const CatalogueSource& source, BearingSpec& bearing);
/// Text and overlay name of the separator code.
bool lookUpSeparator(const CatalogueSource& source, BearingSpec& bearing);
/// Limits and kind of the fit letter, inches.
bool lookUpFit(const CatalogueSource& source, BearingSpec& bearing);

/// A line of a coating table, inches.
struct Coating {
    Single boreAddition, boreToleranceBase, odAddition, odToleranceBase;
};
std::optional<Coating> lookUpCoating(const CatalogueSource& source, const BearingSpec& bearing);

}  // namespace norlaplan
