#pragma once

#include <optional>
#include <set>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "framework/KORStatus.h"

/// What an injected fault does to the platform call that it hits.
enum class ZELFault {
    Refuse,           ///< that call's own failing answer: a failure status, or a null key, list or feature
    SuccessWithNull,  ///< S_OK and null from calls that answer a status; otherwise the same as Refuse. A
                      ///< query is refused, too: a handle does not show the difference
    Throw,            ///< a ZELInjectedFault leaves the call
};

/// Leaves a platform call that was hit by ZELFault::Throw.
class ZELInjectedFault : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// What the caller of ZELPlatformCalls::Record is to do.
enum class ZELVerdict { Answer, Refuse, SuccessWithNull };

/// Every platform call on the objects of one map store, in order, one line each: "GetAttrKey
/// ZELDensityLT.DensityData", "SetListOfDouble ZELDensityLT.DensityData [7850]", "QueryInterface
/// ZELMaterialLT KORISpecAttrAccess". It also decides which of the calls fail. Counting references is no
/// call. A key that was asked for and not found shows: "GetAttrKey ZELDensityLT.Old not found".
class ZELPlatformCalls {
public:
    /// Lets the n-th call from now on fail, counted from 1; with a kind ("GetAttrKey"), the n-th call of that
    /// kind. Calls that have no failing answer (setters, reads of single values) are hit, and counted, by
    /// ZELFault::Throw only. One fault at a time; it hits once.
    void Inject(ZELFault fault, int n, const std::string& kind = "");

    /// The same for a fault that carries a status: a call that answers one answers this, and null beside it
    /// when it is a success. Calls that answer none, and queries given a success, end as with
    /// ZELFault::Refuse.
    void InjectStatus(HRESULT status, int n, const std::string& kind = "");
    void ClearFault() { fault_ = {}; }

    bool FaultHit() const { return !failedCall_.empty(); }         ///< since the last Inject
    const std::string& FailedCall() const { return failedCall_; }  ///< its line in the log

    /// From now on every object with this label (a feature's late type, "Container", "Document", "Catalog")
    /// refuses the interface of that name.
    void RefuseInterface(const std::string& label, const std::string& interfaceName);

    const std::vector<std::string>& Log() const { return log_; }
    std::vector<std::string> Log(const std::string& kind) const;  ///< the lines of one kind of call
    void ClearLog() { log_.clear(); }

    /// For the store: notes the call and says how it is to end. May throw ZELInjectedFault.
    ZELVerdict Record(const std::string& kind, const std::string& details, bool canFail);
    std::optional<HRESULT> FailedStatus() const {
        return failedStatus_;
    }  ///< what the fault that hit carries

    /// For the store: the call last recorded found nothing.
    void NoteMiss();
    /// For the store: what a call that answers a status answers when its verdict is this one.
    HRESULT StatusOf(ZELVerdict verdict) const;
    bool Refuses(const std::string& label, const std::string& interfaceName) const;

private:
    struct Armed {
        ZELFault fault = ZELFault::Refuse;
        int left = 0;      ///< calls until it hits; 0 is no fault
        std::string kind;  ///< empty: any
        std::optional<HRESULT> status;
    };

    std::vector<std::string> log_;
    std::set<std::pair<std::string, std::string>> refused_;
    Armed fault_;
    std::string failedCall_;
    std::optional<HRESULT> failedStatus_;  ///< what the fault that hit carries
};

/// The test's own look at the store: calls made while one of these is alive are neither logged nor failed.
class ZELUnrecorded {
public:
    ZELUnrecorded() { ++depth_; }
    ~ZELUnrecorded() { --depth_; }
    ZELUnrecorded(const ZELUnrecorded&) = delete;
    ZELUnrecorded& operator=(const ZELUnrecorded&) = delete;

    static bool IsActive() { return depth_ > 0; }

private:
    static int depth_;
};
