#include "zelmat/files/ModeForbidsWriting.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>

namespace zelmat {

bool ModeForbidsWriting(const std::string& path, const struct stat& state) {
    if ((state.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) == 0) {
        errno = EACCES;
        return true;
    }
    return ::faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) != 0;
}

}  // namespace zelmat
