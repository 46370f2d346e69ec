#ifndef ORVINST_H
#define ORVINST_H

/* Secure profiles of the installation: sectioned key/value files such as
 * "Q9Sec.dat" (edition and product values) and "Q9WM.dat" (alert mail
 * settings). path is always the full path of the file. A null or empty
 * section is the unnamed section at the top of the file.
 *
 * String values of keys whose name contains "Password" (in any case) are
 * stored enciphered under the installation's key and read back deciphered;
 * every other value stands in the file as plain text. */

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

#define ORVINST_EXPORT __attribute__((visibility("default")))

/* The value as a decimal (or 0x hex) integer; defaultValue when the file,
 * the key or a number is missing. */
ORVINST_EXPORT int32_t OrvInst2_GetSecProfileInt(const char* section, const char* key,
                                                 int32_t defaultValue, const char* path);

/* Copies the value, cut to size - 1 bytes (never inside a UTF-8 character),
 * and a NUL into buffer and answers the number of bytes copied. When the key
 * is absent, copies defaultValue (null: empty text) the same way and answers
 * 0, so that 0 always means "use the default". Nothing is copied when buffer
 * is null or size is 0. */
ORVINST_EXPORT int32_t OrvInst2_GetSecProfileString(const char* section, const char* key,
                                                    const char* defaultValue, char* buffer,
                                                    uint32_t size, const char* path);

/* Writes the value in decimal. 1 on success, 0 on failure. */
ORVINST_EXPORT int32_t OrvInst2_WriteSecProfileInt(const char* section, const char* key,
                                                   int32_t value, const char* path);

/* Writes the text; a value holding a line end is refused. 1 on success, 0 on
 * failure. */
ORVINST_EXPORT int32_t OrvInst2_WriteSecProfileString(const char* section, const char* key,
                                                      const char* value, const char* path);

#ifdef __cplusplus
}
#endif

#endif /* ORVINST_H */
