#include "platform/catalog/KORCatalogFile.h"

#include <unordered_map>

#include "platform/catalog/KORCatalogReader.h"

std::shared_ptr<const KORCatalogFile> KORCatalogFile::Open(const std::string& path, KORFileError& error) {
    static auto& parsed = *new std::unordered_map<std::string, std::shared_ptr<const KORCatalogFile>>;
    const auto known = parsed.find(path);
    if (known != parsed.end()) return known->second;
    const auto file = KORJsonFile::Read(path, error);
    auto catalog = file ? Build(*file, error) : nullptr;
    if (catalog) parsed.emplace(path, catalog);
    return catalog;
}

std::shared_ptr<const KORCatalogFile> KORCatalogFile::FromText(const std::string& text,
                                                               const std::string& name, KORFileError& error) {
    const auto file = KORJsonFile::Parse(text, name, error);
    return file ? Build(*file, error) : nullptr;
}

std::shared_ptr<const KORCatalogFile> KORCatalogFile::Build(const KORJsonFile& file, KORFileError& error) {
    KORCatalogReader reader(file);
    std::vector<KORCatalogType> types = reader.Read();
    if (reader.Error()) {
        error = *reader.Error();
        return nullptr;
    }
    return std::shared_ptr<const KORCatalogFile>(new KORCatalogFile(file.Name(), std::move(types)));
}

const KORCatalogType* KORCatalogFile::Find(const KORName* lateType) const {
    for (const KORCatalogType& type : types_) {
        if (type.layout->Name() == lateType) return &type;
    }
    return nullptr;
}
