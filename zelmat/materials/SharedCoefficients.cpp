#include "zelmat/materials/SharedCoefficients.h"

#include "platform/store/KORStoreDocument.h"

namespace zelmat {

SharedCoefficients::SharedCoefficients(const KORFeature& material) {
    material.StoreDocument()->Features().ForEach([&](KORFeature& other) {
        if (other.Layout().Name() != material.Layout().Name() || !other.LiesInContainer()) return;
        const OlderCoefficients read = ReadOlderCoefficients(other);
        if (!read.unconverted) converted_.insert(read.modelFeature);
        if (read.enabled) switchedOn_.insert(read.hyperelasticFeature);
    });
}

}  // namespace zelmat
