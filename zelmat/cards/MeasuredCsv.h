#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "zelmat/cards/ReadCard.h"
#include "zelmat/findings/Findings.h"

namespace zelmat {

/// What a column of measured points holds; its name says whether it is engineering or true.
enum class MeasuredColumn : int {
    STRETCH,             ///< Stretch
    ENGINEERING_STRAIN,  ///< EngineeringStrain, NominalStrain
    TRUE_STRAIN,         ///< TrueStrain, LogarithmicStrain
    SHEAR,               ///< AmountOfShear, ShearStrain
    PLASTIC_STRAIN,      ///< PlasticStrain
    NOMINAL_STRESS,      ///< NominalStress, EngineeringStress
    TRUE_STRESS,         ///< TrueStress, YieldStress, ShearStress
    TEMPERATURE,         ///< Temperature
    WEIGHT,              ///< Weight
    MODE,                ///< Mode: words
    SPECIMEN,            ///< Specimen: words
};

/// Points of a test as a CSV file has them, in SI: a header that names quantities and units
/// (`Stretch [-],NominalStress [MPa]`), then rows. Not a card: it has no sections and no material.
class MeasuredCsv {
public:
    /// Whether a text begins like one: its header names a strain or stretch and a stress.
    static bool IsOne(std::string_view text);

    /// Nothing, and findings with the line of each mistake. `name`: what findings call the file. Columns that
    /// mean nothing are warnings.
    static std::optional<MeasuredCsv> Read(std::string_view text, const std::string& name,
                                           const CardReading& how, Findings& findings);

    std::size_t Rows() const { return lines_.size(); }
    int Line(std::size_t row) const { return lines_[row]; }

    /// Null when there is no such column.
    const std::vector<double>* Numbers(MeasuredColumn column) const;
    const std::vector<std::string>* Words(MeasuredColumn column) const;

private:
    struct Column {
        MeasuredColumn kind;
        std::vector<double> numbers;
        std::vector<std::string> words;
    };

    std::vector<Column> columns_;
    std::vector<int> lines_;

    friend class MeasuredCsvReader;
};

}  // namespace zelmat
