// Included in front of a source of the library: its contracts are then not there at all.
#include "core/contract.h"

#undef TARN_ARGUMENTS
#undef TARN_REQUIRE_IN
#define TARN_ARGUMENTS(...)
#define TARN_REQUIRE_IN(...)
