#pragma once

#include <utility>

#include "framework/KORExport.h"
#include "framework/KORUndoCount.h"
#include "interfaces/KORISpecObject.h"

/// A feature that an object looked up once and keeps between calls, with a reference of its own. Undo can
/// take such a feature out of its container under the object that keeps it. Nothing lists it then; what is
/// written to it would be lost, or come back with a redo that promised the values from before.
///
/// It may be read at any time, and a feature that a redo brings back can be written again. Where nothing was
/// undone since it was looked at last, it costs nothing to ask. A feature that was only removed is not taken
/// away, as long as nothing is undone after that: whoever removed it knows.
class KOR_EXPORT ZELRememberedFeature {
public:
    ZELRememberedFeature() = default;
    explicit ZELRememberedFeature(KORISpecObject_var feature)
        : feature_(std::move(feature)), undone_(KORUndoCount()) {}

    KORISpecObject* Get() const { return feature_.Get(); }  ///< null when there was none
    bool IsTakenAway() const { return undone_ != KORUndoCount() && LiesNowhere(); }
    KORISpecObject* ForWriting() const { return IsTakenAway() ? nullptr : Get(); }
    explicit operator bool() const { return static_cast<bool>(feature_); }

private:
    bool LiesNowhere() const;

    KORISpecObject_var feature_;
    mutable std::uint64_t undone_ = 0;  ///< the count of undos at which it lay in its container
};
