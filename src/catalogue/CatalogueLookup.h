#pragma once

#include <optional>
#include <string>

#include "state/BearingSpec.h"
#include "state/ProgramFolder.h"

namespace norlaplan {

// Each lookup opens its table, reads from the top and takes the first row whose key is equal. False or
// nothing when there is none. Errors as those of the tables.

/// Fillet and height from the head rows; sizes, mass, stock, speed index and ball count of the bearing's
/// bore, all as they stand in the table (mm, kg).
bool lookUpCrossSection(const ProgramFolder& folder, BearingSpec& bearing);
/// Tolerances, runouts and standard clearances, inches.
bool lookUpPrecision(const ProgramFolder& folder, BearingSpec& bearing);
/// Text and overlay name of the separator code.
bool lookUpSeparator(const ProgramFolder& folder, BearingSpec& bearing);
/// Limits and kind of the fit letter, inches.
bool lookUpFit(const ProgramFolder& folder, BearingSpec& bearing);

/// A line of a coating table, inches.
struct Coating {
    Single boreAddition, boreToleranceBase, odAddition, odToleranceBase;
};
std::optional<Coating> lookUpCoating(const ProgramFolder& folder, const BearingSpec& bearing);

}  // namespace norlaplan
