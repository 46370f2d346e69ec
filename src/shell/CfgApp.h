#pragma once

// The application object of the library: what runs once when the library is
// first used (host flags, the library's directory, the diagnostic log, the
// message service, the nested page dialog).

class CCfgApp {
public:
    // Library start; runs once per process, at the first call of an export.
    static void InitInstance();
};
