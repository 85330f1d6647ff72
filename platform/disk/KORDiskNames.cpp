#include "platform/disk/KORDiskNames.h"

std::uint32_t KORDiskNames::Of(std::string_view text) {
    const auto [known, fresh] =
        numbers_.try_emplace(std::string(text), static_cast<std::uint32_t>(texts_.size() + 1));
    if (fresh) texts_.emplace_back(text);
    return known->second;
}
