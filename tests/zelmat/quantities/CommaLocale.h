#pragma once

#include <clocale>
#include <cstdlib>

namespace zelmat {

/// The process in a locale with a decimal comma for as long as this lives, unless there is none to be had.
class CommaLocale {
public:
    CommaLocale() {
        setenv("LOCPATH", ZELMAT_LOCALES, 1);
        isSet_ = std::setlocale(LC_ALL, "de_DE.UTF-8") != nullptr;
    }
    ~CommaLocale() { std::setlocale(LC_ALL, "C"); }
    CommaLocale(const CommaLocale&) = delete;
    CommaLocale& operator=(const CommaLocale&) = delete;

    bool IsSet() const { return isSet_; }

private:
    bool isSet_ = false;
};

}  // namespace zelmat
