#include "zelmat/properties/PlyOfMaterial.h"

#include "zelmat/materials/OverTemperature.h"
#include "zelmat/properties/ExpansionProperty.h"
#include "zelmat/properties/OtherNumbers.h"
#include "zelmat/properties/ValueAt.h"
#include "zelmat/quantities/NumberText.h"
#include "zelmat/text/WordList.h"

namespace zelmat {

namespace {

using mechanics::Outcome;
using mechanics::OutsidePolicy;
using mechanics::Refusal;

/// Puts into a ply what the blocks of a material say of an isotropic one.
class BlocksOfPly {
public:
    BlocksOfPly(const Material& material, const PlyTemperature& at, PlyMaterial& ply)
        : material_(material), at_(at), ply_(ply) {}

    void Add() {
        if (!ply_.Constant("E1")) Add("elastic", {"E", "nu"});
        if (!ply_.Constant("alpha1") && !ply_.Constant("alpha2")) Add("thermal_expansion", {"alpha"});
        if (!ply_.Constant("density")) Add("density", {"density"});
    }

private:
    void Add(const std::string& name, const std::vector<const char*>& constants) {
        const Block* block = material_.Find(name);
        if (!block || block->tables.empty()) return;
        const auto row = RowOf(*block);
        if (!row.Ok()) {
            ply_.lacking.push_back(name + " of " + material_.name + ": " + row.Why());
            return;
        }
        for (std::size_t at = 0; at < constants.size(); ++at) {
            ply_.constants.emplace_back(constants[at], row->at(at));
        }
    }

    Outcome<std::vector<double>> RowOf(const Block& block) const {
        if (!block.enabled) return Refusal{"it is switched off"};
        const auto table = OverTemperature(block.tables.front());
        if (!table.Ok()) return table.Refused();
        const auto range = table->Range();
        if (!range) return table->Rows().front().values;
        auto row =
            block.kind->name == "thermal_expansion" && at_.temperature ? Expansion(block) : Row(*table);
        if (row.Ok()) return row;
        return Refusal{row.Why() + " (it goes from " + WithUnit(range->lowest, "K") + " to " +
                       WithUnit(range->highest, "K") + ")"};
    }

    Outcome<std::vector<double>> Row(const mechanics::TemperatureTable& table) const {
        const auto value = ValueAt(table, at_.temperature, OutsidePolicy::REFUSE);
        if (!value.Ok()) return value.Refused();
        return value->values;
    }

    Outcome<std::vector<double>> Expansion(const Block& block) const {
        const auto expansion = ExpansionOf(block, OutsidePolicy::REFUSE);
        if (!expansion.Ok()) return expansion.Refused();
        const auto mean = expansion->MeanFrom(*at_.temperature - at_.change, *at_.temperature,
                                              mechanics::ReferenceChange::LINEARISED, OutsidePolicy::REFUSE);
        if (!mean.Ok()) return mean.Refused();
        return std::vector<double>{mean->value};
    }

    const Material& material_;
    const PlyTemperature& at_;
    PlyMaterial& ply_;
};

}  // namespace

PlyMaterial PlyOfMaterial(const Material& material, const PlyTemperature& at) {
    PlyMaterial ply{material.name, {}, WordList(material.sources)};
    for (const std::string& name : PlyConstants()) {
        const auto number = OtherNumber(material, {name}, PlyConstantQuantity(name));
        if (number) ply.constants.emplace_back(name, *number);
    }
    BlocksOfPly(material, at, ply).Add();
    return ply;
}

}  // namespace zelmat
