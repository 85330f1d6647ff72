#include "platform/catalog/KORCatalogFile.h"

#include <unordered_map>

#include "platform/catalog/KORCatalogReader.h"
#include "platform/catalog/KORStartUp.h"

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

KORCatalogFile::KORCatalogFile(std::string name, std::vector<KORCatalogType> types)
    : name_(std::move(name)), types_(std::move(types)) {
    for (KORCatalogType& type : types_) {
        type.startUp = KORISpecObject_var::Adopt(new KORStartUp(type.layout));
        const std::uint32_t number = type.layout->Name()->Number();
        if (number >= byNumber_.size()) byNumber_.resize(number + 1);
        byNumber_[number] = &type;
    }
}

const KORCatalogType* KORCatalogFile::Find(const KORName* lateType) const {
    return lateType && lateType->Number() < byNumber_.size() ? byNumber_[lateType->Number()] : nullptr;
}
