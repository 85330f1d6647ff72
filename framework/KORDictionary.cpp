#include "framework/KORDictionary.h"

#include <string>
#include <vector>

#include "framework/KORFatalError.h"

namespace {

/// Entries by the numbers of the late type's and the interface's names.
class Dictionary {
public:
    static Dictionary& Instance() {
        static Dictionary& dictionary = *new Dictionary;
        return dictionary;
    }

    const KORFillDictionary* Find(const KORName* lateType, KORIID iid) const {
        if (lateType->Number() >= rows_.size()) return nullptr;
        const auto& row = rows_[lateType->Number()];
        return iid->Number() < row.size() ? row[iid->Number()] : nullptr;
    }

    const KORFillDictionary*& At(const KORName* lateType, KORIID iid) {
        if (lateType->Number() >= rows_.size()) rows_.resize(lateType->Number() + 1);
        auto& row = rows_[lateType->Number()];
        if (iid->Number() >= row.size()) row.resize(iid->Number() + 1);
        return row[iid->Number()];
    }

    std::size_t count = 0;

private:
    std::vector<std::vector<const KORFillDictionary*>> rows_;
};

}  // namespace

KORFillDictionary::KORFillDictionary(const KORMetaClass& implementation, const KORMetaClass& interface,
                                     KORTieCreator creator, const void* data, int flag)
    : implementation_(implementation), interface_(interface), creator_(creator), data_(data), flag_(flag) {
    auto& dictionary = Dictionary::Instance();
    const KORName* lateType = implementation.DictionaryName();
    const KORFillDictionary*& entry = dictionary.At(lateType, interface.ClassId());
    if (entry) {
        const std::string text = std::string("Dictionary entry refused: ") + interface.ClassName() + " on " +
                                 lateType->Text() + " is implemented by " +
                                 entry->implementation_.ClassName() + ", not also by " +
                                 implementation.ClassName();
        KORFatalError(text.c_str(), "KORDictionary", __LINE__);
        return;
    }
    entry = this;
    ++dictionary.count;
}

KORFillDictionary::~KORFillDictionary() {
    auto& dictionary = Dictionary::Instance();
    const KORFillDictionary*& entry = dictionary.At(implementation_.DictionaryName(), interface_.ClassId());
    if (entry != this) return;
    entry = nullptr;
    --dictionary.count;
}

const KORFillDictionary* KORFillDictionary::Find(const KORName* lateType, KORIID iid) {
    return lateType ? Dictionary::Instance().Find(lateType, iid) : nullptr;
}

std::size_t KORFillDictionary::Count() {
    return Dictionary::Instance().count;
}
