#include "zelmat/exchange/calculix/DeckLines.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <string_view>

#include "zelmat/files/ReadText.h"

namespace zelmat {

namespace {

Finding Unreadable(const std::string& path) {
    return {FindingKind::UNREADABLE,
            {ShownPath(path), 0},
            "unreadable",
            std::string("cannot be read: ") + std::strerror(errno),
            {}};
}

}  // namespace

DeckLines::DeckLines(const std::string& path, Findings& findings)
    : path_(path), findings_(findings), file_(path == "-" ? OpenFile() : OpenFile(path, O_RDONLY)) {
    descriptor_ = path == "-" ? STDIN_FILENO : file_.Number();
    if (descriptor_ < 0) findings_.Add(Unreadable(path_));
}

bool DeckLines::Fill() {
    if (descriptor_ < 0) return false;
    ssize_t read = 0;
    do {
        read = ::read(descriptor_, buffer_.data(), buffer_.size());
    } while (read < 0 && errno == EINTR);
    if (read < 0) findings_.Add(Unreadable(path_));
    at_ = 0;
    end_ = read > 0 ? static_cast<std::size_t>(read) : 0;
    return end_ > 0;
}

bool DeckLines::Next() {
    line_.clear();
    bool any = false;
    while (at_ < end_ || Fill()) {
        any = true;
        const auto* begin = buffer_.data() + at_;
        const auto* newline = std::find(begin, static_cast<const char*>(buffer_.data() + end_), '\n');
        line_.append(begin, newline);
        at_ = static_cast<std::size_t>(newline - buffer_.data());
        if (line_.size() > kLongest) {
            findings_.Add({FindingKind::ERROR,
                           {ShownPath(path_), number_ + 1},
                           "long-line",
                           "a line has more than " + std::to_string(kLongest) + " characters",
                           {"this is no deck"}});
            descriptor_ = -1;
            at_ = end_ = 0;
            return false;
        }
        if (at_ < end_) {
            ++at_;
            break;
        }
    }
    if (!any) return false;
    if (line_.ends_with('\r')) line_.pop_back();
    constexpr std::string_view kByteOrderMark = "\xef\xbb\xbf";
    if (number_ == 0 && line_.starts_with(kByteOrderMark)) line_.erase(0, kByteOrderMark.size());
    ++number_;
    return true;
}

}  // namespace zelmat
