#pragma once

#include <ostream>

#include "framework/KORTie.h"

namespace zelmat {

/// Prints every call that goes through an interface of a loaded module, before it is made:
/// `trace: ZELIMaterial.GetElasticProperties on ZELMaterial`. Sees the interfaces bound while it lives.
class CallTrace final : public KORCallObserver {
public:
    explicit CallTrace(std::ostream& out) : out_(out), before_(Tie_StackCtx::Observe(this)) {}
    ~CallTrace() { Tie_StackCtx::Observe(before_); }
    CallTrace(const CallTrace&) = delete;
    CallTrace& operator=(const CallTrace&) = delete;

    void Called(const KORTieRecord& binding, const char* operation, KORBaseUnknown* implementation) override;

private:
    std::ostream& out_;
    KORCallObserver* before_;
};

}  // namespace zelmat
