#pragma once

/// What a shared library shows to others; everything else of a module stays hidden.
#define KOR_EXPORT __attribute__((visibility("default")))
