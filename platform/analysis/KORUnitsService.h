#pragma once

#include <unordered_map>

#include "framework/KORImplements.h"
#include "interfaces/KORIVdxUnits.h"
#include "platform/analysis/KORUnitTypes.h"

/// The units service of a platform: which unit the user currently sees each quantity in. It stores no
/// quantities. Every unit type starts with its SI unit; magnitudes that were handed out follow later changes,
/// units do not.
class KORUnitsService final : public KORImplements<KORIVdxUnits> {
public:
    [[nodiscard]] KORIVdxParameter* CreateParameter(const KORUnicodeString& unitType) override;

    /// False, and nothing changes, for an unknown unit type or a symbol that is none of its units.
    bool SetCurrentUnit(std::string_view unitType, std::string_view symbol);

    /// Back to the unit that the type starts with, as if nobody had set another.
    void ForgetCurrentUnit(const KORUnitType& type) { current_.erase(&type); }

    /// Whether somebody has set the current unit of that type: it is not just the one it starts with.
    bool IsChosen(const KORUnitType& type) const { return current_.contains(&type); }

    const KORUnit& CurrentUnit(const KORUnitType& type) const;

private:
    std::unordered_map<const KORUnitType*, const KORUnit*> current_;  ///< where it is not the first one
};
