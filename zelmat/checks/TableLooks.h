#pragma once

#include <functional>
#include <string>
#include <vector>

#include "zelmat/checks/CheckRule.h"

namespace zelmat {

/// Looks that many rules share.
using MaterialLook = std::function<void(const Material&, CheckReport&)>;

/// A column of a block, in whatever table of it.
struct ColumnOfBlock {
    const char* block;
    const char* column;
};

/// Reports every value of the columns that is wrong.
MaterialLook EachValue(std::vector<ColumnOfBlock> columns, bool (*wrong)(double value));

/// A bound that a behavior itself has: its rule of that code.
const TableRule& RuleOfBehavior(const std::string& block, const std::string& table, const std::string& code);

/// Calls `visit` for every table of the material, its fits and what is for information included.
void ForEachTable(const Material& material, const std::function<void(const Block&, const Table&)>& visit);

/// Holds hardening or a gasket's thickness behavior: one curve for each temperature, not one row.
bool HoldsCurves(const Block& block, const Table& table);

/// Rows from `first` on, `end` excluded.
struct Curve {
    std::size_t first;
    std::size_t end;
    std::size_t Rows() const { return end - first; }
};

/// The stretches of rows that agree in these columns. Those of one temperature, say, when its rows stand
/// together; several when they do not.
std::vector<Curve> CurvesOf(const Table& table, const std::vector<const char*>& columns);

/// Not above 0; what is no number is not, either.
inline bool IsNotPositive(double value) {
    return !(value > 0.0);
}

}  // namespace zelmat
