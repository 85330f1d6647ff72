#include "framework/KORDiagnostic.h"

#include <iostream>

void KORDiagnosticLine(const char* text) {
    std::cout << text << std::endl;
}
