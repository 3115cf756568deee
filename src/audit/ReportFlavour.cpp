#include "audit/ReportFlavour.h"

namespace brimly {

ReportFlavour builtReportFlavour() {
#if defined(BRIMLY_REPORT_FLAVOUR_MACOS)
  return ReportFlavour::macOS;
#else
  return ReportFlavour::gnuLinux;
#endif
}

}  // namespace brimly
