#pragma once

#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/catalog/KORCatalogFile.h"

/// Turns a catalog's JSON into late types and says what is wrong with it, with file and line. The first error
/// ends the reading.
class KORCatalogReader {
public:
    explicit KORCatalogReader(const KORJsonFile& file) : file_(file) {}

    std::vector<KORCatalogType> Read();  ///< of no use when there is an error
    const std::optional<KORJsonError>& Error() const { return error_; }

private:
    using Json = nlohmann::json;
    using Pointer = nlohmann::json::json_pointer;

    KORCatalogType ReadType(const Pointer& at);
    KORCatalogAttribute ReadAttribute(const Pointer& at, std::vector<KORAttribute>& attributes);
    std::optional<KORAttributeKind> ReadKind(const Pointer& at);
    KORValue ReadInitial(const Pointer& at, KORAttributeKind kind);
    void CheckSuccessors(const Pointer& at, const KORCatalogType& type);

    /// An object with no other members than these.
    bool IsObjectOf(const Pointer& at, std::initializer_list<std::string_view> members);
    const Json& Array(const Pointer& at, const char* member);
    std::string Text(const Pointer& at, const char* member);
    int Release(const Pointer& at);  ///< the member "since"
    bool Has(const Pointer& at, const char* member) const { return file_.Root()[at].contains(member); }
    void Fail(const Pointer& at, const std::string& message);

    const KORJsonFile& file_;
    std::optional<KORJsonError> error_;  ///< the first one
};
