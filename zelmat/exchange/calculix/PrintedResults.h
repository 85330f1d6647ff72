#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace zelmat {

/// The tables that CalculiX prints (.dat), each under a heading such as "stresses (...) for set E1 and time
/// 0.1000000E+01".
class PrintedResults {
public:
    explicit PrintedResults(std::string_view text);

    /// A number of the last table of that kind that was printed for a set at the time: `kind` begins its
    /// heading ("stresses"), `entity` stands first in the row (node or element), `column` counts what follows
    /// it, from 0. Of several rows of an entity (integration points) the first. Nothing when there is none.
    std::optional<double> Find(std::string_view kind, const std::string& set, double time, int entity,
                               std::size_t column) const;

private:
    struct Printed {
        std::string kind;
        std::string set;
        double time;
        std::vector<std::vector<double>> rows;
    };
    std::vector<Printed> tables_;
};

}  // namespace zelmat
