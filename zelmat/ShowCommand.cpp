#include "zelmat/ShowCommand.h"

#include <optional>

#include "zelmat/CallTrace.h"
#include "zelmat/MaterialCardReader.h"
#include "zelmat/MaterialHost.h"
#include "zelmat/MaterialReader.h"
#include "zelmat/MaterialWriter.h"
#include "zelmat/ShowReport.h"

namespace zelmat {

namespace {

/// The card's material as a document gives it back, after one pass that writes and one that reads. Between
/// the two no reference is held, so that the second pass starts from the document alone.
std::vector<StoredTable> WriteAndReadBack(const std::string& catalogs, const MaterialCard& card,
                                          Findings& findings) {
    MaterialHost host(catalogs);
    const KORISpecObject_var material = host.NewMaterial(card, findings);
    if (!material) return {};
    WriteMaterial(material.Get(), card, findings);
    return ReadMaterial(material.Get(), card.file, card.name, findings);
}

}  // namespace

ExitCode ShowCommand::Run(std::ostream& out, std::ostream& err) const {
    Findings findings;
    std::optional<CallTrace> calls;
    if (trace) calls.emplace(err);

    const auto material = MaterialCardReader(findings).Read(card);
    std::vector<StoredTable> tables;
    if (material) tables = WriteAndReadBack(catalogs, *material, findings);

    if (json) {
        PrintMaterialJson(out, material ? &*material : nullptr, tables, findings);
        return findings.Exit();
    }
    if (material && !findings.HasErrors()) PrintMaterial(out, *material, tables);
    for (const Finding& finding : findings.All()) err << FindingLine(finding) << '\n';
    return findings.Exit();
}

}  // namespace zelmat
