#include "platform/macos/MacMemoryPort.h"

#include <mach/mach.h>
#include <mach/vm_page_size.h>
#include <sys/sysctl.h>

#include <cstdint>

#include "platform/macos/OwnedHandles.h"

namespace brimly {
namespace {

class MacMemoryPort final : public MemoryPort {
 public:
  MemoryReading readMemory() override {
    MemoryReading reading;
    reading.vm = readVmStatistics();
    // Statistics count kernel pages, which differ from this process's page size when it runs
    // translated.
    reading.pageSize = vm_kernel_page_size;
    std::uint64_t installed = 0;
    std::size_t length = sizeof installed;
    if (sysctlbyname("hw.memsize", &installed, &length, nullptr, 0) == 0 &&
        length == sizeof installed) {
      reading.physicalBytes = installed;
    }
    xsw_usage swap{};
    length = sizeof swap;
    // Swap files appear on demand: 0 of 0 is a valid reading, not a failure.
    if (sysctlbyname("vm.swapusage", &swap, &length, nullptr, 0) == 0) {
      reading.swap = SwapUsage{.totalBytes = swap.xsu_total, .usedBytes = swap.xsu_used};
    }
    return reading;
  }

 private:
  std::optional<VmStatistics> readVmStatistics() {
    vm_statistics64_data_t vm{};
    mach_msg_type_number_t count = HOST_VM_INFO64_COUNT;
    if (host_statistics64(host_.get(), HOST_VM_INFO64, reinterpret_cast<host_info64_t>(&vm),
                          &count) != KERN_SUCCESS) {
      return std::nullopt;
    }
    return VmStatistics{.activePages = vm.active_count,
                        .wiredPages = vm.wire_count,
                        .compressedPages = vm.compressor_page_count,
                        .inactivePages = vm.inactive_count,
                        .freePages = vm.free_count};
  }

  MachHostPort host_;
};

}  // namespace

std::unique_ptr<MemoryPort> makeMacMemoryPort() {
  return std::make_unique<MacMemoryPort>();
}

}  // namespace brimly
