#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/CpuTicksPort.h"
#include "platform/DiskPort.h"
#include "platform/MemoryPort.h"
#include "platform/linux/FileSystemStats.h"
#include "platform/linux/GpuDevices.h"
#include "platform/linux/NvmlLibrary.h"
#include "platform/linux/PowerSupplyMapping.h"
#include "platform/linux/ProcStat.h"

// The raw Linux figures behind every reading, each with the path it came from, for the
// diagnostic report. Paths are absolute (below the root the readers use). `error` fields hold
// the errno of a failed read (0 when the read succeeded); describeError gives its words.
namespace brimly {

using TextPairs = std::vector<std::pair<std::string, std::string>>;

struct CpuDiagnostics {
  std::string path;  // "/proc/stat"
  int error = 0;
  std::optional<std::string> line;     // the aggregate "cpu" line as printed
  std::optional<ProcStatCpu> columns;  // its columns; nothing when the line is malformed
  std::optional<CpuTicks> ticks;       // what the processor reading hands on
};

struct MemoryDiagnostics {
  std::string path;  // "/proc/meminfo"
  int error = 0;
  // The fields the readings use or that explain them, in KiB, each nothing when missing:
  // MemTotal, MemFree, MemAvailable, Buffers, Cached, SReclaimable, Shmem, SwapTotal, SwapFree,
  // Zswap, Zswapped.
  std::vector<std::pair<std::string, std::optional<std::uint64_t>>> fieldsKiB;
  MemoryReading reading;  // what the memory reading hands on (page size 1024)
};

struct DiskDiagnostics {
  std::string path;                      // the path given to statvfs
  std::optional<FileSystemStats> stats;  // nothing when statvfs failed
  DiskCapacities capacities;  // total = f_blocks·f_frsize, available = f_bavail·f_frsize
};

struct PowerSupplyDiagnostics {
  std::string name;         // "BAT0"
  std::string path;         // "/sys/class/power_supply/BAT0"
  bool fromUevent = false;  // false: the uevent was empty or unreadable, attribute files were read
  TextPairs ueventLines;    // every raw KEY=VALUE line of the uevent file
  TextPairs properties;     // the properties used, keyed by attribute name ("status")
};

struct PowerDiagnostics {
  std::vector<PowerSupplyDiagnostics> supplies;
  PowerSupplySnapshot snapshot;  // the descriptions and battery properties handed on
};

struct TemperatureInputDiagnostics {
  std::string path;  // ".../temp1_input"
  std::optional<std::string> label;
  std::optional<std::string> sensorName;  // as the temperature reading names it
  bool read = false;                      // false when the chip is skipped
  int error = 0;
  std::optional<std::string> text;  // the file's content, when read
  std::optional<double> celsius;    // nothing when unread or not a number
};

struct HwmonChipDiagnostics {
  std::string path;  // "/sys/class/hwmon/hwmon3"
  std::string attributeDirectory;
  std::optional<std::string> name;
  std::string runtimeStatus;  // of its device; empty when none
  std::string skipReason;     // why its inputs were not read; empty when they were
  std::vector<TemperatureInputDiagnostics> inputs;
};

struct ThermalZoneDiagnostics {
  std::string path;  // "/sys/class/thermal/thermal_zone4"
  std::optional<std::string> type;
  std::optional<std::string> sensorName;
  std::string skipReason;
  int error = 0;
  std::optional<std::string> text;
  std::optional<double> celsius;
};

struct TemperatureDiagnostics {
  std::vector<HwmonChipDiagnostics> chips;
  std::vector<ThermalZoneDiagnostics> zones;
};

struct RaplZoneDiagnostics {
  std::string path;  // "/sys/class/powercap/intel-rapl:0"
  std::optional<std::string> name;
  bool topLevel = false;
  std::string channel;  // the energy channel it feeds; empty when not counted
  int error = 0;        // of reading energy_uj: EACCES for ordinary users
  std::optional<std::int64_t> energyMicrojoules;
  std::optional<std::int64_t> maxEnergyRangeMicrojoules;
};

struct DrmCardDiagnostics {
  DrmCard card;            // with paths relative to the root
  std::string path;        // "/sys/class/drm/card1"
  std::string skipReason;  // why the busy figure was not read; empty when it was or none exists
  int error = 0;
  std::optional<std::int64_t> busyPercent;
};

struct NvmlDiagnostics {
  std::string skipReason;  // why NVML was not asked; empty when it was
  bool opened = false;
  std::string error;  // why opening failed
  std::optional<unsigned> deviceCount;
  std::vector<NvmlDeviceReading> devices;
};

struct GpuDiagnostics {
  std::vector<DrmCardDiagnostics> cards;
  std::vector<NvidiaPciDevice> nvidiaDevices;  // paths relative to the root
  NvmlDiagnostics nvml;
};

// Everything at once.
struct LinuxDiagnosticReport {
  CpuDiagnostics cpu;
  MemoryDiagnostics memory;
  DiskDiagnostics disk;
  PowerDiagnostics power;
  TemperatureDiagnostics temperatures;
  std::vector<RaplZoneDiagnostics> raplZones;
  GpuDiagnostics gpus;
};

// The words for an errno value ("Permission denied"); empty for 0.
std::string describeError(int error);

}  // namespace brimly
