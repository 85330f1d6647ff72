#include "framework/KORDiagnostic.h"

#include <gtest/gtest.h>

#include <iostream>
#include <streambuf>
#include <string>

namespace {

/// Notes what was written up to each flush.
class FlushBuffer final : public std::streambuf {
public:
    std::string written;
    std::string flushed;

protected:
    int_type overflow(int_type character) override {
        written += traits_type::to_char_type(character);
        return character;
    }
    int sync() override {
        flushed = written;
        return 0;
    }
};

}  // namespace

TEST(KORDiagnosticLine, WritesOneLineToStandardOutputAndFlushesIt) {
    FlushBuffer buffer;
    std::streambuf* before = std::cout.rdbuf(&buffer);

    KORDiagnosticLine("No material SpecObject !");
    const std::string afterFirst = buffer.flushed;
    KORDiagnosticLine("The Elastic data is inconsistent !");
    std::cout.rdbuf(before);

    EXPECT_EQ(afterFirst, "No material SpecObject !\n");
    EXPECT_EQ(buffer.flushed, "No material SpecObject !\nThe Elastic data is inconsistent !\n");
}
