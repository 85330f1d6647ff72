#include "zelmat/settings/ByteSize.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>

#include "zelmat/quantities/ReadNumber.h"
#include "zelmat/text/QuotedText.h"

namespace zelmat {

namespace {

constexpr double kKilo = 1024.0;
constexpr double kMost = kKilo * kKilo * kKilo * kKilo * kKilo;

constexpr std::array<std::pair<std::string_view, double>, 11> kUnits = {{
    {"", 1.0},
    {"B", 1.0},
    {"byte", 1.0},
    {"bytes", 1.0},
    {"kB", kKilo},
    {"KB", kKilo},
    {"KiB", kKilo},
    {"MB", kKilo* kKilo},
    {"MiB", kKilo* kKilo},
    {"GB", kKilo* kKilo* kKilo},
    {"GiB", kKilo* kKilo* kKilo},
}};

}  // namespace

QuantityResult<std::int64_t> ReadByteSize(std::string_view text) {
    const auto number = ReadLeadingNumber(text);
    std::string_view unit = number ? number->rest : std::string_view();
    unit.remove_prefix(std::min(unit.find_first_not_of(' '), unit.size()));
    const auto found =
        std::find_if(kUnits.begin(), kUnits.end(), [&](const auto& each) { return each.first == unit; });
    if (!number || found == kUnits.end()) {
        return QuantityError{"expected a number of bytes, as in 64MB, not " + QuotedText(text) +
                             "; units are kB, MB and GB"};
    }
    const double bytes = number->number * found->second;
    if (!(bytes >= 0.0 && bytes <= kMost)) {
        return QuantityError{"expected from 0 to 1048576 GB, not " + QuotedText(text)};
    }
    return static_cast<std::int64_t>(bytes);
}

}  // namespace zelmat
