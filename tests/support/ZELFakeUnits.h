#pragma once

#include "framework/KORImplements.h"
#include "framework/KORServices.h"
#include "interfaces/KORIVdxUnits.h"

/// A units service that knows one current unit of one magnitude, and can lack each of the steps towards it.
/// The service of the given table while it lives.
class ZELFakeUnits final {
public:
    /// Which step of the look-up finds nothing.
    enum class Lacking { Nothing, Parameter, Magnitude, Unit };

    ZELFakeUnits(KORServices& services, double inStoredUnits, Lacking lacking = Lacking::Nothing)
        : services_(services), service_(KORVar<Service>::Adopt(new Service(inStoredUnits, lacking))) {
        services_.units = service_.Get();
    }
    ~ZELFakeUnits() { services_.units = nullptr; }
    ZELFakeUnits(const ZELFakeUnits&) = delete;
    ZELFakeUnits& operator=(const ZELFakeUnits&) = delete;

    const std::string& AskedFor() const { return service_->askedFor; }  ///< the last unit type
    long References() const { return service_->References(); }

private:
    class Unit final : public KORImplements<KORIVdxUnit> {
    public:
        explicit Unit(double factor) : factor_(factor) {}
        KORUnicodeString GetSymbol() override { return "unit"; }
        double ConvertToStored(double value) override { return value * factor_; }

    private:
        double factor_;
    };

    /// A magnitude that is its own parameter and service, so that all references are counted in one place.
    class Service final : public KORImplements<KORIVdxUnits, KORIVdxParameter, KORIVdxMagnitude> {
    public:
        Service(double factor, Lacking lacking)
            : unit_(KORVar<Unit>::Adopt(new Unit(factor))), lacking_(lacking) {}

        KORIVdxParameter* CreateParameter(const KORUnicodeString& unitType) override {
            askedFor = unitType.View();
            return lacking_ == Lacking::Parameter ? nullptr : Give<KORIVdxParameter>(this);
        }
        KORIVdxMagnitude* GetMagnitude() override {
            return lacking_ == Lacking::Magnitude ? nullptr : Give<KORIVdxMagnitude>(this);
        }
        KORUnicodeString GetName() override { return "PRESSURE"; }
        KORIVdxUnit* GetCurrentUnit() override {
            return lacking_ == Lacking::Unit ? nullptr : Give<KORIVdxUnit>(unit_.Get());
        }

        std::string askedFor;

    private:
        template <class I>
        static I* Give(I* object) {
            object->AddRef();
            return object;
        }

        KORVar<Unit> unit_;
        Lacking lacking_;
    };

    KORServices& services_;
    KORVar<Service> service_;
};
