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
    KORUnicodeString name;          ///< as KORUpgradeNameOf answers it
    HRESULT status = S_OK;          ///< the upgrade's own
    bool stillNeeded = false;       ///< the answer, afterwards, of the feature or of what replaced it
    std::vector<KORUpgradeChange> changes;
    std::vector<std::uint32_t> unlisted;  ///< features it left in a container that nothing lists any more
};

struct KORUpgradeReport {
    std::size_t asked = 0;  ///< how many features there were to ask
    std::vector<KORUpgradedFeature> upgraded;
    bool refused = false;  ///< by the watch: the run was taken back, and `upgraded` is empty
};

/// How reports call a feature: its alias, else its father's, else its instance name.
KORUnicodeString KORUpgradeNameOf(KORFeature& feature);

/// Looks on while features are upgraded, and keeps a run from guessing.
class KORUpgradeWatch {
public:
    /// Asked before a feature that needs an upgrade gets it; `told` has its number and its name by then.
    /// False: it would come out wrong. It is not upgraded, those after it are still asked, and in the end the
    /// whole run leaves its step without commit. Changes nothing, and queries the feature for no interface of
    /// a module's: that may upgrade it.
    virtual bool MayUpgrade(KORFeature& feature, const KORUpgradedFeature& told) = 0;

    /// Told what became of a feature; `now` is the feature itself, or what hangs in its place.
    virtual void Upgraded(KORFeature& now, const KORUpgradedFeature& told) = 0;

protected:
    ~KORUpgradeWatch() = default;
};

/// Asks every feature of a late type that lies in a container whether it needs an upgrade, upgrades those
/// that do, in one undoable step, and tells what happened. What a failed upgrade did stays done. Features
/// that answer no KORISamUpgrade are left alone. `applicativeName` is the name under which such a feature
/// hangs on its father: how its replacement is found when an upgrade puts another one in its place. A watch
/// outlives the call; without one nothing is refused.
KORUpgradeReport KORRunUpgrade(KORMemoryDocument& document, const KORUnicodeString& lateType,
                               const KORUnicodeString& applicativeName, KORUpgradeWatch* watch = nullptr);
