#pragma once

class KORBaseUnknown;
class KORMetaClass;

/// Stands on a stack around one CreateItself call and says whose extension is being built. The first
/// KORBaseUnknown constructed inside the call takes it; objects constructed after that are their own.
/// Creations nest: the material asks for its upgrade inside its own constructor.
class KORPendingHost {
public:
    KORPendingHost(KORBaseUnknown* host, const KORMetaClass& record)
        : host_(host), taken_(host == nullptr), record_(record), outer_(top_) {
        top_ = this;
    }
    ~KORPendingHost() { top_ = outer_; }
    KORPendingHost(const KORPendingHost&) = delete;
    KORPendingHost& operator=(const KORPendingHost&) = delete;

    /// The host of the innermost creation, once; null when there is none or it is taken.
    static KORBaseUnknown* Take();

    /// Is an extension of this class being built on this object right now?
    static bool IsBuilding(const KORBaseUnknown* host, const KORMetaClass& record);

private:
    static KORPendingHost* top_;

    KORBaseUnknown* const host_;
    bool taken_;
    const KORMetaClass& record_;
    KORPendingHost* outer_;
};
