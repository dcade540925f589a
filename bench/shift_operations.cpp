// Shifts.
#include "families.h"

namespace tarn::bench {
std::vector<Operation> ShiftOperations() {
    return {};
}

}  // namespace tarn::bench
