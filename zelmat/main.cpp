#include <CLI/CLI.hpp>
#include <exception>
#include <filesystem>
#include <iostream>

#include "zelmat/commands/LayupCommand.h"
#include "zelmat/commands/ShowCommand.h"
#include "zelmat/commands/SummaryCommand.h"
#include "zelmat/commands/UpgradeCommand.h"

namespace {

/// Where the feature catalogs lie, seen from the program: ../share/zelmat/catalog.
std::string CatalogsOfThisProgram() {
    const auto program = std::filesystem::read_symlink("/proc/self/exe");
    return (program.parent_path().parent_path() / "share" / "zelmat" / "catalog").string();
}

/// The commands, with what they do when no option says otherwise.
struct Commands {
    zelmat::ShowCommand show;
    zelmat::SummaryCommand summary;
    zelmat::UpgradeCommand upgrade;
    zelmat::LayupCommand layup;
};

void AddCatalogs(CLI::App& command, std::string& catalogs) {
    catalogs = CatalogsOfThisProgram();
    command.add_option("--catalogs", catalogs, "Folder of the feature catalogs")->capture_default_str();
}

CLI::App* AddShow(CLI::App& program, zelmat::ShowCommand& show) {
    CLI::App* command = program.add_subcommand(
        "show",
        "Print the properties on a material card as a document holds them.\n"
        "The card is checked, written into a document in memory, read back from there and printed\n"
        "behavior by behavior with units (SI). Nothing is kept on disk. A material holds one\n"
        "hyperelastic fit: the one that is asked for, else the card's first.");
    command->add_option("CARD.json", show.card, "Material card, a JSON file")->required();
    AddCatalogs(*command, show.catalogs);
    auto* model =
        command->add_option("--model", show.fit.model, "Hyperelastic fit of this model: OGDEN, ...");
    auto* variant =
        command->add_option("--variant", show.fit.variant, "Hyperelastic fit with this text in its variant");
    command->add_flag("--all-models", show.allFits, "Store and show each hyperelastic fit in turn")
        ->excludes(model)
        ->excludes(variant);
    command->add_flag("--json", show.json, "Print one JSON object, findings included, instead of tables");
    command->add_flag("--trace", show.trace, "Print each call of a material interface on standard error");
    return command;
}

CLI::App* AddSummary(CLI::App& program, zelmat::SummaryCommand& summary) {
    CLI::App* command = program.add_subcommand(
        "summary",
        "Put the materials of several cards into one document in memory and print a line for each:\n"
        "which behaviors are switched on with how many rows, and how many features the material made.");
    command->add_option("CARD.json", summary.cards, "Material cards, JSON files")->required();
    AddCatalogs(*command, summary.catalogs);
    command->add_flag("--json", summary.json, "Print one JSON object, findings included, instead of a table");
    return command;
}

CLI::App* AddUpgrade(CLI::App& program, zelmat::UpgradeCommand& upgrade) {
    CLI::App* command = program.add_subcommand(
        "upgrade",
        "Bring the materials of an older document up to the current release, in one step, and print\n"
        "what changed on which feature, and each coefficient before and after. The document itself stays\n"
        "as it is. A run that would have to guess at units is refused.");
    command->add_option("DOCUMENT.json", upgrade.document, "Document in its text form")->required();
    command->add_option("--output", upgrade.output, "Write the upgraded document to this file");
    command
        ->add_option("--pressure-unit", upgrade.pressureUnit,
                     "Unit of the coefficients in a document that names no unit of pressure")
        ->check(CLI::IsMember(zelmat::UpgradeCommand::PressureUnits()));
    AddCatalogs(*command, upgrade.catalogs);
    command->add_flag("--json", upgrade.json, "Print one JSON object, findings included, instead of words");
    return command;
}

CLI::App* AddLayup(CLI::App& program, zelmat::LayupCommand& layup) {
    CLI::App* command = program.add_subcommand(
        "layup",
        "Make a composite layup from a stacking notation or a layup card in a document in memory, read\n"
        "it back from there, check it and print its layers from the bottom up with the z of their faces.\n"
        "Notation: [0/45/-45/90]s, [±45/0]2, [0_2/90]s, [0/90_bar]s.");
    command->add_option("NOTATION|CARD.json", layup.layup, "Stacking notation, or layup card")->required();
    command->add_option("--material", layup.material, "Material of a notation's plies");
    command->add_option("--thickness", layup.thickness, "Thickness of a notation's plies: 0.125mm");
    command
        ->add_option("--section", layup.section,
                     "Reference the layup from a shell section: composite or homogeneous")
        ->check(CLI::IsMember({"composite", "homogeneous"}));
    command->add_option("--svg", layup.drawing, "Draw the stack into this SVG file");
    AddCatalogs(*command, layup.catalogs);
    command->add_flag("--json", layup.json, "Print one JSON object, findings included, instead of words");
    return command;
}

int Run(int argc, char** argv) {
    CLI::App program("zelmat: material properties for finite-element analysis.", "zelmat");
    program.require_subcommand(1);
    program.footer(
        "Exit codes: 0 clean, 1 findings, 2 wrong command line, 3 could not read or write.\n"
        "Findings go to standard error as file:line: error[code]: text (value, bound, hint).");
    Commands commands;
    const CLI::App* show = AddShow(program, commands.show);
    const CLI::App* summary = AddSummary(program, commands.summary);
    const CLI::App* layup = AddLayup(program, commands.layup);
    AddUpgrade(program, commands.upgrade);

    try {
        program.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        const bool asked = program.exit(error) == 0;
        return asked ? zelmat::EXIT_CLEAN : zelmat::EXIT_USAGE;
    }
    if (show->parsed()) return commands.show.Run(std::cout, std::cerr);
    if (summary->parsed()) return commands.summary.Run(std::cout, std::cerr);
    if (layup->parsed()) return commands.layup.Run(std::cout, std::cerr);
    return commands.upgrade.Run(std::cout, std::cerr);
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
