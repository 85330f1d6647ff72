#include <CLI/CLI.hpp>
#include <exception>
#include <filesystem>
#include <iostream>

#include "zelmat/ShowCommand.h"

namespace {

/// Where the feature catalogs lie, seen from the program: ../share/zelmat/catalog.
std::string CatalogsOfThisProgram() {
    const auto program = std::filesystem::read_symlink("/proc/self/exe");
    return (program.parent_path().parent_path() / "share" / "zelmat" / "catalog").string();
}

void AddShow(CLI::App& program, zelmat::ShowCommand& show) {
    CLI::App* command = program.add_subcommand(
        "show",
        "Print the properties on a material card as a document holds them.\n"
        "The card is checked, written into a document in memory, read back from there and printed\n"
        "table by table with units (SI). Nothing is kept on disk.");
    command->add_option("CARD.json", show.card, "Material card, a JSON file")->required();
    command->add_option("--catalogs", show.catalogs, "Folder of the feature catalogs")->capture_default_str();
    command->add_flag("--json", show.json, "Print one JSON object, findings included, instead of tables");
    command->add_flag("--trace", show.trace, "Print each call of a material interface on standard error");
}

int Run(int argc, char** argv) {
    CLI::App program("zelmat: material properties for finite-element analysis.", "zelmat");
    program.require_subcommand(1);
    program.footer(
        "Exit codes: 0 clean, 1 findings, 2 wrong command line, 3 could not read or write.\n"
        "Findings go to standard error as file:line: error[code]: text (value, bound, hint).");
    zelmat::ShowCommand show;
    show.catalogs = CatalogsOfThisProgram();
    AddShow(program, show);

    try {
        program.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        const bool asked = program.exit(error) == 0;
        return asked ? zelmat::EXIT_CLEAN : zelmat::EXIT_USAGE;
    }
    return show.Run(std::cout, std::cerr);
}

}  // namespace

int main(int argc, char** argv) {
    try {
        return Run(argc, argv);
    } catch (const std::exception& problem) {
        std::cerr << "zelmat: " << problem.what() << '\n';
        return zelmat::EXIT_UNREADABLE;
    }
}
