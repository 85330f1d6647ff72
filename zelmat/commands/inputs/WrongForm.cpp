#include "zelmat/commands/inputs/WrongForm.h"

#include <array>
#include <optional>

#include "platform/catalog/KORJsonFile.h"

namespace zelmat {

namespace {

struct KnownForm {
    FileForm form;
    const char* what;
    const char* command;
    std::array<const char*, 2> keys;  ///< that only it has, all of them; null where there is no second
};

constexpr std::array<KnownForm, 2> kTold = {{
    {FileForm::DOCUMENT, "a document", "zelmat list", {"format", "features"}},
    {FileForm::LAYUP_CARD, "a layup card", "zelmat layup", {"layers", nullptr}},
}};
constexpr KnownForm kMaterialCard = {
    FileForm::MATERIAL_CARD, "a material card", "zelmat show", {"name", nullptr}};

bool Has(const nlohmann::json& root, const KnownForm& form) {
    for (const char* key : form.keys) {
        if (key && !root.contains(key)) return false;
    }
    return true;
}

/// Null when it is no JSON object or none of the forms.
const KnownForm* FormOf(const std::optional<KORJsonFile>& file) {
    if (!file || !file->Root().is_object()) return nullptr;
    for (const KnownForm& form : kTold) {
        if (Has(file->Root(), form)) return &form;
    }
    return Has(file->Root(), kMaterialCard) ? &kMaterialCard : nullptr;
}

}  // namespace

std::optional<FileForm> FormOfText(const std::string& text) {
    KORFileError error;
    const KnownForm* found = FormOf(KORJsonFile::Parse(text, "text", error));
    return found ? std::optional(found->form) : std::nullopt;
}

bool NameRightCommand(const std::string& path, FileForm expected, Findings& findings) {
    KORFileError error;
    const KnownForm* found = FormOf(KORJsonFile::Read(path, error));
    if (!found || found->form == expected) return false;
    findings.RemoveAbout(path);
    findings.Add({FindingKind::USAGE,
                  {path, 0},
                  "wrong-command",
                  std::string("this is ") + found->what,
                  {std::string(found->command) + " reads it"}});
    return true;
}

}  // namespace zelmat
