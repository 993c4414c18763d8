// The loop that EventLoop.h shows, put into a function.
#include <poll.h>

#include <TRX-SELVASetup/EventLoop.h>

void loop_of_a_host(void);

void loop_of_a_host(void) {
#include "event-loop-example.c"
}
