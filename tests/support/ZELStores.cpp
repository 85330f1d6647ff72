#include "tests/support/ZELStores.h"

#include "tests/support/ZELMapStore.h"
#include "tests/support/ZELPlatformStore.h"

namespace {

template <class Store>
std::unique_ptr<ZELTestStore> New() {
    return std::make_unique<Store>();
}

}  // namespace

std::vector<ZELStoreChoice> ZELBothStores() {
    return {{"PlatformStore", &New<ZELPlatformStore>}, {"MapStore", &New<ZELMapStore>}};
}
