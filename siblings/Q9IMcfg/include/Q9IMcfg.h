#ifndef Q9IMCFG_H
#define Q9IMCFG_H

/* Which instant messengers are installed on this machine, as recorded in
 * "Q9IMcfg.ini" in the installation directory. The rows are those of the
 * messenger monitoring page:
 *   0  MSN Instant Messenger (5.0 and above)
 *   1  AOL Instant Messenger
 *   2  Yahoo! Instant Messenger
 *   3  Windows Messenger
 *   4  Daum Instant Messenger */

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

#define Q9IMCFG_EXPORT __attribute__((visibility("default")))

/* 1 when the messenger of that row is installed; 0 when not, when the file
 * or the row's value is missing, and for any other index. */
Q9IMCFG_EXPORT int32_t GetIMInstall(int32_t index);

#ifdef __cplusplus
}
#endif

#endif /* Q9IMCFG_H */
