#pragma once

#include <cstdint>
#include <memory>

/// The handle through which the material shares its behaviors with callers: several proxies share one object
/// and one counter, and the last to let go deletes the object. Plain counting, for the application thread. T
/// has a virtual destructor.
///
/// A proxy is empty exactly when it has no counter. It can be non-empty and hold no object:
/// InsertObject(nullptr) counts 1.
template <class T>
class ZELGenHeapObjectProxy {
public:
    /// Takes the object over, as InsertObject does; null makes an empty proxy.
    explicit ZELGenHeapObjectProxy(T* object = nullptr) {
        if (object) InsertObject(object);
    }
    ZELGenHeapObjectProxy(const ZELGenHeapObjectProxy& other) { Share(other); }
    ZELGenHeapObjectProxy& operator=(const ZELGenHeapObjectProxy& other) {
        if (this == &other) return *this;
        killObject();
        Share(other);
        return *this;
    }
    virtual ~ZELGenHeapObjectProxy() { killObject(); }

    /// Lets go: the last holder deletes the object. The proxy is empty afterwards.
    void killObject() {
        std::int32_t* counter = counter_;
        T* object = object_;
        counter_ = nullptr;
        object_ = nullptr;
        if (counter && --*counter < 1) Delete(object, counter);
    }

    /// Lets go, then takes the object over with a counter of its own, also when it is null. When there is no
    /// memory for the counter (std::bad_alloc), the object is deleted and the proxy is empty.
    void InsertObject(T* object) {
        std::unique_ptr<T> taken(object);
        killObject();
        counter_ = new std::int32_t(1);
        object_ = taken.release();
    }

    bool IsObject() const { return object_ != nullptr; }
    bool operator==(const T* object) const { return object_ == object; }
    T* operator->() const { return object_; }  ///< unchecked
    T* GetProxyObject() const { return object_; }
    std::int32_t GetNumberOfReferences() const { return counter_ ? *counter_ : 0; }

private:
    /// Not inlined: through several inlined proxies of one object the compiler loses track of who was the
    /// last.
    [[gnu::noinline]] static void Delete(T* object, std::int32_t* counter) {
        delete object;
        delete counter;
    }

    void Share(const ZELGenHeapObjectProxy& other) {
        counter_ = other.counter_;
        object_ = other.object_;
        if (counter_) ++*counter_;
    }

    std::int32_t* counter_ = nullptr;  ///< how many proxies share the object; null when the proxy is empty
    T* object_ = nullptr;
};
