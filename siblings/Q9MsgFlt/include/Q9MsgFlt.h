#ifndef Q9MSGFLT_H
#define Q9MSGFLT_H

/*
 * Spam filter rules: a process-wide manager holding the rules of the file
 * "Q9MsgFlt.rules" in the installation directory, and an editor for them.
 *
 * A rule has a name, the mail field it looks at (sender, recipient, subject
 * or body), the words it looks for (it matches when the field contains any
 * of them, without regard to case), an action (mark as spam, delete, let
 * through), and whether it is on.
 *
 * Every call but InitManager answers 0 while no manager is held. No call
 * throws.
 */

#include <stdint.h>

#define Q9MSGFLT_API __attribute__((visibility("default")))

/* Results of PFN_ApplyRules: the action of the rule that matched. */
#define Q9MSGFLT_NO_MATCH 0
#define Q9MSGFLT_MARK_AS_SPAM 1
#define Q9MSGFLT_DELETE 2
#define Q9MSGFLT_LET_THROUGH 3

#ifdef __cplusplus
extern "C" {
#endif

/* Takes a reference on the manager; the first one loads the rules file of the
   installation directory (a missing file is an empty rule set). 1 on
   success; 0 when the file cannot be read or parsed (reported, and the file
   is left as it is). */
Q9MSGFLT_API int32_t Q9MsgFltAPI_InitManager(void);

/* Drops a reference; the last one frees the rules. 1, or 0 with none held. */
Q9MSGFLT_API int32_t Q9MsgFltAPI_ReleaseManager(void);

/* Opens the modal rule editor on the manager's rules (creating a
   QApplication for its duration when the process has none). 1 when the user
   pressed OK and the rules differ from before: they then stay in the
   manager until WriteRules. 0 on Cancel, with no change, without a manager,
   or when no editor can be shown (another thread than the application's, or
   a QCoreApplication that is not a QApplication). */
Q9MSGFLT_API int32_t Q9MsgFltAPI_DoProperty(void);

/* Applies the rules in effect to one mail message: the first rule that is on
   and matches decides. low and high are the low and high 32 bits of the
   address of the message: zero-terminated UTF-8 text, headers, a blank line
   and the body (the recipient field is To and Cc together). Answers the
   matching rule's action (Q9MSGFLT_...); Q9MSGFLT_NO_MATCH when no rule
   matches, for a null address, or without a manager. */
Q9MSGFLT_API int32_t PFN_ApplyRules(uint32_t low, uint32_t high);

/* Re-reads the rules file into the manager, dropping unsaved changes. 1 on
   success; 0 when it cannot be read or parsed (the rules stay as they were). */
Q9MSGFLT_API int32_t Q9MsgFltAPI_ReloadManager(void);

/* Saves the manager's rules to the rules file, atomically. 1 on success. */
Q9MSGFLT_API int32_t Q9MsgFltAPI_WriteRules(void);

/* The number of rules in the manager, on or off. */
Q9MSGFLT_API int32_t Q9MsgFltAPI_GetRuleCount(void);

#ifdef __cplusplus
}
#endif

#endif /* Q9MSGFLT_H */
