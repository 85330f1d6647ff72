#include "zelmat/materials/BuiltInCatalog.h"

#include <stdexcept>

#include "zelmat/materials/CatalogText.h"

namespace zelmat {

const KORCatalogFile& BuiltInCatalog() {
    static const auto catalog = [] {
        KORFileError error;
        auto read = KORCatalogFile::FromText(kCatalogText, "the built-in catalog", error);
        if (!read) throw std::logic_error(error.Text());
        return read;
    }();
    return *catalog;
}

}  // namespace zelmat
