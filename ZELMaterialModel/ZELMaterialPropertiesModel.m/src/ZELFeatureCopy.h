#pragma once

#include "interfaces/KORICutAndPastable.h"

/// The container that a feature lies in; empty for none, and for an empty feature.
KORBaseUnknown_var ZELContainerOf(const KORISpecObject_var& feature);

/// Copies of the features of one container, in their order, in another; what they take along is copied, too,
/// and not listed. None when a container is missing or cannot copy.
KORListValKORISpecObject_var ZELCopyInto(const KORICutAndPastable_var& source,
                                         const KORICutAndPastable_var& target,
                                         const KORListValKORISpecObject_var& features);

/// The same for features that may lie in different containers, that one included. All are extracted,
/// container by container, before the first is copied. None when one of them is empty, lies nowhere or cannot
/// be copied.
KORListValKORISpecObject_var ZELCopyAllInto(const KORICutAndPastable_var& target,
                                            const KORListValKORISpecObject_var& features);
