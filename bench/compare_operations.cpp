// Equality and relation.
#include "families.h"

namespace tarn::bench {
std::vector<Operation> CompareOperations() {
    return {};
}

}  // namespace tarn::bench
