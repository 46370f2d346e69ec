/*
 * q9cfgul.h: what a program of the product needs to call libQ9CfgUL.so, the
 * settings front end: the configuration dialog, the configuration wizard, a
 * single settings page, or the silent application of a policy file.
 *
 * Load the library from the installation directory (dlopen) or link it; every
 * call opens a short session on the calling thread and returns a plain code.
 */
#ifndef Q9CFGUL_H
#define Q9CFGUL_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

#if defined(__GNUC__)
#define Q9CFGUL_API __attribute__((visibility("default")))
#else
#define Q9CFGUL_API
#endif

/* The session flag word of Q9CfgUL_DoModal. */
#define DMF_ModeMask              0x000000FFu /* 0 dialog, 1 wizard, 2 single page */
#define DMF_PolicyKeepMonitor     0x00000100u /* with DMF_Silent in mode 0: leave the system monitor's registration option at 0 */
#define DMF_TitleShowsPage        0x00000200u /* the dialog's caption follows the selected page */
#define DMF_Master                0x00000400u /* master edition (also set from the secure profile) */
#define DMF_AssumeNT              0x00200000u /* keep controls of the NT family enabled on any host */
#define DMF_RemoveOutlookMon      0x00400000u /* profile: no Outlook pages */
#define DMF_RemoveInternetMon     0x00800000u /* profile: no internet monitoring pages */
#define DMF_RemovePopMon          0x01000000u /* profile: no POP3 pages */
#define DMF_RemoveSecurity        0x02000000u /* profile: no security page */
#define DMF_RemoveNonScanSector   0x04000000u /* profile: no exclusions page */
#define DMF_IsLight               0x08000000u /* profile: light edition */
#define DMF_Silent                0x10000000u /* no user interface at all */
#define DMF_NoAuthenticate        0x80000000u /* skip the product password */

/* Modes in the low byte of the flags. */
#define DMF_ModeDialog            0u
#define DMF_ModeWizard            1u
#define DMF_ModeSinglePage        2u

/* Results. */
#define Q9CFGUL_OK                1  /* OK, or finished silently */
#define Q9CFGUL_CANCEL            2  /* Cancel, refused, not authorized, or already open */
#define Q9CFGUL_BAD_REQUEST      (-1) /* bad page id or unknown mode */

/*
 * Runs one session.
 *   parent     native window id of the caller's window, 0 for none
 *   flags      DMF_* bits; the mode in the low byte
 *   pageInOut  page id to show first (mode 0) or alone (mode 2), 0..40; null
 *              means page 0. In mode 0 the last selected page comes back here.
 *   path1      null/empty, or a configuration file to use instead of the live
 *              store; in a silent call also the file a policy is merged into
 *   path2      null/empty, or the policy file a silent call merges
 */
Q9CFGUL_API int32_t Q9CfgUL_DoModal(uint64_t parent, uint32_t flags, int32_t* pageInOut,
                                    const char* path1, const char* path2);

/*
 * Shows one of the fixed messages and returns 1: kind 0 a new virus was
 * detected (value is the format's argument), 1 infected by viruses, 2 the self
 * scan failed to start, 3 unable to execute; any other kind an empty box.
 */
Q9CFGUL_API int32_t Q9CfgUL_MsgBox(int32_t kind, uint32_t value);

/* Does nothing and returns 1. */
Q9CFGUL_API int32_t Q9CfgUL_Report(void);

/*
 * Replaces the user port rule file with count records of 52 bytes each.
 * 1 written, 0 the file could not be made.
 */
Q9CFGUL_API int32_t WriteGeneralRuleFile(const void* records, int32_t count);

/* Flags of Q9CfgUL_PolicyDiff. */
#define PDF_Json                  0x00000001u /* the report as one JSON object instead of text */

/*
 * A dry run of a silent policy call: works out, changing nothing, what
 * Q9CfgUL_DoModal(0, DMF_Silent, NULL, basePath, policyPath) would change
 * (values, registered functions, exclusion zone records, scheduled scan
 * keys) and writes a report of it. Enciphered values are shown only as
 * changed.
 *   flags      PDF_* bits
 *   buffer     receives the report, NUL-terminated, when it fits into *size
 *              bytes; null asks for the size only
 *   size       in: the buffer's size; out: the bytes the report needs
 * Returns 0 when nothing would change, 1 when something would, -1 when size
 * is null.
 */
Q9CFGUL_API int32_t Q9CfgUL_PolicyDiff(uint32_t flags, const char* basePath,
                                       const char* policyPath, char* buffer, uint32_t* size);

#ifdef __cplusplus
}
#endif

#endif /* Q9CFGUL_H */
