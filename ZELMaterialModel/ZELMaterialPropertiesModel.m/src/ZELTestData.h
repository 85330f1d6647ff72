#pragma once

#include "interfaces/KORISpecObject.h"

/// The container in which the test data of a material's hyperelastic model lie: that of the first listed
/// feature. E_FAIL when there is no model, key or list, or the list is empty.
HRESULT ZELFindTestDataContainer(KORISpecObject* material, KORBaseUnknown_var& container);

/// Copies the test data of one material's hyperelastic model into the container of another material and has
/// that one's model list the copies, in the same order; the first model then lists none. The two may be the
/// same material, or share one model: that one then lists the copies. The test data may lie in several
/// containers, also in the second material's own.
///
/// S_OK, and nothing is done, when there are no test data. When the second material's hyperelastic behavior
/// is off, its list is emptied and that is all. What is no longer listed stays in the document. E_FAIL when a
/// model, key, container or copy is missing; a list that both share is kept then.
HRESULT ZELCarryTestData(KORISpecObject* from, KORISpecObject* to);
