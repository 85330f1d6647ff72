#include "framework/KORFatalError.h"

#include <iostream>

#include "framework/KORServices.h"

void KORFatalError(const char* text, const char* source, int line) {
    KORServices::Current().fatalReports.push_back({KORUnicodeString(text), KORUnicodeString(source), line});
    std::cerr << source << ':' << line << ": " << text << std::endl;
}
