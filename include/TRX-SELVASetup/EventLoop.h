/*
 * TRX-SELVASetup on Linux: how notifications reach the host's event loop.
 *
 * The library starts no thread. The host's own loop watches one descriptor for reading and calls
 * one function when it is readable. docs/host-writers.md shows this with poll, GLib and Qt.
 */
#ifndef TRX_SELVASETUP_EVENT_LOOP_H
#define TRX_SELVASETUP_EVENT_LOOP_H

#include <TRX-SELVASetup/TRX-SELVASetup.h>

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Gives the descriptor to watch for reading.
 *
 * It is readable when something is left to deliver. It stays the same for the life of the process,
 * also when the session bus ends and comes back. It may be readable with nothing to deliver, about
 * once a second while the library looks for a missing bus. After fork(), the child has no
 * registrations and gets a new descriptor. Watch it with poll, epoll, GLib, Qt or anything else;
 * never read from it, write to it or close it.
 *
 * @param descriptor  receives the descriptor; -1 when the process has no free descriptor (ask again
 *     later).
 * @return ORV_SUCCESS; ORV_BAD_ARGUMENT for a null pointer.
 *
 * Any thread. Since 1.0.
 */
ORV_EXPORT StatusCode ORV_GetNotificationDescriptor(int32_t *descriptor);

/**
 * Delivers all notifications that have arrived: calls the registered callbacks on the calling
 * thread. The announcements of one process and thread are delivered in their order. Never blocks,
 * and reads at most 1,024 messages, however fast other programs announce: while more are left, the
 * descriptor stays readable. What the callbacks cause is delivered by the next call. Callbacks may
 * call any function of the library, including this one.
 *
 * @return ORV_SUCCESS, always.
 *
 * The receiving thread only: the one that calls the Register functions. Since 1.0.
 */
ORV_EXPORT StatusCode ORV_DispatchNotifications(void);

#ifdef __cplusplus
}
#endif

#endif /* TRX_SELVASETUP_EVENT_LOOP_H */
