// The C entry points over MailAccounts. The object handed out is a
// MailAccounts; no exception leaves, a failure answers 0, "" or null.

#include <new>

#include "MailAccounts.h"
#include "Q9P3ATHL.h"

namespace {

using q9p3athl::MailAccounts;

MailAccounts* AccountsOf(void* accounts) { return static_cast<MailAccounts*>(accounts); }

const char* TextOr(const char* text) { return text ? text : ""; }

}  // namespace

extern "C" {

void* Q9P3ATHL_Create(void) { return new (std::nothrow) MailAccounts(); }

void Q9P3ATHL_Free(void* accounts) { delete AccountsOf(accounts); }

int32_t Q9P3ATHL_Load(void* accounts) {
    if (!accounts) return 0;
    try {
        return AccountsOf(accounts)->Load() ? 1 : 0;
    } catch (...) {
        return 0;
    }
}

int32_t Q9P3ATHL_Save(void* accounts, uint32_t /*flags*/) {
    if (!accounts) return 0;
    try {
        return AccountsOf(accounts)->Save() ? 1 : 0;
    } catch (...) {
        return 0;
    }
}

int32_t Q9P3ATHL_GetCount(void* accounts) { return accounts ? AccountsOf(accounts)->Count() : 0; }

const char* Q9P3ATHL_GetProfileName(void* accounts, int32_t index) {
    return accounts ? TextOr(AccountsOf(accounts)->ProfileName(index)) : "";
}

int32_t Q9P3ATHL_GetProtected(void* accounts, int32_t index) {
    return accounts && AccountsOf(accounts)->IsProtected(index) ? 1 : 0;
}

int32_t Q9P3ATHL_SetProtected2(void* accounts, int32_t index, uint32_t on) {
    return accounts && AccountsOf(accounts)->SetProtected(index, on != 0) ? 1 : 0;
}

const char* Q9P3ATHL_GetMUAName(void* accounts, int32_t index) {
    return accounts ? TextOr(AccountsOf(accounts)->ClientName(index)) : "";
}

}  // extern "C"
