#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/zelmat/support/Program.h"
#include "tests/zelmat/support/TestFolder.h"

/// A test that works with documents in a folder of its own, which goes with it.
class DocumentFolder : public testing::Test {
protected:
    std::string Path(const std::string& name) const { return folder_ / name; }

    /// Writes a file into the folder; answers its path.
    std::string File(const std::string& name, const std::string& text) const {
        return folder_.File(name, text);
    }

    /// Makes an empty document in the folder; answers its path.
    std::string NewDocument(const std::string& name = "a.zeldoc") const;

    /// Makes a document of these samples.
    std::string DocumentOf(const std::vector<std::string>& samples,
                           const std::string& name = "a.zeldoc") const;

    /// Runs a command that is to succeed; answers its standard output, the folder's name left out.
    std::string Run(const std::vector<std::string>& arguments) const;

    /// Runs a command that is to end with this exit code; answers its standard error, the folder's name left
    /// out.
    std::string Refusal(int exitCode, const std::vector<std::string>& arguments) const;

    /// The names of a document's materials, in their order.
    std::vector<std::string> Names(const std::string& document) const;

private:
    std::string Shorten(std::string text) const;

    const TestFolder folder_;
};
