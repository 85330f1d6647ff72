#include "tests/platform/disk/KORFaultyDisk.h"

#include <signal.h>
#include <sqlite3.h>
#include <unistd.h>

#include <cstring>

namespace {

struct State {
    KORFaultyDisk::Fault fault = KORFaultyDisk::Fault::Fail;
    int left = 0;
    bool onlyChanges = false;
    int code = 0;
    int calls = 0;
    bool hit = false;
    bool broken = false;
    std::string what;
};
State state;
sqlite3_vfs* real = nullptr;
sqlite3_vfs faulty;

/// A file of ours: the real one lies behind it.
struct File {
    sqlite3_file base;
    sqlite3_file* Real() { return reinterpret_cast<sqlite3_file*>(this + 1); }
};

File* Of(sqlite3_file* file) {
    return reinterpret_cast<File*>(file);
}
sqlite3_file* RealOf(sqlite3_file* file) {
    return Of(file)->Real();
}

/// Whether this call is the one; then it does not return when the process is to die at once.
bool Strikes(const char* what, bool changes) {
    if (state.broken && changes) return true;
    if (state.onlyChanges && !changes) return false;
    ++state.calls;
    if (state.left == 0 || --state.left != 0) return false;
    state.hit = true;
    state.what = what;
    if (state.fault == KORFaultyDisk::Fault::DieAfter) return false;
    const bool writes = std::strcmp(what, "write") == 0;
    if (state.fault == KORFaultyDisk::Fault::Die ||
        (state.fault == KORFaultyDisk::Fault::CutDie && !writes)) {
        kill(getpid(), SIGKILL);
    }
    return true;
}

/// The answer of a call that was made: the last thing the process does, if it is to die after this one.
int Made(int code) {
    if (state.hit && state.fault == KORFaultyDisk::Fault::DieAfter) kill(getpid(), SIGKILL);
    return code;
}

int Code(int fitting) {
    return state.code != 0 ? state.code : fitting;
}

int Close(sqlite3_file* file) {
    return RealOf(file)->pMethods->xClose(RealOf(file));
}
int Read(sqlite3_file* file, void* bytes, int count, sqlite3_int64 at) {
    if (Strikes("read", false)) return Code(SQLITE_IOERR_READ);
    return RealOf(file)->pMethods->xRead(RealOf(file), bytes, count, at);
}
int Write(sqlite3_file* file, const void* bytes, int count, sqlite3_int64 at) {
    if (Strikes("write", true)) {
        const bool cut =
            state.fault == KORFaultyDisk::Fault::CutFail || state.fault == KORFaultyDisk::Fault::CutDie;
        if (cut && !state.broken) RealOf(file)->pMethods->xWrite(RealOf(file), bytes, count / 2, at);
        if (state.fault == KORFaultyDisk::Fault::CutDie) kill(getpid(), SIGKILL);
        return Code(SQLITE_FULL);
    }
    return Made(RealOf(file)->pMethods->xWrite(RealOf(file), bytes, count, at));
}
int Truncate(sqlite3_file* file, sqlite3_int64 size) {
    if (Strikes("truncate", true)) return Code(SQLITE_IOERR_TRUNCATE);
    return Made(RealOf(file)->pMethods->xTruncate(RealOf(file), size));
}
int Sync(sqlite3_file* file, int flags) {
    if (Strikes("sync", true)) return Code(SQLITE_IOERR_FSYNC);
    return Made(RealOf(file)->pMethods->xSync(RealOf(file), flags));
}
int FileSize(sqlite3_file* file, sqlite3_int64* size) {
    if (Strikes("file size", false)) return Code(SQLITE_IOERR_FSTAT);
    return RealOf(file)->pMethods->xFileSize(RealOf(file), size);
}
int Lock(sqlite3_file* file, int lock) {
    if (Strikes("lock", false)) return Code(SQLITE_IOERR_LOCK);
    return RealOf(file)->pMethods->xLock(RealOf(file), lock);
}
int Unlock(sqlite3_file* file, int lock) {
    return RealOf(file)->pMethods->xUnlock(RealOf(file), lock);
}
int CheckReserved(sqlite3_file* file, int* reserved) {
    if (Strikes("check of the lock", false)) return Code(SQLITE_IOERR_CHECKRESERVEDLOCK);
    return RealOf(file)->pMethods->xCheckReservedLock(RealOf(file), reserved);
}
int Control(sqlite3_file* file, int what, void* argument) {
    return RealOf(file)->pMethods->xFileControl(RealOf(file), what, argument);
}
int SectorSize(sqlite3_file* file) {
    return RealOf(file)->pMethods->xSectorSize(RealOf(file));
}
int Device(sqlite3_file* file) {
    return RealOf(file)->pMethods->xDeviceCharacteristics(RealOf(file));
}

const sqlite3_io_methods kMethods = {1,       Close,   Read,          Write,   Truncate,   Sync,   FileSize,
                                     Lock,    Unlock,  CheckReserved, Control, SectorSize, Device, nullptr,
                                     nullptr, nullptr, nullptr,       nullptr, nullptr};

int Open(sqlite3_vfs*, const char* name, sqlite3_file* file, int flags, int* opened) {
    file->pMethods = nullptr;
    const bool journal = (flags & SQLITE_OPEN_MAIN_JOURNAL) != 0;
    if (Strikes(journal ? "opening of the journal" : "opening", journal)) return Code(SQLITE_CANTOPEN);
    const int code = real->xOpen(real, name, RealOf(file), flags, opened);
    if (RealOf(file)->pMethods) file->pMethods = &kMethods;
    return code;
}
int Delete(sqlite3_vfs*, const char* name, int syncs) {
    if (Strikes("removal", true)) return Code(SQLITE_IOERR_DELETE);
    return Made(real->xDelete(real, name, syncs));
}
int Access(sqlite3_vfs*, const char* name, int flags, int* can) {
    if (Strikes("look for a file", false)) return Code(SQLITE_IOERR_ACCESS);
    return real->xAccess(real, name, flags, can);
}

}  // namespace

KORFaultyDisk::KORFaultyDisk() {
    real = sqlite3_vfs_find(nullptr);
    faulty = *real;
    faulty.zName = "faulty";
    faulty.pNext = nullptr;
    faulty.szOsFile = static_cast<int>(sizeof(File)) + real->szOsFile;
    faulty.xOpen = Open;
    faulty.xDelete = Delete;
    faulty.xAccess = Access;
    sqlite3_vfs_register(&faulty, 1);
    state = {};
}

KORFaultyDisk::~KORFaultyDisk() {
    sqlite3_vfs_unregister(&faulty);
    sqlite3_vfs_register(real, 1);
    state = {};
}

void KORFaultyDisk::Arm(Fault fault, int n, bool onlyChanges, int code) {
    state = {fault, n, onlyChanges, code, 0, false, false, ""};
}

void KORFaultyDisk::Disarm() {
    state.left = 0;
}

void KORFaultyDisk::BreakForGood(bool broken) {
    state.broken = broken;
}

int KORFaultyDisk::Calls() {
    return state.calls;
}

bool KORFaultyDisk::Hit() {
    return state.hit;
}

std::string KORFaultyDisk::What() {
    return state.what;
}
