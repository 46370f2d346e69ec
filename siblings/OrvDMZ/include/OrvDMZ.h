#ifndef ORVDMZ_H
#define ORVDMZ_H

/*
 * The exclusion zone shared by the products of one installation: a list of
 * paths that scans leave alone, in which every product keeps its records
 * under its own owner tag. The zone is kept in the file "OrvDMZ.zone" of the
 * installation directory and re-read at every call, so that all processes
 * share it.
 *
 * Records travel in buffers: a run of records, each starting with its 32-bit
 * little-endian size, ended by a size of 0 (the terminator takes 4 bytes).
 *
 *   offset 0    record size: length of the path + ORVDMZ_RECORD_EXTRA
 *   offset 4    1 when in use, 0 when not
 *   offset 8    flags word (ORVDMZ_FLAG_...)
 *   offset 12   always 1
 *   offset 16   owner tag, zero-terminated (filled by the library)
 *   offset 536  the path, zero-terminated, followed by 4 zero bytes
 *
 * No call throws; failures answer 0 or null.
 */

#include <stdint.h>

#define ORVDMZ_API __attribute__((visibility("default")))

#define ORVDMZ_OWNER_OFFSET 16
#define ORVDMZ_OWNER_SIZE 520
#define ORVDMZ_PATH_OFFSET 536
#define ORVDMZ_RECORD_EXTRA 541
#define ORVDMZ_MAX_PATH 4095

#define ORVDMZ_FLAG_FILE 0x00000001u
#define ORVDMZ_FLAG_FOLDER 0x00000002u
#define ORVDMZ_FLAG_FIXED 0x00000010u
#define ORVDMZ_FLAG_DERIVED 0x00000020u
#define ORVDMZ_FLAG_USER 0x00000100u
#define ORVDMZ_FLAG_EXTENSION 0x00010000u
/* Set by Enum on every record that belongs to another owner. Add skips such
   records: they stay where they are, under their own owner. */
#define ORVDMZ_FLAG_FOREIGN 0x40000000u

#ifdef __cplusplus
extern "C" {
#endif

/* A handle on the zone of the installation directory as it is now; null when
   that directory cannot be found. */
ORVDMZ_API void* OrvDMZ_Create(void);

/* Appends the records of the terminated buffer under owner. owner2 is a
   second tag that counts as the same owner (null or empty: none); it is not
   used for storing. Records carrying ORVDMZ_FLAG_FOREIGN are skipped. 1 on
   success; 0 for a bad handle or tag, a malformed record (then nothing is
   stored), a zone file that cannot be read or parsed, or a failed write. */
ORVDMZ_API int32_t OrvDMZ_AddDMZA(void* zone, const char* owner, const char* owner2,
                                  const void* records);

/* Fills buffer with the records seen by owner: first the records kept under
   owner or owner2, as stored; then every other owner's records, with
   ORVDMZ_FLAG_FIXED, ORVDMZ_FLAG_DERIVED and ORVDMZ_FLAG_USER cleared and
   ORVDMZ_FLAG_FOREIGN set. Each record carries its real owner's tag. Returns
   the bytes needed, terminator included; a null buffer or a size below that
   copies nothing. 0 when there is no record, and on failure. */
ORVDMZ_API int32_t OrvDMZ_EnumDMZA(void* zone, const char* owner, const char* owner2, void* buffer,
                                   int32_t size);

/* Removes every record kept under owner or owner2. reserved is ignored. 1 on
   success, 0 on failure as for Add. */
ORVDMZ_API int32_t OrvDMZ_DeleteDMZA(void* zone, const char* owner, const char* owner2,
                                     int32_t reserved);

/* Releases the handle; null and unknown handles are ignored. */
ORVDMZ_API void OrvDMZ_Destroy(void* zone);

#ifdef __cplusplus
}
#endif

#endif /* ORVDMZ_H */
