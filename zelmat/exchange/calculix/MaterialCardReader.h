#pragma once

#include <optional>
#include <string>
#include <vector>

#include "zelmat/exchange/DeckUnits.h"
#include "zelmat/exchange/calculix/CardRows.h"
#include "zelmat/exchange/calculix/DeckCards.h"
#include "zelmat/findings/Findings.h"
#include "zelmat/materials/Material.h"

namespace zelmat {

/// Brings the cards behind *MATERIAL (*ELASTIC, *PLASTIC, ...) into a material, one after the other. What a
/// card says and no behavior holds is a warning with its line, parameters that it does not know among them.
class MaterialCardReader {
public:
    MaterialCardReader(const std::string& path, const DeckUnits& units, Findings& findings)
        : path_(path), units_(units), findings_(findings) {}

    /// Whether it reads such cards at all.
    static bool Reads(const std::string& keyword);

    /// Reads the data lines behind `card` and puts them into `material`. False, and a finding, where they
    /// cannot be read.
    [[nodiscard]] bool Read(const DeckKeyword& card, DeckCards& cards, Material& material);

    /// To be called behind a material's last card: what waited for a card that has not come is told.
    void End();

private:
    using Reader = bool (MaterialCardReader::*)(const DeckKeyword& card, const NumberRows& rows);
    struct Kind {
        Reader reader;
        std::vector<std::string> parameters;  ///< that it heeds
    };
    static const Kind* KindOf(const std::string& keyword);

    bool HasPlaceFor(const DeckKeyword& card, const Kind& kind);
    bool Elastic(const DeckKeyword& card, const NumberRows& rows);
    bool Plastic(const DeckKeyword& card, const NumberRows& rows);
    bool Density(const DeckKeyword& card, const NumberRows& rows);
    bool Conductivity(const DeckKeyword& card, const NumberRows& rows);
    bool SpecificHeat(const DeckKeyword& card, const NumberRows& rows);
    bool Expansion(const DeckKeyword& card, const NumberRows& rows);
    bool DirectedExpansion(const DeckKeyword& card, const NumberRows& rows);
    bool Hyperelastic(const DeckKeyword& card, const NumberRows& rows);
    bool UserMaterial(const DeckKeyword& card, const NumberRows& lines);
    bool StateVariables(const DeckKeyword& card, DeckCards& cards);

    bool OneTable(const DeckKeyword& card, const NumberRows& rows, const char* block);
    bool Fill(Block& block, const DeckKeyword& card, const NumberRows& rows, std::size_t width);
    Block* NewBlock(const DeckKeyword& card, const char* name);
    std::optional<std::vector<double>> OnlyRow(const DeckKeyword& card, const NumberRows& rows,
                                               std::size_t width);
    std::vector<double> ConstantsOf(const DeckKeyword& card, const NumberRows& lines, std::size_t wanted);
    void KeepConstant(const DeckKeyword& card, const char* name, double number);
    void TellOwnCompressibility(const DeckKeyword& card, const Block& block);

    bool Error(int line, const char* code, const std::string& text);
    void Warn(int line, const char* code, const std::string& text);
    bool Lost(const DeckKeyword& card, const std::string& why);

    /// A *DEPVAR card, which may stand before its *USER MATERIAL.
    struct Waiting {
        DeckKeyword card;
        int variables;
    };

    std::string path_;
    const DeckUnits& units_;
    Findings& findings_;
    Material* material_ = nullptr;  // the one that is being read
    std::optional<Waiting> waiting_;
};

}  // namespace zelmat
