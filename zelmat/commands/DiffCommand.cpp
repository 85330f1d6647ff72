#include <CLI/CLI.hpp>
#include <algorithm>
#include <charconv>
#include <filesystem>

#include "zelmat/commands/Command.h"
#include "zelmat/commands/GivenMaterials.h"
#include "zelmat/materials/Differences.h"
#include "zelmat/text/Printable.h"

namespace zelmat {

namespace {

/// A material of both sides, or of one.
struct DiffPair {
    const Material* before = nullptr;
    const Material* after = nullptr;
    std::vector<Difference> differences = {};  // where there are both

    bool IsSame() const { return before && after && differences.empty(); }
    const std::string& Name() const { return (before ? before : after)->name; }
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

    std::vector<Material> Read(const CommandContext& context) const {
        if (!step) return ReadGivenMaterials(path, context.options, context.findings);
        const auto document = DocumentToRead::Open(path, context.options.catalogs, context.findings, step);
        return document ? document->Materials(context.findings) : std::vector<Material>();
    }
};

std::string SideText(const DifferenceSide& side) {
    if (side.text.empty()) return "-";
    return Printable(side.unit.empty() ? side.text : side.text + " " + side.unit);
}

nlohmann::ordered_json SideJson(const DifferenceSide& side) {
    if (side.text.empty()) return nullptr;
    nlohmann::ordered_json json = {{"value", side.text}};
    if (!side.unit.empty()) json["unit"] = side.unit;
    return json;
}

/// Compares materials value for value.
class Diff final : public Command {
public:
    void Declare(CLI::App& line) override {
        line.add_option("A", before_, "Card, document, or DOC#3: the document after its step 3")->required();
        line.add_option("B", after_, "What it is compared with")->required();
    }

    void Work(CommandContext& context) override {
        a_ = DiffSide(before_).Read(context);
        b_ = DiffSide(after_).Read(context);
        if (context.findings.HasErrors()) return;
        Pair();
        for (DiffPair& pair : pairs_) {
            if (pair.before && pair.after) {
                pair.differences = Differences(*pair.before, *pair.after, context.units);
            }
        }
        compared_ = true;
    }

    ExitCode Outcome() const override {
        const bool same =
            std::all_of(pairs_.begin(), pairs_.end(), [](const DiffPair& pair) { return pair.IsSame(); });
        return !compared_ || same ? EXIT_CLEAN : EXIT_FINDINGS;
    }

    void Print(std::ostream& out) const override {
        for (const DiffPair& pair : pairs_) {
            if (pair.IsSame()) continue;
            out << Printable(pair.Name());
            if (!pair.after) out << ": only in " << Printable(before_);
            if (!pair.before) out << ": only in " << Printable(after_);
            out << '\n';
            for (const Difference& difference : pair.differences) {
                out << "  " << Printable(difference.key);
                if (difference.row > 0) out << " row " << difference.row;
                out << ": " << SideText(difference.before) << " -> " << SideText(difference.after) << '\n';
            }
        }
    }

    nlohmann::ordered_json Json() const override {
        nlohmann::ordered_json json = {{"same", nullptr}, {"materials", nlohmann::ordered_json::array()}};
        if (!compared_) return json;
        json["same"] = Outcome() == EXIT_CLEAN;
        for (const DiffPair& pair : pairs_) {
            if (pair.IsSame()) continue;
            nlohmann::ordered_json one = {{"name", pair.Name()},
                                          {"in_a", pair.before != nullptr},
                                          {"in_b", pair.after != nullptr},
                                          {"differences", nlohmann::ordered_json::array()}};
            for (const Difference& difference : pair.differences) {
                one["differences"].push_back({{"key", difference.key},
                                              {"row", difference.row},
                                              {"a", SideJson(difference.before)},
                                              {"b", SideJson(difference.after)}});
            }
            json["materials"].push_back(std::move(one));
        }
        return json;
    }

private:
    /// By name, of equal names the first with the first; two materials alone whatever their names.
    void Pair() {
        if (a_.size() == 1 && b_.size() == 1) {
            pairs_.push_back({&a_.front(), &b_.front()});
            return;
        }
        std::vector<bool> taken(b_.size(), false);
        for (const Material& material : a_) {
            DiffPair pair{&material, nullptr};
            for (std::size_t at = 0; at < b_.size() && !pair.after; ++at) {
                if (taken[at] || b_[at].name != material.name) continue;
                taken[at] = true;
                pair.after = &b_[at];
            }
            pairs_.push_back(std::move(pair));
        }
        for (std::size_t at = 0; at < b_.size(); ++at) {
            if (!taken[at]) pairs_.push_back({nullptr, &b_[at]});
        }
    }

    std::string before_;
    std::string after_;
    std::vector<Material> a_;
    std::vector<Material> b_;
    std::vector<DiffPair> pairs_;
    bool compared_ = false;
};

}  // namespace

CommandKind DiffCommand() {
    return {
        .name = "diff",
        .brief = "compare cards, documents or steps of a document, value for value",
        .text =
            "Compare the materials of two cards, documents or steps of a document (DOC#3 DOC#7; #0: before\n"
            "the first that is kept), value for value, with units. Materials are compared by name, one\n"
            "with one whatever their names. Exit code 0: they are the same, 1: they differ.",
        .units = true,
        .make = &MakeCommand<Diff>};
}

}  // namespace zelmat
