#pragma once

#include <optional>
#include <string>

#include "cli/Session.h"

namespace norlaplan::cli {

/// The lubricant of a film check.
struct FilmOptions {
    double viscosity = 0.0;
    std::string unit;  ///< "SSU" or "centistokes"
    double specificGravity = 0.0;
};

/// What the search command takes: sizes in display units.
struct SearchOptions {
    std::string style;
    double minBore = 0.0, maxOd = 0.0, minHeight = 0.0, maxHeight = 0.0;
    std::string sort;  ///< "bore", "od", "life", "availability" or empty for the tables' order
    bool descending = false;
};

/// What the deflection command takes, in display units. A maximum that is left out is the one that the screen
/// proposes.
struct DeflectionOptions {
    double preload = 0.0;
    std::optional<double> maxRadial, maxAxial, maxMoment;
    std::string graph;  ///< of the report: one of the names below
};

/// The curves of `report deflection --graph`.
constexpr const char* kRadialGraph = "radial";
constexpr const char* kAxialGraph = "axial";
constexpr const char* kMomentGraph = "moment";

/// What the fits command takes: temperatures in display units, a coefficient in them or a material's name.
struct FitOptions {
    double high = 0.0, low = 0.0;
    std::string shaft, housing;
};

/// What the batch command takes.
struct BatchOptions {
    std::string cases, output;  ///< paths of tables
    std::string zSeparator;     ///< of all numbers that ask for one
    int jobs = 1;               ///< threads
};

/// Each command: its result, or `CommandError` and the run-time errors of its calculation.
CommandResult decodeCommand(Session& session, const PartNumberOption& number);
CommandResult filmCommand(Session& session, const PartNumberOption& number, const LoadOptions& loads,
                          const FilmOptions& options);
/// `row` is the row to look at; where it carries no load the other one is taken.
CommandResult contactCommand(Session& session, const PartNumberOption& number, const LoadOptions& loads,
                             int row);
CommandResult lifeCommand(Session& session, const PartNumberOption& number, const LoadOptions& loads);
CommandResult deflectionCommand(Session& session, const PartNumberOption& number,
                                const DeflectionOptions& options);
CommandResult torqueCommand(Session& session, const PartNumberOption& number);
CommandResult playCommand(Session& session, const PartNumberOption& number);
CommandResult fitsCommand(Session& session, const PartNumberOption& number, const FitOptions& options);
/// Writes the export file to `output`. With loads the bearing is solved for them first, as its contact angle
/// goes into the file.
CommandResult qlxCommand(Session& session, const PartNumberOption& number, const LoadOptions& loads,
                         const std::string& output);
/// One life calculation a row of the cases. The rows of the results stand in the order of the cases and hold
/// what a single call gives, whatever the number of jobs; a case without a result tells why in its row.
/// Errors: `CommandError` for a table that isn't one; run-time errors of reading and writing; `Interrupted`.
/// The results are written whole or not at all.
CommandResult batchCommand(Session& session, const BatchOptions& options);
CommandResult searchCommand(Session& session, const SearchOptions& options, const LoadOptions& loads);

// The calculations of the commands that also have a report. Errors as theirs.
void calculateDeflection(Session& session, const PartNumberOption& number, const DeflectionOptions& options);
void calculateTorque(Session& session, const PartNumberOption& number);
void calculatePlay(Session& session, const PartNumberOption& number);
void calculateFits(Session& session, const PartNumberOption& number, const FitOptions& options);
void runSearch(Session& session, const SearchOptions& options, const LoadOptions& loads);

}  // namespace norlaplan::cli
