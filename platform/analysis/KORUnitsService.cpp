#include "platform/analysis/KORUnitsService.h"

namespace {

class Unit final : public KORImplements<KORIVdxUnit> {
public:
    explicit Unit(const KORUnit& unit) : unit_(unit) {}

    KORUnicodeString GetSymbol() override { return KORUnicodeString(unit_.symbol); }
    double ConvertToStored(double value) override { return value * unit_.factor + unit_.offset; }

private:
    const KORUnit& unit_;
};

class Magnitude final : public KORImplements<KORIVdxMagnitude> {
public:
    Magnitude(KORUnitsService& service, const KORUnitType& type) : service_(&service), type_(type) {}

    KORUnicodeString GetName() override { return KORUnicodeString(type_.keyword); }
    KORIVdxUnit* GetCurrentUnit() override { return new Unit(service_->CurrentUnit(type_)); }

private:
    KORVar<KORUnitsService> service_;
    const KORUnitType& type_;
};

class Parameter final : public KORImplements<KORIVdxParameter> {
public:
    Parameter(KORUnitsService& service, const KORUnitType& type)
        : magnitude_(KORVar<Magnitude>::Adopt(new Magnitude(service, type))) {}

    KORIVdxMagnitude* GetMagnitude() override { return KORVar<KORIVdxMagnitude>(magnitude_.Get()).Detach(); }

private:
    KORVar<Magnitude> magnitude_;
};

}  // namespace

KORIVdxParameter* KORUnitsService::CreateParameter(const KORUnicodeString& unitType) {
    const KORUnitType* type = KORFindUnitType(unitType.View());
    return type ? new Parameter(*this, *type) : nullptr;
}

bool KORUnitsService::SetCurrentUnit(std::string_view unitType, std::string_view symbol) {
    const KORUnitType* type = KORFindUnitType(unitType);
    const KORUnit* unit = type ? KORFindUnit(*type, symbol) : nullptr;
    if (!unit) return false;
    current_[type] = unit;
    return true;
}

const KORUnit& KORUnitsService::CurrentUnit(const KORUnitType& type) const {
    const auto chosen = current_.find(&type);
    return chosen != current_.end() ? *chosen->second : type.units.front();
}
