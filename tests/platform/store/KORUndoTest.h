#pragma once

#include "KORTestDocument.h"
#include "platform/store/KORUndoLog.h"

/// A feature in a document whose changes can be undone.
class KORUndoTest : public KORTestDocument {
protected:
    /// One committed step that sets the length.
    void SetLength(double value, const char* name = "Set the length") {
        KORStep step(*document, name);
        feature->SetDouble(length, value, 0);
        step.Commit();
    }

    const KORVar<KORFeature> feature = NewFeature();
    KORUndoLog& log = document->Log();
};
