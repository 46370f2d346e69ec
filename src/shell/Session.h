#pragma once

// One call of an export: the language of the user is switched in, the
// application's name becomes string 57344 so that boxes without a caption
// bear it, and at the end every sibling library is released and the
// language switched back. Construct at the top of an export; every way out
// leaves the session.

#include <QString>

#include "shell/LanguageResources.h"

class CSession {
public:
    // A session that may show windows first makes sure a Qt application
    // exists, so that the translation can be installed into it.
    enum Kind { kSilent, kWithUserInterface };

    explicit CSession(Kind kind);
    ~CSession();
    CSession(const CSession&) = delete;
    CSession& operator=(const CSession&) = delete;

private:
    LanguageResources m_language;
    QString m_previousName;
};
