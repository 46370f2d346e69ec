#ifndef ORVI18N_H
#define ORVI18N_H

/*
 * The language of the session and the translation file that goes with it.
 *
 * The language comes from the environment's locale: the first non-empty of
 * LANGUAGE (its first entry), LC_ALL, LC_MESSAGES and LANG. Its id keeps the
 * classic numeric language ids in its low 16 bits (1033 en-US, 1031 de-DE,
 * 2057 en-GB, 1036 fr-FR, 1041 ja-JP, ...); the high 16 bits are 0. "C",
 * "POSIX", an unset locale and an unknown language are 1033; a known
 * language with an unknown territory is the language's main id.
 *
 * Translation files are Qt's compiled translations (.qm), installed by the
 * caller as a QTranslator, found as <directory>Lang/<family>_<id>.qm.
 *
 * No call throws; failures answer 0 or null.
 */

#include <stdint.h>

#define ORVI18N_API __attribute__((visibility("default")))

#ifdef __cplusplus
extern "C" {
#endif

/* A handle on the translation file of the session's language, looked for
   under directory (a '/' is put between when it lacks one): first the
   language's own id, then its main id. Null for US English, which is built
   in, when neither file exists, and for a null directory or a family that is
   empty or holds a '/'. The handle owns the file's path. */
ORVI18N_API void* OrvI18N_LoadResources(const char* directory, const char* family);

/* Releases the handle; null and unknown handles are ignored. */
ORVI18N_API void OrvI18N_FreeResources(void* resources);

/* The full path of the handle's translation file, valid until the handle is
   freed; null for a null or unknown handle. */
ORVI18N_API const char* OrvI18N_GetResourceFile(void* resources);

/* The language id of the session's locale. */
ORVI18N_API uint32_t OrvI18N_GetLanguage(void);

#ifdef __cplusplus
}
#endif

#endif /* ORVI18N_H */
