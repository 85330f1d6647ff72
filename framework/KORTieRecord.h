#pragma once

#include "framework/KORMetaClass.h"

class Tie_StackCtx;

/// The record of one binding (kind 6): which interface it is and which class implements it. Made once per
/// binding and kept until the implementing class's module is unloaded.
class KORTieRecord {
public:
    KORTieRecord(const KORMetaClass& interface, const KORMetaClass& implementation)
        : interface_(interface), implementation_(implementation) {}

    KORClassKind Kind() const { return KORClassKind::TIE; }
    KORIID InterfaceId() const { return interface_.ClassId(); }
    const char* InterfaceName() const { return interface_.ClassName(); }
    const KORMetaClass& Interface() const { return interface_; }
    const KORMetaClass& Implementation() const { return implementation_; }

    /// The binding's call context; null until somebody asked to observe calls.
    Tie_StackCtx* context = nullptr;

private:
    const KORMetaClass& interface_;
    const KORMetaClass& implementation_;
};

/// The record of that binding, made and kept by the framework at the first call.
KORTieRecord& fct_RetrieveTieRecord(const KORMetaClass& interface, const KORMetaClass& implementation);
