#include "zelmat/materials/MaterialReader.h"

#include "ZELMaterialModel/include/ZELIMaterial.h"
#include "zelmat/findings/DiagnosticLines.h"
#include "zelmat/materials/StatusText.h"

namespace zelmat {

std::vector<StoredBlock> ReadMaterial(KORISpecObject* material, const std::string& file,
                                      const std::string& name, Findings& findings) {
    const DiagnosticLines diagnostics(findings, file, name);
    std::vector<StoredBlock> stored;
    const auto behaviors = ZELIMaterial_var::Of(material);
    if (!behaviors) {
        findings.Add({FindingKind::ERROR,
                      {file, 0},
                      "no-material-interface",
                      name + " offers no material properties to read",
                      {}});
        return stored;
    }
    for (const CardBlock& block : CardBlocks()) {
        if (!block.read) continue;
        stored.push_back(block.read(*behaviors, block));
        if (FAILED(stored.back().status)) {
            findings.Add({FindingKind::ERROR,
                          {file, 0},
                          "not-read",
                          block.name + " of " + name + " could not be read back",
                          {StatusText(stored.back().status)}});
        }
    }
    return stored;
}

}  // namespace zelmat
