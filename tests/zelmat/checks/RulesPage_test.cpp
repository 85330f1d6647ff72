#include "zelmat/checks/RulesPage.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

namespace {

TEST(RulesPage, IsTheOneInTheDocuments) {
    std::ostringstream page;
    page << std::ifstream(ZELMAT_CHECKS_PAGE).rdbuf();
    EXPECT_EQ(page.str(), zelmat::RulesPage()) << "zelmat check --rules > docs/checks.md makes it anew";
}

}  // namespace
