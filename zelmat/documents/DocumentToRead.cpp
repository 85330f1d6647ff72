#include "zelmat/documents/DocumentToRead.h"

#include "platform/document/KORTextDocument.h"
#include "zelmat/documents/UpgradeMaterials.h"
#include "zelmat/files/UnreadableFile.h"
#include "zelmat/text/WordList.h"

namespace zelmat {

using History = KORDiskDocument::History;

std::unique_ptr<DocumentToRead> DocumentToRead::OpenFile(const std::string& path, const std::string& catalogs,
                                                         History history, Findings& findings) {
    std::unique_ptr<DocumentToRead> opened(new DocumentToRead(path, catalogs));
    if (!opened->host_.OpenCatalog(findings)) return nullptr;
    KORFileError error;
    opened->file_ = KORDiskDocument::OpenToRead(opened->host_.Platform(), path, error, history);
    if (!opened->file_) {
        findings.Add(UnreadableFile(path, error, "broken-document"));
        return nullptr;
    }
    for (const std::string& note : opened->file_->Notes()) {
        findings.Add({FindingKind::NOTE, {path, 0}, "document", note, {}});
    }
    return opened;
}

std::unique_ptr<DocumentToRead> DocumentToRead::Open(const std::string& path, const std::string& catalogs,
                                                     Findings& findings, std::optional<std::uint32_t> step) {
    auto opened = OpenFile(path, catalogs, step ? History::Steps : History::Names, findings);
    const bool good = opened && (!step || opened->GoToStep(*step, findings)) && opened->Begin(findings);
    return good ? std::move(opened) : nullptr;
}

std::unique_ptr<DocumentToRead> DocumentToRead::OpenWithSteps(const std::string& path,
                                                              const std::string& catalogs,
                                                              Findings& findings) {
    auto opened = OpenFile(path, catalogs, History::Steps, findings);
    return opened && opened->Begin(findings) ? std::move(opened) : nullptr;
}

std::unique_ptr<DocumentToRead> DocumentToRead::OpenText(const std::string& text, const std::string& name,
                                                         const std::string& catalogs, Findings& findings) {
    std::unique_ptr<DocumentToRead> opened(new DocumentToRead(name, catalogs));
    if (!opened->host_.OpenCatalog(findings)) return nullptr;
    KORFileError error;
    if (!KORTextDocument(opened->host_.Document()).ReadText(text, name, error)) {
        findings.Add(UnreadableFile(name, error, "broken-document"));
        return nullptr;
    }
    return opened->Begin(findings) ? std::move(opened) : nullptr;
}

KORMemoryDocument& DocumentToRead::Document() {
    return file_ ? file_->Document() : host_.Document();
}

bool DocumentToRead::GoTo(std::uint32_t step, Findings& findings) {
    looking_.reset();
    return GoToStep(step, findings) && Begin(findings);
}

bool DocumentToRead::GoToStep(std::uint32_t step, Findings& findings) {
    if (file_->GoToStep(step)) return true;
    const std::string numbers =
        WordList(file_->Steps(), [](const KORHistoryStep& each) { return std::to_string(each.number); });
    findings.Add({FindingKind::USAGE,
                  {name_, 0},
                  "no-such-step",
                  "the document has no step " + std::to_string(step),
                  {numbers.empty() ? "it has none" : "has: 0, " + numbers}});
    return false;
}

bool DocumentToRead::Begin(Findings& findings) {
    if (file_) ChoosePressureUnit(Document(), file_->PressureUnit());
    looking_.emplace(Document(), "look");
    Findings own;
    const UpgradeReport report = UpgradeMaterials(Document(), name_, own);
    ReportUpgrade(report, name_, own);
    findings.Add(own);
    return !report.run.refused && !own.HasErrors();
}

std::vector<Material> DocumentToRead::Materials(Findings& findings) {
    std::vector<Material> materials;
    for (const DocumentMaterial& material : MaterialsOf(Document())) {
        materials.push_back(ReadDocumentMaterial(material, name_, findings));
    }
    return materials;
}

}  // namespace zelmat
