#include "zelmat/cards/ReadCard.h"

#include "zelmat/cards/JsonCardReader.h"

namespace zelmat {

std::optional<Material> ReadCard(const std::string& path, Findings& findings) {
    return JsonCardReader(findings).Read(path);
}

}  // namespace zelmat
