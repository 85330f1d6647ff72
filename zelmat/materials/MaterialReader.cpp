#include "zelmat/materials/MaterialReader.h"

#include "ZELMaterialModel/include/ZELMaterial.h"
#include "zelmat/findings/DiagnosticLines.h"
#include "zelmat/materials/AnalysisData.h"
#include "zelmat/materials/StatusText.h"

namespace zelmat {

namespace {

void ReadHeatGeneration(ZELIMaterial& behaviors, Material& material) {
    bool enabled = false;
    const auto data = KORGetImplementation<ZELMaterial>(&behaviors);
    if (data && SUCCEEDED(data->GetHeatGenerationEnabled(enabled))) material.heatGeneration = enabled;
}

}  // namespace

Material ReadMaterial(KORISpecObject* feature, const std::string& file, const std::string& name,
                      Findings& findings) {
    const DiagnosticLines diagnostics(findings, file, name);
    Material material{.file = file, .name = name};
    const auto behaviors = AnalysisDataOf(feature);
    if (!behaviors) {
        findings.Add({FindingKind::ERROR,
                      {file, 0},
                      "no-material-interface",
                      name + " offers no material properties to read",
                      {}});
        return material;
    }
    ReadHeatGeneration(*behaviors, material);
    for (const BlockKind& kind : BlockKinds()) {
        if (!kind.read) continue;
        Block& block = material.blocks.emplace_back(Block{.kind = &kind, .enabled = false});
        const HRESULT status = kind.read(*behaviors, block);
        // A material of an older release has no gasket at all: it is switched off like any other.
        if (SUCCEEDED(status) || !block.enabled) continue;
        findings.Add({FindingKind::ERROR,
                      {file, 0},
                      "not-read",
                      kind.name + " of " + name + " could not be read back",
                      {StatusText(status)}});
    }
    return material;
}

}  // namespace zelmat
