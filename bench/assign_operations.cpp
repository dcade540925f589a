// Writing fields of bits, with and without the flag of a change; concatenation.
#include "families.h"

namespace tarn::bench {
std::vector<Operation> AssignOperations() {
    return {};
}

}  // namespace tarn::bench
