#include "session/PageContext.h"

#include "session/ProcessState.h"
#include "session/SiblingLibs.h"

PageContext::PageContext(CSiblingLibs& siblings, bool isNT)
    : m_siblings(&siblings), m_isNT(isNT ? 1 : 0) {}

CSiblingLibs& PageContext::Siblings() const { return m_siblings ? *m_siblings : g_Siblings; }

bool PageContext::IsNT() const { return m_isNT < 0 ? g_bWinNT != 0 : m_isNT != 0; }
