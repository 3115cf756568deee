#pragma once

#include <chrono>
#include <functional>
#include <ostream>

#include "audit/KernelFigureSource.h"
#include "audit/ReportFlavour.h"
#include "audit/ReportWording.h"
#include "audit/ReportWriter.h"
#include "platform/PlatformFactory.h"
#include "platform/SamplingQueue.h"
#include "sampling/MetricSample.h"

namespace brimly {

// The loop that the report's live section runs a real monitor on: the monitor samples on the
// loop's sampling queue and its samples reach the main thread only while the loop is served.
class LiveLoop {
 public:
  virtual ~LiveLoop() = default;
  virtual SamplingQueue& samplingQueue() = 0;
  // Serves the main loop for `seconds` (samples are delivered meanwhile), then returns.
  virtual void serveFor(double seconds) = 0;
};

// The diagnostic report: every reading the program makes, each beside the raw figures it comes
// from and a command to compare it with, then what a live monitor shows after two sample cycles.
namespace Audit {

struct Environment {
  ReportFlavour flavour = builtReportFlavour();
  const PlatformFactory* platform = nullptr;
  // Raw kernel figures quoted by the Linux report; may be null (the report then quotes only
  // Brimly's own figures).
  KernelFigureSource* kernelFigures = nullptr;
  // The current date and time, for the report's date line.
  std::function<std::chrono::system_clock::time_point()> now;
  // A blocking wait, used between the energy section's two readings.
  std::function<void(double seconds)> blockingWait;
  // Where the live section runs its monitor; required by `run` and `dumpLive`.
  LiveLoop* liveLoop = nullptr;
};

// Prints the whole report to `out` and returns the process's exit status (always 0).
int run(const Environment& environment, std::ostream& out);

// The sections, in the order `run` prints them.
void dumpMemory(const Environment& environment, ReportWriter& writer);
void dumpDisk(const Environment& environment, ReportWriter& writer);
void dumpBattery(const Environment& environment, ReportWriter& writer);
void dumpGPU(const Environment& environment, ReportWriter& writer);
void dumpTemperatureSensors(const Environment& environment, ReportWriter& writer);
void dumpEnergy(const Environment& environment, ReportWriter& writer);
void dumpLive(const Environment& environment, ReportWriter& writer);

// The live section's rows for the monitor's published fields, without the box around them.
void printLiveFields(const MetricSample& published, const ReportWording& wording,
                     ReportWriter& writer);

}  // namespace Audit
}  // namespace brimly
