#include "zelmat/materials/CatalogPage.h"

#include "zelmat/materials/BuiltInCatalog.h"
#include "zelmat/quantities/NumberText.h"

namespace zelmat {

namespace {

constexpr const char* kHead =
    "# Catalog\n"
    "\n"
    "What a document can hold of a material and of layups: every late type of the module's catalog, with "
    "its\n"
    "attributes. Numbers are stored in the unit that stands here. A new feature begins with the defaults; "
    "an\n"
    "attribute without one is never valued at first. An attribute whose meaning changed got a new name; "
    "what\n"
    "older documents hold under the old one, the upgrade moves ([upgrade.md](upgrade.md)).\n"
    "\n"
    "This page is what `zelmat catalog` prints, made from the catalog file.\n";

std::string DefaultText(const KORValue& initial) {
    if (initial.State() == KORValueState::NeverValued) return "";
    switch (initial.Kind()) {
        case KORAttributeKind::Boolean:
            return initial.Boolean() ? "true" : "false";
        case KORAttributeKind::Integer:
            return std::to_string(initial.Integer());
        case KORAttributeKind::Double:
            return NumberText(initial.Double());
        case KORAttributeKind::String:
            return '"' + std::string(initial.String().View()) + '"';
        case KORAttributeKind::ListOfDoubles:
        case KORAttributeKind::Component:
        case KORAttributeKind::ListOfComponents:
            break;
    }
    return "";
}

std::string MeaningText(const KORCatalogAttribute& facts) {
    if (facts.supersededBy.empty()) return facts.meaning;
    return facts.meaning + "; of older documents, since then `" + facts.supersededBy + "`";
}

}  // namespace

std::string CatalogSection(const KORCatalogType& type) {
    std::string section = "## " + std::string(type.layout->Name()->Text()) + "\n\n" + type.meaning +
                          ". Since release " + std::to_string(type.since) + ".\n\n" +
                          "| Attribute | Kind | Unit | Default | Release | Meaning |\n" +
                          "|---|---|---|---|---|---|\n";
    const auto& attributes = type.layout->Attributes();
    for (std::size_t i = 0; i < attributes.size(); ++i) {
        const KORCatalogAttribute& facts = type.attributes[i];
        section += "| `" + std::string(attributes[i].name->Text()) + "` | " +
                   std::string(KORKindName(attributes[i].initial.Kind())) + " | " + facts.unit + " | " +
                   DefaultText(attributes[i].initial) + " | " + std::to_string(facts.since) + " | " +
                   MeaningText(facts) + " |\n";
    }
    return section;
}

std::string CatalogPage() {
    std::string page = kHead;
    for (const KORCatalogType& type : BuiltInCatalog().Types()) page += "\n" + CatalogSection(type);
    return page;
}

}  // namespace zelmat
