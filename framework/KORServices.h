#pragma once

#include <vector>

#include "framework/KORErrorRecords.h"
#include "framework/KORUnicodeString.h"

/// What the platform's free functions work on when they are given no object to ask: one table per platform,
/// so that two platforms can live in one program and a library links neither. There is always a current one.
struct KORServices {
    struct FatalReport {
        KORUnicodeString text;
        KORUnicodeString source;
        int line = 0;
    };

    KORErrorRecords errors;
    std::vector<FatalReport> fatalReports;

    /// The platform's units service, asked for the interface it is wanted as; null when there is none. Not
    /// owned: the platform outlives its table's time as the current one.
    KORBaseUnknown* units = nullptr;

    /// The document that the user works on; null when there is none. Not owned.
    KORBaseUnknown* currentDocument = nullptr;

    static KORServices& Current();
};

/// Makes a table the current one for as long as the scope lives.
class KORServicesScope {
public:
    explicit KORServicesScope(KORServices& services);
    ~KORServicesScope();
    KORServicesScope(const KORServicesScope&) = delete;
    KORServicesScope& operator=(const KORServicesScope&) = delete;

private:
    KORServices* outer_;
};
