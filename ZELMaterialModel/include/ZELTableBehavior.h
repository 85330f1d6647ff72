#pragma once

#include "ZELMaterialModel/include/ZELRememberedFeature.h"
#include "ZELMaterialModel/include/ZELTemperatureDependentProperties.h"
#include "ZELShared/ZELCftArrayZELCftArrayDouble.h"
#include "interfaces/KORISpecObject.h"

struct ZELTableDescription;

/// What the table behaviors share: the material, the behavior's own feature, the enabled flag (kept on the
/// material) and the table, in memory and between memory and store. It only binds and moves values; which
/// reads a behavior runs when it is built, and in which order, stands in the behavior's own class.
///
/// Every store operation answers E_NOINTERFACE when its feature offers no attribute access (or there is none,
/// or it is the behavior's own, to be written, and undo took it away) and leaves memory as it was; E_FAIL
/// when the feature's type lacks an attribute, and a flag or number that was to be read is then zero in
/// memory.
class KOR_EXPORT ZELTableBehavior : public ZELTemperatureDependentProperties {
public:
    HRESULT GetPropertyDataFile() final;
    HRESULT SetPropertyDataFile() final;
    HRESULT GetPropertyTemperatureDependent() final;
    HRESULT SetPropertyTemperatureDependent() final;

protected:
    /// Takes references of its own on the material and its sub-feature. A null material, a material without
    /// attribute access and a missing sub-feature are reported on the diagnostic output and tolerated.
    ZELTableBehavior(KORISpecObject* material, ZELTableDescription& description);

    bool IsBound() const { return bound_; }  ///< false: no material to read from, nothing was looked up
    /// The behavior's own feature, to read from and to write to; null when there is none, and for writing
    /// also once it was taken away.
    KORISpecObject* Feature() const { return feature_.Get(); }
    KORISpecObject* FeatureForWriting() const { return feature_.ForWriting(); }

    const unsigned char& Enabled() const { return enabled_; }
    HRESULT StoreEnabled(const unsigned char& enabled);  ///< memory, then store
    HRESULT ReadEnabled();
    HRESULT WriteEnabled();

    ZELCftArrayZELCftArrayDouble& Table() { return table_; }
    HRESULT StoreTable(const ZELCftArrayZELCftArrayDouble& table);  ///< memory, then store
    HRESULT ReadTable();
    HRESULT WriteTable();

    /// Writes the text to the diagnostic output when the status is a failure.
    static void Report(HRESULT status, const char* text);

private:
    bool Bind();

    ZELTableDescription* description_;
    KORISpecObject_var material_;
    ZELRememberedFeature feature_;
    unsigned char enabled_ = 0;
    bool bound_ = false;
    ZELCftArrayZELCftArrayDouble table_;
};
