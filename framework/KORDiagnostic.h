#pragma once

/// Writes one diagnostic line to the process's standard output and flushes it. Diagnostics are for whoever
/// watches the process; they never reach the user and never stop an operation.
void KORDiagnosticLine(const char* text);
