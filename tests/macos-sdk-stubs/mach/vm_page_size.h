// Mirrors the macOS SDK's <mach/vm_page_size.h> declarations used by src/platform/macos, for a
// syntax check only (scripts/check-macos-compile). Declarations only; nothing is linked.
#pragma once

#include <mach/mach.h>

#ifdef __cplusplus
extern "C" {
#endif

extern vm_size_t vm_kernel_page_size;

#ifdef __cplusplus
}
#endif
