// Refused by the macOS compile check below macOS 14: std::pmr lives in the system's C++ library
// from that release on.
#include <memory_resource>
#include <vector>

std::pmr::vector<int> numbers;
