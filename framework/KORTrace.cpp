#include "framework/KORTrace.h"

#include <algorithm>

namespace {

std::vector<const KORTrace*>& Living() {
    static auto& channels = *new std::vector<const KORTrace*>;
    return channels;
}

}  // namespace

KORTrace::KORTrace(const char* name, const char* description, int mode, const char* output, std::size_t size)
    : name_(name), description_(description), mode_(mode), output_(output), size_(size) {
    Living().push_back(this);
}

KORTrace::~KORTrace() {
    std::erase(Living(), this);
}

const std::vector<const KORTrace*>& KORTrace::Channels() {
    return Living();
}
