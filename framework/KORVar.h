#pragma once

#include <cstddef>
#include <utility>

#include "framework/KORIUnknown.h"

/// The owning handle of an interface X, written X_var where it is used. A handle made from a raw pointer
/// takes a reference of its own; Adopt takes over the caller's reference, Detach gives the handle's own out.
/// A conversion between handles of different interfaces is an interface query: the result is null when the
/// query fails.
template <class X>
class KORVar {
public:
    constexpr KORVar() = default;
    constexpr KORVar(std::nullptr_t) {}
    KORVar(X* object) : object_(object) {
        if (object_) object_->AddRef();
    }
    KORVar(const KORVar& other) : KORVar(other.object_) {}
    KORVar(KORVar&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}

    template <class Y>
    KORVar(const KORVar<Y>& other) : object_(Query(other.Get())) {}

    KORVar& operator=(KORVar other) noexcept {
        std::swap(object_, other.object_);
        return *this;
    }
    ~KORVar() {
        if (object_) object_->Release();
    }

    static KORVar Adopt(X* object) {
        KORVar handle;
        handle.object_ = object;
        return handle;
    }
    /// The interface X of any object, by query; null when it is null or does not offer X.
    template <class Y>
    static KORVar Of(Y* object) {
        return Adopt(Query(object));
    }

    [[nodiscard]] X* Detach() { return std::exchange(object_, nullptr); }
    X* Get() const { return object_; }
    X* operator->() const { return object_; }
    X& operator*() const { return *object_; }
    explicit operator bool() const { return object_ != nullptr; }

    friend bool operator==(const KORVar& a, const KORVar& b) { return a.object_ == b.object_; }
    friend bool operator==(const KORVar& a, std::nullptr_t) { return a.object_ == nullptr; }

private:
    template <class Y>
    static X* Query(Y* object) {
        void* found = nullptr;
        if (!object || FAILED(object->QueryInterface(X::Iid(), &found))) return nullptr;
        return static_cast<X*>(found);
    }

    X* object_ = nullptr;
};

inline constexpr std::nullptr_t NULL_var = nullptr;
