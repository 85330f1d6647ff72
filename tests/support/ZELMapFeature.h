#pragma once

#include <map>
#include <variant>
#include <vector>

#include "tests/support/ZELMapAnalysis.h"

class ZELMapContainer;

/// A feature or a start-up of the map store: its values lie in a map by attribute name. What is not in the
/// map was never valued.
class ZELMapFeature final : public ZELMapAnalysisFeature {
public:
    /// A feature in a container, or a start-up (no container) that never lies in one. Values are the
    /// defaults.
    ZELMapFeature(const std::shared_ptr<ZELMapWorld>& world, const std::string& lateType,
                  const KORUnicodeString& name, ZELMapContainer* container);
    ~ZELMapFeature() override;

    void EmptyAll();  ///< the document is being closed
    void LeaveContainer() { container_ = nullptr; }

    /// The feature on which this one hangs; null takes it off.
    void HangOn(KORISpecObject* father) { father_ = father; }
    void LetGoOf(KORISpecObject* father) {  ///< it may hang on another one by now
        if (father_.Get() == father) father_ = nullptr;
    }

    /// A new feature with the same values in another container, one reference for the caller.
    ZELMapFeature* Copy(ZELMapContainer* container) const;
    std::vector<KORISpecObject*> Referenced() const;  ///< by attributes, in the order of their names
    /// What references one of these features references its copy from now on.
    void Redirect(const std::map<KORISpecObject*, ZELMapFeature*>& copyOf);

    KORUnicodeString GetType() override;
    KORUnicodeString GetName() override;
    KORBaseUnknown* GetFeatContainer() override;
    KORISpecObject* GetFather() override;
    KORISpecObject* Instantiate(const KORUnicodeString& name, KORIContainer* container) override;

    KORISpecAttrKey* GetAttrKey(const char* name) override;
    void SetDouble(KORISpecAttrKey* key, double value, int index) override;
    void SetBoolean(KORISpecAttrKey* key, bool value, int index) override;
    void SetString(KORISpecAttrKey* key, const KORUnicodeString& value, int index) override;
    double GetDouble(KORISpecAttrKey* key, int index) override;
    bool GetBoolean(KORISpecAttrKey* key, int index) override;
    KORUnicodeString GetString(KORISpecAttrKey* key, int index) override;
    KORISpecObject* GetSpecObject(const char* name, int index) override;
    void SetListOfDouble(KORISpecAttrKey* key, const KORRawColldouble& values) override;
    KORRawColldouble* GetListOfDouble(KORISpecAttrKey* key) override;
    void SetInteger(KORISpecAttrKey* key, int value, int index) override;
    int GetInteger(KORISpecAttrKey* key, int index) override;
    void SetComponent(KORISpecAttrKey* key, KORBaseUnknown* component, int index) override;
    KORBaseUnknown* GetComponent(KORISpecAttrKey* key, int index) override;
    void AppendComponent(KORISpecAttrKey* key, KORBaseUnknown* component) override;
    KORListValKORISpecObject_var* GetListOfComponents(KORISpecAttrKey* key) override;
    int GetListSize(KORISpecAttrKey* key) override;
    void RemoveAllValues(KORISpecAttrKey* key) override;
    void RemoveValue(KORISpecAttrKey* key) override;

    KORDocument* GetDocument() override;

    void SetAlias(const KORUnicodeString& alias) override;
    KORUnicodeString GetAlias() override;
    void SetDomain(KORIDomain* domain) override;

private:
    using Entries = std::vector<KORBaseUnknown_var>;
    /// Its alternatives stand in the order of the kinds.
    using Value =
        std::variant<bool, int, double, KORUnicodeString, KORRawColldouble, KORBaseUnknown_var, Entries>;

    const std::string& LateType() const override { return lateType_; }
    bool Has(const std::string& name, ZELKind kind) const;
    bool Has(KORISpecAttrKey* key, ZELKind kind) const { return key && Has(key->Text(), kind); }
    const Value* Find(const std::string& name, ZELKind kind) const;
    ZELVerdict Note(const char* call, const std::string& attribute, const std::string& value,
                    bool canFail) const;
    void Write(const char* call, KORISpecAttrKey* key, const Value& value);
    template <class T>
    T Read(const char* call, KORISpecAttrKey* key, ZELKind kind) const;

    std::string lateType_;
    KORUnicodeString name_;
    KORUnicodeString alias_;
    ZELMapContainer* container_;  ///< weak; null on a start-up, when removed, and when the document is closed
    KORISpecObject_var father_;
    bool isStartUp_;
    std::vector<ZELAttribute> attributes_;  ///< as the catalog was when this feature was made
    std::map<std::string, Value> values_;
};
