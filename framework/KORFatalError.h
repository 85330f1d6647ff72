#pragma once

/// Reports a broken invariant: the text, the base name of the source file and the line. The report is kept
/// with the services, shown on standard error, and the program goes on.
void KORFatalError(const char* text, const char* source, int line);
