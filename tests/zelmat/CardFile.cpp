#include "tests/zelmat/CardFile.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

CardFile::CardFile(const std::string& text)
    : folder_(testing::TempDir() + "zelmat-card-" + std::to_string(getpid())), path_(folder_ + "/card.json") {
    std::filesystem::create_directories(folder_);
    std::ofstream(path_) << text;
}

CardFile::~CardFile() {
    std::filesystem::remove_all(folder_);
}

std::string CardFile::Shorten(std::string line) const {
    if (line.starts_with(folder_)) line.erase(0, folder_.size() + 1);
    return line;
}

std::vector<std::string> FindingsOf(const std::string& text) {
    const CardFile file(text);
    zelmat::Findings findings;
    const auto card = zelmat::MaterialCardReader(findings).Read(file.Path());
    EXPECT_EQ(card.has_value(), findings.All().empty());
    std::vector<std::string> lines;
    for (const auto& finding : findings.All()) lines.push_back(file.Shorten(zelmat::FindingLine(finding)));
    return lines;
}

zelmat::MaterialCard CardOf(const std::string& text) {
    const CardFile file(text);
    zelmat::Findings findings;
    const auto card = zelmat::MaterialCardReader(findings).Read(file.Path());
    for (const auto& finding : findings.All()) ADD_FAILURE() << zelmat::FindingLine(finding);
    return card.value_or(zelmat::MaterialCard());
}
