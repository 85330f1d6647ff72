#pragma once

#include <string>

namespace zelmat {

/// docs/checks.md: every rule and every band as Markdown, made from their tables.
std::string RulesPage();

}  // namespace zelmat
