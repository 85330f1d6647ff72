#include "zelmat/exchange/calculix/CalculixCards.h"

#include <algorithm>
#include <array>

#include "zelmat/exchange/DeckText.h"

namespace zelmat {

namespace {

using mechanics::HyperelasticModel;

constexpr std::array<CalculixPotential, 7> kPotentials = {{
    {HyperelasticModel::ARRUDA_BOYCE, "ARRUDA-BOYCE"},
    {HyperelasticModel::MOONEY_RIVLIN, "MOONEY-RIVLIN"},
    {HyperelasticModel::NEO_HOOKE, "NEO HOOKE"},
    {HyperelasticModel::OGDEN, "OGDEN"},
    {HyperelasticModel::POLYNOMIAL, "POLYNOMIAL"},
    {HyperelasticModel::REDUCED_POLYNOMIAL, "REDUCED POLYNOMIAL"},
    {HyperelasticModel::YEOH, "YEOH"},
}};

std::string WithoutBlanks(std::string_view text) {
    std::string solid(text);
    std::erase(solid, ' ');
    return solid;
}

void AddRow(std::string& text, const std::vector<double>& numbers) {
    for (std::size_t at = 0; at < numbers.size(); ++at) {
        text += DeckNumber(numbers[at]);
        const bool last = at + 1 == numbers.size();
        text += last || (at + 1) % kCalculixNumbers == 0 ? "\n" : ", ";
    }
}

template <class Condition>
const CalculixPotential* Find(Condition condition) {
    const auto* found = std::find_if(kPotentials.begin(), kPotentials.end(), condition);
    return found == kPotentials.end() ? nullptr : found;
}

}  // namespace

const CalculixPotential* FindCalculixPotential(mechanics::HyperelasticModel model) {
    return Find([&](const CalculixPotential& one) { return one.model == model; });
}

const CalculixPotential* FindCalculixPotential(std::string_view keyword) {
    return Find([&](const CalculixPotential& one) { return WithoutBlanks(one.keyword) == keyword; });
}

std::string CalculixCard(const std::string& keyword, const DeckTable& table) {
    std::string text = keyword + "\n";
    for (std::size_t row = 0; row < table.Rows(); ++row) AddRow(text, table.Row(row));
    return text;
}

std::string CalculixConstants(const std::vector<double>& constants) {
    std::string text;
    AddRow(text, constants);
    if (constants.size() % kCalculixNumbers == 0) text += "0.\n";
    return text;
}

}  // namespace zelmat
