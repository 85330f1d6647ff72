#pragma once

#include <optional>
#include <string>
#include <vector>

#include "zelmat/materials/Material.h"
#include "zelmat/mechanics/elastic/IsotropicElasticity.h"
#include "zelmat/mechanics/tables/TemperatureTable.h"

namespace zelmat {

/// The elastic constants of a material at one temperature; moduli in Pa.
struct ElasticAt {
    mechanics::IsotropicElasticity constants;
    std::vector<std::string> notes;  ///< "interpolated between rows"
};

/// `elastic`: the block. The temperature in K may be left out where nothing depends on it. Refused as
/// OverTemperature, ValueAt and IsotropicFrom refuse.
mechanics::Outcome<ElasticAt> ElasticityAt(const Block& elastic, std::optional<double> temperature,
                                           mechanics::OutsidePolicy policy);

}  // namespace zelmat
