#pragma once

#include "platform/catalog/KORCatalogFile.h"

/// The late types that are the platform's own, such as its material features. They need no file: a document
/// cannot do without them.
const KORCatalogFile& KORPlatformCatalog();
