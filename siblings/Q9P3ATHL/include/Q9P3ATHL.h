#ifndef Q9P3ATHL_H
#define Q9P3ATHL_H

/* The mail accounts of the mail clients on this machine, and whether each is
 * protected (its mail scanned), read from "Q9P3Accounts.ini" in the
 * installation directory. An account object holds one reading of that file;
 * the system keeps one for a session. A null object answers 0, "" or
 * nothing. */

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

#define Q9P3ATHL_EXPORT __attribute__((visibility("default")))

/* A new, empty account object, or null. */
Q9P3ATHL_EXPORT void* Q9P3ATHL_Create(void);

/* Frees an object of Q9P3ATHL_Create. */
Q9P3ATHL_EXPORT void Q9P3ATHL_Free(void* accounts);

/* Reads the accounts file into the object, replacing what it held: 1 when
 * the file was read (a missing file is an empty list); 0 when it cannot be
 * read or parsed (the list is then empty). */
Q9P3ATHL_EXPORT int32_t Q9P3ATHL_Load(void* accounts);

/* Writes each account's protected state back to the file, changing nothing
 * else in it; accounts removed from the file meanwhile are skipped. No flags
 * are defined: pass 0. 1 on success. */
Q9P3ATHL_EXPORT int32_t Q9P3ATHL_Save(void* accounts, uint32_t flags);

Q9P3ATHL_EXPORT int32_t Q9P3ATHL_GetCount(void* accounts);

/* The account's name; "" for an index out of range. The text stays valid
 * until the next Load or Free of the object. */
Q9P3ATHL_EXPORT const char* Q9P3ATHL_GetProfileName(void* accounts, int32_t index);

/* 1 when the account is protected; 0 when not, or out of range. */
Q9P3ATHL_EXPORT int32_t Q9P3ATHL_GetProtected(void* accounts, int32_t index);

/* Sets the account protected (on non-zero) or not, in the object only until
 * Q9P3ATHL_Save. 1 done; 0 for an index out of range. */
Q9P3ATHL_EXPORT int32_t Q9P3ATHL_SetProtected2(void* accounts, int32_t index, uint32_t on);

/* The name of the account's mail client; "" for an index out of range. Valid
 * like the profile name. */
Q9P3ATHL_EXPORT const char* Q9P3ATHL_GetMUAName(void* accounts, int32_t index);

#ifdef __cplusplus
}
#endif

#endif /* Q9P3ATHL_H */
