#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

/// What a file holds; empty when there is none.
std::string Contents(const std::string& path);

/// A folder of a test's own, which goes with it.
class TestFolder {
public:
    TestFolder();
    ~TestFolder();
    TestFolder(const TestFolder&) = delete;
    TestFolder& operator=(const TestFolder&) = delete;

    const std::string& Path() const { return path_; }
    std::string operator/(const std::string& name) const { return path_ + "/" + name; }

    /// Writes a file into it; answers its path.
    std::string File(const std::string& name, const std::string& text) const;

    /// What lies in it, or in a folder in it, sorted.
    std::vector<std::string> Files(const std::string& folder = "") const;

private:
    std::string path_;
};

/// A test that works in such a folder.
class FolderTest : public testing::Test {
protected:
    std::string In(const std::string& name) const { return folder_ / name; }
    std::vector<std::string> Files(const std::string& folder = "") const { return folder_.Files(folder); }

    const TestFolder folder_;
};
