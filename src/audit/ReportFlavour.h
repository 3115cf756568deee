#pragma once

namespace brimly {

// Which system's sources the diagnostic report names. The sections and their order are the same
// for both; the headers, the "compare against" commands and the failure texts name the files and
// calls that the platform backend really reads.
enum class ReportFlavour {
  macOS,     // host_statistics64, IOKit power sources and registry, IOReport, HID sensors
  gnuLinux,  // /proc, statvfs, /sys/class/power_supply, hwmon, thermal zones, powercap RAPL
};

// The flavour of the system this program was built for.
ReportFlavour builtReportFlavour();

}  // namespace brimly
