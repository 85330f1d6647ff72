#pragma once

#include <string>

#include "framework/KORStatus.h"

namespace zelmat {

/// A status as the programmers of the module write it: "status 0x80004005".
std::string StatusText(HRESULT status);

}  // namespace zelmat
