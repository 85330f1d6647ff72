#pragma once

#include <vector>

#include "framework/KORServices.h"

/// A services table of the test's own, the current one while it lives: errors and fatal reports start at
/// none.
class ZELTestServices {
public:
    KORServices& Table() { return table_; }
    const std::vector<KORServices::FatalReport>& FatalReports() const { return table_.fatalReports; }

private:
    KORServices table_;
    KORServicesScope scope_{table_};
};
