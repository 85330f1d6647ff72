#pragma once

#include <cstddef>
#include <memory>
#include <vector>

#include "framework/KORName.h"

class KORMetaClass;
class KORTieRecord;

/// What the framework keeps of one module: the records of its classes and bindings, and how many of its
/// objects are alive. It is bookkeeping by name, not the library itself; that is KORLibrary.
class KORModule {
public:
    static KORModule& Of(const char* name);  ///< the one of that name, made on first use, never destroyed

    const char* Name() const { return name_->c_str(); }

    /// For what needs the module's code while it lives: the framework counts bindings, a module the rest.
    void ObjectMade() { ++objects_; }
    void ObjectGone() { --objects_; }
    long LiveObjects() const { return objects_; }

    std::size_t Records() const;  ///< class and binding records there are now

    /// Destroys a record: nobody uses it any more.
    void Forget(const KORMetaClass& record);
    void Forget(const KORTieRecord& record);

    std::vector<std::unique_ptr<KORMetaClass>> classes;
    std::vector<std::unique_ptr<KORTieRecord>> bindings;

private:
    explicit KORModule(const KORName* name);
    ~KORModule();

    const KORName* name_;
    long objects_ = 0;
};
