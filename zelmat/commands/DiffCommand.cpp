#include <algorithm>
#include <charconv>
#include <filesystem>

#include "zelmat/commands/ComparedPairs.h"
#include "zelmat/commands/frame/Arguments.h"
#include "zelmat/commands/frame/Command.h"
#include "zelmat/commands/inputs/GivenLayups.h"
#include "zelmat/commands/inputs/GivenMaterials.h"
#include "zelmat/layups/LayupCardReader.h"
#include "zelmat/text/Printable.h"

namespace zelmat {

namespace {

/// What one side holds; nothing of what it has no place for, which is not compared then.
struct DiffContent {
    std::optional<std::vector<Material>> materials;
    std::optional<std::vector<LayupCard>> layups;
};

/// "DOC#3": the document as it was after its step 3, unless there is a file of that name.
struct DiffSide {
    std::string path;
    std::optional<std::uint32_t> step;

    explicit DiffSide(const std::string& text) : path(text) {
        std::error_code none;
        const auto mark = text.rfind('#');
        if (mark == std::string::npos || std::filesystem::exists(text, none)) return;
        std::uint32_t number = 0;
        const char* const end = text.data() + text.size();
        const auto [rest, error] = std::from_chars(text.data() + mark + 1, end, number);
        if (error != std::errc() || rest != end) return;
        path = text.substr(0, mark);
        step = number;
    }

    DiffContent Read(const CommandContext& context) const {
        Findings& findings = context.findings;
        if (step) {
            return Held(DocumentToRead::Open(path, context.options.catalogs, findings, step).get(), findings);
        }
        if (IsLayupCard(path)) {
            auto card = LayupCardReader(findings).Read(path);
            return {std::nullopt, card ? std::vector{std::move(*card)} : std::vector<LayupCard>()};
        }
        GivenFile given = OpenGiven(path, context.options, findings);
        if (given.text) return {CardsOfText(std::move(*given.text), path, findings), std::nullopt};
        return Held(given.document.get(), findings);
    }

private:
    static DiffContent Held(DocumentToRead* document, Findings& findings) {
        if (!document) return {};
        return {document->Materials(findings), ComparedLayupsOf(*document, findings)};
    }
};

nlohmann::ordered_json SideJson(const DifferenceSide& side) {
    if (side.text.empty()) return nullptr;
    nlohmann::ordered_json json = {{"value", side.text}};
    if (!side.unit.empty()) json["unit"] = side.unit;
    return json;
}

/// Compares materials and layups value for value.
class Diff final : public Command {
public:
    void Declare(Arguments& line) override {
        line.Add("A", before_, "Card, document, or DOC#3: the document after its step 3").Required();
        line.Add("B", after_, "What it is compared with").Required();
    }

    void Work(CommandContext& context) override {
        if (before_ == "-" && after_ == "-") {
            context.findings.Add({FindingKind::USAGE,
                                  {"zelmat diff", 0},
                                  "usage",
                                  "standard input is read once, and can be one of the two alone",
                                  {}});
            return;
        }
        a_ = DiffSide(before_).Read(context);
        b_ = DiffSide(after_).Read(context);
        if (context.findings.HasErrors()) return;
        if (!(a_.materials && b_.materials) && !(a_.layups && b_.layups)) {
            context.findings.Add({FindingKind::USAGE,
                                  {"zelmat diff", 0},
                                  "not-comparable",
                                  "a material card and a layup card have nothing to compare",
                                  {}});
            return;
        }
        if (a_.materials && b_.materials) materials_ = Compared(*a_.materials, *b_.materials, context.units);
        if (a_.layups && b_.layups) layups_ = Compared(*a_.layups, *b_.layups, context.units);
        compared_ = true;
    }

    ExitCode Outcome() const override {
        const auto same = [](const auto& pairs) {
            return std::all_of(pairs.begin(), pairs.end(), [](const auto& pair) { return pair.IsSame(); });
        };
        return !compared_ || (same(materials_) && same(layups_)) ? EXIT_CLEAN : EXIT_FINDINGS;
    }

    void Print(std::ostream& out) const override {
        for (const auto& pair : materials_) PrintPair(out, "", pair);
        for (const auto& pair : layups_) PrintPair(out, "layup ", pair);
    }

    nlohmann::ordered_json Json() const override {
        nlohmann::ordered_json json = {
            {"same", nullptr}, {"materials", PairsJson(materials_)}, {"layups", PairsJson(layups_)}};
        if (compared_) json["same"] = Outcome() == EXIT_CLEAN;
        return json;
    }

private:
    template <class Each>
    void PrintPair(std::ostream& out, const char* noun, const ComparedPair<Each>& pair) const {
        if (pair.IsSame()) return;
        out << noun << Printable(pair.Name());
        if (!pair.after) out << ": only in " << Printable(before_);
        if (!pair.before) out << ": only in " << Printable(after_);
        out << '\n';
        for (const Difference& difference : pair.differences) {
            out << "  " << Printable(DifferenceText(difference)) << '\n';
        }
    }

    template <class Each>
    static nlohmann::ordered_json PairsJson(const std::vector<ComparedPair<Each>>& pairs) {
        nlohmann::ordered_json json = nlohmann::ordered_json::array();
        for (const ComparedPair<Each>& pair : pairs) {
            if (pair.IsSame()) continue;
            nlohmann::ordered_json& one = json.emplace_back(nlohmann::ordered_json{
                {"name", pair.Name()}, {"in_a", pair.before != nullptr}, {"in_b", pair.after != nullptr}});
            one["differences"] = nlohmann::ordered_json::array();
            for (const Difference& difference : pair.differences) {
                one["differences"].push_back({{"key", difference.key},
                                              {"row", difference.row},
                                              {"a", SideJson(difference.before)},
                                              {"b", SideJson(difference.after)}});
            }
        }
        return json;
    }

    std::string before_;
    std::string after_;
    DiffContent a_;  // which the pairs point into
    DiffContent b_;
    std::vector<ComparedPair<Material>> materials_;
    std::vector<ComparedPair<LayupCard>> layups_;
    bool compared_ = false;
};

}  // namespace

CommandKind DiffCommand() {
    return {.name = "diff",
            .brief = "compare cards, documents or steps of a document, value for value",
            .text =
                "Compare the materials and layups of two cards, documents or steps of a document (DOC#3\n"
                "DOC#7; #0: before the first that is kept), value for value, with units. They are compared\n"
                "by name, one alone with one alone whatever their names; with a material card materials "
                "alone, with a\n"
                "layup card layups alone. Exit code 0: they are the same, 1: they differ.",
            .units = true,
            .make = &MakeCommand<Diff>};
}

}  // namespace zelmat
