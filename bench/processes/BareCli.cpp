// What a command line with CLI11 and nlohmann-json takes that calculates nothing.
#include <iostream>
#include <string>

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

int main(int argc, char** argv) {
    CLI::App app("The parser and the writer alone", "norlaplan-bare-cli");
    std::string number;
    double radial = 0.0;
    double axial = 0.0;
    double moment = 0.0;
    double speed = 0.0;
    CLI::App* const life = app.add_subcommand("life", "Prints what it was given");
    life->add_option("PN", number)->required();
    life->add_option("--radial", radial);
    life->add_option("--axial", axial);
    life->add_option("--moment", moment);
    life->add_option("--speed", speed);
    app.require_subcommand(1);
    CLI11_PARSE(app, argc, argv);
    const nlohmann::ordered_json result = {
        {"partNumber", number}, {"radial", radial}, {"axial", axial}, {"moment", moment}, {"speed", speed}};
    std::cout << result.dump(2) << '\n';
    return 0;
}
