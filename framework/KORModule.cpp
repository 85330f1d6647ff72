#include "framework/KORModule.h"

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

void KORModule::ForgetRecords() {
    bindings.clear();
    classes.clear();
}
