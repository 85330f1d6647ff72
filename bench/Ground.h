#pragma once

#include "interfaces/KORICatalog.h"
#include "interfaces/KORISpecAttrAccess.h"
#include "platform/document/KORMemoryDocument.h"

namespace bench {

/// What a host sets up before it calls the module: a platform over the module's own catalog, its services as
/// the current ones, and a document in memory.
class Ground {
public:
    Ground();
    ~Ground() { document_->Close(); }
    Ground(const Ground&) = delete;
    Ground& operator=(const Ground&) = delete;

    KORMemoryDocument& Document() { return *document_; }
    KORBaseUnknown& Container() { return *container_; }

    /// A new feature of a late type of the module's catalog, with its initial values, made from its start-up.
    KORISpecObject_var New(const char* lateType);

    /// The same, hung on a parent under a component attribute.
    KORISpecObject_var NewUnder(KORISpecObject* parent, const char* attribute, const char* lateType);

    /// A material as the factory grows it: fourteen features, nothing valued beyond the initial values.
    KORISpecObject_var NewFactoryTree();

    /// A material of the current release, complete: nothing is left to upgrade.
    KORISpecObject_var NewCurrentMaterial();

    /// Forgets what could be undone, so that repeated steps do not pile up.
    void ForgetSteps() { document_->Log().Clear(); }

private:
    KORPlatform platform_;
    KORServicesScope services_{platform_.Services()};
    KORVar<KORMemoryDocument> document_ = KORMemoryDocument::New(platform_);
    KORBaseUnknown_var container_ = KORBaseUnknown_var::Adopt(document_->GetFeatContainer());
    KORIContainer_var place_{container_};
    KORICatalog_var catalog_;
};

}  // namespace bench
