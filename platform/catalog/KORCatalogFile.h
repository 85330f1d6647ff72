#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/catalog/KORJsonFile.h"
#include "platform/store/KORLayout.h"

/// How catalogs name a kind of attribute: "list of doubles".
std::string_view KORKindName(KORAttributeKind kind);

/// What a catalog says of one attribute beyond its name, kind and initial value.
struct KORCatalogAttribute {
    std::string meaning;
    std::string unit;          ///< of numbers: a unit of the SI, or "-"; empty for other kinds
    int since = 0;             ///< the release that introduced it
    std::string supersededBy;  ///< of an old key: the attribute of the same type that took its place
};

/// One late type of a catalog.
struct KORCatalogType {
    KORLayoutHandle layout;
    std::string meaning;
    int since = 0;
    std::vector<KORCatalogAttribute> attributes;  ///< in the order of layout->Attributes()
    KORISpecObject_var startUp;                   ///< the one that all open catalogs over the file hand out
};

/// The late types that a catalog declares, read from its JSON text. It is the declaration only; an open
/// catalog that hands out start-ups is KORCatalog.
///
/// Attributes are never taken out of a catalog: old keys stay declared, or older documents could not be read.
class KORCatalogFile {
public:
    /// The catalog at a path. Each file is parsed once per process. Null, and `error` filled, when it is
    /// missing, no JSON, or not a complete catalog; a failure is not remembered.
    [[nodiscard]] static std::shared_ptr<const KORCatalogFile> Open(const std::string& path,
                                                                    KORFileError& error);

    /// A catalog from a text at hand; `name` is what errors call it.
    [[nodiscard]] static std::shared_ptr<const KORCatalogFile> FromText(const std::string& text,
                                                                        const std::string& name,
                                                                        KORFileError& error);

    const std::string& Name() const { return name_; }
    const std::vector<KORCatalogType>& Types() const { return types_; }
    const KORCatalogType* Find(const KORName* lateType) const;  ///< null for null and when it is not declared

private:
    KORCatalogFile(std::string name, std::vector<KORCatalogType> types);

    static std::shared_ptr<const KORCatalogFile> Build(const KORJsonFile& file, KORFileError& error);

    std::string name_;
    std::vector<KORCatalogType> types_;
    std::vector<const KORCatalogType*> byNumber_;  ///< types_ by the numbers of their names
};
