// Fields of bits read out of a vector.
#include <tarnlib/select.h>

#include "support/model.h"
#include "support/property.h"

namespace tarn::test {
namespace {

// The source is as long as the field needs, so that reading one word more is a stray access.
Outcome ReadField(const Vec& source, unsigned offset, int width) {
    return CallInEveryStorage({width, WordCount(width), ResultPlace::kAnywhere, {&source}},
                              [&](VectorWord* result, const VectorWord* const* operands) {
                                  tarn_Partselect(result, operands[0], offset, width);
                                  return 0;
                              });
}

TEST(Partselect, MatchesModel) {
    for (Gen& gen : Seeds(kRuns)) {
        const int width = gen.Width();
        const int offset = gen.OneIn(4) ? 0 : gen.Below(32);
        const Vec source = gen.FourState(offset + width);
        Vec expected = Filled(width, Logic::k0);
        for (std::size_t k = 0; k < static_cast<std::size_t>(width); ++k) {
            expected.bits[k] = source.bits[static_cast<std::size_t>(offset) + k];
        }
        ASSERT_EQ(ReadField(source, static_cast<unsigned>(offset), width), expected)
            << gen.Reproducer(offset, width, source);
    }
}

TEST(Partselect, EmptyFieldTouchesNothing) {
    for (const int width : {0, -1, -40}) {
        if (kIsChecked) break;
        EXPECT_EQ(ReadField(Vec{}, 5, width), Filled(width, Logic::k0));
    }
}

}  // namespace
}  // namespace tarn::test
