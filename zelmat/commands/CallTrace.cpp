#include "zelmat/commands/CallTrace.h"

namespace zelmat {

void CallTrace::Called(const KORTieRecord& binding, const char* operation, KORBaseUnknown* implementation) {
    out_ << "trace: " << binding.InterfaceName() << '.' << operation;
    if (implementation) out_ << " on " << implementation->IsA();
    out_ << '\n';
}

}  // namespace zelmat
