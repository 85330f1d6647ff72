#include "framework/KORTie.h"

#include "framework/KORPendingHost.h"

namespace {

KORCallObserver* observer = nullptr;

}  // namespace

KORTieRecord& fct_RetrieveTieRecord(const KORMetaClass& interface, const KORMetaClass& implementation) {
    auto& bindings = implementation.Module().bindings;
    for (const auto& record : bindings) {
        if (&record->Interface() == &interface && &record->Implementation() == &implementation)
            return *record;
    }
    bindings.push_back(std::make_unique<KORTieRecord>(interface, implementation));
    return *bindings.back();
}

KORTieRecord::~KORTieRecord() {
    delete context;
}

void KORTieRecord::DropUse() {
    if (--uses_ == 0) Implementation().Module().Forget(*this);
}

void KORTieState::LinkNew() {
    // Building it may have rolled a step back. It knows the data as they are after that.
    if (implementation->host_) implementation->generation_ = implementation->host_->Generation();
    Link();
}

void KORTieState::Link() {
    next = implementation->ties_;
    implementation->ties_ = this;
}

void KORTieState::Unlink() {
    for (KORTieState** link = &implementation->ties_; *link; link = &(*link)->next) {
        if (*link == this) {
            *link = next;
            return;
        }
    }
}

KORBaseUnknown* Tie_StackCtx::Run(const Tie_StackCtx& context, const KORTieState& binding,
                                  const char* operation) {
    if (observer) observer->Called(context.record_, operation, binding.implementation);
    return binding.implementation;
}

KORCallObserver* Tie_StackCtx::Observe(KORCallObserver* next) {
    return std::exchange(observer, next);
}

bool Tie_StackCtx::IsObserved() {
    return observer != nullptr;
}

Tie_StackCtx* Tie_Construct(KORTieRecord& record, KORTieState& slot, KORBaseUnknown* implementation,
                            void* interface, KORBaseUnknown* (*createItself)(), KORBaseUnknown* outer) {
    if (!record.context && Tie_StackCtx::IsObserved()) record.context = new Tie_StackCtx(record);
    slot.record = &record;
    slot.interface = interface;
    slot.implementation = implementation;
    if (implementation) {
        implementation->AddRef();
        slot.Link();
    } else {
        const KORPendingHost pending(outer, record.Implementation());
        slot.implementation = createItself();
        if (slot.implementation) slot.LinkNew();
    }
    record.Implementation().Module().ObjectMade();
    return record.context;
}

HRESULT Tie_Query(KORTieState& slot, KORIID iid, void** out) {
    if (!slot.implementation) {
        *out = nullptr;
        return E_NOINTERFACE;
    }
    if (iid != IID_KORImplementation) return slot.implementation->QueryInterface(iid, out);
    slot.implementation->AddRef();
    *out = slot.implementation;
    return S_OK;
}

std::uint32_t Tie_AddRef(KORTieState& slot) {
    return static_cast<std::uint32_t>(++slot.references);
}

std::uint32_t Tie_Release(KORTieState& slot) {
    return static_cast<std::uint32_t>(--slot.references);
}

void Tie_Destruct(KORTieState& slot) {
    slot.record->Implementation().Module().ObjectGone();
    if (!slot.implementation) return;
    slot.Unlink();
    slot.implementation->Release();
}

HRESULT KORTieDispatch::GetTypeInfoCount(const KORTieRecord&, std::uint32_t* count) {
    *count = 0;
    return S_OK;
}

HRESULT KORTieDispatch::GetTypeInfo(const KORTieRecord&, std::uint32_t, std::uint32_t, void**) {
    return E_NOTIMPL;
}

HRESULT KORTieDispatch::GetIDsOfNames(const KORTieRecord&, const char* const*, std::uint32_t, std::int32_t*) {
    return E_NOTIMPL;
}

HRESULT KORTieDispatch::Invoke(const KORTieRecord&, std::int32_t, void*, void*) {
    return E_NOTIMPL;
}
