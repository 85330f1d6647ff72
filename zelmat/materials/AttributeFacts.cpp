#include "zelmat/materials/AttributeFacts.h"

#include <stdexcept>

#include "platform/catalog/KORCatalogFile.h"
#include "zelmat/materials/BuiltInCatalog.h"

namespace zelmat {

namespace {

const KORCatalogFile& Catalog() {
    static const auto catalog = [] {
        KORFileError error;
        auto read = KORCatalogFile::FromText(kBuiltInCatalog, "the built-in catalog", error);
        if (!read) throw std::logic_error(error.Text());
        return read;
    }();
    return *catalog;
}

}  // namespace

AttributeFacts FactsOf(const char* lateType, const char* attribute) {
    const KORCatalogType* type = Catalog().Find(KORName::Intern(lateType));
    if (type) {
        const auto& attributes = type->layout->Attributes();
        for (std::size_t i = 0; i < attributes.size(); ++i) {
            if (attributes[i].name != KORName::Intern(attribute)) continue;
            const KORCatalogAttribute& facts = type->attributes[i];
            return {facts.meaning.substr(0, facts.meaning.find(';')), facts.meaning,
                    attributes[i].initial.Kind(), facts.unit, facts.since};
        }
    }
    throw std::logic_error(std::string(lateType) + " has no attribute " + attribute);
}

}  // namespace zelmat
