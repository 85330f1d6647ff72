#pragma once

#include "framework/KORIUnknown.h"
#include "framework/KORMetaClass.h"
#include "framework/KORVar.h"

struct KORTieState;

inline const KORIID IID_KORBaseUnknown = KORName::Intern("KORBaseUnknown");

/// Answers the implementing object behind an interface instead of its main object; see KORGetImplementation.
inline const KORIID IID_KORImplementation = KORName::Intern("KORImplementation");

/// The one counted implementation of KORIUnknown. An object is either a main object (a feature, or a
/// component of its own) or an extension of one. Every query on any object of a component ends at its main
/// object, and the main object's address is the component's identity.
///
/// An extension owns its main object; the main object knows its living extensions and their bindings only
/// weakly, so nothing cycles. Counts start at 1. Plain counters: everything runs on one thread.
class KORBaseUnknown : public KORIUnknown {
public:
    /// A new object with one reference. While the framework is creating an extension, the first object
    /// constructed becomes the extension of the feature that was asked.
    KORBaseUnknown();
    virtual ~KORBaseUnknown();
    KORBaseUnknown(const KORBaseUnknown&) = delete;
    KORBaseUnknown& operator=(const KORBaseUnknown&) = delete;

    static KORIID Iid() { return IID_KORBaseUnknown; }

    HRESULT QueryInterface(KORIID iid, void** out) override;
    std::uint32_t AddRef() override { return static_cast<std::uint32_t>(++references_); }
    std::uint32_t Release() override {
        if (--references_ > 0) return static_cast<std::uint32_t>(references_);
        return ReleaseLast();
    }
    HRESULT GetTypeInfoCount(std::uint32_t* count) override;
    HRESULT GetTypeInfo(std::uint32_t index, std::uint32_t locale, void** info) override;
    HRESULT GetIDsOfNames(const char* const* names, std::uint32_t count, std::int32_t* ids) override;
    HRESULT Invoke(std::int32_t id, void* arguments, void* result) override;

    static const KORMetaClass& MetaObject();
    virtual const KORMetaClass& GetMetaObject() const { return MetaObject(); }
    virtual const char* IsA() const { return GetMetaObject().ClassName(); }
    virtual bool IsAKindOf(const char* name) const { return GetMetaObject().IsAKindOf(name); }

    KORBaseUnknown* MainObject() { return host_ ? host_ : this; }  ///< no reference
    std::int32_t References() const { return references_; }

protected:
    bool IsMainObject() const { return !host_; }

    /// An interface that this object implements itself, without a reference; null for any other.
    virtual void* OwnInterface(KORIID) { return nullptr; }

    /// The name under which the dictionary is asked for what the main object does not implement itself: a
    /// component's own name, a feature's late type. Null, and nothing is found, for any other object: an
    /// extension made outside of a query extends nothing.
    virtual const KORName* DictionaryName() const;

    /// A second name, under which the dictionary is asked for what it has not under the first: the role that
    /// a feature plays whatever its late type. Null: none.
    virtual const KORName* DictionaryRole() const { return nullptr; }

    /// Raised by whoever changes data behind its extensions' backs (undo): extensions bound under another
    /// generation count as dead for new queries.
    virtual std::uint32_t Generation() const { return 0; }

private:
    std::uint32_t ReleaseLast();
    HRESULT AnswerQuery(KORIID iid, void** out);  ///< on a main object
    KORTieState* LivingTie(KORIID iid);
    void BecomeExtensionOf(KORBaseUnknown& host);
    void Destroy();
    void Unlink();
    KORBaseUnknown* LivingExtension(const KORMetaClass& record);

    std::int32_t references_ = 1;
    std::uint32_t generation_ = 0;    ///< the host's, when this extension was bound to it
    KORBaseUnknown* host_ = nullptr;  ///< owned; null on a main object

    /// Main object: its first living extension. Extension: the next one. Waiting to be destroyed: the next
    /// one.
    KORBaseUnknown* links_ = nullptr;
    KORTieState* ties_ = nullptr;  ///< the living bindings over this object

    friend struct KORTieState;
};

using KORBaseUnknown_var = KORVar<KORBaseUnknown>;

/// The implementing object behind an interface, with one reference, when it is a Class (or derived from one):
/// how the operations of a class that are in no interface are reached. Null otherwise.
template <class Class, class Interface>
KORVar<Class> KORGetImplementation(Interface* interface) {
    void* found = nullptr;
    if (!interface || FAILED(interface->QueryInterface(IID_KORImplementation, &found))) return nullptr;
    auto object = KORBaseUnknown_var::Adopt(static_cast<KORBaseUnknown*>(found));
    if (!object->IsAKindOf(Class::ClassName())) return nullptr;
    return KORVar<Class>::Adopt(static_cast<Class*>(object.Detach()));
}
