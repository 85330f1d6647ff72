#pragma once

#include <cstdint>
#include <string>
#include <vector>

/// A file system under SQLite that can fail: while it is installed, every file that SQLite opens goes through
/// it. It counts SQLite's calls and lets one of them fail, or lets the process die in the middle of it.
class KORFaultyDisk {
public:
    KORFaultyDisk();   ///< installs it
    ~KORFaultyDisk();  ///< no SQLite file is open any more
    KORFaultyDisk(const KORFaultyDisk&) = delete;
    KORFaultyDisk& operator=(const KORFaultyDisk&) = delete;

    enum class Fault {
        Fail,      ///< the call answers an error and does nothing
        CutFail,   ///< a write writes its first half, then answers an error; other calls fail
        Die,       ///< the process is killed instead of the call
        DieAfter,  ///< the process is killed when the call is done
        CutDie,    ///< a write writes its first half, then the process is killed
    };

    /// The n-th call from now on, counted from 1, is hit: of those that change files, or of all. `code` is
    /// what a failing call answers; 0: the error that fits the call.
    static void Arm(Fault fault, int n, bool onlyChanges, int code = 0);
    static void Disarm();

    /// From now on every call that changes a file fails, as after a broken disk.
    static void BreakForGood(bool broken);

    static int Calls();         ///< how many were counted since Arm
    static bool Hit();          ///< the armed fault has happened
    static std::string What();  ///< the call it happened to: "write", "sync", ...
};
