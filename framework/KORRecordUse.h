#pragma once

/// Keeps a record of the framework for as long as it lives, and knows nothing of what the record is about.
/// The static one in a class's own code is what ties the record to the code: it goes when the library is
/// really unloaded, whoever held the library until then. Bindings hold one too.
template <class Record>
class KORRecordUse {
public:
    explicit KORRecordUse(Record& record) : record_(record) { record_.AddUse(); }
    ~KORRecordUse() { record_.DropUse(); }
    KORRecordUse(const KORRecordUse&) = delete;
    KORRecordUse& operator=(const KORRecordUse&) = delete;

    Record& Get() const { return record_; }

private:
    Record& record_;
};
