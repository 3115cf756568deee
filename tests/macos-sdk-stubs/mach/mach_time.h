// Mirrors the macOS SDK's <mach/mach_time.h> declarations used by src/platform/macos, for a
// syntax check only (scripts/check-macos-compile). Declarations only; nothing is linked.
#pragma once

#include <stdint.h>

#include <mach/mach.h>

#ifdef __cplusplus
extern "C" {
#endif

struct mach_timebase_info {
  uint32_t numer;
  uint32_t denom;
};
typedef struct mach_timebase_info* mach_timebase_info_t;
typedef struct mach_timebase_info mach_timebase_info_data_t;

kern_return_t mach_timebase_info(mach_timebase_info_t info);
uint64_t mach_absolute_time(void);

#ifdef __cplusplus
}
#endif
