#pragma once

/// Makes sure that the extensions of this folder are part of the program. They register themselves, so
/// nothing else names them, and a linker leaves out what nobody names.
void KORLinkAnalysisExtensions();
