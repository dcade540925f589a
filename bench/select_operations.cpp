// Reading fields of bits.
#include <tarnlib.h>

#include "families.h"
#include "ladders.h"

namespace tarn::bench {
std::vector<Operation> SelectOperations() {
    return {
        {"Partselect", kFieldRead, kWords<ReadField<tarn_Partselect>>, kField, kFieldCopy},
    };
}

}  // namespace tarn::bench
