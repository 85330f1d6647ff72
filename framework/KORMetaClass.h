#pragma once

#include <string_view>

#include "framework/KORModule.h"
#include "framework/KORName.h"
#include "framework/KORRecordUse.h"

/// What a registered class is to the framework. The values are the platform's.
enum class KORClassKind : int {
    Root = 0,           ///< KORBaseUnknown itself
    Component = 1,      ///< an implementation of its own, found under its class name
    DataExtension = 2,  ///< one object per feature and class for as long as anyone holds it
    CodeExtension = 3,  ///< stateless operations on a late type or component; its identity is not promised
    Interface = 4,      ///< the meta-class of an interface
    TIE = 6,            ///< the binding of an interface to an implementing class
};

using KORClassId = const KORName*;

/// The registration record of a class: name, kind, base, late type and module. Records are made on first use
/// and live until the class's code is unloaded. It describes a class; it is not a factory.
class KORMetaClass {
public:
    KORMetaClass(KORClassId name, KORClassKind kind, const KORMetaClass* base, const KORName* lateType,
                 KORModule* module)
        : name_(name), kind_(kind), base_(base), lateType_(lateType), module_(module) {}

    const char* ClassName() const { return name_->c_str(); }
    KORClassId ClassId() const { return name_; }
    KORClassKind Kind() const { return kind_; }
    const KORMetaClass* Base() const { return base_; }

    /// The late type or component that the class extends; "KORnull" for a component, which extends nothing.
    const KORName* LateType() const { return lateType_; }
    KORModule& Module() const { return *module_; }

    /// The name under which the dictionary keeps the class's interfaces: the late type of an extension, the
    /// class's own name for a component.
    const KORName* DictionaryName() const { return kind_ == KORClassKind::Component ? name_ : lateType_; }

    /// True when this record or one of its bases has that name.
    bool IsAKindOf(std::string_view name) const;

    void AddUse() const { ++uses_; }
    void DropUse() const;  ///< the last one destroys the record

private:
    KORClassId name_;
    KORClassKind kind_;
    const KORMetaClass* base_;
    const KORName* lateType_;
    KORModule* module_;
    mutable int uses_ = 0;
};

/// The record of that class, made by the framework at the first call. It stays until its last user lets go of
/// it; see KORRecordUse.
const KORMetaClass& fct_RetrieveMetaObject(const char* className, KORClassKind kind, const KORMetaClass& base,
                                           const char* lateType, const char* module);

/// Opens the body of a registered class: the class-wide queries, and the creation by the framework.
#define KORDeclareClass                                                                              \
public:                                                                                              \
    [[maybe_unused]] static const char* ClassName();                                                 \
    [[maybe_unused]] static KORClassId ClassId();                                                    \
    static const KORMetaClass& MetaObject(); /**< the registration record, made on first use */      \
    static KORBaseUnknown* CreateItself();   /**< a new instance for the framework, one reference */ \
    [[maybe_unused]] const KORMetaClass& GetMetaObject() const override;                             \
    [[maybe_unused]] const char* IsA() const override;                                               \
    [[maybe_unused]] bool IsAKindOf(const char* name) const override;

/// The registration record of a class and the queries that it answers, in the class's own source file.
#define KORImplementClass(Class, kind, lateType, module)                                           \
    const KORMetaClass& Class::MetaObject() {                                                      \
        static const KORRecordUse<const KORMetaClass> record(                                      \
            fct_RetrieveMetaObject(#Class, kind, KORBaseUnknown::MetaObject(), lateType, module)); \
        return record.Get();                                                                       \
    }                                                                                              \
    const char* Class::ClassName() {                                                               \
        return MetaObject().ClassName();                                                           \
    }                                                                                              \
    KORClassId Class::ClassId() {                                                                  \
        return MetaObject().ClassId();                                                             \
    }                                                                                              \
    const KORMetaClass& Class::GetMetaObject() const {                                             \
        return MetaObject();                                                                       \
    }                                                                                              \
    const char* Class::IsA() const {                                                               \
        return ClassName();                                                                        \
    }                                                                                              \
    bool Class::IsAKindOf(const char* name) const {                                                \
        return MetaObject().IsAKindOf(name);                                                       \
    }
