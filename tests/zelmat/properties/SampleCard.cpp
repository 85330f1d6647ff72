#include "tests/zelmat/properties/SampleCard.h"

#include "tests/zelmat/support/Program.h"
#include "zelmat/cards/ReadCard.h"
#include "zelmat/properties/UsedBlock.h"

zelmat::Material SampleCard(const std::string& name) {
    zelmat::Findings findings;
    return zelmat::ReadCard(Sample(name + ".json"), findings).value();
}

zelmat::Block SampleBlock(const std::string& name, const std::string& block) {
    zelmat::Findings findings;
    return zelmat::UsedBlock(SampleCard(name), block, findings).value();
}
