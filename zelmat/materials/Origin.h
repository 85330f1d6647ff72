#pragma once

#include <functional>
#include <memory>
#include <utility>

namespace zelmat {

/// Where data were read from: the line of a block, of a table, of each row of a table. Finding a line can
/// cost a pass through the file, so that a reader gives the way to find it and only a finding goes there.
class Origin {
public:
    static constexpr std::size_t kWhole = static_cast<std::size_t>(-1);

    Origin() = default;  ///< from no file

    /// `line` answers the line, from 1, of the row that it is given, or of the data as a whole for kWhole.
    explicit Origin(std::function<int(std::size_t row)> line)
        : line_(std::make_shared<const std::function<int(std::size_t)>>(std::move(line))) {}

    int Line() const { return Line(kWhole); }  ///< 0 when there is none
    int Line(std::size_t row) const { return line_ ? (*line_)(row) : 0; }

private:
    std::shared_ptr<const std::function<int(std::size_t)>> line_;  ///< of all copies of a table
};

}  // namespace zelmat
