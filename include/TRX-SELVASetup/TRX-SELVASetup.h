/*
 * TRX-SELVASetup: read and change the settings of the USB DJ mixers of the TRX-SELVA family.
 *
 * A complete host for Linux. It sets the boost level on every connected mixer, waits for the
 * announcement of that change (its own, like anybody else's) and prints it:
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
 *   keeps no mixer open between calls and caches nothing. What it keeps, on Linux, is connections
 *   to the session bus: one for each thread that has set something, one for what is received.
 * - A call takes as long as the mixers take to answer: up to 5 seconds for each request that a
 *   mixer leaves without one. On Linux, a session bus that hangs is waited for once, for 5 seconds.
 * - The result is always a StatusCode. Arguments are checked first, result pointers before
 *   anything else; when a check fails the call answers ORV_BAD_ARGUMENT and has done nothing,
 *   unless its description says otherwise.
 * - A mixer that cannot be opened or that refuses a request is passed over in silence, and so is a
 *   settings file that cannot be written: such failures never change the result.
 * - The mixers addressed are all connected ones, whichever ProductId is passed. The ProductId
 *   selects texts, bounds, the settings file and the name of the announcement.
 * - Functions may run on several threads at once. The Register and Unregister functions belong to
 *   the one thread that also receives the notifications (on Linux: the one that calls
 *   ORV_DispatchNotifications, see EventLoop.h; on macOS: the main thread, with its run loop). Of
 *   two settings of one model that are stored at the very same time, on two threads or in two
 *   processes, one may be lost from the file.
 * - Texts handed out belong to the library, stay valid and unchanged for the life of the process,
 *   and are never freed by the host.
 */
#ifndef TRX_SELVASETUP_TRX_SELVASETUP_H
#define TRX_SELVASETUP_TRX_SELVASETUP_H

#include <stdint.h>

#if defined(__APPLE__)
#include <CoreFoundation/CFString.h>
#endif

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
 * A text: UTF-8, ended by a zero byte (on macOS the platform's string object, a CFStringRef or
 * NSString). Text results belong to the library, stay valid and unchanged for the life of the
 * process, and are neither freed, nor released, nor changed by the host. Since 1.0.
 *
 * A library built over another implementation of Foundation hands out string objects as on macOS;
 * its hosts are compiled with ORV_TEXT_IS_CFSTRING defined.
 */
#if defined(__APPLE__)
typedef CFStringRef ORVStringRef;
#elif defined(ORV_TEXT_IS_CFSTRING)
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
 * Runs on the thread that delivers notifications, never inside the call that made the change. No
 * exception may leave it. Since 1.0.
 */
typedef void (*ChannelIndexCallback)(int32_t channel, int32_t index, void *context);

/**
 * Told of a change of a setting without a channel.
 *
 * @param index    the index now chosen.
 * @param context  the pointer given at registration, unchanged.
 *
 * Runs on the thread that delivers notifications, never inside the call that made the change. No
 * exception may leave it. Since 1.0.
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
 * @name Status of the mixers: read from the connected mixers at each call
 * @{
 */

/**
 * Gives the certify level of the mixers. With several mixers, that of the last one that could be
 * opened.
 *
 * @param productId  TRX_HALDEN (always 0, without asking a mixer), TRX_LUMEN, TRX_MORROW or
 *     TRX_SELVA.
 * @param level      receives the level; 0 when no mixer is connected or the last one did not
 *     answer.
 * @return ORV_SUCCESS; ORV_BAD_ARGUMENT for a null level or another model (level untouched).
 *
 * Any thread. Since 1.0.
 */
ORV_EXPORT StatusCode ORV_GetMixerCertifyLevel(ProductId productId, uint32_t *level);

/**
 * Gives the firmware version of the first connected mixer, as the number that the mixer reports.
 *
 * @param productId  TRX_SELVA.
 * @param version    receives the version; 0 when there is no mixer, it cannot be opened or it does
 *     not answer. Set to 0 for another model too.
 * @return ORV_SUCCESS; ORV_BAD_ARGUMENT for a null version or another model.
 *
 * Any thread. Since 1.0.
 */
ORV_EXPORT StatusCode ORV_GetFirmwareVersionIndex(ProductId productId, uint32_t *version);

/**
 * Gives the position of a mixer channel's input selector. With several mixers, that of the last one
 * that could be opened.
 *
 * @param productId  TRX_ARDEN, TRX_VOLT, TRX_HALDEN, TRX_LUMEN, TRX_MORROW or TRX_SELVA.
 * @param channel    the mixer channel: 0 to 3 for TRX_ARDEN, 0 to 2 for TRX_VOLT, 0 to 4 for the
 *     others. The mixers report no position for the last of them (2 and 4; TRX_ARDEN reports all):
 *     it reads as 0.
 * @param selector   receives the position, 0 to 7; untouched when no mixer could be opened.
 * @return ORV_SUCCESS; ORV_BAD_ARGUMENT for a null selector, another model or channel (selector
 *     untouched), and when a mixer reports a position of 8 or more (selector holds it; the mixers
 *     behind it are not asked).
 *
 * Any thread. Since 1.0.
 */
ORV_EXPORT StatusCode ORV_GetMixerInputSelectorStatus(ProductId productId, uint32_t channel,
                                                      uint32_t *selector);

/**
 * Tells whether Serato is active on the mixers. With several mixers, on the last one that could be
 * opened.
 *
 * @param productId  TRX_ARDEN, TRX_HALDEN, TRX_LUMEN, TRX_MORROW or TRX_SELVA; TRX_VOLT is refused
 *     as soon as a mixer can be opened, and accepted before.
 * @param active     receives 1 or 0; untouched when no mixer could be opened.
 * @return ORV_SUCCESS; ORV_BAD_ARGUMENT for a null pointer or another model, and when a mixer does
 *     not answer or reports 2 or more (active untouched by that mixer; the mixers behind it are
 *     not asked).
 *
 * Any thread. Since 1.0.
 */
ORV_EXPORT StatusCode ORV_GetMixerSeratoActiveStatus(ProductId productId, uint32_t *active);

/** @} */

/**
 * @name USB input audio: which mixer signal each channel that the computer records carries
 * @{
 */

/**
 * Tells how many choices a recording channel has.
 *
 * @param productId  TRX_SELVA.
 * @param channel    the recording channel, 0 to 3.
 * @param count      receives the number of choices: 8, 8, 7 and 1.
 * @return ORV_SUCCESS; ORV_BAD_ARGUMENT for a null count, another model or channel (count
 *     untouched).
 *
 * Any thread. Since 1.0.
 */
ORV_EXPORT StatusCode ORV_GetNumOfInputAudioIndex(ProductId productId, int32_t channel,
                                                  int32_t *count);

/**
 * Gives the text of a choice, such as "Post CH1 Fader".
 *
 * @param productId  TRX_ARDEN, TRX_VOLT, TRX_HALDEN, TRX_LUMEN, TRX_MORROW or TRX_SELVA.
 * @param channel    the recording channel: 0 to 3 for TRX_ARDEN, 0 to 2 for TRX_VOLT, 0 to 4 for
 *     the others.
 * @param index      the choice: below 8 for TRX_ARDEN; below 2 (channels 0 and 1) or 6 (channel 2)
 *     for TRX_VOLT; below 9 (channels 0 to 3) or 10 (channel 4) for the others, where numbers past
 *     a channel's own choices give the text that follows in the tables.
 * @param reserved   ignored.
 * @param text       receives the text; the library's own, for the life of the process.
 * @return ORV_SUCCESS; ORV_BAD_ARGUMENT for a null text, another model, channel or index (text
 *     untouched).
 *
 * Any thread. Since 1.0.
 */
ORV_EXPORT StatusCode ORV_GetUSBInputAudioText(ProductId productId, int32_t channel, uint32_t index,
                                               uint32_t reserved, ORVStringRef *text);

/**
 * Chooses the signal of a recording channel: sends it to every connected mixer, stores it,
 * announces it, then looks at the input selectors of the mixers.
 *
 * @param productId  TRX_SELVA.
 * @param channel    the recording channel, 0 to 2.
 * @param index      the choice: below 8 for channels 0 and 1, below 7 for channel 2.
 * @return ORV_SUCCESS. ORV_SUCCESS_WITH_WARNING when all was done, but a control tone (index 0 or
 *     1) was chosen and a mixer's input selector of that channel stands elsewhere; without a
 *     mixer, for index 0 to 2: show the text of ORV_GetWarningTextForSetUSBAudioInput.
 *     ORV_BAD_ARGUMENT for another model, channel or index (nothing done).
 *
 * Any thread. Since 1.0.
 */
ORV_EXPORT StatusCode ORV_SetUSBInputAudio(ProductId productId, int32_t channel, uint32_t index);

/**
 * Sends a raw routing value for a recording channel to every connected mixer. Stores and announces
 * nothing.
 *
 * @param productId  TRX_ARDEN, TRX_VOLT, TRX_HALDEN, TRX_LUMEN, TRX_MORROW or TRX_SELVA.
 * @param channel    the recording channel: 0 to 3 for TRX_ARDEN, 0 to 2 for TRX_VOLT, 0 to 4 for
 *     the others.
 * @param group      the number for bits 12 to 15 of the value, less 1; -1 leaves them 0. Not
 *     checked.
 * @param source     the mixer's code for the signal: below 4 for channels 0 and 1 of TRX_VOLT,
 *     else below 16.
 * @return ORV_SUCCESS. ORV_SUCCESS_WITH_WARNING when the value was sent, but a mixer's input
 *     selector of that channel stands elsewhere (source below 4; TRX_VOLT: channels 0 and 1);
 *     without a mixer, for source below 3 (TRX_VOLT: always). ORV_BAD_ARGUMENT for another model,
 *     channel or source (nothing sent).
 *
 * Any thread. Since 1.0.
 */
ORV_EXPORT StatusCode ORV_SetUSBInputAudioDirect(ProductId productId, int32_t channel,
                                                 int32_t group, uint32_t source);

/**
 * Gives the choice stored last for a recording channel, by any process.
 *
 * @param productId  TRX_ARDEN, TRX_VOLT, TRX_HALDEN, TRX_LUMEN, TRX_MORROW or TRX_SELVA.
 * @param channel    the recording channel: 0 to 3 for TRX_ARDEN, 0 to 2 for TRX_VOLT, 0 to 5 for
 *     the others.
 * @param index      receives the stored index. When none is stored: 3 for TRX_ARDEN; 1 (channels 0
 *     and 1) or 5 (channel 2) for TRX_VOLT; 0 for the others. Always 0 for channel 5. A stored
 *     number that is no choice is handed out unchanged.
 * @return ORV_SUCCESS; ORV_BAD_ARGUMENT for a null index, another model or channel (index
 *     untouched).
 *
 * Any thread. Since 1.0.
 */
ORV_EXPORT StatusCode ORV_GetCurrentUSBInputAudioIndex(ProductId productId, int32_t channel,
                                                       int32_t *index);

/**
 * Sends the stored choice of a recording channel to every connected mixer again. Stores and
 * announces nothing and does not look at the input selectors.
 *
 * @param productId  TRX_SELVA.
 * @param channel    the recording channel, 0 to 2.
 * @return ORV_SUCCESS, whatever the mixers answered; ORV_BAD_ARGUMENT for another model or
 *     channel, and when the stored number leads past the routing table (nothing sent).
 *
 * Any thread. Since 1.0.
 */
ORV_EXPORT StatusCode ORV_SetCurrentUSBInputAudio(ProductId productId, int32_t channel);

/**
 * Gives the text to show when an input routing setter answered ORV_SUCCESS_WITH_WARNING: what is
 * going on and what to do on the mixer.
 *
 * @param productId  TRX_ARDEN, TRX_VOLT, TRX_HALDEN, TRX_LUMEN, TRX_MORROW or TRX_SELVA.
 * @param channel    the recording channel: 0 to 3; 0 to 2 for TRX_VOLT; 0 to 4 for TRX_HALDEN.
 * @param status     what the setter answered; only ORV_SUCCESS_WITH_WARNING has a text.
 * @param language   0 English, 1 Japanese, 2 French, 3 German, 4 Italian, 5 Dutch, 6 Spanish, 7
 *     Russian, 8 Portuguese, 9 Chinese (simplified), 10 Chinese (traditional), 11 Korean, 99 the
 *     language of the user's system. The text for "no mixer connected" always comes in the
 *     language of the system, except for TRX_ARDEN and TRX_VOLT, which have one text for all
 *     cases.
 * @param text       receives the text, the library's own, for the life of the process; null when
 *     it is not installed.
 * @return ORV_SUCCESS; ORV_BAD_ARGUMENT for a null text, another model, channel, status or
 *     language (text untouched).
 *
 * Any thread. Since 1.0.
 */
ORV_EXPORT StatusCode ORV_GetWarningTextForSetUSBAudioInput(ProductId productId, int32_t channel,
                                                            StatusCode status, int32_t language,
                                                            ORVStringRef *text);

/** @} */

/**
 * @name USB output audio: which mixer channel each channel that the computer plays is assigned to
 * @{
 */

/**
 * Tells how many choices a playback channel has.
 *
 * @param productId  TRX_SELVA.
 * @param channel    the playback channel, 0 to 2.
 * @param count      receives the number of choices, 3.
 * @return ORV_SUCCESS; ORV_BAD_ARGUMENT for a null count, another model or channel (count
 *     untouched).
 *
 * Any thread. Since 1.0.
 */
ORV_EXPORT StatusCode ORV_GetNumOfOutputAudioIndex(ProductId productId, int32_t channel,
                                                   uint32_t *count);

/**
 * Gives the text of a choice: "CH1", "CH2" or "AUX".
 *
 * @param productId  TRX_SELVA.
 * @param channel    the playback channel, 0 to 2.
 * @param index      the choice, 0 to 2; 3 gives "CH1" again.
 * @param reserved   ignored.
 * @param text       receives the text; the library's own, for the life of the process.
 * @return ORV_SUCCESS; ORV_BAD_ARGUMENT for a null text, another model, channel or index (text
 *     untouched).
 *
 * Any thread. Since 1.0.
 */
ORV_EXPORT StatusCode ORV_GetUSBOutputAudioText(ProductId productId, int32_t channel,
                                                uint32_t index, uint32_t reserved,
                                                ORVStringRef *text);

/**
 * Assigns a playback channel: sends the assignment to every connected mixer, stores it, announces
 * it, then asks each mixer for its input selectors.
 *
 * @param productId  TRX_SELVA.
 * @param channel    the playback channel, 0 to 2. Channels 3 and 4 are accepted, stored and
 *     announced too; the mixers are sent 0 for them.
 * @param index      the choice, 0 to 2.
 * @return ORV_SUCCESS, whatever the mixers answered; ORV_BAD_ARGUMENT for another model, channel
 *     or index (nothing done).
 *
 * Any thread. Since 1.0.
 */
ORV_EXPORT StatusCode ORV_SetUSBOutputAudio(ProductId productId, int32_t channel, uint32_t index);

/**
 * Assigns a playback channel to its default for the time being: channel 0 to "CH1", 1 to "CH2", 2
 * to "AUX". Sends and announces it and asks each mixer for its input selectors, but stores nothing:
 * the user's choice stays.
 *
 * @param productId  TRX_SELVA.
 * @param channel    the playback channel, 0 to 2. For channels 3 and 4 the mixers are sent 0, and
 *     index 0 is announced.
 * @return ORV_SUCCESS, whatever the mixers answered; ORV_BAD_ARGUMENT for another model or channel
 *     (nothing done).
 *
 * Any thread. Since 1.0.
 */
ORV_EXPORT StatusCode ORV_SetUSBOutputAudioDefault(ProductId productId, int32_t channel);

/**
 * Gives the assignment stored last for a playback channel, by any process.
 *
 * @param productId  TRX_SELVA.
 * @param channel    the playback channel, 0 to 2.
 * @param index      receives the stored index, the channel's own number when none is stored. A
 *     stored number that is no choice is handed out unchanged.
 * @return ORV_SUCCESS; ORV_BAD_ARGUMENT for a null index, another model or channel (index
 *     untouched).
 *
 * Any thread. Since 1.0.
 */
ORV_EXPORT StatusCode ORV_GetCurrentUSBOutputAudioIndex(ProductId productId, int32_t channel,
                                                        int32_t *index);

/**
 * Sends the stored assignment of a playback channel to every connected mixer again. Stores and
 * announces nothing.
 *
 * @param productId  TRX_SELVA.
 * @param channel    the playback channel, 0 to 2.
 * @return ORV_SUCCESS, whatever the mixers answered, and also when the stored number leads past
 *     the assignment table (nothing is sent then); ORV_BAD_ARGUMENT for another model or channel.
 *
 * Any thread. Since 1.0.
 */
ORV_EXPORT StatusCode ORV_SetCurrentUSBOutputAudio(ProductId productId, int32_t channel);

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
 * @name MIDI channel: which of the sixteen MIDI channels the mixer uses
 * @{
 */

/**
 * Tells how many MIDI channels there are.
 *
 * @param productId  TRX_VOLT.
 * @param count      receives the number of channels, 16.
 * @return ORV_SUCCESS; ORV_BAD_ARGUMENT for a null count or another model (count untouched).
 *
 * Any thread. Since 1.0.
 */
ORV_EXPORT StatusCode ORV_GetNumOfMidiChannelIndex(ProductId productId, uint32_t *count);

/**
 * Gives the text of a MIDI channel, "CH 1" to "CH 16".
 *
 * @param productId  TRX_VOLT.
 * @param index      the channel, 0 to 15.
 * @param reserved   ignored.
 * @param text       receives the text; the library's own, for the life of the process.
 * @return ORV_SUCCESS; ORV_BAD_ARGUMENT for a null text, another model or index (text untouched).
 *
 * Any thread. Since 1.0.
 */
ORV_EXPORT StatusCode ORV_GetMidiChannelText(ProductId productId, uint32_t index, uint32_t reserved,
                                             ORVStringRef *text);

/**
 * Sets the MIDI channel: sends it to every connected mixer, stores it and announces it.
 *
 * @param productId  TRX_VOLT.
 * @param index      the channel, 0 to 15.
 * @return ORV_SUCCESS, whatever the mixers answered; ORV_BAD_ARGUMENT for another model or index
 *     (nothing done).
 *
 * Any thread. Since 1.0.
 */
ORV_EXPORT StatusCode ORV_SetMidiChannelIndex(ProductId productId, uint32_t index);

/**
 * Gives the MIDI channel stored last, by any process.
 *
 * @param productId  TRX_VOLT.
 * @param index      receives the stored channel, 0 when none is stored. A stored number that is no
 *     channel is handed out unchanged.
 * @return ORV_SUCCESS; ORV_BAD_ARGUMENT for a null index or another model (index untouched).
 *
 * Any thread. Since 1.0.
 */
ORV_EXPORT StatusCode ORV_GetCurrentMidiChannelIndex(ProductId productId, int32_t *index);

/**
 * Sends the stored MIDI channel (0 when none is stored) to every connected mixer again. Stores and
 * announces nothing.
 *
 * @param productId  TRX_VOLT.
 * @return ORV_SUCCESS, whatever the mixers answered; ORV_BAD_ARGUMENT for another model, and when
 *     the stored channel is not one of the first four, 0 to 3 (nothing sent).
 *
 * Any thread. Since 1.0.
 */
ORV_EXPORT StatusCode ORV_SetCurrentMidiChannelIndex(ProductId productId);

/** @} */

/**
 * @name MIDI key mode: part of the interface, offered by no model
 * @{
 */

/**
 * Would tell how many key modes there are.
 *
 * @param productId  any.
 * @param count      untouched.
 * @return ORV_BAD_ARGUMENT, always.
 *
 * Any thread. Since 1.0.
 */
ORV_EXPORT StatusCode ORV_GetNumOfMidiKeyModeIndex(ProductId productId, uint32_t *count);

/**
 * Would give the text of a key mode.
 *
 * @param productId  any.
 * @param index      ignored.
 * @param reserved   ignored.
 * @param text       untouched.
 * @return ORV_BAD_ARGUMENT, always.
 *
 * Any thread. Since 1.0.
 */
ORV_EXPORT StatusCode ORV_GetMidiKeyModeText(ProductId productId, uint32_t index, uint32_t reserved,
                                             ORVStringRef *text);

/**
 * Would set the key mode.
 *
 * @param productId  any.
 * @param index      ignored.
 * @return ORV_BAD_ARGUMENT, always; nothing sent, stored or announced.
 *
 * Any thread. Since 1.0.
 */
ORV_EXPORT StatusCode ORV_SetMidiKeyModeIndex(ProductId productId, uint32_t index);

/**
 * Would give the stored key mode.
 *
 * @param productId  any.
 * @param index      untouched.
 * @return ORV_BAD_ARGUMENT, always.
 *
 * Any thread. Since 1.0.
 */
ORV_EXPORT StatusCode ORV_GetCurrentMidiKeyModeIndex(ProductId productId, int32_t *index);

/**
 * Would send the stored key mode again.
 *
 * @param productId  any.
 * @return ORV_BAD_ARGUMENT, always; nothing sent.
 *
 * Any thread. Since 1.0.
 */
ORV_EXPORT StatusCode ORV_SetCurrentMidiKeyModeIndex(ProductId productId);

/** @} */

/**
 * @name Version texts of what is installed
 *
 * Each is read from an installed file at each call. On Linux the files lie below the system root:
 * the folder named by the environment variable TRX_SYSTEM_ROOT (ignored in a set-user-id process),
 * else the one of the installation. A version that is no text, such as a number, counts as missing,
 * since a host could do nothing with a number in a text's place.
 * @{
 */

/**
 * Gives the version of the installed package.
 *
 * @param productId  TRX_SELVA.
 * @param text       receives the version; the library's own, for the life of the process.
 * @return ORV_SUCCESS; ORV_BAD_ARGUMENT for a null text or another model, and when the package is
 *     not installed (text untouched).
 *
 * Any thread. Since 1.0.
 */
ORV_EXPORT StatusCode ORV_GetPkgVersionText(ProductId productId, ORVStringRef *text);

/**
 * Gives the version of a model's installed audio driver. Linux needs none: the answer there is
 * ORV_BAD_ARGUMENT.
 *
 * @param productId  TRX_ARDEN, TRX_VOLT, TRX_HALDEN, TRX_LUMEN, TRX_MORROW or TRX_SELVA.
 * @param text       receives the version; the library's own, for the life of the process.
 * @return ORV_SUCCESS; ORV_BAD_ARGUMENT for a null text or another model, and when no driver is
 *     installed (text untouched).
 *
 * Any thread. Since 1.0.
 */
ORV_EXPORT StatusCode ORV_GetDriverVersionText(ProductId productId, ORVStringRef *text);

/**
 * Gives the version of a model's installed setup application.
 *
 * @param productId  TRX_ARDEN, TRX_VOLT, TRX_HALDEN, TRX_LUMEN, TRX_MORROW or TRX_SELVA.
 * @param text       receives the version; the library's own, for the life of the process.
 * @return ORV_SUCCESS; ORV_BAD_ARGUMENT for a null text or another model, and when the application
 *     is not installed (text untouched).
 *
 * Any thread. Since 1.0.
 */
ORV_EXPORT StatusCode ORV_GetUtilityVersionText(ProductId productId, ORVStringRef *text);

/**
 * Gives the version of the installed library, which need not be the copy that answers.
 *
 * @param productId  TRX_SELVA.
 * @param text       receives the version; the library's own, for the life of the process.
 * @return ORV_SUCCESS; ORV_BAD_ARGUMENT for a null text or another model, and when the library is
 *     not installed (text untouched).
 *
 * Any thread. Since 1.0.
 */
ORV_EXPORT StatusCode ORV_GetLibraryVersionText(ProductId productId, ORVStringRef *text);

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
