#include "zelmat/commands/frame/Calculation.h"

namespace zelmat {

void Calculation::Work(CommandContext& context) {
    csv_ = context.options.csv;
    Result result(context.units);
    if (Compute(context, result)) result_ = std::move(result);
}

void Calculation::Print(std::ostream& out) const {
    if (!result_) return;
    if (csv_) {
        result_->PrintCsv(out);
    } else {
        result_->Print(out);
    }
}

nlohmann::ordered_json Calculation::Json() const {
    return {{"result", result_ ? result_->Json() : nlohmann::ordered_json()}};
}

}  // namespace zelmat
