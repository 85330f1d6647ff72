#include "tests/support/ZELPlatformCalls.h"

int ZELUnrecorded::depth_ = 0;

void ZELPlatformCalls::Inject(ZELFault fault, int n, const std::string& kind) {
    fault_ = {fault, n, kind, {}};
    failedCall_.clear();
    failedStatus_.reset();
}

void ZELPlatformCalls::InjectStatus(HRESULT status, int n, const std::string& kind) {
    Inject(SUCCEEDED(status) ? ZELFault::SuccessWithNull : ZELFault::Refuse, n, kind);
    fault_.status = status;
}

void ZELPlatformCalls::NoteMiss() {
    if (!ZELUnrecorded::IsActive()) log_.back() += " not found";
}

HRESULT ZELPlatformCalls::StatusOf(ZELVerdict verdict) const {
    if (verdict == ZELVerdict::Answer) return S_OK;
    return failedStatus_.value_or(verdict == ZELVerdict::Refuse ? E_FAIL : S_OK);
}

void ZELPlatformCalls::RefuseInterface(const std::string& label, const std::string& interfaceName) {
    refused_.insert({label, interfaceName});
}

bool ZELPlatformCalls::Refuses(const std::string& label, const std::string& interfaceName) const {
    return !ZELUnrecorded::IsActive() && refused_.count({label, interfaceName}) != 0;
}

std::vector<std::string> ZELPlatformCalls::Log(const std::string& kind) const {
    std::vector<std::string> lines;
    for (const std::string& line : log_) {
        if (line.starts_with(kind + " ")) lines.push_back(line);
    }
    return lines;
}

ZELVerdict ZELPlatformCalls::Record(const std::string& kind, const std::string& details, bool canFail) {
    if (ZELUnrecorded::IsActive()) return ZELVerdict::Answer;
    log_.push_back(kind + " " + details);
    const bool countsForFault = fault_.left > 0 && (fault_.kind.empty() || fault_.kind == kind) &&
                                (canFail || fault_.fault == ZELFault::Throw);
    if (!countsForFault || --fault_.left > 0) return ZELVerdict::Answer;
    failedCall_ = log_.back();
    failedStatus_ = fault_.status;
    switch (fault_.fault) {
        case ZELFault::Refuse:
            return ZELVerdict::Refuse;
        case ZELFault::SuccessWithNull:
            return ZELVerdict::SuccessWithNull;
        case ZELFault::Throw:
            break;
    }
    throw ZELInjectedFault(failedCall_);
}
