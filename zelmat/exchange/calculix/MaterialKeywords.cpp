#include "zelmat/exchange/calculix/MaterialKeywords.h"

#include <set>

namespace zelmat {

bool IsMaterialKeyword(const std::string& keyword) {
    static const std::set<std::string> keywords = {"*COHESIVEBEHAVIOR",
                                                   "*CONDUCTIVITY",
                                                   "*CREEP",
                                                   "*CYCLICHARDENING",
                                                   "*DAMPING",
                                                   "*DEFORMATIONPLASTICITY",
                                                   "*DENSITY",
                                                   "*DEPVAR",
                                                   "*ELASTIC",
                                                   "*ELECTRICALCONDUCTIVITY",
                                                   "*EXPANSION",
                                                   "*FLUIDCONSTANTS",
                                                   "*HYPERELASTIC",
                                                   "*HYPERFOAM",
                                                   "*MAGNETICPERMEABILITY",
                                                   "*MOHRCOULOMB",
                                                   "*MOHRCOULOMBHARDENING",
                                                   "*PLASTIC",
                                                   "*SPECIFICGASCONSTANT",
                                                   "*SPECIFICHEAT",
                                                   "*USERMATERIAL"};
    return keywords.count(keyword) > 0;
}

}  // namespace zelmat
