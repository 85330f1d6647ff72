#pragma once

#include "ZELMaterialModel/include/ZELTableBehavior.h"

/// Isotropic elasticity of a material: rows of [Young's modulus, Poisson's ratio] or, when temperature
/// dependent, [Young's modulus, Poisson's ratio, temperature], stored unconverted (Pa, -, K).
///
/// A table that does not depend on temperature keeps only its first row, in memory and in the store. If the
/// behavior is enabled, the cut is told to the caller by a warning carried in the result code.
class KOR_EXPORT ZELMaterialElastic final : public ZELTableBehavior {
public:
    explicit ZELMaterialElastic(KORISpecObject* material);  ///< null is reported and tolerated

    const unsigned char& GetElasticEnabled() const { return Enabled(); }
    ZELCftArrayZELCftArrayDouble GetElasticDataArray() {
        return Table();
    }  ///< a copy; never touches the store

    HRESULT SetElasticEnabled(const unsigned char& enabled) { return StoreEnabled(enabled); }

    /// Memory, then store; the result of SetPropertyElasticDataArray.
    HRESULT SetElasticDataArray(const ZELCftArrayZELCftArrayDouble& rows);

    HRESULT GetPropertyElasticEnabled() { return ReadEnabled(); }
    HRESULT SetPropertyElasticEnabled() { return WriteEnabled(); }

    /// S_OK also for inconsistent columns; they are reported and the rows before the gap kept.
    HRESULT GetPropertyElasticDataArray() { return ReadTable(); }

    /// S_OK, or a success code that carries the warning of a cut table (KORError::Find gives it back), or a
    /// failure.
    HRESULT SetPropertyElasticDataArray();

    HRESULT InitElasticProperties();  ///< reads everything, reports what fails and goes on; always S_OK
};
