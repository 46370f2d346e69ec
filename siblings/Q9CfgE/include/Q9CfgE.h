#ifndef Q9CFGE_H
#define Q9CFGE_H

/*
 * The configuration store. Every option of the product is addressed by a
 * 32-bit section and a 32-bit key; a value is a 32-bit word, a text, an
 * enciphered text, or (per section) a list of records.
 *
 * Results are 1 for success and 0 for failure unless a function says
 * otherwise. No call throws. Texts are 8-bit bytes (UTF-8 by convention),
 * NUL-terminated. The file format is described in docs/store-format.md.
 */

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

#define Q9CFGE_API __attribute__((visibility("default")))

/* Styles of Q9CfgE_SetStyleEx and Q9CfgE_Create. */
#define Q9CFGE_STYLE_FILE 257u  /* a store file by path, or Cancel with a null path */
#define Q9CFGE_STYLE_EDIT 1281u /* edit mode on the current file */

/* Modes of Q9CfgE_SetStyleEx. */
#define Q9CFGE_MODE_PLAIN 0u  /* (FILE, path): select a file; (FILE, null): Cancel */
#define Q9CFGE_MODE_RESUME 1u /* (EDIT, null): go on editing the working copy as it is */
#define Q9CFGE_MODE_EDIT 2u   /* (EDIT, null): enter edit mode; (FILE, level): load a level */

/* Q9CfgE_SetStyleEx(EDIT, null, EDIT) entered edit mode although another
 * process still held the edit lock after the wait. */
#define Q9CFGE_BUSY 2

/* The key of a section's object list: Q9CfgE_SetStrEx(section, this, null)
 * empties the list (and removes a schedule entry); Q9CfgE_Enum lists it as
 * the last key of a section that has records. */
#define Q9CFGE_KEY_OBJECT_LIST 0xFFFFFFFFu

/* Section argument of Q9CfgE_FlushEx meaning every section. */
#define Q9CFGE_ALL_SECTIONS 0xFFFFFFFFu

/* Schedule entries: section = Q9CFGE_SCHEDULE_FIRST | entry id. */
#define Q9CFGE_SCHEDULE_FIRST 0x10000000u
#define Q9CFGE_SCHEDULE_LAST 0x10FFFFFEu
#define Q9CFGE_SCHEDULE_DEFAULT 0x10FFFFFFu

/* Types that Q9CfgE_GetStr writes to its scratch word. */
#define Q9CFGE_TYPE_DWORD 1u
#define Q9CFGE_TYPE_TEXT 2u
#define Q9CFGE_TYPE_SEALED 3u
#define Q9CFGE_TYPE_OBJECT_LIST 4u

/* A store file opened apart from the live store. */
typedef struct Q9CfgEFile* Q9CfgEHandle;

/* Values of the current file (or of the working copy in edit mode). A key
 * the current values lack reads its factory default. */
Q9CFGE_API uint32_t Q9CfgE_GetDWEx(uint32_t section, uint32_t key);
Q9CFGE_API int32_t Q9CfgE_SetDWEx(uint32_t section, uint32_t key, uint32_t value);

/* The text stays valid until the next call that changes this value; null
 * when absent. A null text in Q9CfgE_SetStrEx removes the value (it then
 * reads its factory default); key Q9CFGE_KEY_OBJECT_LIST with a null text
 * empties the section's object list and, on a schedule entry, removes the
 * whole entry. */
Q9CFGE_API const char* Q9CfgE_GetStrEx(uint32_t section, uint32_t key);
Q9CFGE_API int32_t Q9CfgE_SetStrEx(uint32_t section, uint32_t key, const char* text);

/* Enciphered texts. With a null buffer, *length becomes the text length + 1
 * (0 when absent or when it cannot be deciphered). With a buffer of *length
 * bytes the text and its NUL are copied. Answers 1 when the text was found
 * (and, with a buffer, fitted); 0 otherwise. */
Q9CFGE_API int32_t Q9CfgE_GetEncStrEx(uint32_t section, uint32_t key, char* buffer,
                                      uint32_t* length);
Q9CFGE_API int32_t Q9CfgE_SetEncStrEx(uint32_t section, uint32_t key, const char* text);

/* Factory defaults, in every mode. */
Q9CFGE_API uint32_t Q9CfgE_GetDefaultDW(uint32_t section, uint32_t key);
Q9CFGE_API const char* Q9CfgE_GetDefaultStr(uint32_t section, uint32_t key);

/* The section's records laid end to end (16-bit little-endian size including
 * the 4-byte header, kind byte, constant byte, NUL-terminated text), ended by
 * a 16-bit 0; null when the section has none. Valid until the next call that
 * changes this list. */
Q9CFGE_API const void* Q9CfgE_GetObjectList(uint32_t section, uint32_t reserved);
/* Stores record at index: replaces an existing one, appends at index ==
 * count, refuses an index beyond the count. */
Q9CFGE_API int32_t Q9CfgE_SetObjectList(uint32_t section, uint16_t index, const void* record);

/* Modes:
 *   (FILE, path, PLAIN)   reads and writes go to the file at path; an empty
 *                         path goes back to the live store.
 *   (FILE, null, PLAIN)   Cancel: edit mode ends, the working copy is dropped.
 *   (EDIT, null, EDIT)    edit mode: answers 1, or Q9CFGE_BUSY when another
 *                         process held the edit lock for 5 seconds.
 *   (FILE, level, EDIT)   the working copy becomes the level file's values.
 *   (EDIT, null, RESUME)  edit mode goes on with the working copy as it is. */
Q9CFGE_API int32_t Q9CfgE_SetStyleEx(uint32_t style, const char* path, uint32_t mode);
Q9CFGE_API int32_t Q9CfgE_UnlockEx(void);
/* Commits the working copy (commit 1): all sections (ends edit mode) or one
 * section (edit mode goes on). Commit 0, or a call outside edit mode, does
 * nothing and answers 1. A failed commit keeps the working copy and answers 0. */
Q9CFGE_API int32_t Q9CfgE_FlushEx(uint32_t section, uint32_t commit);
/* Bumps the change mark that services watch. */
Q9CFGE_API int32_t Q9CfgE_SetModified(void);

/* The window of a password prompt open in any process of the installation,
 * or 0: the token of the prompt's window beacon, which brings the prompt to
 * the front when asked (BringWindowForward), or, when the beacon could not
 * listen, the prompt's native window id. */
Q9CFGE_API uint64_t Q9CfgE_GetAuthenticateDlg(uint32_t reserved);
/* Asks for the product's password when one is set; non-zero when the user
 * is authenticated (at once when no password is set). */
Q9CFGE_API int32_t Q9CfgE_AuthenticateEx(uint64_t ownerWindow, uint32_t reserved,
                                         const char* caption);

/* Store files opened apart. Create(Q9CFGE_STYLE_FILE, path, 0) loads the file
 * (a missing file is an empty store); Close writes the changes back and frees
 * the handle. Enum(file, 0, i) is the i-th section in ascending order,
 * Enum(file, section, j) the j-th key; 0 ends (so section 0 and key 0 are
 * not listed). GetStr returns an opaque value (valid until the next GetStr
 * on that handle) for SetStr on any handle, and writes its
 * Q9CFGE_TYPE_* to *scratch when scratch is not null. */
Q9CFGE_API Q9CfgEHandle Q9CfgE_Create(uint32_t style, const char* path, uint32_t reserved);
Q9CFGE_API int32_t Q9CfgE_Close(Q9CfgEHandle file);
Q9CFGE_API uint32_t Q9CfgE_Enum(Q9CfgEHandle file, uint32_t section, uint16_t index);
Q9CFGE_API const void* Q9CfgE_GetStr(Q9CfgEHandle file, uint32_t section, uint32_t key,
                                     uint32_t* scratch);
Q9CFGE_API int32_t Q9CfgE_SetStr(Q9CfgEHandle file, uint32_t section, uint32_t key,
                                 const void* value);

#ifdef __cplusplus
}
#endif

#endif /* Q9CFGE_H */
