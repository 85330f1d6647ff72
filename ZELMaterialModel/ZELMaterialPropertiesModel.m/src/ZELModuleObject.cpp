#include "ZELMaterialModel/include/ZELModuleObject.h"

#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELModule.h"
#include "framework/KORModule.h"

namespace {

KORModule& Module() {
    static KORModule& module = KORModule::Of(kZELModule);
    return module;
}

}  // namespace

ZELModuleObject::ZELModuleObject() {
    Module().ObjectMade();
}

ZELModuleObject::ZELModuleObject(const ZELModuleObject&) {
    Module().ObjectMade();
}

ZELModuleObject::~ZELModuleObject() {
    Module().ObjectGone();
}
