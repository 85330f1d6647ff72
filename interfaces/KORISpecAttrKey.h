#pragma once

#include "framework/KORName.h"

/// Handle of one attribute name: the interned name itself, the same object for every feature and every store.
/// A key obtained from one feature is used unchanged with every other feature that carries an attribute of
/// that name. It keeps nothing alive; who got one from GetAttrKey gives it back with Release, or keeps it for
/// good.
using KORISpecAttrKey = const KORName;
