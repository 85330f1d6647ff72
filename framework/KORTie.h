#pragma once

#include <new>

#include "framework/KORBaseUnknown.h"
#include "framework/KORTieRecord.h"

/// The lifetime half of a binding: which object implements the interface, and who counts on it. A binding
/// owns one reference on its implementation and dies with its own counter; the implementation knows its
/// bindings only weakly.
struct KORTieState {
    KORTieRecord* record = nullptr;
    void* interface = nullptr;                 ///< the binding as the interface that it is
    KORBaseUnknown* implementation = nullptr;  ///< owned; null when there was nothing to bind to
    KORTieState* next = nullptr;               ///< the next living binding over the same implementation
    std::int32_t references = 1;

    void Link();
    void LinkNew();  ///< to an implementation that has just been created
    void Unlink();
};

/// Told of every call through an observed binding, before the call is made.
class KORCallObserver {
public:
    virtual void Called(const KORTieRecord& binding, const char* operation,
                        KORBaseUnknown* implementation) = 0;

protected:
    ~KORCallObserver() = default;
};

/// The call context of a binding. It belongs to the binding's record and lives as long as that does; a
/// binding has none until calls are observed.
class Tie_StackCtx {
public:
    explicit Tie_StackCtx(const KORTieRecord& record) : record_(record) {}

    /// Reports the call to the observer, if there still is one, and answers the implementation of the
    /// binding.
    static KORBaseUnknown* Run(const Tie_StackCtx& context, const KORTieState& binding,
                               const char* operation);

    /// From now on bindings get a context when they are constructed; null ends the reports. Returns the
    /// observer there was.
    static KORCallObserver* Observe(KORCallObserver* observer);
    static bool IsObserved();

private:
    const KORTieRecord& record_;
};

/// Binds `slot` to the implementation, or to a new one from createItself, which then extends `outer`. Answers
/// the binding's call context, null as long as nobody observes.
Tie_StackCtx* Tie_Construct(KORTieRecord& record, KORTieState& slot, KORBaseUnknown* implementation,
                            void* interface, KORBaseUnknown* (*createItself)(), KORBaseUnknown* outer);
HRESULT Tie_Query(KORTieState& slot, KORIID iid, void** out);
std::uint32_t Tie_AddRef(KORTieState& slot);
std::uint32_t Tie_Release(KORTieState& slot);  ///< at 0 the caller destroys the binding
void Tie_Destruct(KORTieState& slot);

/// The four dispatch operations of every binding.
struct KORTieDispatch {
    static HRESULT GetTypeInfoCount(const KORTieRecord& record, std::uint32_t* count);
    static HRESULT GetTypeInfo(const KORTieRecord& record, std::uint32_t index, std::uint32_t locale,
                               void** info);
    static HRESULT GetIDsOfNames(const KORTieRecord& record, const char* const* names, std::uint32_t count,
                                 std::int32_t* ids);
    static HRESULT Invoke(const KORTieRecord& record, std::int32_t id, void* arguments, void* result);
};

/// Base of every binding. A binding class adds the forwarders of its interface and nothing else; each
/// forwards to the implementation's method of the same name, found by plain search.
template <class Interface, class Implementation>
class KORTie : public Interface {
public:
    KORTie(KORBaseUnknown* implementation, KORBaseUnknown* outer) {
        static const KORRecordUse<KORTieRecord> use(
            fct_RetrieveTieRecord(Interface::MetaObject(), Implementation::MetaObject()));
        KORTieRecord& record = use.Get();
        record.context = Tie_Construct(record, slot_, implementation, static_cast<Interface*>(this),
                                       &Implementation::CreateItself, outer);
        record.AddUse();  // at the program's end a binding may outlive the static use
    }
    virtual ~KORTie() {
        Tie_Destruct(slot_);
        slot_.record->DropUse();
    }
    KORTie(const KORTie&) = delete;
    KORTie& operator=(const KORTie&) = delete;

    HRESULT QueryInterface(KORIID iid, void** out) final { return Tie_Query(slot_, iid, out); }
    std::uint32_t AddRef() final { return Tie_AddRef(slot_); }
    std::uint32_t Release() final {
        const std::uint32_t left = Tie_Release(slot_);
        if (left == 0) delete this;
        return left;
    }
    HRESULT GetTypeInfoCount(std::uint32_t* count) final {
        return KORTieDispatch::GetTypeInfoCount(*slot_.record, count);
    }
    HRESULT GetTypeInfo(std::uint32_t index, std::uint32_t locale, void** info) final {
        return KORTieDispatch::GetTypeInfo(*slot_.record, index, locale, info);
    }
    HRESULT GetIDsOfNames(const char* const* names, std::uint32_t count, std::int32_t* ids) final {
        return KORTieDispatch::GetIDsOfNames(*slot_.record, names, count, ids);
    }
    HRESULT Invoke(std::int32_t id, void* arguments, void* result) final {
        return KORTieDispatch::Invoke(*slot_.record, id, arguments, result);
    }

protected:
    /// The implementation to call; by way of the call context where there is one.
    Implementation* Called(const char* operation) const {
        const Tie_StackCtx* context = slot_.record->context;
        return static_cast<Implementation*>(context ? Tie_StackCtx::Run(*context, slot_, operation)
                                                    : slot_.implementation);
    }

private:
    KORTieState slot_;
};

/// Body of every exported creator: a new binding with one reference, null when memory is short.
template <class Binding>
KORIUnknown* KORCreateTie(KORBaseUnknown* implementation, KORBaseUnknown* outer) {
    return new (std::nothrow) Binding(implementation, outer);
}
