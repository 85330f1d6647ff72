#include "tests/ZELMaterialModel/src/ZELGasketElastic.h"

#include "ZELMaterialModel/include/ZELGasketMembraneElasticBehavior.h"
#include "ZELMaterialModel/include/ZELGasketTransverseShearElasticBehavior.h"

namespace {

#define ZEL_GASKET_ELASTIC(Thing)                                                  \
    class Thing final : public ZELGasketElastic {                                  \
    public:                                                                        \
        using Behavior = ZELGasket##Thing##ElasticBehavior;                        \
        explicit Thing(KORISpecObject* material) : behavior_(material) {}          \
        explicit Thing(const Behavior& other) : behavior_(other) {}                \
        static std::unique_ptr<ZELGasketElastic> Make(KORISpecObject* material) {  \
            return std::make_unique<Thing>(material);                              \
        }                                                                          \
        HRESULT GetFlag(unsigned char& enabled) override {                         \
            return behavior_.GetGasket##Thing##ElasticFlag(enabled);               \
        }                                                                          \
        HRESULT SetFlag(unsigned char enabled) override {                          \
            return behavior_.SetGasket##Thing##ElasticFlag(enabled);               \
        }                                                                          \
        HRESULT GetDataFile(KORUnicodeString& name) override {                     \
            return behavior_.GetGasket##Thing##ElasticDataFile(name);              \
        }                                                                          \
        HRESULT SetDataFile(const KORUnicodeString& name) override {               \
            return behavior_.SetGasket##Thing##ElasticDataFile(name);              \
        }                                                                          \
        HRESULT GetTempDepFlag(unsigned char& dependent) override {                \
            return behavior_.GetGasket##Thing##ElasticTempDepFlag(dependent);      \
        }                                                                          \
        HRESULT SetTempDepFlag(unsigned char dependent) override {                 \
            return behavior_.SetGasket##Thing##ElasticTempDepFlag(dependent);      \
        }                                                                          \
        HRESULT GetDataArray(ZELCftArrayZELCftArrayDouble& rows) override {        \
            return behavior_.GetGasket##Thing##ElasticDataArray(rows);             \
        }                                                                          \
        HRESULT SetDataArray(const ZELRows& rows) override {                       \
            return behavior_.SetGasket##Thing##ElasticDataArray(ZELTableOf(rows)); \
        }                                                                          \
        std::unique_ptr<ZELGasketElastic> Copy() const override {                  \
            return std::make_unique<Thing>(behavior_);                             \
        }                                                                          \
        std::unique_ptr<ZELGasketElastic> Assigned() const override {              \
            auto assigned = std::make_unique<Thing>(nullptr);                      \
            assigned->behavior_ = behavior_;                                       \
            return assigned;                                                       \
        }                                                                          \
                                                                                   \
    private:                                                                       \
        Behavior behavior_;                                                        \
    };

ZEL_GASKET_ELASTIC(Membrane)
ZEL_GASKET_ELASTIC(TransverseShear)

#undef ZEL_GASKET_ELASTIC

}  // namespace

std::vector<ZELGasketElasticCase> ZELGasketElasticCases() {
    return {
        {
            .thing = "Membrane",
            .make = Membrane::Make,
            .component = "ZELGasketMembraneElastic",
            .feature = &ZELFullMaterialTree::membrane,
            .keys = {{"ZELGasketMembraneElasticLT", "ZELGasketMembraneElasticDataFile"},
                     {"ZELGasketMembraneElasticLT", "ZELGasketMembraneElasticTemperatureDepFlag"},
                     {"ZELGasketMembraneElasticLT", "ZELGasketMembraneElasticYoungsModulusData"},
                     {"ZELGasketMembraneElasticLT", "ZELGasketMembraneElasticPoissonsRatioData"},
                     {"ZELGasketMembraneElasticLT", "ZELGasketMembraneElasticTemperatureData"},
                     {"ZELGasketMembraneElasticLT", "ZELGasketMembraneElasticFlag"}},
            .noFeature = "No ZELGasketMembraneBehavior object found !",
            .rows = {{5e6, 0.49, 293.0}, {4e6, -0.99, 373.0}},
        },
        {
            .thing = "TransverseShear",
            .make = TransverseShear::Make,
            .component = "ZELGasketTransverseShearElastic",
            .feature = &ZELFullMaterialTree::transverseShear,
            .keys = {{"ZELGasketTransverseShearElasticLT", "ZELGasketTransverseShearElasticDataFile"},
                     {"ZELGasketTransverseShearElasticLT",
                      "ZELGasketTransverseShearElasticTemperatureDepFlag"},
                     {"ZELGasketTransverseShearElasticLT",
                      "ZELGasketTransverseShearElasticShearStiffnessData"},
                     {"ZELGasketTransverseShearElasticLT", "ZELGasketTransverseShearElasticTemperatureData"},
                     {"ZELGasketTransverseShearElasticLT", "ZELGasketTransverseShearElasticFlag"}},
            .noFeature = "No ZELGasketTransShearBehavior object found !",
            .rows = {{5e6, 293.0}, {4e6, 373.0}},
        },
    };
}
