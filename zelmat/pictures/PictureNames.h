#pragma once

#include <set>
#include <string>

namespace zelmat {

/// Gives every picture a name that no other has: "hardening", "hardening-2".
class PictureNames {
public:
    std::string Take(const std::string& name) {
        std::string free = name;
        for (int number = 2; !taken_.insert(free).second; ++number) {
            free = name + "-" + std::to_string(number);
        }
        return free;
    }

private:
    std::set<std::string> taken_;
};

}  // namespace zelmat
