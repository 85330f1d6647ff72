#include "bench/peer/PeerDocument.h"

#include <BinLDrivers.hxx>
#include <PCDM_ReaderStatus.hxx>
#include <PCDM_StoreStatus.hxx>
#include <TDataStd_Real.hxx>
#include <TDataStd_RealArray.hxx>
#include <TDocStd_Application.hxx>
#include <limits>
#include <stdexcept>
#include <string>

namespace peer {

namespace {

constexpr const char* kFormat = "BinLOcaf";

const opencascade::handle<TDocStd_Application>& Application() {
    static const Handle(TDocStd_Application) application = [] {
        Handle(TDocStd_Application) made = new TDocStd_Application;
        BinLDrivers::DefineFormat(made);
        return made;
    }();
    return application;
}

}  // namespace

Document::Document() {
    Application()->NewDocument(kFormat, document_);
    document_->SetUndoLimit(std::numeric_limits<int>::max());
}

Document::~Document() {
    Application()->Close(document_);
}

void Document::ForgetSteps() {
    document_->ClearUndos();
    document_->ClearRedos();
}

void Document::Save(const char* path) const {
    if (Application()->SaveAs(document_, path) != PCDM_SS_OK)
        throw std::runtime_error("the peer cannot save");
}

void Document::Open(const char* path) {
    Handle(TDocStd_Document) opened;
    const PCDM_ReaderStatus status = Application()->Open(path, opened);
    if (status != PCDM_RS_OK) {
        throw std::runtime_error("the peer cannot open: status " + std::to_string(status));
    }
    Application()->Close(opened);
}

Standard_GUID Key(int i) {
    return Standard_GUID(0x5a4d4b00 + i, 0x1f2e, 0x4c3d, 0x8b4a, 0x10, 0x20, 0x30, 0x40, 0x50, 0x60);
}

ScalarKeys SixKeys() {
    return {Key(0), Key(1), Key(2), Key(3), Key(4), Key(5)};
}

ColumnKeys ThreeKeys() {
    return {Key(0), Key(1), Key(2)};
}

TDF_Label NewScalars(const Document& document) {
    const TDF_Label feature = document.NewFeature();
    for (const Standard_GUID& key : SixKeys()) TDataStd_Real::Set(feature, key, 0.0);
    return feature;
}

void WriteColumn(const TDF_Label& feature, const Standard_GUID& key,
                 const opencascade::handle<TColStd_HArray1OfReal>& column) {
    Handle(TDataStd_RealArray) stored;
    if (!feature.FindAttribute(key, stored)) {
        stored = TDataStd_RealArray::Set(feature, key, column->Lower(), column->Upper());
    }
    stored->ChangeArray(column, false);
}

}  // namespace peer
