/*
 * TRX-SELVASetup: read and change the settings of the USB DJ mixers of the TRX-SELVA family.
 *
 * README.md shows a complete host. docs/host-writers.md has the event loop, threads, examples for
 * GLib, Qt and Python, and a table of what each model offers.
 *
 * Rules for every function:
 *
 * - A call runs on the caller's thread and returns when everything is done. The library starts no
 *   thread, takes no lock, keeps no mixer open between calls and caches nothing. On Linux it keeps
 *   connections to the session bus: one for each thread that has set something, one that receives.
 * - A call waits up to 5 seconds for each request that a mixer does not answer. On Linux it also
 *   waits, once and up to 5 seconds, for a session bus that does not answer. A signal does not end
 *   a request: after the first one, the signals of the thread wait until the request has ended.
 * - The result is a StatusCode. Arguments are checked first, result pointers before all others.
 *   When a check fails, the call returns ORV_BAD_ARGUMENT and has done nothing, unless its
 *   description says otherwise.
 * - A mixer that cannot be opened or that refuses a request is skipped. A settings file that cannot
 *   be written is left as it is. Neither changes a result; Diagnostics.h reports the requests.
 * - A call addresses all connected mixers, whichever ProductId it names. The ProductId selects
 *   texts, bounds, the settings file and the name of the announcement.
 * - Functions may run on several threads at once. The Register and Unregister functions belong to
 *   the receiving thread: on Linux the one that calls ORV_DispatchNotifications (EventLoop.h), on
 *   macOS the main thread with its run loop.
 * - Different settings of one model may be stored at the same time, on several threads or in
 *   several processes: on Linux all are kept. On macOS the last writer of the file wins. On Linux
 *   there is no lock: each writer announces its new file by a name beside the settings file, and
 *   starts again when another was faster (docs/protocol.md). Two things can be lost: what an editor
 *   saves in the last moment, where files cannot be exchanged in one step, and a setting whose
 *   writing fails for a passing reason, which is not stored.
 * - Texts that the library gives out belong to it. They stay valid and unchanged for the life of
 *   the process; the host never frees them.
 */
#ifndef TRX_SELVASETUP_TRX_SELVASETUP_H
#define TRX_SELVASETUP_TRX_SELVASETUP_H

#include <stdint.h>

/** The version of this header: major * 10000 + minor * 100 + patch. Since 1.0. */
#define TRX_SELVASETUP_VERSION 10000

#if defined(__APPLE__)
#include <CoreFoundation/CFString.h>
#endif

/** Marks the functions that the library exports. Since 1.0. */
#if defined(__GNUC__)
#define ORV_EXPORT __attribute__((visibility("default")))
#else
#define ORV_EXPORT
#endif

#ifdef __cplusplus
extern "C" {
#endif

/** The number of a mixer model: one of the ORV_PRODUCT_ values. Since 1.0. */
typedef uint32_t ProductId;

/** The models. ORV_GetProductId recognises TRX_BRISK, TRC_FENNO and TRX_CIRRUS; every other
 * function refuses them. Since 1.0. */
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

/** The result of a function: one of the ORV_ status values below. Since 1.0. */
typedef int32_t StatusCode;

/** The status values. Since 1.0. */
enum {
  /** Done; also when no mixer is connected and there was nothing to do. */
  ORV_SUCCESS = 100,
  /** Done, but the position of the mixer's input selector keeps it from taking effect, or there is
     no mixer to ask: show the warning text. */
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
 * A text: UTF-8, ended by a zero byte; on macOS the platform's string object, a CFStringRef or
 * NSString. Texts from the library belong to it and stay valid and unchanged for the life of the
 * process. The host does not free, release or change them. Since 1.0.
 *
 * A library built over another implementation of Foundation gives out string objects as on macOS.
 * Its hosts are compiled with ORV_TEXT_IS_CFSTRING defined.
 */
#if defined(__APPLE__)
typedef CFStringRef ORVStringRef;
#elif defined(ORV_TEXT_IS_CFSTRING)
typedef const struct __CFString *ORVStringRef;
#else
typedef const char *ORVStringRef;
#endif

/**
 * Called after a change of a setting that has channels.
 *
 * @param channel  the channel, 0-based.
 * @param index    the index now chosen for that channel.
 * @param context  the pointer given at registration.
 *
 * Runs on the receiving thread, never inside the call that made the change. It must not throw.
 * Since 1.0.
 */
typedef void (*ChannelIndexCallback)(int32_t channel, int32_t index, void *context);

/**
 * Called after a change of a setting without channels.
 *
 * @param index    the index now chosen.
 * @param context  the pointer given at registration.
 *
 * Runs on the receiving thread, never inside the call that made the change. It must not throw.
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
 * Other words around the name are ignored, and so is case: "my trx-selva mixer" is
 * ORV_PRODUCT_TRX_SELVA.
 *
 * @param name       the text to search; stays the caller's.
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
 * Gives the certify level that the mixers report: a number whose meaning is not known. With several
 * mixers, that of the last one that could be opened.
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
 * that could be opened. Known are 6 and 7 on TRX_SELVA, the positions for the mixer's USB ports.
 *
 * @param productId  TRX_ARDEN, TRX_VOLT, TRX_HALDEN, TRX_LUMEN, TRX_MORROW or TRX_SELVA.
 * @param channel    the mixer channel: 0 to 3 for TRX_ARDEN, 0 to 2 for TRX_VOLT, 0 to 4 for the
 *     others. Mixers other than TRX_ARDEN do not report the last one (2 or 4): it reads as 0.
 * @param selector   receives the position, 0 to 7; untouched when no mixer could be opened.
 * @return ORV_SUCCESS; ORV_BAD_ARGUMENT for a null selector, another model or channel (selector
 *     untouched), and when a mixer reports a position of 8 or more (selector holds it; the
 *     remaining mixers are not asked).
 *
 * Any thread. Since 1.0.
 */
ORV_EXPORT StatusCode ORV_GetMixerInputSelectorStatus(ProductId productId, uint32_t channel,
                                                      uint32_t *selector);

/**
 * Tells whether Serato is active on the mixers. With several mixers, on the last one that could be
 * opened.
 *
 * @param productId  TRX_ARDEN, TRX_HALDEN, TRX_LUMEN, TRX_MORROW or TRX_SELVA. TRX_VOLT is refused
 *     when a mixer can be opened, and accepted otherwise.
 * @param active     receives 1 or 0; untouched when no mixer could be opened.
 * @return ORV_SUCCESS; ORV_BAD_ARGUMENT for a null pointer or another model, and when a mixer does
 *     not answer or reports 2 or more (that mixer does not change active; the remaining ones are
 *     not asked).
 *
 * Any thread. Since 1.0.
 */
ORV_EXPORT StatusCode ORV_GetMixerSeratoActiveStatus(ProductId productId, uint32_t *active);

/** @} */

/**
 * @name USB input audio: which mixer signal the computer records on each recording channel
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
 *     for TRX_VOLT; below 9 (channels 0 to 3) or 10 (channel 4) for the others. An index past a
 *     channel's own choices gives the text that comes next in the library's tables.
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
 * Chooses the signal of a recording channel: sends the choice to every connected mixer, stores and
 * announces it, then reads the input selectors of the mixers.
 *
 * @param productId  TRX_SELVA.
 * @param channel    the recording channel, 0 to 2.
 * @param index      the choice: below 8 for channels 0 and 1, below 7 for channel 2.
 * @return ORV_SUCCESS. ORV_SUCCESS_WITH_WARNING when all was done, but a control tone (index 0 or
 *     1) was chosen and a mixer's input selector of that channel is in neither position 6 nor 7;
 *     without a mixer, for index 0 to 2. ORV_GetWarningTextForSetUSBAudioInput has the text to
 *     show. ORV_BAD_ARGUMENT for another model, channel or index (nothing done).
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
 * @param group      bits 12 to 15 of the value, minus 1; not checked. What a mixer does with these
 *     bits is not known. -1 leaves them 0, as in all values of ORV_SetUSBInputAudio.
 * @param source     the mixer's code for the signal: below 4 for channels 0 and 1 of TRX_VOLT,
 *     else below 16.
 * @return ORV_SUCCESS. ORV_SUCCESS_WITH_WARNING when the value was sent, but a mixer's input
 *     selector of that channel is not in position 4 (source below 4) or, for channels 0 and 1 of
 *     TRX_VOLT, 2; without a mixer, for source below 3 (TRX_VOLT: always). ORV_BAD_ARGUMENT for
 *     another model, channel or source (nothing sent).
 *
 * Any thread. Since 1.0.
 */
ORV_EXPORT StatusCode ORV_SetUSBInputAudioDirect(ProductId productId, int32_t channel,
                                                 int32_t group, uint32_t source);

/**
 * Gives the stored choice of a recording channel, whichever process stored it.
 *
 * @param productId  TRX_ARDEN, TRX_VOLT, TRX_HALDEN, TRX_LUMEN, TRX_MORROW or TRX_SELVA.
 * @param channel    the recording channel: 0 to 3 for TRX_ARDEN, 0 to 2 for TRX_VOLT, 0 to 5 for
 *     the others.
 * @param index      receives the stored index. When none is stored: 3 for TRX_ARDEN; 1 (channels 0
 *     and 1) or 5 (channel 2) for TRX_VOLT; 0 for the others. Always 0 for channel 5. A stored
 *     number that is no choice is given unchanged.
 * @return ORV_SUCCESS; ORV_BAD_ARGUMENT for a null index, another model or channel (index
 *     untouched).
 *
 * Any thread. Since 1.0.
 */
ORV_EXPORT StatusCode ORV_GetCurrentUSBInputAudioIndex(ProductId productId, int32_t channel,
                                                       int32_t *index);

/**
 * Sends the stored choice of a recording channel to every connected mixer again. Stores and
 * announces nothing and does not read the input selectors.
 *
 * @param productId  TRX_SELVA.
 * @param channel    the recording channel, 0 to 2.
 * @return ORV_SUCCESS, whatever the mixers answered; ORV_BAD_ARGUMENT for another model or
 *     channel, and when the stored number is past the end of the routing table (nothing sent).
 *
 * Any thread. Since 1.0.
 */
ORV_EXPORT StatusCode ORV_SetCurrentUSBInputAudio(ProductId productId, int32_t channel);

/**
 * Gives the text to show when an input routing setter returned ORV_SUCCESS_WITH_WARNING: what the
 * matter is and what to do on the mixer.
 *
 * @param productId  TRX_ARDEN, TRX_VOLT, TRX_HALDEN, TRX_LUMEN, TRX_MORROW or TRX_SELVA.
 * @param channel    the recording channel: 0 to 3; 0 to 2 for TRX_VOLT; 0 to 4 for TRX_HALDEN.
 *     Channel 4 of other models has no text, although ORV_SetUSBInputAudioDirect accepts it.
 * @param status     the result of the setter; only ORV_SUCCESS_WITH_WARNING has a text.
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
 * @name USB output audio: which mixer channel each playback channel of the computer is assigned to
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
 * Assigns a playback channel: sends the assignment to every connected mixer, stores and announces
 * it, then reads the input selectors of the mixers.
 *
 * @param productId  TRX_SELVA.
 * @param channel    the playback channel, 0 to 2. Channels 3 and 4 are accepted, stored and
 *     announced too; for them the mixers get 0.
 * @param index      the choice, 0 to 2.
 * @return ORV_SUCCESS, whatever the mixers answered; ORV_BAD_ARGUMENT for another model, channel
 *     or index (nothing done).
 *
 * Any thread. Since 1.0.
 */
ORV_EXPORT StatusCode ORV_SetUSBOutputAudio(ProductId productId, int32_t channel, uint32_t index);

/**
 * Assigns a playback channel to its default until further notice: channel 0 to "CH1", 1 to "CH2", 2
 * to "AUX". Sends and announces it and reads the input selectors of the mixers, but stores nothing:
 * the user's choice stays in the file.
 *
 * @param productId  TRX_SELVA.
 * @param channel    the playback channel, 0 to 2. For channels 3 and 4 the mixers get 0, and index
 *     0 is announced.
 * @return ORV_SUCCESS, whatever the mixers answered; ORV_BAD_ARGUMENT for another model or channel
 *     (nothing done).
 *
 * Any thread. Since 1.0.
 */
ORV_EXPORT StatusCode ORV_SetUSBOutputAudioDefault(ProductId productId, int32_t channel);

/**
 * Gives the stored assignment of a playback channel, whichever process stored it.
 *
 * @param productId  TRX_SELVA.
 * @param channel    the playback channel, 0 to 2.
 * @param index      receives the stored index, the channel's own number when none is stored. A
 *     stored number that is no choice is given unchanged.
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
 * @return ORV_SUCCESS, whatever the mixers answered, and also when the stored number is past the
 *     end of the assignment table (nothing is sent then); ORV_BAD_ARGUMENT for another model or
 *     channel.
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
 * and announces it to every process of the user. It does so even if the level is the one already
 * set, and stores and announces even if no mixer is connected.
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
 * Gives the stored boost level, whichever process stored it.
 *
 * @param productId  as for ORV_GetNumOfBoostLevelIndex.
 * @param index      receives the stored level, 3 when none is stored. A stored number that is no
 *     level (written by another program) is given unchanged.
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
 * Gives the stored MIDI channel, whichever process stored it.
 *
 * @param productId  TRX_VOLT.
 * @param index      receives the stored channel, 0 when none is stored. A stored number that is no
 *     channel is given unchanged.
 * @return ORV_SUCCESS; ORV_BAD_ARGUMENT for a null index or another model (index untouched).
 *
 * Any thread. Since 1.0.
 */
ORV_EXPORT StatusCode ORV_GetCurrentMidiChannelIndex(ProductId productId, int32_t *index);

/**
 * Sends the stored MIDI channel (0 when none is stored) to every connected mixer again. Stores and
 * announces nothing. Only the first four channels can be sent again.
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
 * @name MIDI key mode: no model has one, so all of these functions return ORV_BAD_ARGUMENT
 * @{
 */

/**
 * No model has key modes to count.
 *
 * @param productId  any.
 * @param count      untouched.
 * @return ORV_BAD_ARGUMENT, always.
 *
 * Any thread. Since 1.0.
 */
ORV_EXPORT StatusCode ORV_GetNumOfMidiKeyModeIndex(ProductId productId, uint32_t *count);

/**
 * No model has a key mode with a text.
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
 * No model has a key mode to set.
 *
 * @param productId  any.
 * @param index      ignored.
 * @return ORV_BAD_ARGUMENT, always; nothing sent, stored or announced.
 *
 * Any thread. Since 1.0.
 */
ORV_EXPORT StatusCode ORV_SetMidiKeyModeIndex(ProductId productId, uint32_t index);

/**
 * No model has a stored key mode.
 *
 * @param productId  any.
 * @param index      untouched.
 * @return ORV_BAD_ARGUMENT, always.
 *
 * Any thread. Since 1.0.
 */
ORV_EXPORT StatusCode ORV_GetCurrentMidiKeyModeIndex(ProductId productId, int32_t *index);

/**
 * No model has a key mode to send again.
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
 * Each call reads an installed file. On Linux the files are below the system root: the folder named
 * by the environment variable TRX_SYSTEM_ROOT (ignored in a set-user-id process), else that of the
 * installation. A version that is not a text, such as a number, counts as missing.
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
 * Gives the version of a model's installed audio driver. Linux needs none and returns
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
 * Gives the version of the installed library, which may differ from the copy that is running.
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
 * Every setter announces its change to every process of the user, its own included. The library
 * then calls the callback registered for that kind of setting and that model. There is one callback
 * for each kind and model: the one registered last.
 *
 * Register once for each kind and model in a process. Each successful Register call adds one
 * delivery: after n of them the callback runs n times for each change. Unregister removes the
 * callback, not the deliveries: after it, one more Register makes the callback run n + 1 times.
 *
 * All of these functions belong to the receiving thread.
 * @{
 */

/**
 * Registers the callback for changes of the USB input audio routing.
 *
 * @param productId  TRX_ARDEN, TRX_VOLT, TRX_HALDEN, TRX_LUMEN, TRX_MORROW or TRX_SELVA.
 * @param callback   called with channel, index and context; null is accepted and calls nothing.
 * @param context    passed to the callback; stays the host's.
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
 * @param context    passed to the callback; stays the host's.
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
 * @param context    passed to the callback; stays the host's.
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
 * @param context    passed to the callback; stays the host's.
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
 * No model has a key mode whose changes could be announced.
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
 * No model has a key mode whose changes could be announced.
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
