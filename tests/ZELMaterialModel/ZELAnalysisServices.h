#pragma once

#include "framework/KORStatus.h"
#include "interfaces/KORDocument.h"

/// Stands in for the add-on's document helpers and unique names in a program that does not link them. Each
/// answers the status that a test sets, and with S_OK does its work. One at a time.
struct ZELAnalysisServices {
    ZELAnalysisServices() { current = this; }
    ~ZELAnalysisServices() { current = nullptr; }
    ZELAnalysisServices(const ZELAnalysisServices&) = delete;
    ZELAnalysisServices& operator=(const ZELAnalysisServices&) = delete;

    KORDocument* currentDocument = nullptr;  ///< what the user works on; null is answered with success
    HRESULT getCurrentDocument = S_OK;
    HRESULT getDocument = S_OK;
    HRESULT getSpecContainer = S_OK;
    bool givesContainer = true;  ///< else success and null
    HRESULT loadCatalog = S_OK;
    HRESULT getFactory = S_OK;
    bool givesFactory = true;  ///< else success and null
    HRESULT getAnalysisModel = S_OK;
    bool givesAnalysisModel = true;  ///< else success and null
    HRESULT getNextUniqueName = S_OK;

    static ZELAnalysisServices* current;
};
