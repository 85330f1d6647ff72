#pragma once

#include <optional>
#include <string>
#include <unordered_map>

#include "platform/catalog/KORJsonFile.h"
#include "platform/document/KORMemoryDocument.h"

/// A document in memory and its readable form: what fixtures and older documents are kept in, and what people
/// compare. It is not how documents are saved: all of it is read and written at once.
///
/// The text is JSON:
///   "format"         1
///   "catalogs"       file names of the catalogs that declare the late types; those of the platform's
///                    own and of the shared catalogs need none
///   "pressure_unit"  symbol of the platform's current unit of pressure; left as it is when missing
///   "containers"     names of the applicative containers
///   "features"       objects of
///       "id"          a whole number of the text's own, from 1 on
///       "type"        the late type; one that no catalog declares has undeclared attributes only
///       "name"        the instance name; the late type's own when missing
///       "alias"       never set when missing
///       "container"   an applicative container's name; the document's own when missing; null: in none
///       "attributes"  by name. What is missing has the catalog's initial value; null: never valued.
///                     A component is {"ref": id}, a list of components {"refs": [id or null, ...]}; numbers
///                     that JSON lacks are "NaN", "Infinity" and "-Infinity". What the type does not declare
///                     is of the kind that it is written as, and the feature keeps it.
class KORTextDocument {
public:
    /// The document outlives this object.
    explicit KORTextDocument(KORMemoryDocument& document) : document_(document) {}

    /// Adds what the file holds to the document. False, `error` filled, and the document and platform as they
    /// were, when something is wrong with it.
    [[nodiscard]] bool Read(const std::string& path, KORFileError& error);

    /// The same for a text at hand; `name` is what errors call it.
    [[nodiscard]] bool ReadText(const std::string& text, const std::string& name, KORFileError& error);

    /// The whole document: its features in the order of their numbers, those in no container that another
    /// one references included, ids from 1 on. Attributes that their late types do not declare come last, in
    /// the order of their names. Nothing, and `error` says why, when a feature references what is no feature
    /// of the document, or a text is no UTF-8.
    [[nodiscard]] std::optional<std::string> Write(KORFileError& error) const;

    /// The feature with that id in the text read last; null when there was none, or it is gone.
    KORVar<KORFeature> Find(int id) const;

private:
    bool Take(const std::optional<KORJsonFile>& file, KORFileError& error);

    KORMemoryDocument& document_;
    std::unordered_map<int, std::uint32_t> numbers_;  ///< by id, of the text read last
};
