// The exported registers, tables and data items.
#include <algorithm>
#include <gtest/gtest.h>
#include <iterator>

#include <tarnlib/vector.h>

#include "support/vec.h"

namespace tarn::test {
namespace {

template <class Value>
bool IsZero(const Value* values, std::size_t count) {
    const auto* const bytes = reinterpret_cast<const unsigned char*>(values);
    return std::all_of(bytes, bytes + count * sizeof(Value),
                       [](unsigned char b) { return b == 0; });
}

// Looked at before main, since other tests of the process use the register.
const bool vectorRegisterIsZeroAtLoad = IsZero(tarn_VectorRegister, std::size(tarn_VectorRegister));

TEST(Data, RegistersAndItemsAreZeroAtLoad) {
    static_assert(sizeof tarn_VectorRegister == 5'000'000);
    static_assert(sizeof tarn_RealRegister == 40 && sizeof tarn_ShortRealRegister == 20);
    EXPECT_TRUE(vectorRegisterIsZeroAtLoad);
    EXPECT_TRUE(IsZero(tarn_RealRegister, 5));
    EXPECT_TRUE(IsZero(tarn_ShortRealRegister, 5));
    for (const std::uint64_t* item :
         {&ArrayAEB, &DirectAEB, &EventAEB, &VectorAAIB, &RealAAIB, &ShortRealAAIB, &ArrayAAIB,
          &ClassAAIB, &VectorAEB, &BitAEB, &RealAEB, &ShortRealAEB, &ClassAEB}) {
        EXPECT_EQ(*item, 0U);
    }
}

TEST(Data, TablesGiveTheBitOfEachLogicCode) {
    const Vec bits[6] = {"1'b0"_v, "1'b1"_v, "1'bz"_v, "1'bx"_v, "1'bx"_v, "1'bx"_v};
    static_assert(std::size(tarn_LogicVectorLUT) == 6 && std::size(tarn_LogicSignedVectorLUT) == 6);
    for (std::size_t code = 0; code < 6; ++code) {
        EXPECT_EQ(Words(1, {tarn_LogicVectorLUT[code]}), bits[code]) << code;
        EXPECT_EQ(Words(1, {tarn_LogicSignedVectorLUT[code]}), SignFilled(bits[code])) << code;
    }
}

}  // namespace
}  // namespace tarn::test
