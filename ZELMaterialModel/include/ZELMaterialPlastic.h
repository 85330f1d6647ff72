#pragma once

#include "ZELMaterialModel/include/ZELTableBehavior.h"

class KORISpecAttrAccess;
class ZELIJohnsonCookData;

/// Plasticity of a material: a hardening type and one table, whose layout the type decides.
///
/// - "IsotropicHardening", "KinematicHardening": rows of [yield stress, plastic strain, temperature], always
///   three columns, whatever the temperature flag says. The first plastic strain has to be 0.
/// - "JohnsonCookHardening": one row of [A, B, n, m, melting temperature, transition temperature], kept in a
///   feature of its own, which comes into being when it is first read or written.
/// - the empty string: no table to read. Any other text is a broken invariant in both directions.
///
/// Values are stored unconverted (Pa, -, K). The table in memory is a snapshot: GetPlasticDataArray reads the
/// store, SetPlasticDataArray writes through. The hardening type is never kept in memory.
class KOR_EXPORT ZELMaterialPlastic final : public ZELTableBehavior {
public:
    explicit ZELMaterialPlastic(KORISpecObject* material);  ///< null is reported and tolerated

    const unsigned char& GetPlasticEnabled() const { return Enabled(); }
    HRESULT SetPlasticEnabled(const unsigned char& enabled) { return StoreEnabled(enabled); }

    /// E_NOINTERFACE without attribute access, E_FAIL when the feature lacks it; `type` is untouched then.
    HRESULT GetHardeningType(KORUnicodeString& type);

    /// Stores any text. Answers E_FAIL after a successful write, too: callers were written against that
    /// result and take no meaning from it. E_NOINTERFACE without attribute access.
    HRESULT SetHardeningType(const KORUnicodeString& type);

    /// The table as it is stored now; when it cannot be read, that is reported and what memory holds is
    /// returned.
    ZELCftArrayZELCftArrayDouble GetPlasticDataArray();

    /// Memory, then store. E_FAIL for a first plastic strain that is not 0; the data are stored all the same.
    /// E_FAIL for an empty Johnson-Cook table; nothing is stored, nor are rows behind the first. Nothing is
    /// stored either, and the answer is S_OK with a fatal report, while the hardening type is none of the
    /// three, the empty one included.
    HRESULT SetPlasticDataArray(const ZELCftArrayZELCftArrayDouble& rows);

    /// A new Johnson-Cook feature in the plastic feature's container, with coefficients 0 and both
    /// temperatures 273.15 K. One reference for the caller; null when the module's catalog does not yield
    /// one.
    static KORISpecObject* CreateJohnsonCookDataObject(KORISpecObject* plastic);

private:
    HRESULT GetPropertyPlasticEnabled() { return ReadEnabled(); }
    HRESULT SetPropertyPlasticEnabled() { return WriteEnabled(); }
    HRESULT GetPropertyPlasticityData();
    HRESULT SetPropertyPlasticityData();
    HRESULT InitPlasticProperties();

    KORUnicodeString HardeningType();  ///< empty when it cannot be read
    /// The stored Johnson-Cook feature, made and stored if there was none; empty when that is impossible.
    KORVar<ZELIJohnsonCookData> JohnsonCookData(KORISpecAttrAccess& access);
    HRESULT ReadJohnsonCook(KORISpecAttrAccess& access);
    HRESULT WriteJohnsonCook(KORISpecAttrAccess& access);
    HRESULT ReadCurve();
    HRESULT WriteCurve();

    friend class ZELTestAccess;
};
