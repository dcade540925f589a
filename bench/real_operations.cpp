// Conversion between vectors and reals, and math functions.
#include "families.h"

namespace tarn::bench {
std::vector<Operation> RealOperations() {
    return {};
}

}  // namespace tarn::bench
