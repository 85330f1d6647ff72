#include "zelmat/commands/ShowCommand.h"

#include <optional>

#include "zelmat/cards/MaterialCardReader.h"
#include "zelmat/commands/CallTrace.h"
#include "zelmat/commands/ShowReport.h"

namespace zelmat {

namespace {

std::vector<const CardData*> FitsToShow(const ShowCommand& command, const MaterialCard& card,
                                        Findings& findings) {
    std::vector<const CardData*> fits;
    if (command.allFits) {
        for (const CardData& fit : card.fits) fits.push_back(&fit);
    } else if (const CardData* fit = ChooseFit(card, command.fit, findings)) {
        fits.push_back(fit);
    }
    return fits;
}

}  // namespace

ExitCode ShowCommand::Run(std::ostream& out, std::ostream& err) const {
    Findings findings;
    std::optional<CallTrace> calls;
    if (trace) calls.emplace(err);

    const auto read = MaterialCardReader(findings).Read(card);
    std::optional<StoredMaterial> material;
    if (read) {
        const auto fits = FitsToShow(*this, *read, findings);
        material = StoredMaterial{.card = &*read};
        if (!findings.HasErrors()) {
            MaterialHost host(catalogs);
            material = StoreMaterial(host, *read, fits, findings);
        }
    }

    if (json) {
        PrintMaterialJson(out, material ? &*material : nullptr, findings);
        return findings.Exit();
    }
    if (material && !findings.HasErrors()) PrintMaterial(out, *material);
    for (const Finding& finding : findings.All()) err << FindingLine(finding) << '\n';
    return findings.Exit();
}

}  // namespace zelmat
