#include "session/LanguageBinding.h"

#include "platform/SharedLibrary.h"
#include "session/ProcessState.h"

uint32_t LanguageBinding::LanguageId() const {
    platform::SharedLibrary orvI18N;
    orvI18N.Load(g_szModuleDir, "OrvI18N");
    return orvI18N.CallOr<uint32_t()>(0, "OrvI18N_GetLanguage") & 0xFFFFu;
}
