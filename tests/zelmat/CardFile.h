#pragma once

#include <string>
#include <vector>

#include "zelmat/MaterialCardReader.h"

/// A card written to a file of its own for as long as a test needs it.
class CardFile {
public:
    explicit CardFile(const std::string& text);
    ~CardFile();
    CardFile(const CardFile&) = delete;
    CardFile& operator=(const CardFile&) = delete;

    const std::string& Path() const { return path_; }

    /// A finding's line with "card.json" for the file's path.
    std::string Shorten(std::string line) const;

private:
    std::string folder_;
    std::string path_;
};

/// What reading the card finds, one line each.
std::vector<std::string> FindingsOf(const std::string& text);

/// What reading a card without mistakes gives.
zelmat::MaterialCard CardOf(const std::string& text);
