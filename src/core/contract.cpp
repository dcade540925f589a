#include "core/contract.h"

#if defined(TARNLIB_CHECKED)

#include <cstdio>
#include <cstdlib>

namespace tarn {

void ReportBrokenDuty(const char* function, const std::string& duty,
                      const std::string& arguments) noexcept {
    std::fprintf(stderr, "tarnlib: %s: broken duty of the caller: %s\n  called with %s\n", function,
                 duty.c_str(), arguments.c_str());
    std::abort();
}

std::string DescribeWord(const VectorWord& word) {
    std::ostringstream out;
    out << std::hex << std::showbase << '{' << word.aval << ", " << word.bval << '}';
    return out.str();
}

}  // namespace tarn

#endif
