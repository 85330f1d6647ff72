#include "zelmat/materials/DocumentMaterials.h"

#include <utility>

#include "interfaces/KORIAlias.h"
#include "interfaces/KORICutAndPastable.h"
#include "zelmat/findings/DiagnosticLines.h"
#include "zelmat/materials/AnalysisData.h"
#include "zelmat/materials/CardExtras.h"
#include "zelmat/materials/MaterialReader.h"

namespace zelmat {

namespace {

constexpr const char* kPlatformMaterial = "KORMaterialLT";
constexpr const char* kAnalysisData = "ZELMaterialLT";

std::string NameOf(KORFeature& feature) {
    const std::string alias(feature.GetAlias().View());
    return alias.empty() ? std::string(feature.GetName().View()) : alias;
}

bool HangsOnAMaterial(KORFeature& analysisData) {
    return static_cast<bool>(KORISpecObject_var::Adopt(analysisData.GetFather()));
}

Material ReadFeature(const DocumentMaterial& material, const std::string& file, Findings& findings) {
    const DiagnosticLines diagnostics(findings, file, material.name);
    if (!AnalysisDataOf(material.feature.Get())) return {.file = file, .name = material.name};
    return ReadMaterial(material.feature.Get(), file, material.name, findings);
}

}  // namespace

std::vector<DocumentMaterial> MaterialsOf(KORMemoryDocument& document) {
    const KORName* const material = KORName::Intern(kPlatformMaterial);
    const KORName* const data = KORName::Intern(kAnalysisData);
    std::vector<DocumentMaterial> materials;
    document.ForEachFeature(nullptr, [&](KORFeature& feature) {
        const KORName* const type = feature.Layout().Name();
        if (type != material && (type != data || HangsOnAMaterial(feature))) return;
        materials.push_back({KORISpecObject_var(&feature), NameOf(feature)});
    });
    return materials;
}

Material ReadHeldMaterial(const DocumentMaterial& material, const std::string& file, Findings& findings) {
    Findings own;
    Material read = ReadFeature(material, file, own);
    // The module says what an older material lacks; what lacks nothing that it needs was read all the same.
    if (own.HasErrors()) findings.Add(own);
    return read;
}

Material InShapeOfACard(const DocumentMaterial& material, Material read) {
    for (Block& block : std::exchange(read.blocks, {})) {
        if (!block.enabled) continue;
        auto& list = block.kind->alternatives ? read.fits : read.blocks;
        list.push_back(std::move(block));
    }
    AddCardExtras(material.feature.Get(), read);
    return read;
}

Material ReadDocumentMaterial(const DocumentMaterial& material, const std::string& file, Findings& findings) {
    return InShapeOfACard(material, ReadHeldMaterial(material, file, findings));
}

std::size_t FeaturesOf(const DocumentMaterial& material) {
    KORListValKORISpecObject_var one;
    KORListValKORISpecObject_var all;
    one.Append(material.feature);
    const auto container =
        KORICutAndPastable_var(KORBaseUnknown_var::Adopt(material.feature->GetFeatContainer()));
    return container && SUCCEEDED(container->Extract(one, all)) ? static_cast<std::size_t>(all.Size()) : 1;
}

}  // namespace zelmat
