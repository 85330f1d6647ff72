#include "zelmat/cards/WriteCard.h"

#include <algorithm>

#include "zelmat/cards/CardJson.h"

namespace zelmat {

const std::vector<CardForm>& CardForms() {
    static const std::vector<CardForm> forms = {
        {"json", ".json", true,
         [](const std::vector<Material>& materials, Findings&) { return JsonCardText(materials); }},
    };
    return forms;
}

const CardForm* FindCardForm(const std::string& name) {
    const auto& forms = CardForms();
    const auto found =
        std::find_if(forms.begin(), forms.end(), [&](const CardForm& form) { return form.name == name; });
    return found == forms.end() ? nullptr : &*found;
}

}  // namespace zelmat
