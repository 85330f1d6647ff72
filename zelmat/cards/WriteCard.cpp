#include "zelmat/cards/WriteCard.h"

#include <algorithm>

#include "zelmat/cards/CardJson.h"
#include "zelmat/cards/CsvCardWriter.h"
#include "zelmat/cards/FcmatCardWriter.h"

namespace zelmat {

namespace {

const std::vector<CardForm>& CardForms() {
    static const std::vector<CardForm> forms = {
        {"json", ".json", true,
         [](const std::vector<Material>& materials, Findings&) { return JsonCardText(materials); }},
        {"csv", ".csv", true,
         [](const std::vector<Material>& materials, Findings&) { return CsvCardText(materials); }},
        {"fcmat", ".FCMat", false,
         [](const std::vector<Material>& materials, Findings& findings) {
             return FcmatCardText(materials.front(), findings);
         }},
    };
    return forms;
}

}  // namespace

std::vector<std::string> CardFormNames() {
    std::vector<std::string> names;
    for (const CardForm& form : CardForms()) names.push_back(form.name);
    return names;
}

const CardForm* FindCardForm(const std::string& name) {
    const auto& forms = CardForms();
    const auto found =
        std::find_if(forms.begin(), forms.end(), [&](const CardForm& form) { return form.name == name; });
    return found == forms.end() ? nullptr : &*found;
}

}  // namespace zelmat
