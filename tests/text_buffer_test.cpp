// The text buffer, watched from outside: this program knows the size of every array that lives, and
// loads and unloads the library for each test, which so begins with a new buffer.
#include <climits>
#include <cstdint>
#include <cstring>
#include <gtest/gtest.h>
#include <new>
#include <string>

#include <tarnlib/text.h>

#include "support/guarded.h"
#include "support/platform.h"
#include "support/watched_storage.h"

namespace tarn::test {
namespace {

class TextBuffer : public testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(library_.IsLoaded());
        WatchStorageOf(library_);
    }

    void TearDown() override {
        if (!library_.IsLoaded()) return;
        const void* const last = get(0);
        ASSERT_TRUE(library_.Unload());
        EXPECT_EQ(CapacityOf(last), 0U) << "the buffer outlived the library";
    }

    LoadedLibrary library_{TARNLIB_LIBRARY};
#define TARN_FIND(name) library_.Find<decltype(name)>(#name)
    decltype(&tarn_GetGlobalBuffer) get = TARN_FIND(tarn_GetGlobalBuffer);
    decltype(&tarn_CopyToGlobalBuffer) copy = TARN_FIND(tarn_CopyToGlobalBuffer);
    decltype(&tarn_CopyNToGlobalBuffer) copyN = TARN_FIND(tarn_CopyNToGlobalBuffer);
    decltype(&tarn_SignedConvertToDec) signedDecimal = TARN_FIND(tarn_SignedConvertToDec);
    decltype(&tarn_UnsignedConvertToDec) unsignedDecimal = TARN_FIND(tarn_UnsignedConvertToDec);
    decltype(&tarn_CreateReal) createReal = TARN_FIND(tarn_CreateReal);
    GuardedBlock block;
};

TEST_F(TextBuffer, CapacityDoublesFromTenAndNeverShrinks) {
    const std::pair<unsigned, std::size_t> rows[] = {
        {0, 10},    {9, 10},  {10, 20},   {19, 20},   {20, 40},         {159, 160},
        {160, 320}, {3, 320}, {319, 320}, {320, 640}, {99'999, 163'840}};
    for (const auto& [count, capacity] : rows) {
        const char* const text = get(count);
        EXPECT_EQ(CapacityOf(text), capacity) << count;
        EXPECT_EQ(text[count], '\0') << count;
    }
}

TEST_F(TextBuffer, CopiesTextsThatEndAtAPage) {
    for (const std::string text :
         {"", "a", "nine char", "ten chars!", "far more than ten characters"}) {
        EXPECT_EQ(copy(block.PlaceText(text, Edge::kEndsAtPage)), text);
    }
    EXPECT_EQ(CapacityOf(copy("")), 40U);
}

TEST_F(TextBuffer, CopiesCountsOfCharacters) {
    std::memset(get(9), '#', 9);
    EXPECT_EQ(std::string(copyN("abc", 5), 6), std::string("abc\0\0\0", 6));
    EXPECT_EQ(copyN("", 0)[6], '#') << "more than count + 1 characters are written";
    EXPECT_STREQ(copyN(block.PlaceCharacters("abcdef", Edge::kEndsAtPage), 6), "abcdef");
    EXPECT_STREQ(copyN(block.PlaceText("abcdef", Edge::kEndsAtPage), 50), "abcdef");
}

TEST_F(TextBuffer, CopiesTextsOfItsOwn) {
    EXPECT_STREQ(copy(copy("same")), "same");
    EXPECT_STREQ(copy(copy("01234567") + 3), "34567");
    EXPECT_STREQ(copyN(copy("01234567") + 2, 4), "2345");
    // Growth frees the storage that the text lies in, and moves what is behind its end as well.
    EXPECT_STREQ(copyN(copy("01234567") + 5, 1000), "567");
    const char* const before = static_cast<char*>(std::memcpy(get(1000), "ab\0cd", 6));
    EXPECT_EQ(std::memcmp(get(5000), "ab\0cd", 6), 0);
    EXPECT_EQ(CapacityOf(before), 0U) << "the old storage is still there";
}

TEST_F(TextBuffer, CountWithoutRoomForItsTerminatorGivesAnEmptyText) {
    copy("abc");
    EXPECT_STREQ(get(UINT_MAX), "");
    EXPECT_STREQ(copyN("abc", UINT_MAX), "");
    EXPECT_EQ(CapacityOf(get(0)), 10U);
}

// Bits above the width need room only where they make digits that the field has no place for.
TEST_F(TextBuffer, DecimalDigitsTakeTheRoomOfTheirField) {
    const VectorWord minusFive{0xFFFFFFFB, 0}, carry{0x1FF, 0}, longer{0x80000000, 0};
    EXPECT_STREQ(signedDecimal(8, &minusFive, -1, 0), "  -5");
    EXPECT_EQ(signedDecimal(8, &minusFive, -1, 0), get(0));
    EXPECT_EQ(unsignedDecimal(8, &carry, -1, 0), get(0));
    EXPECT_EQ(CapacityOf(get(0)), 10U);
    EXPECT_STREQ(unsignedDecimal(8, &longer, -1, 0), "2147483648");
    EXPECT_EQ(CapacityOf(get(0)), 20U);
}

TEST_F(TextBuffer, FailedGrowthLeavesTheBufferAsItWas) {
    const char* const text = copy("abc");
    mostBytes = 1000;
    EXPECT_THROW(get(1'000'000), std::bad_alloc);
    EXPECT_THROW(get(UINT_MAX - 1), std::bad_alloc);
    EXPECT_THROW(copyN(text, 5000), std::bad_alloc);
    mostBytes = SIZE_MAX;
    EXPECT_STREQ(text, "abc");
    EXPECT_EQ(CapacityOf(text), 10U);
    EXPECT_EQ(get(9), text);
}

#if !defined(_WIN32)  // where the conversion itself needs storage
// Nothing to do with the buffer, but with the storage that is watched here.
TEST_F(TextBuffer, RealsNeedStorageOnlyForLongTextsWithUnderscores) {
    double result = 7.0;
    const std::string zeros(500, '0');
    mostBytes = 0;
    createReal(("0.5" + zeros).c_str(), &result);
    EXPECT_EQ(result, 0.5);
    createReal("0.2_5", &result);
    EXPECT_EQ(result, 0.25);
    EXPECT_THROW(createReal(("0.1_5" + zeros).c_str(), &result), std::bad_alloc);
    EXPECT_EQ(result, 0.25);
    mostBytes = SIZE_MAX;
    const std::size_t before = LiveArrayCount();
    createReal(("0.7_5" + zeros).c_str(), &result);
    EXPECT_EQ(result, 0.75);
    EXPECT_EQ(LiveArrayCount(), before);
}

#endif

}  // namespace
}  // namespace tarn::test
