#include "platform/linux/ListingRefresh.h"

namespace brimly {

bool ListingRefresh::due() {
  const double now = clock_.nowSeconds();
  // Written so that a NaN (time or difference) asks for a listing rather than stall it for good.
  const bool fresh = listedAt_ && now >= *listedAt_ && now - *listedAt_ < intervalSeconds;
  if (fresh) return false;
  listedAt_ = now;
  return true;
}

}  // namespace brimly
