#include "zelmat/materials/AttributeFacts.h"

#include <stdexcept>

#include "zelmat/materials/BuiltInCatalog.h"

namespace zelmat {

AttributeFacts FactsOf(const char* lateType, const char* attribute) {
    const KORCatalogType* type = BuiltInCatalog().Find(KORName::Intern(lateType));
    if (type) {
        const auto& attributes = type->layout->Attributes();
        for (std::size_t i = 0; i < attributes.size(); ++i) {
            if (attributes[i].name != KORName::Intern(attribute)) continue;
            const KORCatalogAttribute& facts = type->attributes[i];
            return {facts.meaning.substr(0, facts.meaning.find(';')), attributes[i].initial.Kind(),
                    facts.unit};
        }
    }
    throw std::logic_error(std::string(lateType) + " has no attribute " + attribute);
}

}  // namespace zelmat
