#pragma once

#include <map>

#include "ZELShared/ZELIAnalysisMaterial.h"
#include "interfaces/KORIContainer.h"
#include "interfaces/KORILinkableObject.h"
#include "interfaces/KORIMaterialFeature.h"
#include "interfaces/KORIMaterialSupport.h"
#include "tests/support/ZELMapWorld.h"

/// A material of the platform ("Material" in the log), on which features of either store can hang. It is its
/// own support. It lies in the given container, of whichever store, and is no member of it.
class ZELMapMaterial final
    : public ZELMapObject<KORISpecObject, KORIMaterialFeature, KORILinkableObject, ZELIAnalysisMaterial,
                          KORIMaterialSupport, KORIApplicativeHolder> {
public:
    explicit ZELMapMaterial(const KORIContainer_var& container,
                            const std::shared_ptr<ZELMapWorld>& world = std::make_shared<ZELMapWorld>())
        : ZELMapObject(world, "Material"), container_(container) {}

    KORUnicodeString GetType() override { return "MaterialLT"; }
    KORUnicodeString GetName() override { return "Material"; }
    KORBaseUnknown* GetFeatContainer() override;
    KORISpecObject* Instantiate(const KORUnicodeString&, KORIContainer*) override { return nullptr; }

    KORISpecObject* GetApplicativeFeature(const KORUnicodeString& name) override;
    HRESULT SetApplicativeFeature(const KORUnicodeString& name, KORISpecObject* feature) override;
    HRESULT RemoveApplicativeFeature(const KORUnicodeString& name) override;

    KORBaseUnknown* GetSupport() override;
    KORBaseUnknown* FindApplicative(const KORUnicodeString& name) override;

    KORDocument* GetDocument() override;

private:
    KORIContainer_var container_;
    std::map<std::string, KORISpecObject_var> applicative_;
};
