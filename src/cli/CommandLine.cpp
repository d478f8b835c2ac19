#include "cli/CommandLine.h"

#include <algorithm>
#include <iostream>
#include <memory>
#include <thread>

#include <CLI/CLI.hpp>

#include "cli/CommandError.h"
#include "cli/Commands.h"
#include "cli/OutputFile.h"
#include "cli/Reports.h"
#include "loaddist/LubeFilm.h"
#include "state/InstalledFolder.h"

namespace norlaplan::cli {
namespace {

class Builder {
  public:
    explicit Builder(CLI::App& app) : app_(app), arguments_(std::make_shared<Arguments>()) {}

    void addAll() {
        command(
            app_, "decode", "Every field of the bearing",
            [](Session& s, Arguments& a) { return decodeCommand(s, a.number); },
            [this](CLI::App* decode) { addNumber(decode); });
        command(
            app_, "life", "L10 life, static safety, torque, speed verdict and every ball",
            [](Session& s, Arguments& a) { return lifeCommand(s, a.number, a.loads); },
            [this](CLI::App* life) { addNumberAndLoads(life); });
        command(
            app_, "film", "Lubricant film under the heaviest loaded ball, life factor, least viscosity",
            [](Session& s, Arguments& a) { return filmCommand(s, a.number, a.loads, a.film); },
            [this](CLI::App* film) {
                addNumberAndLoads(film);
                addLubricant(film);
            });
        command(
            app_, "contact", "Stress, contact ellipse and land of the heaviest loaded ball of a row",
            [](Session& s, Arguments& a) { return contactCommand(s, a.number, a.loads, a.row); },
            [this](CLI::App* contact) {
                addNumberAndLoads(contact);
                addRow(contact);
            });
        command(
            app_, "search", "Bearings that fit an envelope, with their life under the loads",
            [](Session& s, Arguments& a) { return searchCommand(s, a.search, a.loads); },
            [this](CLI::App* search) {
                addSearch(search);
                addLoads(search);
            });
        command(
            app_, "batch", "One life calculation for each row of a table",
            [](Session& s, Arguments& a) {
                a.batch.output = a.output;
                a.batch.zSeparator = a.number.zSeparator;
                return batchCommand(s, a.batch);
            },
            [this](CLI::App* batch) { addBatch(batch); });
        command(
            app_, "deflection", "Spring rates, relief loads and deflection curves under a preload",
            [](Session& s, Arguments& a) { return deflectionCommand(s, a.number, a.deflection); },
            [this](CLI::App* deflection) {
                addNumber(deflection);
                addDeflection(deflection);
            });
        addFits();
        command(
            app_, "qlx", "The export file for the analysis program Brimhall",
            [](Session& s, Arguments& a) { return qlxCommand(s, a.number, a.loads, a.output); },
            [this](CLI::App* qlx) {
                addNumberAndLoads(qlx);
                qlx->add_option("--output", arguments_->output,
                                "File to write, usually with the extension .qlx")
                    ->required();
            });
        addReport(app_, dataSheetReport());
        addReports();
    }

    const std::function<CommandResult(Session&)>& chosen() const { return *chosen_; }

  private:
    using Run = std::function<CommandResult(Session&, Arguments&)>;

    using Options = std::function<void(CLI::App*)>;

    /// A command. Its options are added when it is named: all of those of all commands would take longer than
    /// most calls do.
    void command(CLI::App& parent, const char* name, const char* description, const Run& run,
                 const Options& options) {
        CLI::App* const command = parent.add_subcommand(name, description);
        command->fallthrough();
        command->preparse_callback([options, command](std::size_t) { options(command); });
        command->callback([chosen = chosen_, arguments = arguments_, run] {
            *chosen = [arguments, run](Session& session) { return run(session, *arguments); };
        });
    }

    void addBatch(CLI::App* batch) {
        BatchOptions& options = arguments_->batch;
        options.jobs = static_cast<int>(std::max(1U, std::thread::hardware_concurrency()));
        batch->add_option("CASES", options.cases, "Table of cases, CSV: partNumber,radial,axial,moment,speed")
            ->required();
        batch->add_option("--output", arguments_->output, "Table of results to write, CSV")->required();
        batch->add_option("--jobs", options.jobs, "Threads that share the work")
            ->check(CLI::Range(1, 256))
            ->capture_default_str();
        addZSeparator(batch);
    }

    void addFits() {
        const Options number = [this](CLI::App* command) { addNumber(command); };
        command(
            app_, "torque", "Unmounted starting torque against preload",
            [](Session& s, Arguments& a) { return torqueCommand(s, a.number); }, number);
        command(
            app_, "play", "Axial play and tilt against diametral clearance",
            [](Session& s, Arguments& a) { return playCommand(s, a.number); }, number);
        command(
            app_, "fits", "Shaft and housing sizes for a range of temperature",
            [](Session& s, Arguments& a) { return fitsCommand(s, a.number, a.fits); },
            [this](CLI::App* fits) {
                addNumber(fits);
                addFitOptions(fits);
            });
    }

    void addReports() {
        CLI::App* const parent = app_.add_subcommand("report", "A screen's report as a file");
        parent->require_subcommand(1);
        parent->fallthrough();
        parent->preparse_callback([this, parent](std::size_t) {
            for (const Report& report : reports())
                addReport(*parent, report);
        });
    }

    void addReport(CLI::App& parent, const Report& report) {
        command(
            parent, report.name, report.description,
            [&report](Session& s, Arguments& a) {
                requireOutputKind(a.output, report.kinds);
                return writeDocument(report.make(s, a), a.output);
            },
            [this, &report](CLI::App* writer) { addOptions(writer, report); });
    }

    void addOptions(CLI::App* writer, const Report& report) {
        if (report.options & kNumber) addNumber(writer);
        if (report.options & kSearch) addSearch(writer);
        if (report.options & kLoads) addLoads(writer);
        if (report.options & kRow) addRow(writer);
        if (report.options & kDeflection) {
            addDeflection(writer);
            addGraph(writer);
        }
        if (report.options & kFits) addFitOptions(writer);
        addOutput(writer, report.kinds);
    }

    void addNumberAndLoads(CLI::App* command) {
        addNumber(command);
        addLoads(command);
    }

    void addNumber(CLI::App* command) {
        command->add_option("PN", arguments_->number.number, "Part number, such as K19013XP0")->required();
        addZSeparator(command);
    }

    void addZSeparator(CLI::App* command) {
        command->add_option("--z-separator", arguments_->number.zSeparator, "Which separator a \"Z\" means")
            ->check(CLI::IsMember({"P", "V", "S", "T"}));
    }

    void addRow(CLI::App* command) {
        command->add_option("--row", arguments_->row, "Row to look at")
            ->check(CLI::IsMember({1, 2}))
            ->capture_default_str();
    }

    void addLubricant(CLI::App* command) {
        FilmOptions& film = arguments_->film;
        film.specificGravity = kUsualSpecificGravity;
        command->add_option("--viscosity", film.viscosity, "Lubricant viscosity")->required();
        command->add_option("--viscosity-unit", film.unit, "Unit of the viscosity")
            ->required()
            ->check(CLI::IsMember({"SSU", "centistokes"}));
        command->add_option("--gravity", film.specificGravity, "Specific gravity, grams/cc.")
            ->capture_default_str();
    }

    void addLoads(CLI::App* command) {
        command->add_option("--radial", arguments_->loads.radial, "Radial load, display units");
        command->add_option("--axial", arguments_->loads.axial, "Axial load, display units");
        command->add_option("--moment", arguments_->loads.moment, "Moment, display units");
        command->add_option("--speed", arguments_->loads.speed, "Speed, rpm");
    }

    void addSearch(CLI::App* command) {
        SearchOptions& search = arguments_->search;
        command->add_option("--style", search.style, "The style's caption, such as \"4-POINT CONTACT\"")
            ->required();
        command->add_option("--min-bore", search.minBore, "Display units")->required();
        command->add_option("--max-od", search.maxOd, "Display units")->required();
        command->add_option("--min-height", search.minHeight, "Display units")->required();
        command->add_option("--max-height", search.maxHeight, "Display units")->required();
        command->add_option("--sort", search.sort, "Sort the list")
            ->check(CLI::IsMember({"bore", "od", "life", "availability"}));
        command->add_flag("--descending", search.descending, "Largest first");
    }

    void addDeflection(CLI::App* command) {
        DeflectionOptions& deflection = arguments_->deflection;
        command
            ->add_option("--preload", deflection.preload,
                         "Axial preload of a pair, diametral preload of others; display units")
            ->required();
        const std::string proposed = ", display units; default: a fifth of the dynamic rating";
        command->add_option("--max-radial", deflection.maxRadial, "End of the radial curve" + proposed);
        command->add_option("--max-axial", deflection.maxAxial, "End of the axial curve" + proposed);
        command->add_option("--max-moment", deflection.maxMoment, "End of the moment curve" + proposed);
    }

    void addGraph(CLI::App* command) {
        command->add_option("--graph", arguments_->deflection.graph, "Which of the curves")
            ->required()
            ->check(CLI::IsMember({kRadialGraph, kAxialGraph, kMomentGraph}));
    }

    void addFitOptions(CLI::App* command) {
        FitOptions& fits = arguments_->fits;
        const char* const expansion = "Thermal expansion per degree, or a material such as \"440C steel\"";
        command->add_option("--high", fits.high, "Highest temperature, display units")->required();
        command->add_option("--low", fits.low, "Lowest temperature, display units")->required();
        command->add_option("--shaft", fits.shaft, expansion)->required();
        command->add_option("--housing", fits.housing, expansion)->required();
    }

    void addOutput(CLI::App* command, OutputKinds kinds) {
        command
            ->add_option("--output", arguments_->output, std::string("File to write: ") + extensionsOf(kinds))
            ->required();
    }

    CLI::App& app_;
    std::shared_ptr<Arguments> arguments_;
    std::shared_ptr<std::function<CommandResult(Session&)>> chosen_ =
        std::make_shared<std::function<CommandResult(Session&)>>();
};

}  // namespace

std::optional<Invocation> parseCommandLine(int argc, char** argv) {
    CLI::App app("NORLAPLAN-MM: thin-section ball bearings, without a screen", "norlaplan-cli");
    Invocation invocation;
    std::string folder;
    app.set_version_flag("--version", "NORLAPLAN-MM version 1.00");
    app.add_option("--program-folder", folder,
                   "Folder of the catalog and settings; default: that of the program");
    app.add_option("--units", invocation.options.units, "Display units of this call")
        ->check(CLI::IsMember({"US", "METRIC"}));
    app.add_flag("--json", invocation.options.json, "One JSON object on standard output");
    app.require_subcommand(1);
    Builder builder(app);
    builder.addAll();
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        if (error.get_exit_code() == 0) {
            app.exit(error, std::cout, std::cerr);
            return std::nullopt;
        }
        throw CommandError(ErrorKind::Usage, "Wrong usage", error.what());
    }
    invocation.options.programFolder = folder.empty() ? usualProgramFolder() : ProgramFolder(folder);
    invocation.command = builder.chosen();
    return invocation;
}

}  // namespace norlaplan::cli
