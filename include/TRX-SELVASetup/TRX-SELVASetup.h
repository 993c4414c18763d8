/*
 * TRX-SELVASetup: read and change the settings of the USB DJ mixers of the TRX-SELVA family.
 *
 * A complete host. It sets the boost level on every connected mixer, waits for the announcement of
 * that change (its own, like anybody else's) and prints it:
 *
 *     #include <poll.h>
 *     #include <stdio.h>
 *     #include <TRX-SELVASetup/EventLoop.h>
 *     #include <TRX-SELVASetup/TRX-SELVASetup.h>
 *
 *     static void boost_changed(int32_t index, void *context) {
 *       ORVStringRef text = "";
 *       ORV_GetBoostLevelText(ORV_PRODUCT_TRX_SELVA, (uint32_t)index, 0, &text);
 *       printf("boost level is now %s\n", text);
 *       *(int *)context = 1;
 *     }
 *
 *     int main(void) {
 *       int told = 0;
 *       struct pollfd loop = {-1, POLLIN, 0};
 *       ORV_RegisterBoostLevelChangedCallback(ORV_PRODUCT_TRX_SELVA, boost_changed, &told);
 *       ORV_SetBoostLevelIndex(ORV_PRODUCT_TRX_SELVA, 1);
 *       ORV_GetNotificationDescriptor(&loop.fd);
 *       for (int turn = 0; !told && turn < 50; turn++) {
 *         poll(&loop, 1, 100);
 *         ORV_DispatchNotifications();
 *       }
 *       return told ? 0 : 1;
 *     }
 *
 * Build it with: cc host.c $(pkg-config --cflags --libs TRX-SELVASetup)
 *
 * What holds for every function
 *
 * - Each call is synchronous, on the caller's thread. The library starts no thread, takes no lock,
 *   keeps no mixer open between calls and caches nothing.
 * - The result is always a StatusCode. Arguments are checked first, result pointers before
 *   anything else; when a check fails the call answers ORV_BAD_ARGUMENT and has done nothing.
 * - A mixer that cannot be opened or that refuses a request is passed over in silence, and so is a
 *   settings file that cannot be written: such failures never change the result.
 * - The mixers addressed are all connected ones, whichever ProductId is passed. The ProductId
 *   selects texts, bounds, the settings file and the name of the announcement.
 * - Functions may run on several threads at once. The Register and Unregister functions belong to
 *   the one thread that also receives the notifications (on Linux: that calls
 *   ORV_DispatchNotifications, see EventLoop.h).
 * - Texts handed out belong to the library, stay valid and unchanged for the life of the process,
 *   and are never freed by the host.
 */
#ifndef TRX_SELVASETUP_TRX_SELVASETUP_H
#define TRX_SELVASETUP_TRX_SELVASETUP_H

#include <stdint.h>

#if defined(__GNUC__)
#define ORV_EXPORT __attribute__((visibility("default")))
#else
#define ORV_EXPORT
#endif

#ifdef __cplusplus
extern "C" {
#endif

/** The number of a mixer model; one of the ORV_PRODUCT_ values. Compared as an unsigned number.
 * Since 1.0. */
typedef uint32_t ProductId;

/** The models. TRX_BRISK, TRC_FENNO and TRX_CIRRUS are recognised by name only: every function
 * refuses them. Since 1.0. */
enum {
  ORV_PRODUCT_TRX_ARDEN = 0,
  ORV_PRODUCT_TRX_VOLT = 1,
  ORV_PRODUCT_TRX_BRISK = 2,
  ORV_PRODUCT_TRC_FENNO = 3,
  ORV_PRODUCT_TRX_CIRRUS = 4,
  ORV_PRODUCT_TRX_HALDEN = 5,
  ORV_PRODUCT_TRX_LUMEN = 6,
  ORV_PRODUCT_TRX_MORROW = 8,
  ORV_PRODUCT_TRX_SELVA = 11
};

/** What a function answers; one of the ORV_ status values below. Since 1.0. */
typedef int32_t StatusCode;

/** The status values. Since 1.0. */
enum {
  /** Done; also when no mixer is connected and there was nothing to do. */
  ORV_SUCCESS = 100,
  /** Done, but the state of the mixer does not let it take effect as asked: show the warning. */
  ORV_SUCCESS_WITH_WARNING = 101,
  /** A null result pointer, a model that the function does not serve, a number out of range, or a
     reply out of range. */
  ORV_BAD_ARGUMENT = 102,
  /** At least one mixer is connected. Only from ORV_IsUSBConnection. */
  ORV_CONNECTED = 103,
  /** No mixer is connected. Only from ORV_IsUSBConnection. */
  ORV_NOT_CONNECTED = 104
};

/**
 * A text: UTF-8, ended by a zero byte (on macOS the platform's string object). Text results belong
 * to the library, stay valid and unchanged for the life of the process, and are neither freed nor
 * changed by the host. Since 1.0.
 */
#if defined(__APPLE__)
typedef const struct __CFString *ORVStringRef;
#else
typedef const char *ORVStringRef;
#endif

/**
 * Told of a change of a setting that has a channel.
 *
 * @param channel  the channel, 0-based.
 * @param index    the index now chosen for that channel.
 * @param context  the pointer given at registration, unchanged.
 *
 * Runs on the thread that delivers notifications, never inside the call that made the change.
 * Since 1.0.
 */
typedef void (*ChannelIndexCallback)(int32_t channel, int32_t index, void *context);

/**
 * Told of a change of a setting without a channel.
 *
 * @param index    the index now chosen.
 * @param context  the pointer given at registration, unchanged.
 *
 * Runs on the thread that delivers notifications, never inside the call that made the change.
 * Since 1.0.
 */
typedef void (*IndexCallback)(int32_t index, void *context);

/**
 * @name Models and connection
 * @{
 */

/**
 * Turns the name of a model into its ProductId.
 *
 * The name may stand between other words and in any case: "my trx-selva mixer" is
 * ORV_PRODUCT_TRX_SELVA.
 *
 * @param name       the text to look at; stays the caller's.
 * @param productId  receives the model; untouched unless the result is ORV_SUCCESS.
 * @return ORV_SUCCESS; ORV_BAD_ARGUMENT when a pointer is null or the text names no model.
 *
 * Any thread. Since 1.0.
 */
ORV_EXPORT StatusCode ORV_GetProductId(ORVStringRef name, ProductId *productId);

/**
 * Tells whether a mixer is connected.
 *
 * @param productId  ignored; any value will do.
 * @return ORV_CONNECTED when at least one mixer is connected, else ORV_NOT_CONNECTED.
 *
 * Any thread. Since 1.0.
 */
ORV_EXPORT StatusCode ORV_IsUSBConnection(ProductId productId);

/** @} */

/**
 * @name Boost level: the level step of the mixer's USB audio output
 * @{
 */

/**
 * Tells how many boost levels there are.
 *
 * @param productId  TRX_ARDEN, TRX_VOLT, TRX_HALDEN, TRX_LUMEN, TRX_MORROW or TRX_SELVA.
 * @param count      receives the number of levels, 4.
 * @return ORV_SUCCESS; ORV_BAD_ARGUMENT for a null count or another model (count untouched).
 *
 * Any thread. Since 1.0.
 */
ORV_EXPORT StatusCode ORV_GetNumOfBoostLevelIndex(ProductId productId, uint32_t *count);

/**
 * Gives the text of a boost level, such as "-10 dB".
 *
 * @param productId  as for ORV_GetNumOfBoostLevelIndex.
 * @param index      the level, 0 (loudest) to 3 (quietest).
 * @param reserved   ignored.
 * @param text       receives the text; the library's own, for the life of the process.
 * @return ORV_SUCCESS; ORV_BAD_ARGUMENT for a null text, another model or another index (text
 *     untouched).
 *
 * Any thread. Since 1.0.
 */
ORV_EXPORT StatusCode ORV_GetBoostLevelText(ProductId productId, uint32_t index, uint32_t reserved,
                                            ORVStringRef *text);

/**
 * Sets the boost level: sends it to every connected mixer, stores it in the model's settings file
 * and announces it to every process of the user. All three happen also when the level is the one
 * already set; the last two also when no mixer is connected.
 *
 * @param productId  as for ORV_GetNumOfBoostLevelIndex.
 * @param index      the level, 0 (loudest) to 3 (quietest).
 * @return ORV_SUCCESS, whatever the mixers answered; ORV_BAD_ARGUMENT for another model or index
 *     (nothing done).
 *
 * Any thread. Since 1.0.
 */
ORV_EXPORT StatusCode ORV_SetBoostLevelIndex(ProductId productId, uint32_t index);

/**
 * Gives the boost level stored last, by any process.
 *
 * @param productId  as for ORV_GetNumOfBoostLevelIndex.
 * @param index      receives the stored level, 3 when none is stored. A stored number that is no
 *     level (written by another program) is handed out unchanged.
 * @return ORV_SUCCESS; ORV_BAD_ARGUMENT for a null index or another model (index untouched).
 *
 * Any thread. Since 1.0.
 */
ORV_EXPORT StatusCode ORV_GetCurrentBoostLevelIndex(ProductId productId, int32_t *index);

/**
 * Sends the stored boost level (3 when none is stored) to every connected mixer again, for example
 * after one has been plugged in. Stores and announces nothing.
 *
 * @param productId  as for ORV_GetNumOfBoostLevelIndex.
 * @return ORV_SUCCESS, whatever the mixers answered; ORV_BAD_ARGUMENT for another model or when
 *     the stored number is no level (nothing sent).
 *
 * Any thread. Since 1.0.
 */
ORV_EXPORT StatusCode ORV_SetCurrentBoostLevelIndex(ProductId productId);

/** @} */

/**
 * @name Change callbacks
 *
 * Every setter announces its change to every process of the user, its own included. A host learns
 * of it through the callback that it registered for that kind of setting and that model; there is
 * one callback a kind and model, the one registered last. Each successful Register call adds one
 * delivery: after n of them the callback runs n times for each change. Unregister empties the place
 * of the callback; a later Register fills it again.
 *
 * All of these belong to the one thread that receives the notifications.
 * @{
 */

/**
 * Registers the callback for changes of the USB input audio routing.
 *
 * @param productId  TRX_ARDEN, TRX_VOLT, TRX_HALDEN, TRX_LUMEN, TRX_MORROW or TRX_SELVA.
 * @param callback   called with channel, index and context; null is accepted and calls nothing.
 * @param context    handed back to the callback; stays the host's.
 * @return ORV_SUCCESS, also when there is no session bus; ORV_BAD_ARGUMENT for another model
 *     (nothing changed).
 *
 * The receiving thread only. Since 1.0.
 */
ORV_EXPORT StatusCode ORV_RegisterInputAudioChangedCallback(ProductId productId,
                                                            ChannelIndexCallback callback,
                                                            void *context);

/**
 * Removes the callback for changes of the USB input audio routing.
 *
 * @param productId  as for the Register function.
 * @param callback   ignored.
 * @return ORV_SUCCESS, also when none was registered; ORV_BAD_ARGUMENT for another model (nothing
 *     changed).
 *
 * The receiving thread only. Since 1.0.
 */
ORV_EXPORT StatusCode ORV_UnregisterInputAudioChangedCallback(ProductId productId,
                                                              ChannelIndexCallback callback);

/**
 * Registers the callback for changes of the USB output audio routing.
 *
 * @param productId  TRX_ARDEN, TRX_VOLT, TRX_HALDEN, TRX_LUMEN, TRX_MORROW or TRX_SELVA.
 * @param callback   called with channel, index and context; null is accepted and calls nothing.
 * @param context    handed back to the callback; stays the host's.
 * @return ORV_SUCCESS, also when there is no session bus; ORV_BAD_ARGUMENT for another model
 *     (nothing changed).
 *
 * The receiving thread only. Since 1.0.
 */
ORV_EXPORT StatusCode ORV_RegisterOutputAudioChangedCallback(ProductId productId,
                                                             ChannelIndexCallback callback,
                                                             void *context);

/**
 * Removes the callback for changes of the USB output audio routing.
 *
 * @param productId  as for the Register function.
 * @param callback   ignored.
 * @return ORV_SUCCESS, also when none was registered; ORV_BAD_ARGUMENT for another model (nothing
 *     changed).
 *
 * The receiving thread only. Since 1.0.
 */
ORV_EXPORT StatusCode ORV_UnregisterOutputAudioChangedCallback(ProductId productId,
                                                               ChannelIndexCallback callback);

/**
 * Registers the callback for changes of the boost level.
 *
 * @param productId  TRX_ARDEN, TRX_VOLT, TRX_HALDEN, TRX_LUMEN, TRX_MORROW or TRX_SELVA.
 * @param callback   called with index and context; null is accepted and calls nothing.
 * @param context    handed back to the callback; stays the host's.
 * @return ORV_SUCCESS, also when there is no session bus; ORV_BAD_ARGUMENT for another model
 *     (nothing changed).
 *
 * The receiving thread only. Since 1.0.
 */
ORV_EXPORT StatusCode ORV_RegisterBoostLevelChangedCallback(ProductId productId,
                                                            IndexCallback callback, void *context);

/**
 * Removes the callback for changes of the boost level.
 *
 * @param productId  as for the Register function.
 * @param callback   ignored.
 * @return ORV_SUCCESS, also when none was registered; ORV_BAD_ARGUMENT for another model (nothing
 *     changed).
 *
 * The receiving thread only. Since 1.0.
 */
ORV_EXPORT StatusCode ORV_UnregisterBoostLevelChangedCallback(ProductId productId,
                                                              IndexCallback callback);

/**
 * Registers the callback for changes of the MIDI channel.
 *
 * @param productId  TRX_VOLT.
 * @param callback   called with index and context; null is accepted and calls nothing.
 * @param context    handed back to the callback; stays the host's.
 * @return ORV_SUCCESS, also when there is no session bus; ORV_BAD_ARGUMENT for another model
 *     (nothing changed).
 *
 * The receiving thread only. Since 1.0.
 */
ORV_EXPORT StatusCode ORV_RegisterMidiChannelChangedCallback(ProductId productId,
                                                             IndexCallback callback, void *context);

/**
 * Removes the callback for changes of the MIDI channel.
 *
 * @param productId  as for the Register function.
 * @param callback   ignored.
 * @return ORV_SUCCESS, also when none was registered; ORV_BAD_ARGUMENT for another model (nothing
 *     changed).
 *
 * The receiving thread only. Since 1.0.
 */
ORV_EXPORT StatusCode ORV_UnregisterMidiChannelChangedCallback(ProductId productId,
                                                               IndexCallback callback);

/**
 * Would register a callback for changes of the MIDI key mode; no model offers a key mode.
 *
 * @param productId  any.
 * @param callback   ignored.
 * @param context    ignored.
 * @return ORV_BAD_ARGUMENT, always; nothing changed.
 *
 * Any thread. Since 1.0.
 */
ORV_EXPORT StatusCode ORV_RegisterMidiKeyModeChangedCallback(ProductId productId,
                                                             IndexCallback callback, void *context);

/**
 * Would remove the callback for changes of the MIDI key mode; no model offers a key mode.
 *
 * @param productId  any.
 * @param callback   ignored.
 * @return ORV_BAD_ARGUMENT, always; nothing changed.
 *
 * Any thread. Since 1.0.
 */
ORV_EXPORT StatusCode ORV_UnregisterMidiKeyModeChangedCallback(ProductId productId,
                                                               IndexCallback callback);

/** @} */

#ifdef __cplusplus
}
#endif

#endif /* TRX_SELVASETUP_TRX_SELVASETUP_H */
