#include "framework/KORPendingHost.h"

#include <utility>

KORPendingHost* KORPendingHost::top_ = nullptr;

KORBaseUnknown* KORPendingHost::Take() {
    if (!top_ || std::exchange(top_->taken_, true)) return nullptr;
    return top_->host_;
}

bool KORPendingHost::IsBuilding(const KORBaseUnknown* host, const KORMetaClass& record) {
    for (const KORPendingHost* pending = top_; pending; pending = pending->outer_) {
        if (pending->host_ == host && &pending->record_ == &record) return true;
    }
    return false;
}
