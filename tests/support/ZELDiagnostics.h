#pragma once

#include <sstream>
#include <string>
#include <vector>

/// Takes what is written to standard output while it lives, line by line. Each diagnostic line is flushed by
/// itself; what was written without a flush shows as one more line, "(not flushed) ...".
class ZELDiagnostics {
public:
    ZELDiagnostics();
    ~ZELDiagnostics();
    ZELDiagnostics(const ZELDiagnostics&) = delete;
    ZELDiagnostics& operator=(const ZELDiagnostics&) = delete;

    std::vector<std::string> Lines() const;  ///< so far, without the ends of lines

private:
    /// Remembers how far it was flushed.
    class Taken final : public std::stringbuf {
    public:
        std::size_t Flushed() const { return flushed_; }

    private:
        int sync() override {
            flushed_ = view().size();
            return 0;
        }

        std::size_t flushed_ = 0;
    };

    Taken taken_;
    std::streambuf* standardOutput_;
};
