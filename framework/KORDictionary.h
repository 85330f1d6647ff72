#pragma once

#include <cstddef>

#include "framework/KORMetaClass.h"

class KORBaseUnknown;
class KORIUnknown;

/// Makes the binding of one interface to one implementation, with one reference: over the given object, or,
/// when it is given none, over a new instance that extends `outer`. Null when that is impossible.
using KORTieCreator = KORIUnknown* (*)(KORBaseUnknown* implementation, KORBaseUnknown* outer);

/// One dictionary entry, alive from load to unload of its library: an interface that a class implements on a
/// late type (or as a component) and the creator of the binding. A second entry for the same late type and
/// interface is refused with a fatal report that names both classes; the first one stays.
class KORFillDictionary {
public:
    /// `data` and `flag` are the platform's; the entries of this system pass null and 1.
    KORFillDictionary(const KORMetaClass& implementation, const KORMetaClass& interface,
                      KORTieCreator creator, const void* data, int flag);
    ~KORFillDictionary();
    KORFillDictionary(const KORFillDictionary&) = delete;
    KORFillDictionary& operator=(const KORFillDictionary&) = delete;

    const KORMetaClass& Implementation() const { return implementation_; }
    const KORMetaClass& Interface() const { return interface_; }
    KORTieCreator Creator() const { return creator_; }
    const void* Data() const { return data_; }
    int Flag() const { return flag_; }

    /// The entry of an interface under a late type or component name, or null. A dense table look-up.
    static const KORFillDictionary* Find(const KORName* lateType, KORIID iid);

    static std::size_t Count();  ///< entries there are now

private:
    const KORMetaClass& implementation_;
    const KORMetaClass& interface_;
    KORTieCreator creator_;
    const void* data_;
    int flag_;
};
