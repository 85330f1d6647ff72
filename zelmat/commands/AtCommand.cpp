
#include "zelmat/commands/frame/Arguments.h"
#include "zelmat/commands/frame/Calculation.h"
#include "zelmat/commands/inputs/FitOption.h"
#include "zelmat/commands/inputs/GivenMaterials.h"
#include "zelmat/commands/inputs/OptionNumbers.h"
#include "zelmat/commands/reports/AtBlock.h"
#include "zelmat/properties/UsedBlock.h"
#include "zelmat/text/WordList.h"

namespace zelmat {

namespace {

/// What a block of a material says at one temperature, strain, rate or closure.
class At final : public Calculation {
public:
    void Declare(Arguments& line) override {
        given_.Declare(line);
        line.Add("BLOCK", block_, "elastic, plastic, density, thermal_expansion, gasket, ...");
        AddNumberOption(line, "--temperature", texts_.temperature, "Temperature: 600K, 20degC");
        AddNumberOption(line, "--plastic-strain", texts_.plasticStrain, "plastic: plastic strain: 0.1, 10%");
        AddNumberOption(line, "--strain-rate", texts_.strainRate,
                        "plastic: strain rate, where the card gives C and the reference rate: \"10 1/s\"");
        AddNumberOption(line, "--closure", texts_.closure, "gasket: closure: 0.15mm");
        line.Add("--outside", texts_.outside,
                 "Outside a table: error (default), constant (of hardening tables the default) or linear")
            .OneOf({"error", "constant", "linear"});
        AddNumberOption(line, "--reference-temperature", texts_.referenceTemperature,
                        "thermal_expansion: mean coefficient from this temperature");
        line.AddFlag("--instantaneous", instantaneous_,
                     "thermal_expansion: the instantaneous coefficient, too");
        fit_.Declare(line);
    }

protected:
    bool Compute(CommandContext& context, Result& result) override {
        Findings& findings = context.findings;
        if (block_.empty()) block_ = given_.TakeMaterial();
        const AtReader* reader = FindAtReader(block_, findings);
        if (!reader) return false;
        RefuseForeignOptions(*reader, findings);
        const auto question = Read(findings);
        if (findings.HasErrors()) return false;
        const auto material = given_.ReadOne(context);
        const auto block = !material       ? std::nullopt
                           : fit_.IsMade() ? fit_.Choose(*material, findings)
                                           : UsedBlock(*material, block_, findings);
        if (!block) return false;
        result.Say("material", "material", material->name);
        result.Say("block", "block", block_);
        if (question.temperature)
            result.Add("temperature", "temperature", "temperature", question.temperature);
        const auto problem = reader->read(*block, question, result);
        if (problem) {
            findings.Add({FindingKind::ERROR,
                          {material->file, block->origin.Line()},
                          "no-value",
                          problem->text,
                          problem->details});
        }
        return !problem;
    }

private:
    struct Texts {
        std::string temperature, plasticStrain, strainRate, closure, outside, referenceTemperature;
    };

    /// Options that mean nothing for the block; a number that has no effect would look as if it had one.
    void RefuseForeignOptions(const AtReader& reader, Findings& findings) const {
        const std::vector<std::pair<std::string, bool>> given = {
            {"--temperature", !texts_.temperature.empty()},
            {"--plastic-strain", !texts_.plasticStrain.empty()},
            {"--strain-rate", !texts_.strainRate.empty()},
            {"--closure", !texts_.closure.empty()},
            {"--outside", !texts_.outside.empty()},
            {"--reference-temperature", !texts_.referenceTemperature.empty()},
            {"--instantaneous", instantaneous_},
            {"--model or --variant", fit_.IsMade()}};
        for (const auto& [option, isGiven] : given) {
            const bool takes =
                std::find(reader.options.begin(), reader.options.end(), option) != reader.options.end();
            if (!isGiven || takes) continue;
            findings.Add(UsageFinding(option, "not-for-this-block", reader.block + " takes no " + option,
                                      {"it takes " + WordList(reader.options)}));
        }
    }

    AtQuestion Read(Findings& findings) const {
        const auto read = [&](const char* option, const std::string& text, const char* quantity) {
            return OptionNumberIfGiven(option, text, quantity, findings);
        };
        return {.temperature = read("--temperature", texts_.temperature, "temperature"),
                .plasticStrain = read("--plastic-strain", texts_.plasticStrain, "strain"),
                .strainRate = read("--strain-rate", texts_.strainRate, "rate"),
                .closure = read("--closure", texts_.closure, "length"),
                .outside = mechanics::OutsidePolicyOf(texts_.outside),
                .referenceTemperature =
                    read("--reference-temperature", texts_.referenceTemperature, "temperature"),
                .instantaneous = instantaneous_};
    }

    GivenMaterials given_;
    std::string block_;
    Texts texts_;  // as they were given; empty: not given
    bool instantaneous_ = false;
    FitOption fit_;
};

}  // namespace

CommandKind AtCommand() {
    return {
        .name = "at",
        .brief = "what a block says at a temperature, plastic strain, strain rate or closure",
        .text =
            "What a block of a material says at a temperature: the value between the rows of its table, and\n"
            "how it was found. plastic needs --plastic-strain, gasket --closure. thermal_expansion gives "
            "the\n"
            "mean coefficient and the strain, and on demand the instantaneous coefficient and the mean one\n"
            "from another reference temperature. A temperature, rate or closure needs its unit.",
        .units = true,
        .csv = true,
        .make = &MakeCommand<At>};
}

}  // namespace zelmat
