#pragma once

#include "framework/KORRawColldouble.h"
#include "interfaces/KORISpecAttrKey.h"
#include "interfaces/KORISpecObject.h"

inline const KORIID IID_KORISpecAttrAccess = KORName::Intern("KORISpecAttrAccess");

/// The attributes of one feature. A key that the feature lacks, or that names an attribute of another kind,
/// reads as never valued and ignores writes; nothing here reports a failure.
///
/// `index` is 0 for the attribute's single value. Positions in lists are counted from 1. Raw pointers that
/// are returned carry one reference, or are new objects, for the caller; raw pointers given are not taken
/// over.
class KORISpecAttrAccess : public KORInterface<IID_KORISpecAttrAccess> {
public:
    /// The key of an attribute, by name; null when the feature's late type has no attribute of that name.
    virtual KORISpecAttrKey* GetAttrKey(const char* name) = 0;

    virtual void SetDouble(KORISpecAttrKey* key, double value, int index) = 0;
    virtual void SetBoolean(KORISpecAttrKey* key, bool value, int index) = 0;
    virtual void SetString(KORISpecAttrKey* key, const KORUnicodeString& value, int index) = 0;
    virtual double GetDouble(KORISpecAttrKey* key, int index) = 0;            ///< never valued: 0.0
    virtual bool GetBoolean(KORISpecAttrKey* key, int index) = 0;             ///< never valued: false
    virtual KORUnicodeString GetString(KORISpecAttrKey* key, int index) = 0;  ///< never valued: empty

    /// The feature that a component attribute references, by attribute name; null when it is unset or
    /// missing.
    virtual KORISpecObject* GetSpecObject(const char* name, int index) = 0;

    /// Replaces the whole list. An empty list is stored as an empty list.
    virtual void SetListOfDouble(KORISpecAttrKey* key, const KORRawColldouble& values) = 0;

    /// A new list owned by the caller; null when the attribute has never been valued.
    virtual KORRawColldouble* GetListOfDouble(KORISpecAttrKey* key) = 0;

    virtual void SetInteger(KORISpecAttrKey* key, int value, int index) = 0;
    virtual int GetInteger(KORISpecAttrKey* key, int index) = 0;  ///< never valued: 0

    /// Replaces the referenced object; null clears the attribute's value.
    virtual void SetComponent(KORISpecAttrKey* key, KORBaseUnknown* component, int index) = 0;

    /// The referenced object: of a component attribute at index 0, of a list attribute at positions from 1.
    /// It need not be a spec object. Null when unset, missing or out of range.
    virtual KORBaseUnknown* GetComponent(KORISpecAttrKey* key, int index) = 0;

    /// Appends at the end of a list of components; null is appended as an empty entry.
    virtual void AppendComponent(KORISpecAttrKey* key, KORBaseUnknown* component) = 0;

    /// A new list owned by the caller; null when the attribute has never been valued. An entry that is not a
    /// spec object is an empty handle.
    virtual KORListValKORISpecObject_var* GetListOfComponents(KORISpecAttrKey* key) = 0;

    virtual int GetListSize(KORISpecAttrKey* key) = 0;  ///< of either kind of list; never valued: 0

    /// Empties a list attribute of either kind. It is empty afterwards, not "never valued".
    virtual void RemoveAllValues(KORISpecAttrKey* key) = 0;

    /// Takes an attribute's value away: it is as if it had never been valued.
    virtual void RemoveValue(KORISpecAttrKey* key) = 0;

protected:
    ~KORISpecAttrAccess() = default;
};

using KORISpecAttrAccess_var = KORVar<KORISpecAttrAccess>;
