#pragma once

#include "catalogue/PartNumberRules.h"
#include "catalogue/TableFaults.h"
#include "state/BearingSpec.h"

namespace norlaplan {

// What the catalogue says to the codes of a bearing: its table's row goes into the bearing, or the message
// that refuses the number comes back. Errors as those of the tables.

/// By section, family and bore.
Fault readCrossSection(const CatalogueSource& source, BearingSpec& bearing);
/// By precision class and bore.
Fault readPrecision(const CatalogueSource& source, BearingSpec& bearing);
/// By family and separator code, to which the letter of a "Z" separator is added first.
Fault readSeparator(const CatalogueSource& source, BearingSpec& bearing);
/// By fit letter; nothing is read for a bearing without one.
Fault readFit(const CatalogueSource& source, BearingSpec& bearing);

}  // namespace norlaplan
