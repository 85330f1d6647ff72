#include "ZELShared/ZELAnalysisMaterialExtension.h"

#include "ZELShared/TIEZELIAnalysisMaterial.h"
#include "ZELShared/ZELSharedModule.h"
#include "framework/KORDictionary.h"

KORImplementClass(ZELAnalysisMaterialExtension, KORClassKind::CodeExtension, "KORMaterialLT",
                  kZELSharedModule)

KORBaseUnknown* ZELAnalysisMaterialExtension::CreateItself() {
    return new ZELAnalysisMaterialExtension;
}

namespace {

const KORFillDictionary entry(ZELAnalysisMaterialExtension::MetaObject(), ZELIAnalysisMaterial::MetaObject(),
                              KORCreateTie<TIEZELIAnalysisMaterial<ZELAnalysisMaterialExtension>>, nullptr,
                              1);

}  // namespace
