#pragma once

#include <unordered_set>

#include "platform/catalog/KORJsonReader.h"
#include "platform/document/KORTextDocument.h"

/// Reads the text form of a document in two steps: Read understands all of it and changes nothing; Build
/// makes the features and finds no more mistakes.
class KORTextReader final : public KORJsonReader {
public:
    KORTextReader(const KORJsonFile& file, KORMemoryDocument& document)
        : KORJsonReader(file), document_(document), catalogs_(document.Platform().SharedCatalogs()) {}

    void Read();

    /// To be called when Read found no error. The numbers of the new features by id.
    std::unordered_map<int, std::uint32_t> Build() const;

private:
    /// Where a value goes.
    struct Target {
        KORSlot slot = 0;       ///< 0: the late type does not declare it
        KORUnicodeString name;  ///< of what is not declared

        void Write(KORFeature& feature, KORValue&& value) const;
    };
    struct References {
        Target target;
        KORAttributeKind kind;
        std::vector<int> ids;  ///< 0 for null
    };
    struct Feature {
        int id = 0;
        KORLayoutHandle layout;
        std::optional<KORUnicodeString> name;
        std::optional<KORUnicodeString> alias;
        std::optional<std::string> container = "";  ///< none: in no container; empty: the document's own
        std::vector<std::pair<Target, KORValue>> values;
        std::vector<References> references;
    };

    void ReadCatalogs();
    void ReadPressureUnit();
    void ReadContainers();
    Feature ReadHead(const Json& at);
    int ReadId(const Json& at);
    void ReadContainer(const Json& at, Feature& feature);
    void ReadAttributes(const Json& at, Feature& feature);
    void ReadAttribute(const Json& at, const Target& target, KORAttributeKind kind, Feature& feature);
    KORValue ReadValue(const Json& value, KORAttributeKind kind);
    KORValue ReadNumbers(const Json& at);
    std::optional<double> Number(const Json& value) const;
    std::vector<int> ReadReference(const Json& at);
    std::vector<int> ReadReferences(const Json& at);
    int ReadTarget(const Json& at);                     ///< the id that stands there
    static KORAttributeKind KindOf(const Json& value);  ///< of what no late type declares
    std::optional<KORUnicodeString> OptionalText(const Json& at, const char* member);

    KORVar<KORFeature> Make(const Feature& feature) const;

    KORMemoryDocument& document_;
    KORCatalogSet catalogs_;
    std::string pressureUnit_;
    std::vector<std::string> containers_;
    std::unordered_set<std::string> knownContainers_;
    std::vector<Feature> features_;
    std::unordered_map<int, std::size_t> places_;  ///< in features_, by id
};
