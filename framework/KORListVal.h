#pragma once

#include <memory>
#include <vector>

/// A growable list of handles, numbered from 1. Copies share one buffer until one of them is written to, so a
/// list that the store hands out costs no counting of its entries. Entries may be empty handles.
template <class Handle>
class KORListVal {
public:
    void Append(const Handle& entry) { Own().push_back(entry); }

    /// The entry at a position counted from 1; the caller stays within Size().
    const Handle& operator[](int position) const { return (*entries_)[Index(position)]; }

    int Size() const { return entries_ ? static_cast<int>(entries_->size()) : 0; }

    /// Takes the entry at a position out; those after it move up. Positions outside 1..Size() do nothing.
    void RemovePosition(int position) {
        if (position < 1 || position > Size()) return;
        auto& own = Own();
        own.erase(own.begin() + (position - 1));
    }
    void RemoveAll() { entries_.reset(); }

private:
    static std::size_t Index(int position) { return static_cast<std::size_t>(position - 1); }

    std::vector<Handle>& Own() {
        if (!entries_) {
            entries_ = std::make_shared<std::vector<Handle>>();
        } else if (entries_.use_count() != 1) {
            entries_ = std::make_shared<std::vector<Handle>>(*entries_);
        }
        return *entries_;
    }

    std::shared_ptr<std::vector<Handle>> entries_;
};
