#include <algorithm>

#include "zelmat/cards/Condition.h"
#include "zelmat/commands/frame/Arguments.h"
#include "zelmat/commands/frame/Command.h"
#include "zelmat/commands/inputs/CardInput.h"
#include "zelmat/commands/inputs/GivenMaterials.h"
#include "zelmat/text/Printable.h"

namespace zelmat {

namespace {

/// The materials of a document that meet conditions.
class Find final : public Command {
public:
    void Declare(Arguments& line) override {
        line.Add("CARD|DOC", path_, "Document, or material card; - is standard input").Required();
        line.Add("CONDITION", conditions_, "\"density<3000kg/m3 and elastic.youngs_modulus@20degC>60GPa\"")
            .Required();
        DeclareCardReading(line, how_);
    }

    void Work(CommandContext& context) override {
        const auto conditions = ReadConditions(conditions_);
        if (!conditions) {
            context.findings.Add({FindingKind::USAGE,
                                  {"zelmat find", 0},
                                  "wrong-condition",
                                  conditions.Error().text,
                                  {"see zelmat help find"}});
            return;
        }
        const auto materials = ReadGivenMaterials(path_, context.options, context.findings, how_);
        read_ = !context.findings.HasErrors();
        for (std::size_t at = 0; at < materials.size(); ++at) {
            const bool met = std::all_of(conditions->begin(), conditions->end(),
                                         [&](const Condition& each) { return each.IsMet(materials[at]); });
            if (met) found_.emplace_back(at + 1, materials[at].name);
        }
    }

    void Print(std::ostream& out) const override {
        if (!read_) return;
        for (const auto& [number, name] : found_) out << '#' << number << "  " << Printable(name) << '\n';
        out << "found: " << found_.size() << '\n';
    }

    nlohmann::ordered_json Json() const override {
        nlohmann::ordered_json json = {{"materials", nlohmann::ordered_json::array()}};
        for (const auto& [number, name] : found_) {
            json["materials"].push_back({{"number", number}, {"name", name}});
        }
        return json;
    }

private:
    std::string path_;
    std::string conditions_;
    CardReading how_;
    std::vector<std::pair<std::size_t, std::string>> found_;
    bool read_ = false;
};

}  // namespace

CommandKind FindCommand() {
    return {
        .name = "find",
        .brief = "find the materials of a document whose values keep bounds",
        .text =
            "Find the materials of a document whose values keep bounds: density<3000kg/m3 and\n"
            "elastic.youngs_modulus@20degC>60GPa. Between bounds stands and; a bound is one of < <= > >=.\n"
            "Without @ every row of a table has to keep it; with a temperature the value there, linear\n"
            "between rows, and none outside them. A material without the value is not found.",
        .make = &MakeCommand<Find>};
}

}  // namespace zelmat
