#include "zelmat/properties/ElasticProperty.h"

#include "zelmat/materials/OverTemperature.h"
#include "zelmat/properties/ValueAt.h"

namespace zelmat {

mechanics::Outcome<ElasticAt> ElasticityAt(const Block& elastic, std::optional<double> temperature,
                                           mechanics::OutsidePolicy policy) {
    if (elastic.tables.empty()) return mechanics::Refusal{"the block has no table"};
    const auto table = OverTemperature(elastic.tables.front());
    if (!table.Ok()) return table.Refused();
    const auto row = ValueAt(*table, temperature, policy);
    if (!row.Ok()) return row.Refused();
    const auto constants =
        mechanics::IsotropicFrom({mechanics::ElasticConstant::YOUNGS_MODULUS, row->values[0]},
                                 {mechanics::ElasticConstant::POISSONS_RATIO, row->values[1]});
    if (!constants.Ok()) return constants.Refused();
    return ElasticAt{*constants, row->notes};
}

}  // namespace zelmat
