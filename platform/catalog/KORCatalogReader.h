#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/catalog/KORCatalogFile.h"
#include "platform/catalog/KORJsonReader.h"

/// Turns a catalog's JSON into late types and says what is wrong with it, with file and line. The first error
/// ends the reading.
class KORCatalogReader final : public KORJsonReader {
public:
    explicit KORCatalogReader(const KORJsonFile& file) : KORJsonReader(file) {}

    std::vector<KORCatalogType> Read();  ///< of no use when there is an error

private:
    KORCatalogType ReadType(const Json& at);
    KORCatalogAttribute ReadAttribute(const Json& at, std::vector<KORAttribute>& attributes);
    const KORName* ReadRole(const Json& at);  ///< of a late type
    bool IsFather(const Json& at, KORAttributeKind kind);
    std::optional<KORAttributeKind> ReadKind(const Json& at);
    KORValue ReadInitial(const Json& at, KORAttributeKind kind);
    void CheckSuccessors(const Json& at, const KORCatalogType& type);
    int Release(const Json& at);  ///< the member "since"
};
