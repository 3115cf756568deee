// Mirrors the macOS SDK's Mach declarations used by src/platform/macos (<mach/mach.h> and the
// headers it brings: mach_types, host_info, vm_statistics, mach_host, mach_init, mach_port), for a
// syntax check only (scripts/check-macos-compile). Declarations only; nothing is linked. The page
// size has a header of its own, included explicitly.
#pragma once

#include <stdint.h>

#include <mach/machine.h>  // host_info.h needs CPU_STATE_MAX

#ifdef __cplusplus
extern "C" {
#endif

typedef unsigned int natural_t;
typedef int integer_t;
typedef uintptr_t vm_size_t;
typedef int boolean_t;

typedef int kern_return_t;
#define KERN_SUCCESS 0
#define KERN_FAILURE 5

typedef natural_t mach_port_name_t;
typedef natural_t mach_port_t;
typedef mach_port_t ipc_space_t;
typedef mach_port_t host_t;
typedef natural_t mach_msg_type_number_t;

// <mach/mach_init.h>, <mach/mach_port.h>
extern mach_port_t mach_task_self_;
#define mach_task_self() mach_task_self_
mach_port_t mach_host_self(void);
kern_return_t mach_port_deallocate(ipc_space_t task, mach_port_name_t name);

// <mach/host_info.h>
typedef integer_t host_flavor_t;
typedef integer_t* host_info_t;
typedef integer_t* host_info64_t;

#define HOST_CPU_LOAD_INFO 3
struct host_cpu_load_info {
  natural_t cpu_ticks[CPU_STATE_MAX];
};
typedef struct host_cpu_load_info host_cpu_load_info_data_t;
#define HOST_CPU_LOAD_INFO_COUNT \
  ((mach_msg_type_number_t)(sizeof(host_cpu_load_info_data_t) / sizeof(integer_t)))

// <mach/vm_statistics.h>
struct __attribute__((aligned(8))) vm_statistics64 {
  natural_t free_count;
  natural_t active_count;
  natural_t inactive_count;
  natural_t wire_count;
  uint64_t zero_fill_count;
  uint64_t reactivations;
  uint64_t pageins;
  uint64_t pageouts;
  uint64_t faults;
  uint64_t cow_faults;
  uint64_t lookups;
  uint64_t hits;
  uint64_t purges;
  natural_t purgeable_count;
  natural_t speculative_count;
  uint64_t decompressions;
  uint64_t compressions;
  uint64_t swapins;
  uint64_t swapouts;
  natural_t compressor_page_count;
  natural_t throttled_count;
  natural_t external_page_count;
  natural_t internal_page_count;
  uint64_t total_uncompressed_pages_in_compressor;
};
typedef struct vm_statistics64 vm_statistics64_data_t;

#define HOST_VM_INFO64 4
#define HOST_VM_INFO64_COUNT \
  ((mach_msg_type_number_t)(sizeof(vm_statistics64_data_t) / sizeof(integer_t)))

// <mach/mach_host.h>
kern_return_t host_statistics(host_t host_priv, host_flavor_t flavor, host_info_t host_info_out,
                              mach_msg_type_number_t* host_info_outCnt);
kern_return_t host_statistics64(host_t host_priv, host_flavor_t flavor,
                                host_info64_t host_info64_out,
                                mach_msg_type_number_t* host_info64_outCnt);

// <mach/task_info.h>, <mach/task.h> and the types they use
typedef mach_port_t task_name_t;
typedef natural_t task_flavor_t;
typedef integer_t* task_info_t;
typedef uint64_t mach_vm_size_t;
typedef int policy_t;
struct time_value {
  integer_t seconds;
  integer_t microseconds;
};
typedef struct time_value time_value_t;
#pragma pack(push, 4)
struct mach_task_basic_info {
  mach_vm_size_t virtual_size;
  mach_vm_size_t resident_size;
  mach_vm_size_t resident_size_max;
  time_value_t user_time;
  time_value_t system_time;
  policy_t policy;
  integer_t suspend_count;
};
#pragma pack(pop)
typedef struct mach_task_basic_info mach_task_basic_info_data_t;
#define MACH_TASK_BASIC_INFO 20
#define MACH_TASK_BASIC_INFO_COUNT \
  ((mach_msg_type_number_t)(sizeof(mach_task_basic_info_data_t) / sizeof(natural_t)))
kern_return_t task_info(task_name_t target_task, task_flavor_t flavor, task_info_t task_info_out,
                        mach_msg_type_number_t* task_info_outCnt);

#ifdef __cplusplus
}
#endif
