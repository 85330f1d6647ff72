#pragma once

#include <functional>
#include <string>

#include "tests/support/ZELMapStore.h"

/// One run of a fault sweep, in a process of its own.
class ZELFaultRun {
public:
    ZELFaultRun(ZELFault fault, int n) : fault_(fault), n_(n) {}

    ZELMapStore store;  ///< fresh; what is done with it outside Act never fails

    /// Does the part of the run in which the fault is to hit. An injected exception that leaves it ends here.
    void Act(const std::function<void()>& act);

    bool FaultHit() const { return store_.FaultHit(); }                    ///< in Act
    const std::string& FailedCall() const { return store_.FailedCall(); }  ///< "GetAttrKey ZELElasticLT.x"
    bool Threw() const { return threw_; }                                  ///< Act was left by the exception

private:
    ZELPlatformCalls& store_ = store.Calls();
    ZELFault fault_;
    int n_;
    bool threw_ = false;
};

/// Lets the 1st, 2nd, ... n-th platform call of the run's Act fail until Act is done without a fault, that
/// last time included. Each run happens in a forked process, so what a process does only once (resolving
/// attribute keys) is done anew. Failed assertions of a run, its leaks and its death are failures of the
/// calling test and say which call was failing. Answers the number of faults that hit.
int ZELFaultSweep(ZELFault fault, const std::function<void(ZELFaultRun&)>& run);
