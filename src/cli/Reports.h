#pragma once

#include <span>

#include "cli/Commands.h"
#include "cli/OutputFile.h"
#include "documents/Document.h"

namespace norlaplan::cli {

/// What the options of all commands amount to.
struct Arguments {
    PartNumberOption number;
    LoadOptions loads;
    FilmOptions film;
    int row = 1;  ///< of `contact`
    SearchOptions search;
    DeflectionOptions deflection;
    FitOptions fits;
    BatchOptions batch;
    std::string output;
};

/// Groups of options that a command takes.
enum OptionGroups : unsigned {
    kNumber = 1U,
    kLoads = 2U,
    kSearch = 4U,
    kDeflection = 8U,
    kFits = 16U,
    kRow = 32U
};

/// A document that the command line writes as a file: `report life`, and `datasheet`.
struct Report {
    const char* name;
    const char* description;
    unsigned options;  ///< of `OptionGroups`
    OutputKinds kinds;
    /// Calculates and gives the document, which lives no longer than the session. Errors: `CommandError` and
    /// the run-time errors of the calculation.
    Document (*make)(Session& session, const Arguments& arguments);
};

/// The data sheet, a command of its own.
const Report& dataSheetReport();

/// The rows of `report`.
std::span<const Report> reports();

}  // namespace norlaplan::cli
