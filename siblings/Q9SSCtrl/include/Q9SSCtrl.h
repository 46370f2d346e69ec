#ifndef Q9SSCTRL_H
#define Q9SSCTRL_H

/* Registration of the product's functions (the system monitor, the mail
 * monitors, ...) with the running product. item is a function's code: 0, 1,
 * 16, 32, ... 208. The installation's settings are read from "Q9SSCtrl.ini",
 * the registrations kept in "Q9SSCtrl.state", and every call is appended to
 * "Q9SSCtrl.journal", all in the installation directory. */

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

#define Q9SSCTRL_EXPORT __attribute__((visibility("default")))

/* 1 when the function may be registered on this machine, else 0. */
Q9SSCTRL_EXPORT int32_t Q9SSCtrl_CanBeRegister(int32_t item);

/* 1 when the function is registered, else 0. */
Q9SSCTRL_EXPORT int32_t Q9SSCtrl_IsRegistered(int32_t item);

/* Registers the function: 1 on success; 0, changing nothing, when it cannot
 * be registered or the state cannot be written. */
Q9SSCTRL_EXPORT int32_t Q9SSCtrl_Register(int32_t item);

/* Stops and unregisters the function, waiting at most timeoutMs for it to
 * stop: 1 when it stopped in time and is unregistered; 0 when it did not
 * stop in time (it then stays registered) or the state cannot be written.
 * flags are recorded only. */
Q9SSCTRL_EXPORT int32_t Q9SSCtrl_Unregister(int32_t item, int32_t timeoutMs, int32_t flags);

/* Tells the function that the configuration changed; counted. 1 on success. */
Q9SSCTRL_EXPORT int32_t Q9SSCtrl_SetCfgChanged(int32_t item);

/* 1 when the calling user may change registrations, else 0. */
Q9SSCTRL_EXPORT int32_t Q9SSCtrl_HasEnoughPrivilege(void);

#ifdef __cplusplus
}
#endif

#endif /* Q9SSCTRL_H */
