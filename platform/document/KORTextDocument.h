#pragma once

#include <map>
#include <optional>
#include <string>
#include <unordered_map>

#include "platform/catalog/KORJsonFile.h"
#include "platform/document/KORMemoryDocument.h"

/// Attributes that the current catalogs do not know, by feature number and name, as they were written. A
/// reference among them is {"ref": n} or {"refs": [n, ...]} with feature numbers.
using KORKeptAttributes = std::unordered_map<std::uint32_t, std::map<std::string, nlohmann::json>>;

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
///       "type"        the late type
///       "name"        the instance name; the late type's own when missing
///       "alias"       never set when missing
///       "container"   an applicative container's name; the document's own when missing; null: in none
///       "attributes"  by name. What is missing has the catalog's initial value; null: never valued.
///                     A component is {"ref": id}, a list of components {"refs": [id or null, ...]}; numbers
///                     that JSON lacks are "NaN", "Infinity" and "-Infinity".
class KORTextDocument {
public:
    /// The document outlives this object.
    explicit KORTextDocument(KORMemoryDocument& document) : document_(document) {}

    /// Adds what the file holds to the document. False, `error` filled, and the document and platform as they
    /// were, when something is wrong with it.
    [[nodiscard]] bool Read(const std::string& path, KORJsonError& error);

    /// The same for a text at hand; `name` is what errors call it.
    [[nodiscard]] bool ReadText(const std::string& text, const std::string& name, KORJsonError& error);

    /// The whole document: its features in the order of their numbers, those in no container that another
    /// one references included, ids from 1 on. Attributes unknown to the catalogs when it was read are
    /// written back. Nothing, and `error` says why, when a feature references what is no feature of the
    /// document, or a text is no UTF-8.
    [[nodiscard]] std::optional<std::string> Write(std::string& error) const;

    /// The feature with that id in the text read last; null when there was none, or it is gone.
    KORVar<KORFeature> Find(int id) const;

private:
    bool Take(const std::optional<KORJsonFile>& file, KORJsonError& error);

    KORMemoryDocument& document_;
    KORKeptAttributes kept_;
    std::unordered_map<int, std::uint32_t> numbers_;  ///< by id, of the text read last
};
