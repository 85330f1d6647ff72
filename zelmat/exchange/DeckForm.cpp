#include "zelmat/exchange/DeckForm.h"

#include <algorithm>

namespace zelmat {

// One line a form.
DeckForm CalculixForm();
DeckForm CodeAsterForm();
DeckForm ElmerForm();
DeckForm OpenRadiossForm();
DeckForm MfrontForm();

const std::vector<DeckForm>& DeckForms() {
    static const std::vector<DeckForm> forms = {CalculixForm(), CodeAsterForm(), ElmerForm(),
                                                OpenRadiossForm(), MfrontForm()};
    return forms;
}

const DeckForm* FindDeckForm(const std::string& name) {
    const auto& forms = DeckForms();
    const auto found =
        std::find_if(forms.begin(), forms.end(), [&](const DeckForm& form) { return form.name == name; });
    return found == forms.end() ? nullptr : &*found;
}

const Block* DeckMaterial::Find(const std::string& block) const {
    const auto found =
        std::find_if(blocks.begin(), blocks.end(), [&](const Block& one) { return one.kind->name == block; });
    return found == blocks.end() ? nullptr : &*found;
}

}  // namespace zelmat
