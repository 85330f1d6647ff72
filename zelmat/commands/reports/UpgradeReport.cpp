#include "zelmat/commands/reports/UpgradeReport.h"

#include <algorithm>

#include "zelmat/materials/StatusText.h"
#include "zelmat/quantities/NumberColumn.h"
#include "zelmat/text/Printable.h"
#include "zelmat/text/TablePrinter.h"
#include "zelmat/text/WordList.h"

namespace zelmat {

namespace {

/// A feature as the report names it: late type and number.
std::string FeatureText(const UpgradeReport& report, std::uint32_t number) {
    const auto type = report.lateTypes.find(number);
    return (type == report.lateTypes.end() ? "feature" : Printable(type->second)) + " " +
           std::to_string(number);
}

/// "Container" is where a feature lies: one that was not there before has just been made.
std::string ChangeText(const UpgradeReport& report, const KORUpgradeChange& change) {
    if (std::string_view(change.attribute) != "Container") return change.attribute;
    return change.feature > report.lastBefore ? "created" : "moved or removed";
}

/// The changes of one feature each, in the order in which the features were first changed.
struct FeatureChanges {
    std::uint32_t feature;
    std::string lateType;
    std::vector<std::string> what;
};

std::vector<FeatureChanges> ByFeature(const UpgradeReport& report, const KORUpgradedFeature& material) {
    std::vector<FeatureChanges> features;
    std::unordered_map<std::uint32_t, std::size_t> places;
    for (const KORUpgradeChange& change : material.changes) {
        const auto [place, added] = places.emplace(change.feature, features.size());
        if (added) features.push_back({change.feature, change.lateType.c_str(), {}});
        auto& what = features[place->second].what;
        std::string text = ChangeText(report, change);
        if (std::find(what.begin(), what.end(), text) == what.end()) what.push_back(std::move(text));
    }
    return features;
}

void PrintConverted(std::ostream& out, const ConvertedCoefficients& converted) {
    out << "  coefficients: " << Printable(converted.model) << ", from " << converted.from << " to "
        << converted.to << '\n';
    std::vector<double> before, after, factors;
    for (const auto& row : converted.rows) {
        for (const ConvertedCoefficient& coefficient : row) {
            before.push_back(coefficient.before);
            after.push_back(coefficient.after);
            factors.push_back(coefficient.factor);
        }
    }
    const auto befores = NumberColumn(before), afters = NumberColumn(after), times = NumberColumn(factors);
    TablePrinter printer({"row", "coefficient", "before", "after", "times"});
    printer.SetLeft(1);
    std::size_t line = 0;
    for (std::size_t row = 0; row < converted.rows.size(); ++row) {
        for (const ConvertedCoefficient& coefficient : converted.rows[row]) {
            printer.AddRow(
                {std::to_string(row + 1), coefficient.name, befores[line], afters[line], times[line]});
            ++line;
        }
    }
    printer.Print(out);
}

nlohmann::ordered_json ToJson(const ConvertedCoefficients& converted) {
    using nlohmann::ordered_json;
    ordered_json rows = ordered_json::array();
    for (const auto& row : converted.rows) {
        ordered_json values = ordered_json::array();
        for (const auto& [name, before, after, factor] : row) {
            values.push_back({{"name", name}, {"before", before}, {"after", after}, {"factor", factor}});
        }
        rows.push_back(std::move(values));
    }
    return {{"model", converted.model},
            {"order", converted.order},
            {"from", converted.from},
            {"to", converted.to},
            {"rows", std::move(rows)}};
}

void PrintMaterial(std::ostream& out, const UpgradeReport& report, const KORUpgradedFeature& material) {
    out << '\n' << Printable(material.name.c_str()) << '\n';
    for (const FeatureChanges& changed : ByFeature(report, material)) {
        out << "  " << Printable(changed.lateType) << ' ' << changed.feature << ": "
            << Printable(WordList(changed.what)) << '\n';
    }
    const auto converted = report.converted.find(material.feature);
    if (converted != report.converted.end()) PrintConverted(out, converted->second);
    out << "  upgrade: " << (SUCCEEDED(material.status) ? "done" : "failed, " + StatusText(material.status))
        << '\n'
        << "  still needed: " << (material.stillNeeded ? "yes" : "no") << '\n';
    if (material.replacement != 0) {
        out << "  replaced by: " << FeatureText(report, material.replacement) << '\n';
    }
    if (!material.unlisted.empty()) {
        out << "  in the document, but no longer listed anywhere: "
            << WordList(material.unlisted, [&](std::uint32_t number) { return FeatureText(report, number); })
            << '\n';
    }
}

}  // namespace

void PrintUpgrade(std::ostream& out, const UpgradeReport& report) {
    out << "materials: " << report.run.asked << ", upgraded: " << report.run.upgraded.size() << '\n';
    if (report.run.refused) out << "refused: nothing was changed\n";
    for (const KORUpgradedFeature& material : report.run.upgraded) PrintMaterial(out, report, material);
}

nlohmann::ordered_json ToJson(const UpgradeReport& report) {
    using nlohmann::ordered_json;
    ordered_json json = {{"materials", report.run.asked},
                         {"refused", report.run.refused},
                         {"upgraded", ordered_json::array()}};
    for (const KORUpgradedFeature& material : report.run.upgraded) {
        ordered_json told = {{"name", material.name.c_str()},
                             {"feature", material.feature},
                             {"replacement", nullptr},
                             {"status", material.status},
                             {"still_needed", material.stillNeeded},
                             {"changes", ordered_json::array()},
                             {"coefficients", nullptr},
                             {"no_longer_listed", material.unlisted}};
        if (material.replacement != 0) told["replacement"] = material.replacement;
        for (const FeatureChanges& changed : ByFeature(report, material)) {
            told["changes"].push_back(
                {{"feature", changed.feature}, {"late_type", changed.lateType}, {"what", changed.what}});
        }
        const auto converted = report.converted.find(material.feature);
        if (converted != report.converted.end()) told["coefficients"] = ToJson(converted->second);
        json["upgraded"].push_back(std::move(told));
    }
    return json;
}

}  // namespace zelmat
