#include <elf.h>
#include <gmock/gmock.h>

#include <algorithm>
#include <cstring>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>

using testing::IsEmpty;

namespace {

struct Symbol {
    std::string name;
    unsigned binding;
};

/// The symbols that a 64-bit ELF library defines.
class LibrarySymbols {
public:
    /// Those of a table of the library: SHT_DYNSYM or SHT_SYMTAB.
    explicit LibrarySymbols(const char* path, unsigned kind) {
        std::ifstream file(path, std::ios::binary);
        bytes_.assign(std::istreambuf_iterator<char>(file), {});
        const auto header = At<Elf64_Ehdr>(0);
        for (std::size_t i = 0; i < header.e_shnum; ++i) {
            const auto section = At<Elf64_Shdr>(header.e_shoff + i * header.e_shentsize);
            if (section.sh_type != kind) continue;
            Read(section, At<Elf64_Shdr>(header.e_shoff + std::size_t{section.sh_link} * header.e_shentsize));
        }
    }

    std::vector<Symbol> symbols;

private:
    template <class T>
    T At(std::size_t offset) const {
        T value{};
        if (offset + sizeof value <= bytes_.size()) std::memcpy(&value, bytes_.data() + offset, sizeof value);
        return value;
    }
    void Read(const Elf64_Shdr& table, const Elf64_Shdr& names) {
        for (std::size_t offset = 0; offset < table.sh_size; offset += sizeof(Elf64_Sym)) {
            const auto symbol = At<Elf64_Sym>(table.sh_offset + offset);
            if (symbol.st_shndx == SHN_UNDEF) continue;
            const bool hidden = ELF64_ST_VISIBILITY(symbol.st_other) != STV_DEFAULT;
            if (table.sh_type == SHT_DYNSYM && hidden) continue;
            const char* name = bytes_.data() + names.sh_offset + symbol.st_name;
            symbols.push_back({name, static_cast<unsigned>(ELF64_ST_BIND(symbol.st_info))});
        }
    }

    std::vector<char> bytes_;
};

class ZELModuleSymbols : public testing::Test {
protected:
    std::vector<std::string> Missing(const std::vector<std::string>& names) const {
        std::vector<std::string> missing;
        for (const std::string& name : names) {
            const auto isIt = [&](const Symbol& symbol) { return symbol.name == name; };
            if (std::ranges::none_of(symbols_, isIt)) missing.push_back(name);
        }
        return missing;
    }

    const std::vector<Symbol> symbols_ = LibrarySymbols(ZEL_MODULE_LIBRARY, SHT_DYNSYM).symbols;
};

/// One for each interface that a class of the module implements.
const std::set<std::string> kCreators = {
    "CreateTIEKORICreateInstanceZELMaterialPropertiesFactInst",
    "CreateTIEKORISamUpgradeZELEMRVMaterialUpgrade",
    "CreateTIEKORISamValidityZELELayupValidity",
    "CreateTIEZELIHyperelasticMaterialModelZELEHyperelasticMaterialModel",
    "CreateTIEZELIJohnsonCookDataZELEJohnsonCookData",
    "CreateTIEZELILayupLayerZELELayupLayer",
    "CreateTIEZELILayupZELELayup",
    "CreateTIEZELIMaterialPropertiesFactZELMaterialPropertiesFact",
    "CreateTIEZELIMaterialZELMaterial",
};

/// Whose class-wide queries and CreateItself are there by name.
const std::vector<std::string> kOpenClasses = {"ZELMaterial", "ZELMaterialPropertiesFact",
                                               "ZELEHyperelasticMaterialModel"};
const std::vector<std::string> kClosedClasses = {"ZELMaterialPropertiesFactInst",
                                                 "ZELEMRVMaterialUpgrade",
                                                 "ZELEJohnsonCookData",
                                                 "ZELELayup",
                                                 "ZELELayupValidity",
                                                 "ZELELayupLayer"};

std::string Mangled(const std::string& name) {
    return std::to_string(name.size()) + name;
}

/// Each class's own, as the compiler writes their names.
std::vector<std::string> ClassWide(const std::vector<std::string>& owners) {
    std::vector<std::string> names;
    for (const std::string& owner : owners) {
        for (const std::string member : {"ClassName", "ClassId", "MetaObject", "CreateItself"}) {
            names.push_back("_ZN" + Mangled(owner) + Mangled(member) + "Ev");
        }
        for (const std::string member : {"IsA", "GetMetaObject"}) {
            names.push_back("_ZNK" + Mangled(owner) + Mangled(member) + "Ev");
        }
        names.push_back("_ZNK" + Mangled(owner) + Mangled("IsAKindOf") + "EPKc");
    }
    return names;
}

}  // namespace

TEST_F(ZELModuleSymbols, ShowTheCreatorsAndNothingElseUnderCNames) {
    std::set<std::string> plain;
    for (const Symbol& symbol : symbols_) {
        if (symbol.name.front() != '_') plain.insert(symbol.name);
    }

    EXPECT_EQ(plain, kCreators);
}

TEST_F(ZELModuleSymbols, ShowTheClassWideQueriesAndCreateItselfOfTheOpenClasses) {
    EXPECT_THAT(Missing(ClassWide(kOpenClasses)), IsEmpty());
}

TEST_F(ZELModuleSymbols, HideTheClassWideQueriesAndCreateItselfOfTheOtherClasses) {
    EXPECT_EQ(Missing(ClassWide(kClosedClasses)), ClassWide(kClosedClasses));
}

TEST_F(ZELModuleSymbols, ShowTheMaterialsOperationsAndTheBehaviorClasses) {
    EXPECT_THAT(
        Missing({"_ZN11ZELMaterial24GetHeatGenerationEnabledERb",
                 "_ZN11ZELMaterial24SetHeatGenerationEnabledEb",
                 "_ZN11ZELMaterial28IsAllZelmarPropertiesEnabledERb", "_ZN11ZELMaterial15ISGasketEnabledEv",
                 "_ZN11ZELMaterial22GetApplicativeSpecNameEv", "_ZN18ZELMaterialElasticC1EP14KORISpecObject",
                 "_ZN18ZELMaterialDensityC1EP14KORISpecObject",
                 "_ZN23ZELMaterialConductivityC1EP14KORISpecObject",
                 "_ZN23ZELMaterialSpecificHeatC1EP14KORISpecObject",
                 "_ZN27ZELMaterialThermalExpansionC1EP14KORISpecObject"}),
        IsEmpty());
}

TEST_F(ZELModuleSymbols, HoldNoTableOfAnObjectThatOutlivesTheModule) {
    // The module's classes, their bindings and what is abstract. Everything else is made by its own library.
    const std::vector<std::string> own = {"_ZTV\\d+ZEL.*", "_ZTV\\d+TIE(ZELI|KORI).*",
                                          "_ZTV6KORTieI\\d+(ZELI|KORI).*", "_ZTV\\d+KORI[A-Z]\\w*",
                                          "_ZTV12KORInterfaceI.*"};
    std::vector<std::string> foreign;
    for (const Symbol& symbol : LibrarySymbols(ZEL_MODULE_LIBRARY, SHT_SYMTAB).symbols) {
        if (!symbol.name.starts_with("_ZTV")) continue;
        const auto matches = [&](const std::string& pattern) {
            return std::regex_match(symbol.name, std::regex(pattern));
        };
        if (std::ranges::none_of(own, matches)) foreign.push_back(symbol.name);
    }

    EXPECT_THAT(foreign, IsEmpty());
}

TEST_F(ZELModuleSymbols, AreNeverUniqueToTheProcessSoThatTheLibraryCanBeUnloaded) {
    std::vector<std::string> unique;
    for (const Symbol& symbol : symbols_) {
        if (symbol.binding == STB_GNU_UNIQUE) unique.push_back(symbol.name);
    }

    ASSERT_FALSE(symbols_.empty());
    EXPECT_THAT(unique, IsEmpty());
}
