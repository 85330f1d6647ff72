#pragma once

#include "platform/catalog/KORCatalogFile.h"

namespace zelmat {

/// The module's catalog as it stood when the program was built: what it says needs no file.
const KORCatalogFile& BuiltInCatalog();

}  // namespace zelmat
