#pragma once

#include "ZELMaterialModel/include/ZELModuleObject.h"
#include "ZELMaterialModel/include/ZELRememberedFeature.h"
#include "interfaces/KORISpecObject.h"

/// Hyperelasticity of a material: whether it is switched on, the name of the material model, and the feature
/// that holds the model's data (reached through ZELIHyperelasticMaterialModel). It holds no coefficients and
/// keeps no value in memory. Every failure is E_FAIL; nothing is reported. It fails without a feature to work
/// on, attribute access or the attribute, and the argument of a getter is untouched then; for the setters, a
/// feature that undo took away is none.
class KOR_EXPORT ZELHyperelastic : private ZELModuleObject {
public:
    explicit ZELHyperelastic(KORISpecObject* material);  ///< null is tolerated
    virtual ~ZELHyperelastic();

    HRESULT GetHyperelasticEnabled(unsigned char& enabled);  ///< on the material itself
    HRESULT SetHyperelasticEnabled(unsigned char enabled);

    /// One of "ARRUDA_BOYCE", "MOONEY_RIVLIN", "NEO_HOOKE", "OGDEN", "POLYNOMIAL", "REDUCED_POLYNOMIAL",
    /// "VAN_DER_WAALS", "YEOH"; any text is stored.
    HRESULT GetMaterialModelType(KORUnicodeString& type);
    HRESULT SetMaterialModelType(const KORUnicodeString& type);

    /// The model's feature; S_OK and an empty handle when none is stored.
    HRESULT GetHyperelasticMaterialModel(KORISpecObject_var& model);
    HRESULT SetHyperelasticMaterialModel(const KORISpecObject_var& model);

private:
    KORISpecObject_var material_;
    ZELRememberedFeature feature_;
    unsigned char reserved_ = 0;  ///< room that older callers count on; no operation reads it
};
