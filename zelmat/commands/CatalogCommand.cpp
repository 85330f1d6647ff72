
#include "zelmat/commands/frame/Arguments.h"
#include "zelmat/commands/frame/Command.h"
#include "zelmat/materials/BuiltInCatalog.h"
#include "zelmat/materials/CatalogPage.h"
#include "zelmat/text/NearestName.h"
#include "zelmat/text/QuotedText.h"

namespace zelmat {

namespace {

std::string NameOf(const KORCatalogType& type) {
    return std::string(type.layout->Name()->Text());
}

nlohmann::ordered_json JsonOf(const KORCatalogType& type) {
    nlohmann::ordered_json json = {{"name", NameOf(type)},
                                   {"meaning", type.meaning},
                                   {"since", type.since},
                                   {"attributes", nlohmann::ordered_json::array()}};
    const auto& attributes = type.layout->Attributes();
    for (std::size_t i = 0; i < attributes.size(); ++i) {
        const KORCatalogAttribute& facts = type.attributes[i];
        nlohmann::ordered_json one = {{"name", attributes[i].name->Text()},
                                      {"kind", KORKindName(attributes[i].initial.Kind())},
                                      {"since", facts.since},
                                      {"meaning", facts.meaning}};
        if (!facts.unit.empty()) one["unit"] = facts.unit;
        if (!facts.supersededBy.empty()) one["superseded_by"] = facts.supersededBy;
        json["attributes"].push_back(std::move(one));
    }
    return json;
}

/// Prints the catalog that the program was built with, or one late type of it.
class Catalog final : public Command {
public:
    void Declare(Arguments& line) override {
        line.Add("TYPE", name_, "One late type: ZELElasticLT; without it, the whole catalog");
    }

    void Work(CommandContext& context) override {
        if (name_.empty()) return;
        std::vector<std::string> known;
        for (const KORCatalogType& type : BuiltInCatalog().Types()) {
            known.push_back(NameOf(type));
            if (known.back() == name_) return;
        }
        const std::string nearest = NearestName(name_, known);
        context.findings.Add({FindingKind::USAGE,
                              {"TYPE", 0},
                              "unknown-type",
                              "the catalog has no late type " + QuotedText(name_),
                              {nearest.empty() ? "see zelmat catalog" : "did you mean " + nearest + "?"}});
    }

    void Print(std::ostream& out) const override {
        if (name_.empty()) out << CatalogPage();
        for (const KORCatalogType& type : BuiltInCatalog().Types()) {
            if (NameOf(type) == name_) out << CatalogSection(type);
        }
    }

    nlohmann::ordered_json Json() const override {
        nlohmann::ordered_json json = {{"types", nlohmann::ordered_json::array()}};
        for (const KORCatalogType& type : BuiltInCatalog().Types()) {
            if (name_.empty() || NameOf(type) == name_) json["types"].push_back(JsonOf(type));
        }
        return json;
    }

private:
    std::string name_;
};

}  // namespace

CommandKind CatalogCommand() {
    return {.name = "catalog",
            .brief = "show what a document can hold of a material: types, attributes, units",
            .text =
                "Show the late types of the module's catalog, or one of them, as Markdown: each attribute\n"
                "with its kind, unit, default, the release that introduced it, and what it means.",
            .make = &MakeCommand<Catalog>};
}

}  // namespace zelmat
