#include "core/contract.h"

#if defined(TARNLIB_CHECKED)

#include <cstdio>
#include <cstdlib>

namespace tarn {

void ReportBrokenDuty(const char* function, const char* duty,
                      const std::string& arguments) noexcept {
    std::fprintf(stderr, "tarnlib: %s: broken duty of the caller: %s\n  with %s\n", function, duty,
                 arguments.c_str());
    std::abort();
}

}  // namespace tarn

#endif
