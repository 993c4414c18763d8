/*
 * TRX-SELVASetup for programs that tell a person what happened: what became of each request to each
 * mixer, and where the settings are kept.
 *
 * The functions of TRX-SELVASetup.h answer ORV_SUCCESS whatever the mixers made of it. An observer
 * learns the rest. docs/host-writers.md shows a program that uses both.
 */
#ifndef TRX_SELVASETUP_DIAGNOSTICS_H
#define TRX_SELVASETUP_DIAGNOSTICS_H

#include <TRX-SELVASetup/TRX-SELVASetup.h>

#ifdef __cplusplus
extern "C" {
#endif

/** What was done with a mixer; the values of ORVRequestReport's kind. Later versions may have more.
 * Since 1.0. */
enum {
  /** The mixer was to be opened, and could not be: no request was sent to it. Opening is reported
     only when it fails. */
  ORV_REQUEST_OPEN = 0,
  /** Something was read from the mixer. */
  ORV_REQUEST_READ = 1,
  /** A setting was sent to the mixer. */
  ORV_REQUEST_WRITE = 2
};

/** How it ended; the values of ORVRequestReport's outcome. Later versions may have more: take a
 * value that you do not know for ORV_OUTCOME_FAILED. Since 1.0. */
enum {
  /** The mixer took the setting, or answered in full. */
  ORV_OUTCOME_DONE = 0,
  /** The mixer answered with fewer bytes than it was asked for. Reads only. A mixer with fewer
     channels than are asked for answers the read of its input selectors so. */
  ORV_OUTCOME_SHORT_REPLY = 1,
  /** The mixer refused the request (a stall): it does not know it, or does not take the value. */
  ORV_OUTCOME_REFUSED = 2,
  /** The mixer did not answer: not within five seconds, or the bus says that it does not respond.
   */
  ORV_OUTCOME_NO_ANSWER = 3,
  /** The mixer was unplugged since it was found. */
  ORV_OUTCOME_GONE = 4,
  /** This user may not open the mixer. */
  ORV_OUTCOME_NO_PERMISSION = 5,
  /** Another program keeps the mixer for itself. */
  ORV_OUTCOME_BUSY = 6,
  /** Anything else. */
  ORV_OUTCOME_FAILED = 7
};

/**
 * What became of one request to one mixer, or that a mixer could not be opened. 28 bytes, without
 * padding; a later version may add members at the end. Since 1.0.
 */
typedef struct ORVRequestReport {
  /** Bytes of this struct, as the library knows it: a member is there if it ends within them. */
  uint32_t size;
  /** Linux: number of the mixer's bus, from 1, as lsusb has it. macOS: 0. */
  uint32_t bus;
  /** Linux: number of the mixer on its bus, from 1, as lsusb has it. macOS: 0. */
  uint32_t address;
  /** macOS: the location id of the mixer, as System Information has it; 0 for one that could not be
     opened and did not tell it. Linux: 0. */
  uint32_t location;
  /** ORV_REQUEST_OPEN, ORV_REQUEST_READ or ORV_REQUEST_WRITE. */
  int32_t kind;
  /** One of the ORV_OUTCOME_ values. */
  int32_t outcome;
  /** wIndex of the request: what was read or set, from 0x8001 on; 0 when the mixer could not be
     opened. */
  uint16_t index;
  /** wValue of the request: what was sent; 0 for reads and when the mixer could not be opened. */
  uint16_t value;
} ORVRequestReport;

/**
 * Told what became of a request.
 *
 * @param report   what became of it. Belongs to the library, and is gone when the observer returns.
 * @param context  the pointer given to ORV_ObserveRequests, unchanged.
 *
 * Runs on the thread that makes the request, inside the exported function that makes it, after the
 * request has ended and before the next one begins. It may call any function of the library, also
 * ORV_ObserveRequests, which takes effect at once; requests that it causes itself are not reported.
 * No exception may leave it, and it has to return. Since 1.0.
 */
typedef void (*ORVRequestObserver)(const ORVRequestReport *report, void *context);

/**
 * Lets an observer know, from now on, what becomes of every request that the calling thread makes:
 * it is called once for each request to each mixer, and once for each mixer that could not be
 * opened, in the order in which they happen. Nothing else changes: no result, no request, no order.
 *
 * Each thread has an observer of its own, or none, as at its start. An observer ends with its
 * thread. A null observer ends it earlier; the library then keeps nothing of it.
 *
 * @param observer  called from now on, in place of the one before; null for none.
 * @param context   handed to the observer. Stays the caller's, and has to be valid for as long as
 *     the observer is in place.
 * @return ORV_SUCCESS, always.
 *
 * Any thread. Since 1.0.
 */
ORV_EXPORT StatusCode ORV_ObserveRequests(ORVRequestObserver observer, void *context);

/**
 * Tells where the settings of a model are kept at this moment. The file, and the folders above it,
 * need not be there yet: they are made when something is stored. On Linux the path follows
 * XDG_CONFIG_HOME and HOME, as the next setting that is stored would.
 *
 * @param productId  TRX_ARDEN, TRX_VOLT, TRX_HALDEN, TRX_LUMEN, TRX_MORROW or TRX_SELVA.
 * @param path       receives the absolute path. On Linux these are the bytes of the path, in
 *     whatever encoding its folders have. It belongs to the library, as all texts do.
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
