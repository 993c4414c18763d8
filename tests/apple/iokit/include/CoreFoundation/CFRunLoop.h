#pragma once

typedef struct __CFRunLoopSource *CFRunLoopSourceRef;
