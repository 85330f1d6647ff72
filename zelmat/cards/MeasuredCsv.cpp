#include "zelmat/cards/MeasuredCsv.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <utility>

#include "zelmat/cards/CsvLine.h"
#include "zelmat/cards/PropertyNames.h"
#include "zelmat/cards/TextLines.h"
#include "zelmat/quantities/PlainUnitText.h"
#include "zelmat/quantities/Quantity.h"
#include "zelmat/quantities/ReadNumber.h"
#include "zelmat/quantities/UnitConversion.h"
#include "zelmat/text/CountText.h"
#include "zelmat/text/QuotedText.h"

namespace zelmat {

namespace {

using enum MeasuredColumn;

struct Kind {
    std::string_view name;  ///< in small letters, without what stands between words
    MeasuredColumn column;
    const char* quantity;  ///< null for words
};

constexpr std::array<Kind, 21> kKinds = {{
    {"stretch", STRETCH, "number"},
    {"stretchratio", STRETCH, "number"},
    {"engineeringstrain", ENGINEERING_STRAIN, "strain"},
    {"nominalstrain", ENGINEERING_STRAIN, "strain"},
    {"truestrain", TRUE_STRAIN, "strain"},
    {"logarithmicstrain", TRUE_STRAIN, "strain"},
    {"amountofshear", SHEAR, "strain"},
    {"shearstrain", SHEAR, "strain"},
    {"shear", SHEAR, "strain"},
    {"plasticstrain", PLASTIC_STRAIN, "strain"},
    {"equivalentplasticstrain", PLASTIC_STRAIN, "strain"},
    {"nominalstress", NOMINAL_STRESS, "stress"},
    {"engineeringstress", NOMINAL_STRESS, "stress"},
    {"truestress", TRUE_STRESS, "stress"},
    {"cauchystress", TRUE_STRESS, "stress"},
    {"yieldstress", TRUE_STRESS, "stress"},
    {"shearstress", TRUE_STRESS, "stress"},
    {"temperature", TEMPERATURE, "temperature"},
    {"weight", WEIGHT, "number"},
    {"mode", MODE, nullptr},
    {"specimen", SPECIMEN, nullptr},
}};

const Kind* FindKind(std::string_view name) {
    std::string letters;
    for (const char c : name) {
        if (std::string_view(" _-'").find(c) != std::string_view::npos) continue;
        letters += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    }
    const auto found =
        std::find_if(kKinds.begin(), kKinds.end(), [&](const Kind& kind) { return kind.name == letters; });
    return found == kKinds.end() ? nullptr : &*found;
}

bool IsStrain(MeasuredColumn column) {
    return column == STRETCH || column == ENGINEERING_STRAIN || column == TRUE_STRAIN || column == SHEAR ||
           column == PLASTIC_STRAIN;
}

bool IsStress(MeasuredColumn column) {
    return column == NOMINAL_STRESS || column == TRUE_STRESS;
}

}  // namespace

/// Reads the lines one after the other.
class MeasuredCsvReader {
public:
    MeasuredCsvReader(const std::string& name, const CardReading& how, Findings& findings)
        : name_(name), how_(how), findings_(findings) {}

    std::optional<MeasuredCsv> Read(std::string_view text) {
        for (TextLines lines(text); lines.Next();) {
            line_ = lines.Number();
            const std::string_view line = WithoutBlanksAround(WithoutComment(lines.Line()));
            if (line.empty()) continue;
            if (units_.empty()) {
                ReadHeader(line);
            } else {
                ReadRow(line);
            }
            if (units_.empty()) return std::nullopt;  // without a header no row has a meaning
        }
        if (good_ && table_.Rows() == 0) Report("no-rows", "there are no rows below the header");
        if (!good_) return std::nullopt;
        return std::move(table_);
    }

private:
    void Report(const char* code, std::string text, std::vector<std::string> details = {}) {
        findings_.Add({FindingKind::ERROR, {name_, line_}, code, std::move(text), std::move(details)});
        good_ = false;
    }

    void ReadHeader(std::string_view line) {
        separator_ = CsvSeparator(line);
        if (how_.decimalComma && separator_ == ',') {
            return Report("wrong-separator", "commas cannot set columns apart and be decimal signs as well",
                          {"expected ; or a tab between columns"});
        }
        const auto headers = CsvCells(line, separator_);
        if (!headers) return Report("open-quote", "a double quote is not closed");
        for (const std::string& text : *headers) ReadColumn(ReadColumnHeader(text));
    }

    void ReadColumn(const ColumnHeader& header) {
        units_.emplace_back();
        places_.emplace_back();
        const Kind* kind = FindKind(header.name);
        if (!kind) return UnknownColumn(header);
        for (const auto& column : table_.columns_) {
            if (column.kind == kind->column) {
                Report("column-twice", QuotedText(header.name) + " stands there twice, or under two names");
            }
        }
        places_.back() = table_.columns_.size();
        table_.columns_.push_back({kind->column, {}, {}});
        if (!kind->quantity) return;
        const Quantity& quantity = *FindQuantity(kind->quantity);
        if (!header.hasUnit && quantity.stored.Spelling() != "-") {
            return Report("missing-unit", QuotedText(header.name) + " has no unit",
                          {"as in " + header.name + " [" + std::string(quantity.units[2].Spelling()) + "]",
                           "expected " + UnitsThatDo(quantity)});
        }
        const auto unit = ReadUnit(header.hasUnit ? header.unit : "-", quantity);
        if (!unit) return Report("wrong-unit", unit.Error().text);
        units_.back() = UnitConversion::ToStored(*unit, quantity);
    }

    /// "Stress" alone does not say which.
    void UnknownColumn(const ColumnHeader& header) {
        const std::string name = header.name;
        if (name == "Stress" || name == "stress" || name == "Strain" || name == "strain") {
            const bool stress = name == "Stress" || name == "stress";
            return Report("which-" + std::string(stress ? "stress" : "strain"),
                          QuotedText(name) + " does not say whether it is engineering or true",
                          {stress ? "NominalStress or TrueStress" : "EngineeringStrain or TrueStrain"});
        }
        findings_.Add({FindingKind::WARNING,
                       {name_, line_},
                       "unknown-column",
                       "the column " + QuotedText(name) + " means nothing and is left out",
                       {"known: Stretch, EngineeringStrain, TrueStrain, AmountOfShear, PlasticStrain, "
                        "NominalStress, TrueStress, YieldStress, Temperature, Mode, Specimen, Weight"}});
    }

    void Report(const std::string& code, std::string text, std::vector<std::string> details) {
        Report(code.c_str(), std::move(text), std::move(details));
    }

    void ReadRow(std::string_view line) {
        const auto cells = CsvCells(line, separator_);
        if (!cells) return Report("open-quote", "a double quote is not closed");
        if (cells->size() != units_.size()) {
            return Report("row-length", "the row has " + CountText(cells->size(), "cell"),
                          {"expected " + std::to_string(units_.size())});
        }
        for (std::size_t at = 0; at < cells->size(); ++at) {
            if (!places_[at]) continue;
            MeasuredCsv::Column& column = table_.columns_[*places_[at]];
            if (!units_[at]) {
                column.words.push_back((*cells)[at]);
            } else if (const auto number = ReadCell((*cells)[at], *units_[at])) {
                column.numbers.push_back(*number);
            }
        }
        table_.lines_.push_back(line_);
    }

    std::optional<double> ReadCell(std::string cell, const UnitConversion& conversion) {
        if (how_.decimalComma) std::replace(cell.begin(), cell.end(), ',', '.');
        const auto number = ReadNumber(cell);
        const auto stored = number ? conversion(*number) : std::nullopt;
        if (stored) return stored;
        const bool comma = cell.find(',') != std::string::npos;
        Report("not-a-number",
               number ? QuotedText(cell) + " is beyond what a number can hold" : number.Error().text,
               comma ? std::vector<std::string>{"--decimal-comma reads decimal commas"}
                     : std::vector<std::string>());
        return std::nullopt;
    }

    const std::string& name_;
    const CardReading& how_;
    Findings& findings_;
    MeasuredCsv table_;
    int line_ = 0;
    char separator_ = ',';
    bool good_ = true;
    std::vector<std::optional<UnitConversion>> units_;  ///< by place in the file; nothing for words
    std::vector<std::optional<std::size_t>> places_;    ///< of the column in the table; nothing: left out
};

bool MeasuredCsv::IsOne(std::string_view text) {
    for (TextLines lines(text); lines.Next();) {
        const std::string_view line = WithoutBlanksAround(WithoutComment(lines.Line()));
        if (line.empty()) continue;
        constexpr std::size_t kLongest = 10'000;  // of a header; what is longer is something else
        if (line.size() > kLongest) return false;
        const auto cells = CsvCells(line, CsvSeparator(line));
        if (!cells) return false;
        bool strain = false, stress = false;
        for (const std::string& cell : *cells) {
            const std::string name = ReadColumnHeader(cell).name;
            const Kind* kind = FindKind(name);
            strain = strain || (kind && IsStrain(kind->column)) || name == "Strain";
            stress = stress || (kind && IsStress(kind->column)) || name == "Stress";
        }
        return strain && stress;
    }
    return false;
}

std::optional<MeasuredCsv> MeasuredCsv::Read(std::string_view text, const std::string& name,
                                             const CardReading& how, Findings& findings) {
    return MeasuredCsvReader(name, how, findings).Read(text);
}

const std::vector<double>* MeasuredCsv::Numbers(MeasuredColumn kind) const {
    const auto found = std::find_if(columns_.begin(), columns_.end(),
                                    [&](const Column& column) { return column.kind == kind; });
    return found == columns_.end() ? nullptr : &found->numbers;
}

const std::vector<std::string>* MeasuredCsv::Words(MeasuredColumn kind) const {
    const auto found = std::find_if(columns_.begin(), columns_.end(),
                                    [&](const Column& column) { return column.kind == kind; });
    return found == columns_.end() ? nullptr : &found->words;
}

}  // namespace zelmat
