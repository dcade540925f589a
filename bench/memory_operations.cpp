// Memory words.
#include "families.h"

namespace tarn::bench {
std::vector<Operation> MemoryOperations() {
    return {};
}

}  // namespace tarn::bench
