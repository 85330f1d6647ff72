#include "tests/zelmat/support/CardFile.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "tests/zelmat/support/CatalogFolder.h"

std::string CardFile::Shorten(std::string line) const {
    const std::string folder = folder_ / "";
    if (line.starts_with(folder)) line.erase(0, folder.size());
    return line;
}

std::vector<std::string> FindingsOf(const std::string& text) {
    const CardFile file(text);
    zelmat::Findings findings;
    const auto card = zelmat::ReadCard(file.Path(), findings);
    EXPECT_EQ(card.has_value(), !findings.HasErrors());
    std::vector<std::string> lines;
    for (const auto& finding : findings.All()) lines.push_back(file.Shorten(zelmat::FindingLine(finding)));
    return lines;
}

zelmat::Material CardOf(const std::string& text) {
    const CardFile file(text);
    zelmat::Findings findings;
    const auto card = zelmat::ReadCard(file.Path(), findings);
    for (const auto& finding : findings.All()) ADD_FAILURE() << zelmat::FindingLine(finding);
    return card.value_or(zelmat::Material());
}

std::vector<std::vector<double>> Rows(const zelmat::Table& table) {
    std::vector<std::vector<double>> rows;
    for (std::size_t row = 0; row < table.Rows(); ++row) rows.push_back(table.Row(row));
    return rows;
}

StoredCard::StoredCard(const std::string& text) : card(CardOf(text)) {
    card.file = "card.json";
    zelmat::Findings found;
    zelmat::MaterialHost host(CatalogFolderOfTheModule());
    std::vector<const zelmat::Block*> fits;
    if (!card.fits.empty()) fits.push_back(&card.fits.front());
    material = zelmat::StoreMaterial(host, card, fits, found);
    for (const auto& finding : found.All()) findings.push_back(zelmat::FindingLine(finding));
}

const zelmat::Block& StoredCard::Block(const std::string& name) const {
    for (const auto& stored : material.blocks) {
        if (stored.block.kind->name == name) return stored.block;
    }
    throw std::out_of_range(name + " was not stored");
}
