#pragma once

#include <string>
#include <vector>

#include "tests/zelmat/support/TestFolder.h"
#include "zelmat/cards/ReadCard.h"
#include "zelmat/materials/StoredMaterial.h"

/// A card written to a file of its own for as long as a test needs it.
class CardFile {
public:
    explicit CardFile(const std::string& text) : path_(folder_.File("card.json", text)) {}

    const std::string& Path() const { return path_; }

    /// A finding's line with "card.json" for the file's path.
    std::string Shorten(std::string line) const;

private:
    const TestFolder folder_;
    const std::string path_;
};

/// What reading the card finds, one line each.
std::vector<std::string> FindingsOf(const std::string& text);

/// What storing and reading back a card in a document of its own finds and gives, with the card's first fit.
struct StoredCard {
    explicit StoredCard(const std::string& text);

    const zelmat::Block& Block(const std::string& name) const;

    zelmat::Material card;
    std::vector<std::string> findings;  ///< one line each, of the file card.json
    zelmat::StoredMaterial material;
};

/// The numbers of a table row by row.
std::vector<std::vector<double>> Rows(const zelmat::Table& table);

/// What reading a card without mistakes gives.
zelmat::Material CardOf(const std::string& text);
