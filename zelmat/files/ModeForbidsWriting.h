#pragma once

#include <sys/stat.h>

#include <string>

namespace zelmat {

/// Whether a file may not be written; errno says why. One that has no bit for writing is not written by root
/// either, whom the system would let.
bool ModeForbidsWriting(const std::string& path, const struct stat& state);

}  // namespace zelmat
