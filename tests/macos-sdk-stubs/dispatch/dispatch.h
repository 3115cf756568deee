// Mirrors the macOS SDK's libdispatch declarations used by src/platform/macos, for a syntax check
// only (scripts/check-macos-compile). Declarations only; nothing is linked. In the SDK the queue
// is an Objective-C object and `dispatch_get_main_queue` an inline function returning the main
// queue; called the same way.
#pragma once

#include <Foundation/Foundation.h>

@protocol OS_dispatch_queue
@end
@protocol OS_dispatch_queue_main <OS_dispatch_queue>
@end
typedef NSObject<OS_dispatch_queue>* dispatch_queue_t;
typedef NSObject<OS_dispatch_queue_main>* dispatch_queue_main_t;
typedef void (^dispatch_block_t)(void);

extern "C" {
dispatch_queue_main_t dispatch_get_main_queue(void);
void dispatch_async(dispatch_queue_t queue, dispatch_block_t block);
}
