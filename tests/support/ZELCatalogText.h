#pragma once

#include <string>

#include "tests/support/ZELLateTypes.h"

/// The path of the module's own catalog file, and its late types.
const char* ZELModuleCatalog();
const char* ZELSharedCatalog();  ///< the path of the catalog that all documents share
const ZELLateTypes& ZELModuleTypes();

/// A catalog of these late types, in the format of catalog files.
std::string ZELCatalogText(const ZELLateTypes& types);
