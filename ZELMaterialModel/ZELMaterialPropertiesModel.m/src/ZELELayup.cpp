#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELELayup.h"

#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELMaterialConstants.h"
#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELModule.h"
#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/store/ZELAttribute.h"
#include "ZELMaterialModel/include/TIEZELILayup.h"
#include "ZELShared/ZELIShellSection.h"
#include "framework/KORDictionary.h"
#include "interfaces/KORISamAnalysisEntity.h"
#include "interfaces/KORISamAnalysisSet.h"

KORImplementClass(ZELELayup, KORClassKind::DataExtension, ZELLateType::ZELLayupLT.c_str(), kZELModule)

KORBaseUnknown* ZELELayup::CreateItself() {
    return new ZELELayup;
}

extern "C" KOR_EXPORT KORIUnknown* CreateTIEZELILayupZELELayup(KORBaseUnknown* implementation,
                                                               KORBaseUnknown* outer) {
    return KORCreateTie<TIEZELILayup<ZELELayup>>(implementation, outer);
}

namespace {

const KORFillDictionary entry(ZELELayup::MetaObject(), ZELILayup::MetaObject(), CreateTIEZELILayupZELELayup,
                              nullptr, 1);

}  // namespace

HRESULT ZELELayup::SetLayers(const KORListValKORISpecObject_var& layers) {
    const auto replace = [&layers](KORISpecAttrAccess& access, KORISpecAttrKey* key) {
        if (access.GetListSize(key) > 0) access.RemoveAllValues(key);
        for (int position = 1; position <= layers.Size(); ++position) {
            access.AppendComponent(key, KORBaseUnknown_var(layers[position]).Get());
        }
    };
    return ZELFailOnly(
        ZELUseAttribute(KORISpecObject_var::Of(this).Get(), ZELKeyOnce(ZELKey::LayerList), replace));
}

HRESULT ZELELayup::GetLayers(KORListValKORISpecObject_var& layers) {
    const auto append = [&layers](KORISpecAttrAccess& access, KORISpecAttrKey* key) {
        const int size = access.GetListSize(key);
        for (int position = 1; position <= size; ++position) {
            const auto stored = KORBaseUnknown_var::Adopt(access.GetComponent(key, position));
            const KORISpecObject_var layer(stored);
            if (layer) layers.Append(layer);
        }
    };
    return ZELFailOnly(
        ZELUseAttribute(KORISpecObject_var::Of(this).Get(), ZELKeyOnce(ZELKey::LayerList), append));
}

bool ZELELayup::IsUnused() {
    const auto entity = KORISamAnalysisEntity_var::Of(this);
    const auto feature = KORISpecObject_var::Of(this);
    if (!entity || !feature) return true;
    const KORListValKORBaseUnknown_var parents = entity->GetParentSets();
    const KORISamAnalysisSet_var set = parents.Size() > 0 ? KORISamAnalysisSet_var(parents[1]) : nullptr;
    if (!set) return true;
    const KORListValKORISpecObject_var sections = set->GetFeatures(ZELLateType::ZELShellSectionEnhLT);
    for (int position = 1; position <= sections.Size(); ++position) {
        const ZELIShellSection_var section(sections[position]);
        if (!section) return true;  // the sections after it are not looked at
        if (section->GetSectionType() != kZELCompositeSection) continue;
        const auto layup = KORISpecObject_var::Adopt(section->GetLayup());
        if (KORBaseUnknown_var(layup).Get() == MainObject()) return false;
    }
    return true;
}
