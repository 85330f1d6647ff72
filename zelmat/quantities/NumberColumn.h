#pragma once

#include <span>
#include <string>
#include <vector>

namespace zelmat {

/// The numbers of one column of a table, as texts of one width that stand flush right with their decimal
/// points in one line. All are plain ("0.0250") or all are scientific ("2.50e-05"), with as many digits
/// behind the point as the neediest one takes to read back as exactly the same double; the others get zeros,
/// which change no value. Scientific is the column that has nothing as large as 0.001, or would be wider than
/// ten characters and wider than the scientific one. What is not finite stands as "nan", "inf" or "-inf".
std::vector<std::string> NumberColumn(std::span<const double> numbers);

}  // namespace zelmat
