#include "platform/macos/MacCpuTicksPort.h"

#include <mach/mach.h>
#include <mach/machine.h>

#include "platform/macos/OwnedHandles.h"

namespace brimly {
namespace {

// The kernel sums the ticks of every processor into four 32-bit counters.
class MacCpuTicksPort final : public CpuTicksPort {
 public:
  std::optional<CpuTicks> readCpuTicks() override {
    host_cpu_load_info_data_t info{};
    mach_msg_type_number_t count = HOST_CPU_LOAD_INFO_COUNT;
    if (host_statistics(host_.get(), HOST_CPU_LOAD_INFO, reinterpret_cast<host_info_t>(&info),
                        &count) != KERN_SUCCESS) {
      return std::nullopt;
    }
    return CpuTicks{.user = info.cpu_ticks[CPU_STATE_USER],
                    .system = info.cpu_ticks[CPU_STATE_SYSTEM],
                    .idle = info.cpu_ticks[CPU_STATE_IDLE],
                    .nice = info.cpu_ticks[CPU_STATE_NICE]};
  }

 private:
  MachHostPort host_;
};

}  // namespace

std::unique_ptr<CpuTicksPort> makeMacCpuTicksPort() {
  return std::make_unique<MacCpuTicksPort>();
}

}  // namespace brimly
