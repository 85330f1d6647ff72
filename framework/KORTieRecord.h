#pragma once

#include "framework/KORMetaClass.h"

class Tie_StackCtx;

/// The record of one binding (kind 6): which interface it is and which class implements it. Made once per
/// binding and kept until the binding's code is unloaded.
class KORTieRecord {
public:
    KORTieRecord(const KORMetaClass& interface, const KORMetaClass& implementation)
        : interface_(interface), implementation_(implementation) {}
    ~KORTieRecord();
    KORTieRecord(const KORTieRecord&) = delete;
    KORTieRecord& operator=(const KORTieRecord&) = delete;

    KORClassKind Kind() const { return KORClassKind::TIE; }
    KORIID InterfaceId() const { return interface_.ClassId(); }
    const char* InterfaceName() const { return interface_.ClassName(); }
    const KORMetaClass& Interface() const { return interface_; }
    const KORMetaClass& Implementation() const { return implementation_.Get(); }

    void AddUse() { ++uses_; }
    void DropUse();  ///< the last one destroys the record

    /// The binding's call context, owned; null until somebody asked to observe calls.
    Tie_StackCtx* context = nullptr;

private:
    const KORMetaClass& interface_;
    const KORRecordUse<const KORMetaClass> implementation_;
    int uses_ = 0;
};

/// The record of that binding, made by the framework at the first call. It stays until its last user lets go
/// of it; see KORRecordUse.
KORTieRecord& fct_RetrieveTieRecord(const KORMetaClass& interface, const KORMetaClass& implementation);
