// Mirrors the macOS SDK's <sys/sysctl.h> declarations used by src/platform/macos, for a syntax
// check only (scripts/check-macos-compile). Declarations only; nothing is linked.
#pragma once

#include <stddef.h>
#include <sys/types.h>

#include <mach/mach.h>

#ifdef __cplusplus
extern "C" {
#endif

// The record behind "vm.swapusage".
struct xsw_usage {
  u_int64_t xsu_total;
  u_int64_t xsu_avail;
  u_int64_t xsu_used;
  u_int32_t xsu_pagesize;
  boolean_t xsu_encrypted;
};

int sysctlbyname(const char* name, void* oldp, size_t* oldlenp, void* newp, size_t newlen);

#ifdef __cplusplus
}
#endif
