#pragma once

#include "ZELMaterialModel/include/ZELGasketBehavior.h"

/// Behavior of a gasket in its thickness direction: whether the material is a gasket at all, the kinds of
/// behavior and of yield onset, and three tables of pressure against closure. The enabled flag lies on the
/// material, all else on the gasket's own features.
///
/// Rows of the loading table are [pressure, closure, temperature], of elastic-plastic unloading [pressure,
/// closure, plastic closure, temperature], of damage unloading [pressure, closure, maximum closure,
/// temperature]; stored unconverted (Pa, m, K).
///
/// Every operation answers S_OK or E_FAIL and reads or writes the store at once; a getter leaves its argument
/// as it is on failure. Copies: see ZELGasketBehavior.
class KOR_EXPORT ZELGasketThicknessBehavior final : public ZELGasketBehavior {
public:
    /// Stored as their values. A new material has the values named here; the others belong to the dialogs and
    /// the analysis-input writer, and any value is stored.
    enum GasketThicknessType : int { InitialThicknessType = 10 };
    enum GasketYieldOnsetMethodType : int { InitialYieldOnsetMethod = 20 };

    /// Binds to the material's gasket features. A null material and one without attribute access are
    /// reported; what is missing below it ends the binding silently, and what was not reached answers E_FAIL.
    explicit ZELGasketThicknessBehavior(KORISpecObject* material);

    HRESULT GetGasketEnabled(unsigned char& enabled);
    HRESULT SetGasketEnabled(const unsigned char& enabled);
    HRESULT GetGasketThicknessBehaviorType(GasketThicknessType& type);
    HRESULT SetGasketThicknessBehaviorType(const GasketThicknessType& type);
    HRESULT GetGasketYieldOnsetMethodType(GasketYieldOnsetMethodType& method);
    HRESULT SetGasketYieldOnsetMethodType(const GasketYieldOnsetMethodType& method);
    HRESULT GetGasketYieldOnsetMethodRelativeValue(double& value);  ///< relative drop of stiffness, -
    HRESULT SetGasketYieldOnsetMethodRelativeValue(const double& value);
    HRESULT GetGasketYieldOnsetMethodClosureValue(double& value);  ///< closure at yield onset, m
    HRESULT SetGasketYieldOnsetMethodClosureValue(const double& value);
    HRESULT GetGasketTensileStiffnessFactor(double& value);  ///< fraction of the initial stiffness, -
    HRESULT SetGasketTensileStiffnessFactor(const double& value);
    HRESULT GetGasketThicknessUnLoadingFlag(unsigned char& given);  ///< unloading data are given
    HRESULT SetGasketThicknessUnLoadingFlag(const unsigned char& given);

    HRESULT GetGasketLoadingDataFile(KORUnicodeString& name);
    HRESULT SetGasketLoadingDataFile(const KORUnicodeString& name);
    HRESULT GetGasketLoadingTemperatureDependentFlag(unsigned char& dependent);
    HRESULT SetGasketLoadingTemperatureDependentFlag(const unsigned char& dependent);

    /// The getters of tables append to the caller's table. E_FAIL, and it is as it was, when a column was
    /// never valued or the columns differ in length.
    HRESULT GetGasketLoadingDataArray(ZELCftArrayZELCftArrayDouble& rows);

    /// E_FAIL when the curve does not start at pressure 0 and closure 0, or has fewer than 3 rows. It is
    /// stored all the same: the check comes after the write.
    HRESULT SetGasketLoadingDataArray(const ZELCftArrayZELCftArrayDouble& rows);

    HRESULT GetGasketUnLoadingEPDataFile(KORUnicodeString& name);
    HRESULT SetGasketUnLoadingEPDataFile(const KORUnicodeString& name);
    HRESULT GetGasketUnLoadingEPTemperatureDependentFlag(unsigned char& dependent);
    HRESULT SetGasketUnLoadingEPTemperatureDependentFlag(const unsigned char& dependent);
    HRESULT GetGasketUnLoadingEPDataArray(ZELCftArrayZELCftArrayDouble& rows);
    HRESULT SetGasketUnLoadingEPDataArray(const ZELCftArrayZELCftArrayDouble& rows);  ///< not checked

    HRESULT GetGasketUnLoadingDamageDataFile(KORUnicodeString& name);
    HRESULT SetGasketUnLoadingDamageDataFile(const KORUnicodeString& name);
    HRESULT GetGasketUnLoadingDamageTemperatureDependentFlag(unsigned char& dependent);
    HRESULT SetGasketUnLoadingDamageTemperatureDependentFlag(const unsigned char& dependent);
    HRESULT GetGasketUnLoadingDamageDataArray(ZELCftArrayZELCftArrayDouble& rows);
    HRESULT SetGasketUnLoadingDamageDataArray(const ZELCftArrayZELCftArrayDouble& rows);  ///< not checked

private:
    bool BindFeatures(KORISpecAttrAccess& material);
    void TakeKeys();

    ZELRememberedFeature thickness_;
    ZELRememberedFeature loading_;
    ZELRememberedFeature unloadingEP_;
    ZELRememberedFeature unloadingDamage_;
    KORISpecAttrAccess_var materialAccess_;
    KORISpecAttrAccess_var thicknessAccess_;
    KORISpecAttrAccess_var loadingAccess_;
    KORISpecAttrAccess_var unloadingEPAccess_;
    KORISpecAttrAccess_var unloadingDamageAccess_;
};
