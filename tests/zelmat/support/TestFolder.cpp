#include "tests/zelmat/support/TestFolder.h"

#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>

std::string Contents(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

TestFolder::TestFolder() {
    static int made = 0;
    path_ = testing::TempDir() + "zelmat-test-" + std::to_string(getpid()) + "-" + std::to_string(++made);
    std::filesystem::remove_all(path_);
    std::filesystem::create_directories(path_);
}

TestFolder::~TestFolder() {
    std::error_code none;
    std::filesystem::remove_all(path_, none);
}

std::string TestFolder::File(const std::string& name, const std::string& text) const {
    std::ofstream(*this / name, std::ios::binary) << text;
    return *this / name;
}

std::vector<std::string> TestFolder::Files(const std::string& folder) const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(*this / folder)) {
        names.push_back(entry.path().filename());
    }
    std::ranges::sort(names);
    return names;
}
