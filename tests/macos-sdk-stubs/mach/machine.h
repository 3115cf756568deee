// Mirrors the macOS SDK's <mach/machine.h> declarations used by src/platform/macos, for a syntax
// check only (scripts/check-macos-compile). Declarations only; nothing is linked.
#pragma once

#define CPU_STATE_MAX 4
#define CPU_STATE_USER 0
#define CPU_STATE_SYSTEM 1
#define CPU_STATE_IDLE 2
#define CPU_STATE_NICE 3
