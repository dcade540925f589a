// Bitwise operators and reductions.
#include "families.h"

namespace tarn::bench {
std::vector<Operation> LogicOperations() {
    return {};
}

}  // namespace tarn::bench
