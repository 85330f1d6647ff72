#pragma once

#include "zelmat/commands/frame/Result.h"
#include "zelmat/findings/Findings.h"
#include "zelmat/mechanics/fit/FitRanking.h"
#include "zelmat/mechanics/fit/HardeningFit.h"

namespace zelmat {

/// A potential fitted to tests: coefficients with their standard deviations, deviations by mode, both
/// stability limits, what goes together, what else would do. Why not to trust it become warnings at `place`.
void TellFit(const mechanics::HyperelasticFit& fit, const Place& place, Findings& findings, Result& result);

/// All potentials, the nearest first; those that could not be fitted become warnings.
void TellRanking(const mechanics::FitRanking& ranking, const Place& place, Findings& findings,
                 Result& result);

/// A hardening law fitted to a curve.
void TellFit(const mechanics::HardeningFit& fit, const Place& place, Findings& findings, Result& result);

/// Several of them, the smallest deviation of the measure first.
void TellRanking(std::vector<mechanics::HardeningFit> fits, mechanics::DeviationMeasure measure,
                 Result& result);

/// "relative" or "absolute"
std::string MeasureWord(mechanics::DeviationMeasure measure);

/// The row of a table of deviations.
class DeviationTable {
public:
    void Add(const std::string& what, const mechanics::FitDeviation& deviation, MaybeNumber from = {},
             MaybeNumber to = {});
    ResultTable Table(const Result& result, const char* title) const;

private:
    std::vector<std::string> what_;
    std::vector<MaybeNumber> points_, from_, to_, relative_, absolute_, rSquared_;
};

}  // namespace zelmat
