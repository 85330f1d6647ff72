#pragma once

#include <cstddef>
#include <string>
#include <vector>

/// A trace channel of a module, known to the platform from construction to destruction.
class KORTrace {
public:
    /// `mode`, `output` ("STDERR") and `size` (bytes of its buffer) are for the platform's trace settings.
    KORTrace(const char* name, const char* description, int mode, const char* output, std::size_t size);
    ~KORTrace();
    KORTrace(const KORTrace&) = delete;
    KORTrace& operator=(const KORTrace&) = delete;

    const std::string& Name() const { return name_; }
    const std::string& Description() const { return description_; }
    int Mode() const { return mode_; }
    const std::string& Output() const { return output_; }
    std::size_t Size() const { return size_; }

    /// The channels there are now, oldest first.
    static const std::vector<const KORTrace*>& Channels();

private:
    std::string name_;
    std::string description_;
    int mode_;
    std::string output_;
    std::size_t size_;
};
