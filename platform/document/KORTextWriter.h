#pragma once

#include "platform/document/KORTextDocument.h"
#include "platform/store/KORFeaturePlaces.h"

/// Writes the text form of a document, in an order that depends on nothing but the document.
class KORTextWriter {
public:
    explicit KORTextWriter(KORMemoryDocument& document) : document_(document) {}

    /// Nothing, and `error` filled, when something cannot be written. It names no file: the text has none
    /// yet.
    std::optional<std::string> Write(KORFileError& error);

private:
    void CollectFeatures();  ///< what lies in a container, and what that references
    void WriteHead();
    void WriteFeature(const KORFeature& feature);
    void WriteContainer(const KORFeature& feature);
    std::vector<std::string> AttributesOf(const KORFeature& feature);
    std::string ValueText(const KORFeature& feature, std::string_view name, const KORValue& value);
    std::string NumbersText(const KORRawColldouble& numbers) const;
    std::string ReferenceText(const KORFeature& feature, std::string_view name, KORBaseUnknown* target);
    std::string Quoted(std::string_view text);
    void Fail(std::string message);  ///< only the first one counts

    KORMemoryDocument& document_;
    std::vector<KORVar<KORFeature>> features_;
    KORFeaturePlaces ids_;
    std::unordered_map<const KORBaseUnknown*, std::string>
        containers_;  ///< quoted names of the applicative ones
    std::string text_;
    std::optional<KORFileError> error_;  ///< the first one
};
