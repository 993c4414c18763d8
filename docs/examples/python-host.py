"""Sets the boost level on every connected mixer, waits for the announcement of that change, and prints it."""

import ctypes
import select
import sys
import time

TRX_SELVA = 11

setup = ctypes.CDLL("libTRX-SELVASetup.so.1")
IndexCallback = ctypes.CFUNCTYPE(None, ctypes.c_int32, ctypes.c_void_p)
told = []


@IndexCallback  # the object must live for as long as the callback is registered
def boost_changed(index, _context):
    text = ctypes.c_char_p()
    setup.ORV_GetBoostLevelText(TRX_SELVA, index, 0, ctypes.byref(text))
    print("boost level is now", text.value.decode())
    told.append(index)


setup.ORV_RegisterBoostLevelChangedCallback(TRX_SELVA, boost_changed, None)
setup.ORV_SetBoostLevelIndex(TRX_SELVA, 1)
descriptor = ctypes.c_int32(-1)
setup.ORV_GetNotificationDescriptor(ctypes.byref(descriptor))
deadline = time.monotonic() + 5
while not told and (left := deadline - time.monotonic()) > 0:
    select.select([descriptor.value], [], [], left)
    setup.ORV_DispatchNotifications()
sys.exit(0 if told else 1)
