#pragma once

#include <string>

#include "zelmat/files/LockedFolder.h"
#include "zelmat/files/SignalHold.h"
#include "zelmat/findings/Findings.h"

namespace zelmat {

/// A folder of the program's own for files that go with it, under TMPDIR. Signals that would end the program
/// wait as long as it stands, so that nothing stays behind; what one leaves that is killed goes with the
/// next.
class ScratchFolder {
public:
    /// A finding when it cannot be made.
    explicit ScratchFolder(Findings& findings);
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    bool Exists() const { return folder_.Exists(); }
    const std::string& Path() const { return folder_.Path(); }

    /// Writes a file in it. A finding when that fails.
    [[nodiscard]] bool Write(const std::string& name, const std::string& text, Findings& findings) const;

    /// All bytes of a file in it, of which other programs may have made anything: no more than `most`. Empty
    /// when there is none.
    std::string Read(const std::string& name, std::size_t most) const;

private:
    SignalHold hold_;
    LockedFolder folder_;
};

}  // namespace zelmat
