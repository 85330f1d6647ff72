#include "zelmat/documents/DocumentToChange.h"

#include "zelmat/documents/DocumentForm.h"
#include "zelmat/files/UnreadableFile.h"
#include "zelmat/settings/ConfigurationFile.h"
#include "zelmat/text/CountText.h"
#include "zelmat/text/WordList.h"

namespace zelmat {

namespace {

/// False, and a finding, for "-", which stands for a stream in every other place of a command line.
bool IsPath(const std::string& path, Findings& findings) {
    if (path != "-") return true;
    findings.Add({FindingKind::USAGE,
                  {path, 0},
                  "no-path",
                  "a document that is made or changed is a file, not a stream",
                  {"./- is a file of that name"}});
    return false;
}

/// False, and a finding, for what is there and no document of the form that can be changed in place.
bool CanBeChanged(const std::string& path, Findings& findings) {
    if (!IsPath(path, findings)) return false;
    if (!IsTextDocumentFile(path)) return true;
    findings.Add({FindingKind::USAGE,
                  {path, 0},
                  "text-document",
                  "a document in its text form is not changed in place",
                  {"zelmat upgrade " + path + " --output NEW.zeldoc makes one that can be"}});
    return false;
}

}  // namespace

std::unique_ptr<DocumentToChange> DocumentToChange::Open(const std::string& path, const std::string& catalogs,
                                                         Findings& findings, Older older) {
    if (!CanBeChanged(path, findings)) return nullptr;
    std::unique_ptr<DocumentToChange> opened(new DocumentToChange(path, catalogs));
    opened->settings_ = ConfigurationFile().Read(findings);
    if (!opened->settings_ || !opened->host_.OpenCatalog(findings)) return nullptr;
    KORFileError error;
    opened->file_ = KORDiskDocument::OpenToChange(opened->host_.Platform(), path, error);
    if (!opened->file_) {
        findings.Add(UnreadableFile(path, error, "broken-document"));
        return nullptr;
    }
    for (const std::string& note : opened->file_->Notes()) {
        findings.Add({FindingKind::NOTE, {path, 0}, "document", note, {}});
    }
    ChoosePressureUnit(opened->Document(), opened->file_->PressureUnit());
    if (older == Older::UPGRADED && !opened->BringUpToDate(findings)) return nullptr;
    return opened;
}

std::unique_ptr<DocumentToChange> DocumentToChange::Create(const std::string& path,
                                                           const std::string& catalogs, Findings& findings) {
    if (!IsPath(path, findings)) return nullptr;
    std::unique_ptr<DocumentToChange> made(new DocumentToChange(path, catalogs));
    made->settings_ = ConfigurationFile().Read(findings);
    if (!made->settings_ || !made->host_.OpenCatalog(findings)) return nullptr;
    KORFileError error;
    made->file_ = KORDiskDocument::Create(made->host_.Platform(), path, error);
    if (!made->file_) {
        findings.Add({FindingKind::UNREADABLE, {path, 0}, "not-made", error.Sentence(), {}});
        return nullptr;
    }
    return made;
}

bool DocumentToChange::BringUpToDate(Findings& findings) {
    const KeptPressureUnit kept(Document());
    Findings own;
    upgrade_ = UpgradeMaterials(Document(), path_, own);
    ReportUpgrade(upgrade_, path_, own);
    findings.Add(own);
    if (upgrade_.run.refused || own.HasErrors()) return false;
    const auto& upgraded = upgrade_.run.upgraded;
    if (upgraded.empty()) return true;
    findings.Add(
        {FindingKind::NOTE,
         {path_, 0},
         "upgraded",
         CountText(upgraded.size(), "material") + " of an older release " +
             (upgraded.size() == 1 ? "is" : "are") + " brought up to date",
         {WordList(upgraded, [](const auto& material) { return std::string(material.name.c_str()); }),
          "a step of its own, which undo takes back"}});
    return true;
}

void DocumentToChange::KeepHistoryBounds() {
    const auto steps = settings_->HistorySteps();
    const auto bytes = settings_->HistoryBytes();
    if (!steps && !bytes) return;
    file_->SetHistoryBounds(steps.value_or(file_->MostSteps()), bytes.value_or(file_->MostBytes()));
}

bool DocumentToChange::Save(const KORHistoryOrigin& origin, Findings& findings) {
    KORFileError error;
    KeepHistoryBounds();
    if (file_->SetPressureUnit(ChosenPressureUnit(Document())) && file_->Save(origin, error)) return true;
    findings.Add({FindingKind::UNREADABLE, {path_, 0}, "not-saved", error.Sentence(), {}});
    return false;
}

}  // namespace zelmat
