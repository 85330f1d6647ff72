#include "platform/document/KORTextDocument.h"

#include "platform/document/KORTextReader.h"
#include "platform/document/KORTextWriter.h"

bool KORTextDocument::Read(const std::string& path, KORFileError& error) {
    return Take(KORJsonFile::Read(path, error), error);
}

bool KORTextDocument::ReadText(const std::string& text, const std::string& name, KORFileError& error) {
    return Take(KORJsonFile::Parse(text, name, error), error);
}

bool KORTextDocument::Take(const std::optional<KORJsonFile>& file, KORFileError& error) {
    if (!file) return false;
    KORTextReader reader(*file, document_);
    reader.Read();
    if (reader.Error()) {
        error = *reader.Error();
        return false;
    }
    numbers_ = reader.Build();
    return true;
}

std::optional<std::string> KORTextDocument::Write(KORFileError& error) const {
    return KORTextWriter(document_).Write(error);
}

KORVar<KORFeature> KORTextDocument::Find(int id) const {
    const auto number = numbers_.find(id);
    return number != numbers_.end() ? document_.Features().Find(number->second) : nullptr;
}
