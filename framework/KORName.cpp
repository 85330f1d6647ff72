#include "framework/KORName.h"

#include <unordered_map>

class KORNamePool {
public:
    /// Never destroyed: names are used by static objects of every library, in any order, up to the very end.
    static KORNamePool& Instance() {
        static KORNamePool& pool = *new KORNamePool;
        return pool;
    }

    const KORName* Find(std::string_view text) const {
        const auto found = names_.find(text);
        return found == names_.end() ? nullptr : found->second;
    }

    const KORName* Add(std::string_view text) {
        auto* name = new KORName(text, static_cast<std::uint32_t>(names_.size()));
        names_.emplace(name->Text(), name);
        return name;
    }

private:
    std::unordered_map<std::string_view, const KORName*> names_;
};

const KORName* KORName::Intern(std::string_view text) {
    const KORName* known = Find(text);
    return known ? known : KORNamePool::Instance().Add(text);
}

const KORName* KORName::Find(std::string_view text) {
    return KORNamePool::Instance().Find(text);
}
