#include <CLI/CLI.hpp>
#include <algorithm>
#include <charconv>
#include <filesystem>

#include "zelmat/commands/Command.h"
#include "zelmat/commands/GivenMaterials.h"
#include "zelmat/commands/MaterialPairs.h"
#include "zelmat/layups/LayupDifferences.h"
#include "zelmat/layups/WholeLayup.h"
#include "zelmat/materials/Differences.h"
#include "zelmat/text/Printable.h"

namespace zelmat {

namespace {

/// A material or layup of both sides, or of one.
struct DiffPair {
    std::string name;
    bool inA = false;
    bool inB = false;
    std::vector<Difference> differences = {};  // where it is in both

    bool IsSame() const { return inA && inB && differences.empty(); }
};

/// What one side holds.
struct DiffContent {
    std::vector<Material> materials = {};
    std::vector<LayupCard> layups = {};
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
        GivenFile given = OpenGiven(path, context.options, findings);
        if (given.text) return {.materials = CardsOfText(std::move(*given.text), path, findings)};
        return Held(given.document.get(), findings);
    }

private:
    static DiffContent Held(DocumentToRead* document, Findings& findings) {
        DiffContent content;
        if (!document) return content;
        content.materials = document->Materials(findings);
        for (WholeLayup& layup : ReadWholeLayups(document->Document(), document->Name(), findings)) {
            content.layups.push_back(std::move(layup.card));
        }
        return content;
    }
};

nlohmann::ordered_json SideJson(const DifferenceSide& side) {
    if (side.text.empty()) return nullptr;
    nlohmann::ordered_json json = {{"value", side.text}};
    if (!side.unit.empty()) json["unit"] = side.unit;
    return json;
}

/// Pairs by name, of equal names the first with the first; two alone whatever their names. `compare` answers
/// in what two differ.
template <class Each, class Compare>
std::vector<DiffPair> Pairs(const std::vector<Each>& a, const std::vector<Each>& b, Compare compare) {
    if (a.size() == 1 && b.size() == 1) {
        return {{a.front().name, true, true, compare(a.front(), b.front())}};
    }
    std::vector<DiffPair> pairs;
    std::vector<bool> taken(b.size(), false);
    for (const Each& before : a) {
        DiffPair pair{before.name, true, false};
        for (std::size_t at = 0; at < b.size() && !pair.inB; ++at) {
            if (taken[at] || b[at].name != before.name) continue;
            taken[at] = pair.inB = true;
            pair.differences = compare(before, b[at]);
        }
        pairs.push_back(std::move(pair));
    }
    for (std::size_t at = 0; at < b.size(); ++at) {
        if (!taken[at]) pairs.push_back({b[at].name, false, true});
    }
    return pairs;
}

/// Compares materials and layups value for value.
class Diff final : public Command {
public:
    void Declare(CLI::App& line) override {
        line.add_option("A", before_, "Card, document, or DOC#3: the document after its step 3")->required();
        line.add_option("B", after_, "What it is compared with")->required();
    }

    void Work(CommandContext& context) override {
        const DiffContent a = DiffSide(before_).Read(context);
        const DiffContent b = DiffSide(after_).Read(context);
        if (context.findings.HasErrors()) return;
        materials_ = Pairs(a.materials, b.materials, [&](const Material& before, const Material& after) {
            return Differences(before, after, context.units);
        });
        layups_ = Pairs(a.layups, b.layups, [&](const LayupCard& before, const LayupCard& after) {
            return LayupDifferences(before, after, context.units);
        });
        compared_ = true;
    }

    ExitCode Outcome() const override {
        const auto same = [](const std::vector<DiffPair>& pairs) {
            return std::all_of(pairs.begin(), pairs.end(),
                               [](const DiffPair& pair) { return pair.IsSame(); });
        };
        return !compared_ || (same(materials_) && same(layups_)) ? EXIT_CLEAN : EXIT_FINDINGS;
    }

    void Print(std::ostream& out) const override {
        for (const DiffPair& pair : materials_) PrintPair(out, "", pair);
        for (const DiffPair& pair : layups_) PrintPair(out, "layup ", pair);
    }

    nlohmann::ordered_json Json() const override {
        nlohmann::ordered_json json = {
            {"same", nullptr}, {"materials", PairsJson(materials_)}, {"layups", PairsJson(layups_)}};
        if (compared_) json["same"] = Outcome() == EXIT_CLEAN;
        return json;
    }

private:
    void PrintPair(std::ostream& out, const char* noun, const DiffPair& pair) const {
        if (pair.IsSame()) return;
        out << noun << Printable(pair.name);
        if (!pair.inB) out << ": only in " << Printable(before_);
        if (!pair.inA) out << ": only in " << Printable(after_);
        out << '\n';
        for (const Difference& difference : pair.differences) {
            out << "  " << Printable(DifferenceText(difference)) << '\n';
        }
    }

    static nlohmann::ordered_json PairsJson(const std::vector<DiffPair>& pairs) {
        nlohmann::ordered_json json = nlohmann::ordered_json::array();
        for (const DiffPair& pair : pairs) {
            if (pair.IsSame()) continue;
            nlohmann::ordered_json& one = json.emplace_back(
                nlohmann::ordered_json{{"name", pair.name}, {"in_a", pair.inA}, {"in_b", pair.inB}});
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
    std::vector<DiffPair> materials_;
    std::vector<DiffPair> layups_;
    bool compared_ = false;
};

}  // namespace

CommandKind DiffCommand() {
    return {.name = "diff",
            .brief = "compare cards, documents or steps of a document, value for value",
            .text =
                "Compare the materials and layups of two cards, documents or steps of a document (DOC#3 "
                "DOC#7; #0: before\n"
                "the first that is kept), value for value, with units. Materials are compared by name, one\n"
                "with one whatever their names. Exit code 0: they are the same, 1: they differ.",
            .units = true,
            .make = &MakeCommand<Diff>};
}

}  // namespace zelmat
