#include "zelmat/materials/CoefficientWatch.h"

#include <algorithm>
#include <cmath>

#include "zelmat/materials/HyperelasticForms.h"
#include "zelmat/quantities/NumberText.h"

namespace zelmat {

namespace {

constexpr int kHighestPolynomial = 6;

const KORUnitType& Pressure() {
    return *KORFindUnitType("PRESSURE");
}

bool NeedsOrder(const std::string& model) {
    return model == "OGDEN" || model == "POLYNOMIAL" || model == "REDUCED_POLYNOMIAL";
}

bool IsKnown(const std::string& model) {
    return std::ranges::find(HyperelasticModels(), model) != HyperelasticModels().end();
}

std::string ModelText(const std::string& model, int order) {
    return NeedsOrder(model) ? model + " of order " + std::to_string(order) : model;
}

/// "ogden" is likely to mean "OGDEN".
std::vector<std::string> MeantModel(std::string model) {
    std::ranges::transform(model, model.begin(), [](char c) {
        return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
    });
    if (IsKnown(model)) return {"meant is perhaps " + model};
    return {};
}

bool IsSame(double a, double b) {
    return a == b || (std::isnan(a) && std::isnan(b));
}

}  // namespace

CoefficientWatch::CoefficientWatch(const KORUnitsService& units, std::string file, Findings& findings)
    : file_(std::move(file)),
      findings_(findings),
      unitNamed_(units.IsChosen(Pressure())),
      unit_(units.CurrentUnit(Pressure()).symbol),
      stored_(Pressure().units.front().symbol),
      factor_(units.CurrentUnit(Pressure()).factor) {}

bool CoefficientWatch::MayUpgrade(KORFeature& feature, const KORUpgradedFeature& told) {
    older_ = ReadOlderCoefficients(feature);
    if (!older_->unconverted || older_->rows.empty()) older_.reset();
    if (!older_) return true;
    if (!shared_) shared_.emplace(feature);
    const std::string material = told.name.c_str();
    if (older_->enabled) {
        CheckWidths(material);
        return IsNoGuess(material) && IsOnceOnly(material);
    }
    const bool may = MayStay(material);
    older_.reset();
    return may;
}

/// May the coefficients of a behavior that is off stay as they are?
bool CoefficientWatch::MayStay(const std::string& material) {
    if (unitNamed_ && factor_ == 1.0) return true;
    if (shared_->AreSwitchedOn(older_->hyperelasticFeature)) {
        Add(FindingKind::ERROR, "shared-coefficients",
            "the hyperelastic behavior of " + material +
                " is off, and on in another material with the same coefficients",
            {"switch both on, or both off"});
        return false;
    }
    Add(FindingKind::WARNING, "coefficients-left",
        "the hyperelastic behavior of " + material + " is off: its coefficients stay in the older unit",
        {unitNamed_ ? unit_ : "not named"});
    return true;
}

/// Would the coefficients be scaled once, and not once more for every material that has them?
bool CoefficientWatch::IsOnceOnly(const std::string& material) {
    if (factor_ == 1.0 || !shared_->AreConverted(older_->modelFeature)) return true;
    Add(FindingKind::ERROR, "shared-coefficients",
        "the coefficients of " + material +
            " are those of another material, too, for which they are converted",
        {"give it a model of its own"});
    return false;
}

bool CoefficientWatch::IsNoGuess(const std::string& material) {
    const std::string& model = older_->model;
    const int order = older_->order;
    bool sure = true;
    const auto refuse = [&](const char* code, const std::string& text, std::vector<std::string> details) {
        Add(FindingKind::ERROR, code, text, std::move(details));
        sure = false;
    };
    if (!unitNamed_) {
        refuse("no-pressure-unit",
               "the coefficients of " + material + " are in a unit of pressure that is not named",
               {"name it: --pressure-unit UNIT"});
    }
    if (unitNamed_ && factor_ == 1.0) return sure;  // whatever the model, each number stays as it is
    if (!IsKnown(model)) {
        refuse("unknown-model",
               "the coefficients of " + material + " belong to no known model: \"" + model + "\"",
               MeantModel(model));
    } else if (NeedsOrder(model) && order < 1) {
        refuse("model-order",
               "the model " + model + " of " + material + " has the order " + std::to_string(order),
               {"has to be 1 or above"});
    } else if (model == "POLYNOMIAL" && order > kHighestPolynomial) {
        refuse("model-order",
               "the model " + model + " of " + material + " has the order " + std::to_string(order),
               {"has to be " + std::to_string(kHighestPolynomial) + " or below"});
    }
    return sure;
}

void CoefficientWatch::CheckWidths(const std::string& material) {
    const std::size_t needed = Columns().size();
    for (std::size_t row = 0; row < older_->rows.size(); ++row) {
        const std::size_t width = older_->rows[row].size();
        if (width >= needed) continue;
        Add(FindingKind::WARNING, "short-row",
            "row " + std::to_string(row + 1) + " of " + material + " is shorter than " +
                ModelText(older_->model, older_->order) + " needs",
            {std::to_string(width) + " of at least " + std::to_string(needed)});
    }
}

void CoefficientWatch::Upgraded(KORFeature& now, const KORUpgradedFeature& told) {
    if (!older_) return;
    const OlderCoefficients newer = ReadOlderCoefficients(now);
    shared_->MarkConverted(newer.modelFeature);
    const std::vector<ColumnKind> columns = Columns();
    ConvertedCoefficients converted{older_->model, older_->order, unit_, stored_, {}};
    for (std::size_t row = 0; row < std::min(older_->rows.size(), newer.rows.size()); ++row) {
        const auto& before = older_->rows[row];
        const auto& after = newer.rows[row];
        auto& values = converted.rows.emplace_back();
        for (std::size_t i = 0; i < std::min(before.size(), after.size()); ++i) {
            const bool named = i < columns.size();
            values.push_back({named ? columns[i].name : "column " + std::to_string(i + 1), before[i],
                              after[i], named ? FactorOf(columns[i]) : 1.0});
        }
    }
    CheckResults(told.name.c_str(), converted);
    converted_.emplace(told.feature, std::move(converted));
}

void CoefficientWatch::CheckResults(const std::string& material, const ConvertedCoefficients& converted) {
    bool done = converted.rows.size() == older_->rows.size();
    for (std::size_t row = 0; row < converted.rows.size(); ++row) {
        done = done && converted.rows[row].size() == older_->rows[row].size();
        for (const auto& [name, before, after, factor] : converted.rows[row]) {
            done = done && IsSame(after, before * factor);
            if (std::isfinite(after)) continue;
            Add(FindingKind::ERROR, "not-finite",
                name + " in row " + std::to_string(row + 1) + " of " + material + " is no finite number",
                {NumberText(before) + " times " + NumberText(factor)});
        }
    }
    if (done) return;
    Add(FindingKind::ERROR, "not-converted", "the coefficients of " + material + " could not be converted",
        {"from " + unit_ + " to " + stored_});
}

double CoefficientWatch::FactorOf(const ColumnKind& column) const {
    if (column.unit == "Pa") return factor_;
    return column.unit == "1/Pa" ? 1.0 / factor_ : 1.0;
}

std::vector<ColumnKind> CoefficientWatch::Columns() const {
    // An order is whatever the document says: no more columns are named than can tell that a row is too
    // short.
    const bool isPolynomial = older_->model == "POLYNOMIAL";
    const int most = isPolynomial ? kHighestPolynomial : static_cast<int>(older_->Width()) + 1;
    const int order = std::clamp(older_->order, 0, most);
    const auto form = HyperelasticForm(older_->model, order);
    return form ? form->ColumnsOf(older_->temperatureDependent) : std::vector<ColumnKind>();
}

void CoefficientWatch::Add(FindingKind kind, const char* code, std::string text,
                           std::vector<std::string> details) {
    findings_.Add({kind, {file_, 0}, code, std::move(text), std::move(details)});
}

}  // namespace zelmat
