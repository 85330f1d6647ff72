#pragma once

#include <functional>
#include <string>

#include "framework/KORBaseUnknown.h"
#include "framework/KORDictionary.h"
#include "framework/KORTie.h"

inline const KORIID IID_KORITestValue = KORName::Intern("KORITestValue");
inline const KORIID IID_KORITestName = KORName::Intern("KORITestName");
inline const KORIID IID_KORITestStranger = KORName::Intern("KORITestStranger");

/// Interfaces of the test: two that test classes implement, and one that none does.
class KORITestValue : public KORInterface<IID_KORITestValue> {
public:
    virtual int Value() = 0;
    virtual void SetValue(int value) = 0;

protected:
    ~KORITestValue() = default;
};
class KORITestName : public KORInterface<IID_KORITestName> {
public:
    virtual std::string Name() = 0;

protected:
    ~KORITestName() = default;
};
class KORITestStranger : public KORInterface<IID_KORITestStranger> {
protected:
    ~KORITestStranger() = default;
};

using KORITestValue_var = KORVar<KORITestValue>;
using KORITestName_var = KORVar<KORITestName>;
using KORITestStranger_var = KORVar<KORITestStranger>;

template <class Implementation>
class TIEKORITestValue final : public KORTie<KORITestValue, Implementation> {
public:
    using KORTie<KORITestValue, Implementation>::KORTie;

    int Value() override { return this->Called(__func__)->Value(); }
    void SetValue(int value) override { this->Called(__func__)->SetValue(value); }
};

template <class Implementation>
class TIEKORITestName final : public KORTie<KORITestName, Implementation> {
public:
    using KORTie<KORITestName, Implementation>::KORTie;

    std::string Name() override { return this->Called(__func__)->Name(); }
};

/// A main object of a late type, as small as can be.
class KORTestFeature final : public KORBaseUnknown {
public:
    explicit KORTestFeature(const char* lateType) : lateType_(KORName::Intern(lateType)) { ++living; }
    ~KORTestFeature() override { --living; }

    const KORName* DictionaryName() const override { return lateType_; }
    std::uint32_t Generation() const override { return generation; }

    std::uint32_t generation = 0;
    static inline int living = 0;

private:
    const KORName* lateType_;
};

using KORTestFeature_var = KORVar<KORTestFeature>;

inline KORTestFeature_var MakeTestFeature(const char* lateType) {
    return KORTestFeature_var::Adopt(new KORTestFeature(lateType));
}
