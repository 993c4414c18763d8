/*
 * TRX-SELVASetup for programs that report to a person: the outcome of each request to each mixer,
 * and the path of the settings file.
 *
 * The functions of TRX-SELVASetup.h return ORV_SUCCESS whatever the mixers answer. An observer gets
 * the outcome of each request; docs/examples/report-host.c shows one.
 */
#ifndef TRX_SELVASETUP_DIAGNOSTICS_H
#define TRX_SELVASETUP_DIAGNOSTICS_H

#include <TRX-SELVASetup/TRX-SELVASetup.h>

#ifdef __cplusplus
extern "C" {
#endif

/** The kinds of requests: the values of ORVRequestReport's kind. Later versions may have more.
 * Since 1.0. */
enum {
  /** The mixer could not be opened, so no request was sent to it. Opening is reported only when it
     fails. */
  ORV_REQUEST_OPEN = 0,
  /** Something was read from the mixer. */
  ORV_REQUEST_READ = 1,
  /** A setting was sent to the mixer. */
  ORV_REQUEST_WRITE = 2
};

/** How a request ended: the values of ORVRequestReport's outcome. Later versions may have more:
 * treat an unknown value as ORV_OUTCOME_FAILED. Since 1.0. */
enum {
  /** The mixer took the setting, or answered in full. */
  ORV_OUTCOME_DONE = 0,
  /** The mixer answered with fewer bytes than requested. Reads only. A mixer with few channels may
     answer the read of its input selectors in this way. */
  ORV_OUTCOME_SHORT_REPLY = 1,
  /** The mixer refused the request (a stall): it does not support it or does not take the value. */
  ORV_OUTCOME_REFUSED = 2,
  /** The mixer did not answer within five seconds, or the bus reports that it does not respond. */
  ORV_OUTCOME_NO_ANSWER = 3,
  /** The mixer was unplugged after it was found. */
  ORV_OUTCOME_GONE = 4,
  /** This user may not open the mixer. */
  ORV_OUTCOME_NO_PERMISSION = 5,
  /** Another program has exclusive access to the mixer. */
  ORV_OUTCOME_BUSY = 6,
  /** Anything else. */
  ORV_OUTCOME_FAILED = 7
};

/**
 * The outcome of one request to one mixer, or of opening a mixer that could not be opened. 28 bytes
 * without padding; later versions may add members at the end. Since 1.0.
 */
typedef struct ORVRequestReport {
  /** The size of this struct in the library, in bytes: a member exists if it ends within it. */
  uint32_t size;
  /** Linux: the number of the mixer's bus, from 1, as in lsusb. macOS: 0. */
  uint32_t bus;
  /** Linux: the number of the mixer on its bus, from 1, as in lsusb. macOS: 0. */
  uint32_t address;
  /** macOS: the location id of the mixer, as in System Information; 0 if the mixer could not be
     opened and did not report it. Linux: 0. */
  uint32_t location;
  /** ORV_REQUEST_OPEN, ORV_REQUEST_READ or ORV_REQUEST_WRITE. */
  int32_t kind;
  /** One of the ORV_OUTCOME_ values. */
  int32_t outcome;
  /** wIndex of the request: what was read or set, 0x8001 and up; 0 when the mixer could not be
     opened. */
  uint16_t index;
  /** wValue of the request: the value sent; 0 for reads and when the mixer could not be opened. */
  uint16_t value;
} ORVRequestReport;

/**
 * Called when a request has ended.
 *
 * @param report   the outcome. Belongs to the library and is valid until the observer returns.
 * @param context  the pointer given to ORV_ObserveRequests.
 *
 * Runs on the thread that makes the request, inside the exported function, before the next request
 * begins. It may call any function of the library, including ORV_ObserveRequests, which takes
 * effect at once. Requests that it causes itself are not reported. It must not throw, and it must
 * return. Since 1.0.
 */
typedef void (*ORVRequestObserver)(const ORVRequestReport *report, void *context);

/**
 * Sets the observer of the calling thread. From now on it is called once for each request to each
 * mixer, and once for each mixer that could not be opened, in the order in which they happen. No
 * result, no request and no order changes.
 *
 * Each thread has its own observer, and none at its start. The observer ends with its thread, or
 * earlier when it is replaced or set to null.
 *
 * @param observer  called from now on, instead of the previous one; null for none.
 * @param context   passed to the observer; stays the caller's. It must be valid as long as the
 *     observer is set.
 * @return ORV_SUCCESS, always.
 *
 * Any thread. Since 1.0.
 */
ORV_EXPORT StatusCode ORV_ObserveRequests(ORVRequestObserver observer, void *context);

/**
 * Gives the present path of a model's settings file. The file and its folders may not exist yet:
 * they are made when something is stored. On Linux the path depends on XDG_CONFIG_HOME and HOME,
 * which are read at each call.
 *
 * @param productId  TRX_ARDEN, TRX_VOLT, TRX_HALDEN, TRX_LUMEN, TRX_MORROW or TRX_SELVA.
 * @param path       receives the absolute path; the library's own, for the life of the process. On
 *     Linux, its bytes are those of the path, in whatever encoding the folders' names have.
 * @return ORV_SUCCESS; ORV_BAD_ARGUMENT for a null path or another model, and when the user has no
 *     folder for settings (path untouched).
 *
 * Any thread. Since 1.0.
 */
ORV_EXPORT StatusCode ORV_GetSettingsFilePath(ProductId productId, ORVStringRef *path);

#ifdef __cplusplus
}
#endif

#endif /* TRX_SELVASETUP_DIAGNOSTICS_H */
