#include "framework/KORModule.h"

#include <algorithm>
#include <string_view>

#include "framework/KORMetaClass.h"
#include "framework/KORTieRecord.h"

KORModule::KORModule(const KORName* name) : name_(name) {}

KORModule::~KORModule() = default;

KORModule& KORModule::Of(const char* name) {
    static auto& modules = *new std::vector<KORModule*>;
    for (KORModule* module : modules) {
        if (module->name_->Text() == name) return *module;
    }
    modules.push_back(new KORModule(KORName::Intern(name)));
    return *modules.back();
}

std::size_t KORModule::Records() const {
    return classes.size() + bindings.size();
}

void KORModule::Forget(const KORMetaClass& record) {
    std::erase_if(classes, [&record](const auto& kept) { return kept.get() == &record; });
}

void KORModule::Forget(const KORTieRecord& record) {
    // Out of the list first: with the binding's record may go the last use of its class's record.
    const auto isIt = [&record](const auto& kept) { return kept.get() == &record; };
    const auto place = std::ranges::find_if(bindings, isIt);
    const auto last = std::move(*place);
    bindings.erase(place);
}
