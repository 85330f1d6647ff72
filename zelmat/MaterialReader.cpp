#include "zelmat/MaterialReader.h"

#include "ZELMaterialModel/include/ZELIMaterial.h"
#include "zelmat/DiagnosticLines.h"
#include "zelmat/StatusText.h"

namespace zelmat {

std::vector<StoredTable> ReadMaterial(KORISpecObject* material, const std::string& file,
                                      const std::string& name, Findings& findings) {
    const DiagnosticLines diagnostics(findings, file, name);
    std::vector<StoredTable> tables;
    const auto behaviors = ZELIMaterial_var::Of(material);
    if (!behaviors) {
        findings.Add({FindingKind::ERROR,
                      {file, 0},
                      "no-material-interface",
                      name + " offers no material properties to read",
                      {}});
        return tables;
    }
    for (const CardBlock& block : CardBlocks()) {
        if (!block.read) continue;
        StoredTable table = block.read(*behaviors);
        table.block = &block;
        if (FAILED(table.status)) {
            findings.Add({FindingKind::ERROR,
                          {file, 0},
                          "not-read",
                          block.name + " of " + name + " could not be read back",
                          {StatusText(table.status)}});
        }
        if (table.enabled) tables.push_back(std::move(table));
    }
    return tables;
}

}  // namespace zelmat
