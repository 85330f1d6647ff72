#include "tests/support/ZELCatalogText.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <nlohmann/json.hpp>
#include <stdexcept>
#include <utility>

#include "platform/catalog/KORCatalogFile.h"

namespace {

using nlohmann::json;

/// As catalog files call the kinds, in the order of the kinds.
constexpr std::array kKinds = {"boolean",   "integer",           "double", "string", "list of doubles",
                               "component", "list of components"};

/// What the map store and the texts of this file need to know of an initial value.
ZELAttribute Describe(const KORAttribute& attribute) {
    const KORValue& initial = attribute.initial;
    ZELAttribute described{attribute.name->Text(), initial.Kind(), {}};
    if (initial.State() != KORValueState::Valued) return described;
    if (described.kind == ZELKind::Boolean) described.initial = initial.Boolean();
    if (described.kind == ZELKind::Integer) described.initial = initial.Integer();
    if (described.kind == ZELKind::Double) described.initial = initial.Double();
    return described;
}

/// The module's catalog as it is written: late types keep the roles that they have there.
const json& Original(const std::string& lateType) {
    static const json catalog = json::parse(std::ifstream(ZELModuleCatalog()));
    static const json none = {{"attributes", json::array()}};
    const auto found = std::ranges::find_if(
        catalog["types"], [&lateType](const json& type) { return type["name"] == lateType; });
    return found == catalog["types"].end() ? none : *found;
}

void KeepRole(const json& original, json& written) {
    if (original.contains("role")) written["role"] = original["role"];
}

json Write(const ZELAttribute& attribute) {
    json written = {{"name", attribute.name},
                    {"kind", kKinds[static_cast<std::size_t>(attribute.kind)]},
                    {"since", 1},
                    {"meaning", "for a test"}};
    const bool isNumber = attribute.kind == ZELKind::Double || attribute.kind == ZELKind::ListOfDoubles;
    if (isNumber) written["unit"] = "-";
    if (attribute.kind == ZELKind::String) written["default"] = "";
    if (attribute.kind <= ZELKind::Double) written["default"] = nullptr;
    if (const bool* flag = std::get_if<bool>(&attribute.initial)) written["default"] = *flag;
    if (const int* whole = std::get_if<int>(&attribute.initial)) written["default"] = *whole;
    if (const double* number = std::get_if<double>(&attribute.initial)) written["default"] = *number;
    return written;
}

ZELLateTypes ReadModuleTypes() {
    KORFileError error;
    const auto catalog = KORCatalogFile::Open(ZELModuleCatalog(), error);
    if (!catalog) throw std::runtime_error(error.Text());
    ZELLateTypes types;
    for (const KORCatalogType& type : catalog->Types()) {
        std::vector<ZELAttribute> attributes;
        for (const KORAttribute& attribute : type.layout->Attributes()) {
            attributes.push_back(Describe(attribute));
        }
        types.Define(type.layout->Name()->Text(), std::move(attributes));
    }
    return types;
}

}  // namespace

const char* ZELModuleCatalog() {
    return ZEL_MODULE_CATALOG;
}

const char* ZELSharedCatalog() {
    return ZEL_SHARED_CATALOG;
}

const ZELLateTypes& ZELModuleTypes() {
    static const ZELLateTypes types = ReadModuleTypes();
    return types;
}

std::string ZELCatalogText(const ZELLateTypes& types) {
    json written = {{"format", 1}, {"types", json::array()}};
    for (const auto& [lateType, attributes] : types.All()) {
        json type = {
            {"name", lateType}, {"since", 1}, {"meaning", "for a test"}, {"attributes", json::array()}};
        const json& original = Original(lateType);
        KeepRole(original, type);
        for (const ZELAttribute& attribute : attributes) {
            type["attributes"].push_back(Write(attribute));
            for (const json& same : original["attributes"]) {
                if (same["name"] == attribute.name) KeepRole(same, type["attributes"].back());
            }
        }
        written["types"].push_back(std::move(type));
    }
    return written.dump(1);
}
