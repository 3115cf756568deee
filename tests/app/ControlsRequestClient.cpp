// Sends one controls request the way a later launch does: before any application object exists.
// Exit status 0 when the request was handed over, 1 when not, 2 on wrong use.
#include <QString>

#include "app/ControlsRequest.h"

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  return brimly::requestControlsFromRunningInstance(QString::fromLocal8Bit(argv[1]), 10000) ? 0 : 1;
}
