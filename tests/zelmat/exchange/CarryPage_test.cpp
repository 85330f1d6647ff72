#include "zelmat/exchange/CarryPage.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "zelmat/exchange/DeckForm.h"

namespace {

using zelmat::Carry;

TEST(CarryPage, IsTheOneInTheDocuments) {
    std::ostringstream page;
    page << std::ifstream(ZELMAT_EXCHANGE_PAGE).rdbuf();
    EXPECT_EQ(page.str(), zelmat::CarryPage()) << "zelmat export --carries > docs/exchange.md makes it anew";
}

TEST(CarryPage, NamesTwentyThreeBehaviors) {
    EXPECT_THAT(zelmat::BehaviorNames(),
                testing::ElementsAre(
                    "elastic", "plastic isotropic", "plastic kinematic", "plastic johnson-cook", "density",
                    "thermal_expansion", "conductivity", "specific_heat", "user_material MECHANICAL",
                    "user_material THERMAL", "hyperelastic ARRUDA_BOYCE", "hyperelastic MOONEY_RIVLIN",
                    "hyperelastic NEO_HOOKE", "hyperelastic OGDEN", "hyperelastic POLYNOMIAL",
                    "hyperelastic REDUCED_POLYNOMIAL", "hyperelastic VAN_DER_WAALS", "hyperelastic YEOH",
                    "gasket", "gasket_membrane", "gasket_transverse_shear", "ply constants", "layup"));
}

TEST(CarryPage, HasALineOfEveryFormAboutEveryBehavior) {
    for (const auto& form : zelmat::DeckForms()) {
        for (const std::string& behavior : zelmat::BehaviorNames()) {
            const auto* rule = zelmat::FindRule(form.rules, behavior);
            ASSERT_NE(rule, nullptr) << form.name << ": " << behavior;
            EXPECT_EQ(rule->as.empty(), rule->carry == Carry::LOST) << form.name << ": " << behavior;
            if (rule->carry != Carry::CARRIED) {
                EXPECT_NE(rule->remark, "") << form.name << ": " << behavior;
            }
        }
        EXPECT_EQ(form.rules.size(), zelmat::BehaviorNames().size()) << form.name;
    }
}

}  // namespace
