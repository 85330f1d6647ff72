#pragma once

#include <map>
#include <string>
#include <variant>
#include <vector>

#include "platform/store/KORAttributeKind.h"

using ZELKind = KORAttributeKind;

/// One attribute of a late type, with the value that a new feature has; std::monostate: never valued.
struct ZELAttribute {
    std::string name;
    ZELKind kind;
    std::variant<std::monostate, bool, int, double> initial = {};
};

/// Descriptions of late types, by name: what the stores under test make features of.
class ZELLateTypes {
public:
    void Define(const std::string& lateType, std::vector<ZELAttribute> attributes);
    void OmitType(const std::string& lateType) { types_.erase(lateType); }
    void OmitAttribute(const std::string& lateType, const std::string& attribute);

    const std::vector<ZELAttribute>* Find(const std::string& lateType) const;  ///< null when there is none
    const std::map<std::string, std::vector<ZELAttribute>>& All() const { return types_; }

private:
    std::map<std::string, std::vector<ZELAttribute>> types_;
};
