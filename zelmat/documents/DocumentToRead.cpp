#include "zelmat/documents/DocumentToRead.h"

#include "platform/document/KORTextDocument.h"
#include "zelmat/documents/UpgradeMaterials.h"
#include "zelmat/files/UnreadableFile.h"
#include "zelmat/text/WordList.h"

namespace zelmat {

std::unique_ptr<DocumentToRead> DocumentToRead::Open(const std::string& path, const std::string& catalogs,
                                                     Findings& findings, std::optional<std::uint32_t> step) {
    std::unique_ptr<DocumentToRead> opened(new DocumentToRead(path, catalogs));
    if (!opened->host_.OpenCatalog(findings)) return nullptr;
    using History = KORDiskDocument::History;
    KORFileError error;
    opened->file_ = KORDiskDocument::OpenToRead(opened->host_.Platform(), path, error,
                                                step ? History::Steps : History::Names);
    if (!opened->file_) {
        findings.Add(UnreadableFile(path, error, "broken-document"));
        return nullptr;
    }
    for (const std::string& note : opened->file_->Notes()) {
        findings.Add({FindingKind::NOTE, {path, 0}, "document", note, {}});
    }
    if (step && !opened->GoToStep(*step, findings)) return nullptr;
    return opened->Begin(findings) ? std::move(opened) : nullptr;
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
