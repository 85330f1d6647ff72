#pragma once

#include <string>

#include "platform/catalog/KORCatalogFile.h"

namespace zelmat {

/// docs/catalog.md: every late type of the module's catalog as Markdown.
std::string CatalogPage();

/// One late type: a heading, what it is, a table of its attributes with kind, unit, default, the release that
/// introduced each, and its meaning.
std::string CatalogSection(const KORCatalogType& type);

}  // namespace zelmat
