#include "tests/support/ZELLateTypes.h"

#include <utility>

void ZELLateTypes::Define(const std::string& lateType, std::vector<ZELAttribute> attributes) {
    types_[lateType] = std::move(attributes);
}

void ZELLateTypes::OmitAttribute(const std::string& lateType, const std::string& attribute) {
    std::erase_if(types_[lateType], [&](const ZELAttribute& other) { return other.name == attribute; });
}

const std::vector<ZELAttribute>* ZELLateTypes::Find(const std::string& lateType) const {
    const auto found = types_.find(lateType);
    return found == types_.end() ? nullptr : &found->second;
}
