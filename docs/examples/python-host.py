"""Sets the boost level on every connected mixer, waits for the announcement of that change, and prints it."""

import ctypes
import select

TRX_SELVA = 11

setup = ctypes.CDLL("libTRX-SELVASetup.so.1")
IndexCallback = ctypes.CFUNCTYPE(None, ctypes.c_int32, ctypes.c_void_p)
announced = []


@IndexCallback  # the object must live for as long as the callback is registered
def boost_changed(index, _context):
    text = ctypes.c_char_p()
    setup.ORV_GetBoostLevelText(TRX_SELVA, index, 0, ctypes.byref(text))
    print("boost level is now", text.value.decode())
    announced.append(index)


descriptor = ctypes.c_int32(-1)
setup.ORV_RegisterBoostLevelChangedCallback(TRX_SELVA, boost_changed, None)
setup.ORV_GetNotificationDescriptor(ctypes.byref(descriptor))
setup.ORV_SetBoostLevelIndex(TRX_SELVA, 1)
while not announced:
    select.select([descriptor.value], [], [])
    setup.ORV_DispatchNotifications()
