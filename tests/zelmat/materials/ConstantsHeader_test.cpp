#include <gmock/gmock.h>

#include <fstream>
#include <iterator>
#include <map>
#include <regex>
#include <set>

#include "platform/catalog/KORCatalogFile.h"
#include "tests/zelmat/support/CatalogFolder.h"
#include "tests/zelmat/support/Program.h"

namespace {

using Names = std::set<std::string>;

/// The constants of one namespace of the module's header, by name.
std::map<std::string, std::string> ConstantsOf(const std::string& space) {
    std::ifstream file(Sample("../ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELMaterialConstants.h"));
    const std::string text{std::istreambuf_iterator<char>(file), {}};
    const auto begin = text.find("namespace " + space + " {");
    const auto end = text.find("}  // namespace " + space);
    EXPECT_LT(begin, end);
    const std::string body = text.substr(begin, end - begin);
    const std::regex constant(
        R"re(KORUnicodeString (\w+)\s*=\s*KORUnicodeString::Literal\(\s*"([^"]*)"\))re");
    std::map<std::string, std::string> constants;
    for (auto at = std::sregex_iterator(body.begin(), body.end(), constant); at != std::sregex_iterator();
         ++at) {
        constants[(*at)[1]] = (*at)[2];
    }
    return constants;
}

Names ValuesOf(const std::map<std::string, std::string>& constants) {
    Names values;
    for (const auto& [name, value] : constants) values.insert(value);
    return values;
}

/// Late types and attributes of the module's catalog.
struct Declared {
    Names types;
    Names attributes;

    Declared() {
        KORFileError error;
        const auto catalog =
            KORCatalogFile::Open(CatalogFolderOfTheModule() + "/ZELMaterialPropertiesCatalog.KORfct", error);
        if (!catalog) ADD_FAILURE() << error.Text();
        if (!catalog) return;
        for (const auto& type : catalog->Types()) {
            types.insert(type.layout->NameText().c_str());
            for (const auto& attribute : type.layout->Attributes()) {
                attributes.insert(attribute.name->Text());
            }
        }
    }
};

TEST(ConstantsHeader, NamesEveryAttributeOfTheCatalogAndNoOther) {
    Names declared = Declared().attributes;
    declared.erase("Father");  // the platform's own

    EXPECT_EQ(ValuesOf(ConstantsOf("ZELKey")), declared);
}

TEST(ConstantsHeader, NamesEveryLateTypeOfTheCatalogAndThoseOfTheAddOnThatTheModuleMeets) {
    Names named = ValuesOf(ConstantsOf("ZELLateType"));
    EXPECT_EQ(named.erase("ZELZelmarPropertySetLT"), 1u);
    EXPECT_EQ(named.erase("ZELShellSectionEnhLT"), 1u);

    EXPECT_EQ(named, Declared().types);
}

TEST(ConstantsHeader, CallsEveryConstantAsItsValue) {
    for (const char* space : {"ZELLateType", "ZELKey"}) {
        for (const auto& [name, value] : ConstantsOf(space)) EXPECT_EQ(name, value);
    }
}

}  // namespace
