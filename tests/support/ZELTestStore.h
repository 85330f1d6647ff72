#pragma once

#include <memory>

#include "interfaces/KORDocument.h"
#include "interfaces/KORIContainer.h"
#include "interfaces/KORISpecAttrAccess.h"
#include "interfaces/KORISpecObject.h"
#include "tests/support/ZELFeatureValues.h"
#include "tests/support/ZELLateTypes.h"

/// A feature store with one document that holds one container, as the module's tests see it. It offers what
/// the module's catalog describes. The tests run over two of them, to show that the module depends on
/// neither.
class ZELTestStore {
public:
    virtual ~ZELTestStore() = default;

    /// A new feature with the catalog's default values, in the store's container; null when the catalog lacks
    /// the type. The container holds it, too.
    virtual KORISpecObject_var Make(const char* lateType) = 0;

    virtual KORIContainer_var Container() = 0;
    virtual KORDocument* Document() = 0;  ///< no reference

    /// The document's analysis model, made if there is none.
    virtual KORISpecObject_var AddAnalysisModel() = 0;

    /// An applicative container of the document, made if there is none of that name.
    virtual KORIContainer_var AddContainer(const char* name) = 0;

    /// A feature like those of Make, in another container of the document.
    virtual KORISpecObject_var MakeIn(const KORIContainer_var& container, const char* lateType) = 0;

    /// A material of the platform, lying in a container, on which applications hang features.
    virtual KORISpecObject_var MakePlatformMaterial(const KORIContainer_var& container) = 0;

    /// Takes a feature out of the container. Its other holders keep it.
    virtual void Remove(const KORISpecObject_var& feature) = 0;

    /// Features of the document that exist now, in its container or not. Start-ups are no features.
    virtual long LiveFeatures() const = 0;

    /// Another catalog than the module's own, for features made from now on and for whoever opens it by name.
    virtual void DefineType(const char* lateType, std::vector<ZELAttribute> attributes) = 0;
    virtual void OmitAttribute(const char* lateType, const char* attribute) = 0;
    virtual void OmitType(const char* lateType) = 0;
};
