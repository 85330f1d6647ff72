#include "platform/disk/KORDiskContainers.h"

#include <algorithm>

KORDiskContainers::KORDiskContainers(KORMemoryDocument& document) {
    containers_.emplace_back(nullptr);
    containers_.push_back(KORBaseUnknown_var::Adopt(document.GetFeatContainer()));
    for (const std::string& name : document.ContainerNames()) {
        containers_.emplace_back(document.AddContainer(name).Get());
    }
}

std::optional<std::uint32_t> KORDiskContainers::NumberOf(const KORValue& value) const {
    const auto found = std::ranges::find(containers_, value.Component(), &KORBaseUnknown_var::Get);
    if (found == containers_.end()) return std::nullopt;
    return static_cast<std::uint32_t>(found - containers_.begin());
}
