#pragma once

#include <string>
#include <vector>

#include "platform/document/KORMemoryDocument.h"

/// One attribute that an upgrade changed, on whichever feature. "Container": the feature was created, removed
/// or moved.
struct KORUpgradeChange {
    std::uint32_t feature;  ///< its number
    KORUnicodeString lateType;
    const char* attribute;
};

/// What became of one feature that needed an upgrade.
struct KORUpgradedFeature {
    std::uint32_t feature = 0;      ///< its number
    std::uint32_t replacement = 0;  ///< the number of what hangs in its place now; 0 when it stays itself
    KORUnicodeString name;          ///< its alias, else its father's, else its instance name
    HRESULT status = S_OK;          ///< the upgrade's own
    bool stillNeeded = false;       ///< the answer, afterwards, of the feature or of what replaced it
    std::vector<KORUpgradeChange> changes;
    std::vector<std::uint32_t> unlisted;  ///< features it left in a container that nothing lists any more
};

struct KORUpgradeReport {
    std::size_t asked = 0;  ///< how many features there were to ask
    std::vector<KORUpgradedFeature> upgraded;
};

/// Asks every feature of a late type that lies in a container whether it needs an upgrade, upgrades those
/// that do, in one undoable step, and tells what happened. What a failed upgrade did stays done. Features
/// that answer no KORISamUpgrade are left alone. `applicativeName` is the name under which such a feature
/// hangs on its father: how its replacement is found when an upgrade puts another one in its place.
KORUpgradeReport KORRunUpgrade(KORMemoryDocument& document, const KORUnicodeString& lateType,
                               const KORUnicodeString& applicativeName);
