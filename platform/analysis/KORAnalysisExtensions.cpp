#include "platform/analysis/KORAnalysisExtensions.h"

#include "platform/analysis/KORAnalysisEntityExtension.h"
#include "platform/analysis/KORAnalysisModelExtension.h"
#include "platform/analysis/KORAnalysisSetExtension.h"
#include "platform/analysis/KORMaterialExtension.h"

void KORLinkAnalysisExtensions() {
    KORAnalysisEntityExtension::MetaObject();
    KORAnalysisModelExtension::MetaObject();
    KORAnalysisSetExtension::MetaObject();
    KORMaterialExtension::MetaObject();
}
