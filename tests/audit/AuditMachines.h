#pragma once

#include "AuditHarness.h"

namespace brimly::testing {

// An Intel laptop running Linux on battery, as the Linux backend describes it: /proc/meminfo in
// KiB "pages" (used memory as the active count), statvfs capacities, no GPU busy figure, one
// ACPI battery and an offline adapter, coretemp and thermal-zone sensors, and one RAPL package
// counter in microjoules.
inline FakeMachine typicalLinuxLaptop() {
  FakeMachine machine;
  machine.cpuTicks = CpuTicks{100'000, 50'000, 800'000, 1'000};
  machine.memory.vm = VmStatistics{7'186'812, 0, 0, 7'078'428, 1'843'212};
  machine.memory.pageSize = 1024;
  machine.memory.physicalBytes = 16'108'452ull * 1024;
  machine.memory.swap = SwapUsage{8'388'604ull * 1024, 524'288ull * 1024};
  // statvfs's figures below, with a large root reserve: df says 17 GB used, 18 %.
  machine.disk = DiskCapacities{20'689'802ll * 4096, 66'053'021ll * 4096,
                                (66'053'021ll - 61'658'526ll) * 4096};
  machine.accelerators = std::vector<std::optional<PropertyDict>>{};
  machine.powerSources =
      std::vector<std::optional<PropertyDict>>{PropertyDict{{"Name", "BAT0"},
                                                            {"Type", "Battery"},
                                                            {"Status", "Discharging"},
                                                            {"Power Source State", "Battery Power"},
                                                            {"Is Charging", false},
                                                            {"Current", -1250},
                                                            {"Voltage", 11520},
                                                            {"Current Capacity", 76},
                                                            {"Max Capacity", 100}},
                                               PropertyDict{{"Name", "AC"},
                                                            {"Type", "Mains"},
                                                            {"Power Source State", "Battery Power"},
                                                            {"Is Charging", false},
                                                            {"Online", 0}}};
  machine.smartBattery =
      PropertyDict{{"Voltage", 11520},  {"Amperage", -1250},      {"InstantAmperage", -1250},
                   {"CycleCount", 212}, {"DesignCapacity", 4400}, {"MaxCapacity", 3980}};
  machine.temperatureSensors = {{"acpitz temp1", 27.8},
                                {"coretemp Package id 0", 58.0},
                                {"coretemp Core 0", 55.0},
                                {"coretemp Core 1", 57.0},
                                {"x86_pkg_temp (thermal_zone4)", 58.0},
                                {"INT3400 Thermal (thermal_zone1)", 20.0}};
  machine.sensorNaming = SensorNaming::linuxHwmon;
  machine.energyAvailable = true;
  machine.energyCounters =
      std::vector<EnergyCounter>{{"package-0 Energy", 50'632'017'932, 262'143'328'850}};
  machine.energyJoulesPerUnit = 1e-6;
  return machine;
}

// The raw kernel figures behind `typicalLinuxLaptop`.
inline void setTypicalLinuxKernelFigures(FakeKernelFigures& kernel) {
  kernel.setMeminfo({{"MemTotal", 16'108'452},
                     {"MemFree", 1'843'212},
                     {"MemAvailable", 8'921'640},
                     {"Buffers", 412'088},
                     {"Cached", 6'894'332},
                     {"SReclaimable", 598'212},
                     {"Shmem", 1'132'040},
                     {"SwapTotal", 8'388'604},
                     {"SwapFree", 7'864'316},
                     {"Zswap", 98'304},
                     {"Zswapped", 262'144}});
  kernel.gpu = {"/sys/class/drm/card0 (i915): no gpu_busy_percent (only amdgpu has one)",
                "NVML: not asked, no NVIDIA display controller"};
  kernel.temperature = {
      "/sys/class/hwmon/hwmon1 (nvme): not read, each read costs a device command",
      "/sys/class/thermal/thermal_zone3 (iwlwifi_1): not read, each read asks the Wi-Fi firmware"};
  kernel.rootFs = RootFilesystemFigures{4096, 66'053'021, 61'658'526, 20'689'802, 4096};
  kernel.energyAccess = EnergyCounterAccess::readable;
}

// Energy drawn during the report's half-second wait: 2.1 J on the Apple channels, 4.6085 J on
// the RAPL package (9.217 W).
inline void drawPowerDuringWait(AuditHarness& harness) {
  harness.duringWait = [&harness] {
    harness.platform.change([](FakeMachine& m) {
      if (!m.energyCounters) return;
      for (auto& counter : *m.energyCounters) {
        if (counter.channel == "CPU Energy") counter.value += 1'500'000'000;
        if (counter.channel == "GPU Energy") counter.value += 400'000'000;
        if (counter.channel == "DRAM Energy") counter.value += 200'000'000;
        if (counter.channel == "ANE") counter.value += 1'000'000'000;
        if (counter.channel == "package-0 Energy") counter.value += 4'608'500;
      }
    });
  };
}

// Between the live section's immediate ticks and the one a second later, the machine is a
// quarter busy and draws 4.2 W on its energy channels.
inline void loadBetweenLiveCycles(AuditHarness& harness) {
  harness.liveLoop.beforeServing = [&harness] {
    harness.scheduler.advanceBy(0);
    harness.platform.change([](FakeMachine& m) {
      if (m.cpuTicks) m.addCpuTicks(25, 75);
      if (!m.energyCounters) return;
      for (auto& counter : *m.energyCounters) {
        const bool micro = counter.channel.rfind("package-", 0) == 0;
        if (counter.channel == "CPU Energy" || micro) {
          counter.value += micro ? 4'200'000 : 4'200'000'000;
        }
      }
    });
  };
}

}  // namespace brimly::testing
