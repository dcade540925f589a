#include "arith/scratch.h"

namespace tarn {

alignas(64) Limb scratchLimbs[kScratchLimbs];

}  // namespace tarn
