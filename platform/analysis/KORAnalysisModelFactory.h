#pragma once

#include "framework/KORImplements.h"
#include "interfaces/KORISamAnalysisModel.h"
#include "platform/catalog/KORCatalogSet.h"

/// Makes the entities of a document's analysis model from the document's catalogs and the platform's own,
/// those included that are opened after the factory was asked for.
class KORAnalysisModelFactory final : public KORImplements<KORISamAnalysisModelFactory> {
public:
    explicit KORAnalysisModelFactory(std::shared_ptr<const KORCatalogSet> catalogs)
        : catalogs_(std::move(catalogs)) {}

    /// The entity lies in the model's container and is its last child, until it is put into a set. Null also
    /// when `model` is no feature that can have children.
    [[nodiscard]] KORBaseUnknown* CreateEntity(const KORUnicodeString& lateType, const KORUnicodeString& name,
                                               KORISpecObject* model) override;

private:
    std::shared_ptr<const KORCatalogSet> catalogs_;
};
