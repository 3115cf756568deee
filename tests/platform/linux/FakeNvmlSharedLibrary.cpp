// A stand-in for libnvidia-ml.so.1 with NVML's C entry points, so the run-time loading path is
// exercised for real. Two devices: index 0 answers, index 1 refuses its handle. Setting
// BRIMLY_FAKE_NVML_INIT_FAILS makes initialisation fail with NVML_ERROR_DRIVER_NOT_LOADED.

#include <cstdlib>
#include <cstring>

namespace {

struct Device {
  int id;
};
Device device0{0};
int initialisations = 0;
int shutdowns = 0;

struct Utilization {
  unsigned int gpu;
  unsigned int memory;
};

}  // namespace

extern "C" {

int nvmlInit_v2() {
  if (std::getenv("BRIMLY_FAKE_NVML_INIT_FAILS") != nullptr) return 9;
  ++initialisations;
  return 0;
}

int nvmlShutdown() {
  ++shutdowns;
  return 0;
}

int nvmlDeviceGetCount_v2(unsigned int* count) {
  *count = 2;
  return 0;
}

int nvmlDeviceGetHandleByIndex_v2(unsigned int index, Device** device) {
  if (index != 0) return 4;  // NVML_ERROR_NO_PERMISSION
  *device = &device0;
  return 0;
}

int nvmlDeviceGetName(Device*, char* name, unsigned int length) {
  std::strncpy(name, "Fake GPU", length);
  return 0;
}

int nvmlDeviceGetUtilizationRates(Device*, Utilization* utilization) {
  utilization->gpu = 42;
  utilization->memory = 7;
  return 0;
}

int brimlyFakeNvmlInitialisations() {
  return initialisations;
}
int brimlyFakeNvmlShutdowns() {
  return shutdowns;
}

}  // extern "C"
