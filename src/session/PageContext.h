#pragma once

// What a page needs of the session besides its flags: the sibling library
// bindings and the host's kind. By default the process's own (g_Siblings
// and the host version flags); a test gives a page bindings of its own
// without touching the process's globals.

class CSiblingLibs;

class PageContext {
public:
    // The process: g_Siblings and g_bWinNT as they stand when asked.
    PageContext() = default;
    PageContext(CSiblingLibs& siblings, bool isNT);

    CSiblingLibs& Siblings() const;
    // Whether the host is of the NT family.
    bool IsNT() const;

private:
    CSiblingLibs* m_siblings = nullptr;  // null: g_Siblings
    int m_isNT = -1;                     // -1: g_bWinNT
};
