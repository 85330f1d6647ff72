#include "framework/KORBaseUnknown.h"

#include <utility>

#include "framework/KORDictionary.h"
#include "framework/KORPendingHost.h"
#include "framework/KORTie.h"

namespace {

constexpr std::int32_t kDying = 1 << 30;  ///< so that handles made inside a destructor do not destroy again

/// How deep destructors may nest before further objects wait for their turn: what hangs on each other in a
/// long chain would use up the stack.
constexpr int kDeepest = 64;
int depth = 0;
KORBaseUnknown* waiting = nullptr;

}  // namespace

KORBaseUnknown::KORBaseUnknown() {
    if (KORBaseUnknown* host = KORPendingHost::Take()) BecomeExtensionOf(*host);
}

KORBaseUnknown::~KORBaseUnknown() {
    if (!host_) return;
    Unlink();
    host_->Release();
}

std::uint32_t KORBaseUnknown::ReleaseLast() {
    references_ = kDying;
    if (host_) Unlink();  // first of all: a query from the destructor finds no half-destroyed extension
    Destroy();
    return 0;
}

void KORBaseUnknown::Destroy() {
    if (depth == kDeepest) {
        links_ = waiting;
        waiting = this;
        return;
    }
    ++depth;
    delete this;
    while (depth == 1 && waiting) {
        KORBaseUnknown* next = std::exchange(waiting, waiting->links_);
        next->links_ = nullptr;
        delete next;
    }
    --depth;
}

void KORBaseUnknown::BecomeExtensionOf(KORBaseUnknown& host) {
    host.AddRef();
    host_ = &host;
    generation_ = host.Generation();
    links_ = host.links_;
    host.links_ = this;
}

void KORBaseUnknown::Unlink() {
    for (KORBaseUnknown** link = &host_->links_; *link; link = &(*link)->links_) {
        if (*link == this) {
            *link = links_;
            return;
        }
    }
}

HRESULT KORBaseUnknown::QueryInterface(KORIID iid, void** out) {
    if (iid == IID_KORImplementation) {
        AddRef();
        *out = this;
        return S_OK;
    }
    return MainObject()->AnswerQuery(iid, out);
}

HRESULT KORBaseUnknown::AnswerQuery(KORIID iid, void** out) {
    if (void* own = OwnInterface(iid)) {
        AddRef();
        *out = own;
        return S_OK;
    }
    if (KORTieState* tie = LivingTie(iid)) {
        ++tie->references;
        *out = tie->interface;
        return S_OK;
    }
    if (iid == IID_KORBaseUnknown) {
        AddRef();
        *out = this;
        return S_OK;
    }
    if (iid == IID_KORIUnknown) {
        AddRef();
        *out = static_cast<KORIUnknown*>(this);
        return S_OK;
    }
    *out = nullptr;
    const KORFillDictionary* entry = KORFillDictionary::Find(DictionaryName(), iid);
    if (!entry) entry = KORFillDictionary::Find(DictionaryRole(), iid);
    if (!entry) return E_NOINTERFACE;
    const KORMetaClass& record = entry->Implementation();
    KORBaseUnknown* implementation = this;
    if (record.Kind() != KORClassKind::Component) {
        if (KORPendingHost::IsBuilding(this, record)) return E_NOINTERFACE;
        implementation = LivingExtension(record);
    }
    KORIUnknown* binding = entry->Creator()(implementation, this);
    if (!binding) return E_OUTOFMEMORY;
    if (KORTieState* tie = LivingTie(iid)) {
        *out = tie->interface;
        return S_OK;
    }
    binding->Release();  // the class could not be instantiated: bound to nothing
    return E_NOINTERFACE;
}

const KORName* KORBaseUnknown::DictionaryName() const {
    const KORMetaClass& record = GetMetaObject();
    return record.Kind() == KORClassKind::Component ? record.DictionaryName() : nullptr;
}

KORTieState* KORBaseUnknown::LivingTie(KORIID iid) {
    for (KORTieState* tie = ties_; tie; tie = tie->next) {
        if (tie->record->InterfaceId() == iid) return tie;
    }
    for (KORBaseUnknown* extension = links_; extension; extension = extension->links_) {
        for (KORTieState* tie = extension->ties_; tie; tie = tie->next) {
            if (tie->record->InterfaceId() != iid) continue;
            if (extension->generation_ == Generation()) return tie;
        }
    }
    return nullptr;
}

KORBaseUnknown* KORBaseUnknown::LivingExtension(const KORMetaClass& record) {
    for (KORBaseUnknown* extension = links_; extension; extension = extension->links_) {
        if (&extension->GetMetaObject() == &record && extension->generation_ == Generation())
            return extension;
    }
    return nullptr;
}

HRESULT KORBaseUnknown::GetTypeInfoCount(std::uint32_t* count) {
    *count = 0;
    return S_OK;
}

HRESULT KORBaseUnknown::GetTypeInfo(std::uint32_t, std::uint32_t, void**) {
    return E_NOTIMPL;
}

HRESULT KORBaseUnknown::GetIDsOfNames(const char* const*, std::uint32_t, std::int32_t*) {
    return E_NOTIMPL;
}

HRESULT KORBaseUnknown::Invoke(std::int32_t, void*, void*) {
    return E_NOTIMPL;
}
