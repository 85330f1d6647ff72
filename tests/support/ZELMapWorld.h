#pragma once

#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "framework/KORImplements.h"
#include "tests/support/ZELLateTypes.h"
#include "tests/support/ZELPlatformCalls.h"

class ZELMapDocument;
class ZELMapFeature;

/// What the objects of one map store share. It lives as long as any of them does.
struct ZELMapWorld {
    ZELPlatformCalls calls;
    ZELLateTypes types;
    std::set<ZELMapFeature*> features;   ///< the living ones, without start-ups
    ZELMapDocument* document = nullptr;  ///< null once it is closed
    int openCatalogs = 0;                ///< catalogs that somebody holds
    std::vector<int> openCatalogsAtInstantiations;
};

/// Base of the map store's objects: notes every query and refuses those that are to fail, the answers of
/// extensions included.
template <class... I>
class ZELMapObject : public KORImplements<I...> {
public:
    HRESULT QueryInterface(KORIID iid, void** out) final {
        injected_ = S_OK;
        const HRESULT status = KORImplements<I...>::QueryInterface(iid, out);
        return SUCCEEDED(status) || SUCCEEDED(injected_) ? status : injected_;
    }

protected:
    ZELMapObject(std::shared_ptr<ZELMapWorld> world, std::string label)
        : world_(std::move(world)), label_(std::move(label)) {}

    ZELPlatformCalls& Calls() const { return world_->calls; }
    const std::shared_ptr<ZELMapWorld>& World() const { return world_; }
    const std::string& Label() const { return label_; }

    void* OwnInterface(KORIID iid) final {
        // The identity of an object cannot be refused.
        const bool canFail = iid != IID_KORBaseUnknown;
        const ZELVerdict verdict = Calls().Record("QueryInterface", label_ + " " + iid->Text(), canFail);
        refusing_ = verdict != ZELVerdict::Answer || Calls().Refuses(label_, iid->Text());
        if (verdict != ZELVerdict::Answer) injected_ = Calls().FailedStatus().value_or(S_OK);
        return refusing_ || !Offers(iid) ? nullptr : KORImplements<I...>::OwnInterface(iid);
    }

    // A query that this object does not answer itself goes on to the living extensions and ends at the
    // dictionary. A refused one finds neither.
    std::uint32_t Generation() const final { return refusing_ ? 1 : 0; }
    const KORName* DictionaryName() const final {
        return std::exchange(refusing_, false) ? nullptr : DictionaryKey();
    }
    virtual const KORName* DictionaryKey() const { return nullptr; }

    /// Which of its interfaces the object has, if not all.
    virtual bool Offers(KORIID) const { return true; }

private:
    std::shared_ptr<ZELMapWorld> world_;
    std::string label_;
    mutable bool refusing_ = false;  ///< the query being answered is to fail
    HRESULT injected_ = S_OK;        ///< the failure that an injected status makes of it
};
