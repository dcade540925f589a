// The properties of one family: an input chooses one of them, the storage of the call, and all that
// is drawn.
#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include "support/property.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace tarn::test;
    static const Family& family = *std::find_if(
        AllFamilies().begin(), AllFamilies().end(),
        [](const Family& any) { return any.name == std::string_view(TARN_FUZZ_FAMILY); });
    Gen gen(data, size);
    const Property& property = gen.Pick(family.random);
    const auto storage = static_cast<std::size_t>(gen.Below(256));
    const std::string difference = DifferenceAt(property.draw(gen), storage);
    if (difference.empty()) return 0;
    std::fprintf(stderr, "%s: %s\n", property.name.c_str(), difference.c_str());
    std::abort();
}
