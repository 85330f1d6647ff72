#include "zelmat/report/MaterialSheet.h"

#include <algorithm>

#include "zelmat/cards/FitChoice.h"
#include "zelmat/materials/DerivedValues.h"
#include "zelmat/materials/InUnits.h"
#include "zelmat/mechanics/elastic/IsotropicElasticity.h"
#include "zelmat/pictures/GnuplotText.h"
#include "zelmat/quantities/NumberColumn.h"
#include "zelmat/quantities/NumberText.h"
#include "zelmat/quantities/ShownQuantity.h"
#include "zelmat/report/SheetParts.h"
#include "zelmat/text/WordList.h"

namespace zelmat {

namespace {

std::string ValueText(const ShownValue& shown) {
    struct ToText {
        const std::string& unit;
        std::string operator()(bool flag) const { return flag ? "yes" : "no"; }
        std::string operator()(int count) const { return std::to_string(count); }
        std::string operator()(double number) const { return WithUnit(number, WrittenUnit(unit)); }
        std::string operator()(const std::string& text) const { return text; }
    };
    return std::visit(ToText{shown.unit}, shown.value);
}

class Sheet {
public:
    Sheet(HtmlWriter& html, const ReportMaterial& material, const UnitChoice& units)
        : html_(html), material_(material), given_(material.given), units_(units) {}

    void Write(const std::string& id) {
        html_.Open("section", {{"class", "sheet"}, {"id", id}, {"aria-labelledby", id + "-title"}});
        html_.Text("h2", given_.name, {{"id", id + "-title"}, {"dir", "auto"}});
        Identity();
        for (const StoredBlock* stored : material_.stored.SwitchedOn()) Behavior(*stored);
        Information();
        WriteEnd(html_, material_.findings);
        html_.Close("section");
    }

private:
    void Identity() {
        if (!given_.description.empty()) html_.Lines("p", given_.description, {{"dir", "auto"}});
        if (given_.illustrative) {
            html_.Text("p", "Illustrative: the values are made up.", {{"class", "banner"}});
        }
        std::vector<ReportFact> facts = {{"File", given_.file}};
        if (!given_.materialClass.empty()) facts.push_back({"Class", given_.materialClass});
        for (const std::string& source : given_.sources) facts.push_back({"Source", source});
        for (const std::string& note : given_.notes) facts.push_back({"Note", note});
        const std::string on = WordList(material_.stored.Names(true));
        facts.push_back({"Behaviors", on.empty() ? "none" : on});
        if (material_.stored.heatGeneration.value_or(false)) facts.push_back({"Heat generation", "yes"});
        WriteFacts(html_, facts);
    }

    void Behavior(const StoredBlock& stored) {
        const Block& block = stored.block;
        html_.Text("h3", block.kind->title);
        WriteFacts(html_, Values(stored));
        Fits(stored);
        for (const Table& table : block.tables) {
            const Table* given = stored.given ? stored.given->Find(table.kind) : nullptr;
            WriteTable(html_, table, block.kind->name, Caption(block, table), units_);
            if (given && !given->source.empty()) {
                html_.Text("p", "Source: " + given->source, {{"class", "soft"}, {"dir", "auto"}});
            }
        }
        if (block.kind->name == "elastic") Elasticity(block);
        Pictures(block.kind->name);
    }

    static std::string Caption(const Block& block, const Table& table) {
        std::string caption = table.kind->title.empty() ? block.kind->title : table.kind->title;
        if (table.kind->flagged) {
            caption +=
                table.temperatureDependent ? ", depends on temperature" : ", does not depend on temperature";
        }
        return caption;
    }

    /// What is stored, what follows from it, and what the card says besides.
    std::vector<ReportFact> Values(const StoredBlock& stored) const {
        std::vector<ReportFact> facts;
        const auto add = [&](const Block& block, bool isStored) {
            for (const Setting& setting : block.kind->settings) {
                const Value* value = setting.stored == isStored ? block.values.Find(setting.name) : nullptr;
                if (!value) continue;
                facts.push_back({setting.title + (isStored ? "" : ", on the card"),
                                 ValueText(InUnits(setting, *value, units_))});
            }
        };
        add(stored.block, true);
        for (const DerivedValue& derived : DerivedValues(stored.block)) {
            std::string title = derived.title;
            if (const auto at = derived.TemperatureIn(units_)) title += " at " + ValueText(*at);
            facts.push_back({title, ValueText(derived.In(units_))});
        }
        if (stored.given) add(*stored.given, false);
        return facts;
    }

    void Fits(const StoredBlock& stored) {
        if (!stored.given || !stored.given->kind->alternatives || given_.fits.size() < 2) return;
        std::vector<std::string> others;
        for (const Block& fit : given_.fits) {
            if (&fit != stored.given) others.push_back(FitName(fit));
        }
        html_.Text("p", "A material holds one fit; this is " + FitName(*stored.given) +
                            ". Also on the card: " + WordList(others) + ".");
    }

    /// The shear and the bulk modulus, row by row.
    void Elasticity(const Block& elastic) {
        using mechanics::ElasticConstant;
        if (elastic.tables.empty()) return;
        const Table& table = elastic.tables.front();
        const Column* young = table.Find("youngs_modulus");
        const Column* poisson = table.Find("poissons_ratio");
        const Column* temperature = table.Find(TemperatureColumn().name);
        if (!young || !poisson) return;
        const ShownQuantity modulus("modulus", units_), degrees("temperature", units_);
        std::vector<double> shear, bulk, at;
        for (std::size_t row = 0; row < table.Rows(); ++row) {
            const auto constants =
                mechanics::IsotropicFrom({ElasticConstant::YOUNGS_MODULUS, young->values[row]},
                                         {ElasticConstant::POISSONS_RATIO, poisson->values[row]});
            if (!constants.Ok()) continue;
            shear.push_back(RoundedTo(modulus(constants->shearModulus), kDerivedDigits));
            bulk.push_back(RoundedTo(modulus(constants->bulkModulus), kDerivedDigits));
            if (temperature) at.push_back(degrees(temperature->values[row]));
        }
        if (shear.empty()) return;
        std::vector<SheetColumn> columns = {
            {TitleWithUnit("shear modulus", modulus.Unit()), NumberColumn(shear)},
            {TitleWithUnit("bulk modulus", modulus.Unit()), NumberColumn(bulk)}};
        if (temperature) columns.push_back({TitleWithUnit("temperature", degrees.Unit()), NumberColumn(at)});
        WriteColumns(html_, "Derived: G = E/(2(1+ν)), K = E/(3(1−2ν)), six digits", columns, "numbers");
    }

    void Pictures(const std::string& block) {
        for (const ReportPicture& picture : material_.pictures) {
            if (picture.block == block) WritePicture(html_, picture);
        }
    }

    /// What no behavior uses.
    void Information() {
        for (const Block& block : given_.information) {
            if (block.tables.empty()) continue;
            html_.Text("h3", block.kind->title + ", tables for information");
            for (const Table& table : block.tables) {
                WriteTable(html_, table, block.kind->name, table.kind->title, units_);
            }
            Pictures(block.kind->name);
        }
        for (const ReportFacts& facts : material_.further) {
            html_.Text("h3", facts.title);
            WriteFacts(html_, facts.facts);
        }
    }

    HtmlWriter& html_;
    const ReportMaterial& material_;
    const Material& given_;
    const UnitChoice& units_;
};

}  // namespace

void WriteMaterialSheet(HtmlWriter& html, const ReportMaterial& material, const std::string& id,
                        const UnitChoice& units) {
    Sheet(html, material, units).Write(id);
}

}  // namespace zelmat
