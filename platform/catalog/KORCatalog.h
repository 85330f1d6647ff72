#pragma once

#include <memory>

#include "framework/KORImplements.h"
#include "interfaces/KORICatalog.h"
#include "platform/catalog/KORCatalogFile.h"

/// An open catalog over the late types of a file.
class KORCatalog final : public KORImplements<KORICatalog> {
public:
    explicit KORCatalog(std::shared_ptr<const KORCatalogFile> file) : file_(std::move(file)) {}

    [[nodiscard]] HRESULT RetrieveStartUp(const KORUnicodeString& lateType, const char* interfaceName,
                                          void** out) override;

private:
    std::shared_ptr<const KORCatalogFile> file_;
};
