/** @file
 *  Bits of values moved: shifts, fields and single bits read and written, concatenation, memory
 *  words. All of these may run in any thread. */
#ifndef TARNLIB_INLINE_VALUE_SELECT_H
#define TARNLIB_INLINE_VALUE_SELECT_H

#include <limits.h>

#include <tarnlib/inline/value.h>

/*------------------------------------------------------------------------------------------------
 * Shifts
 *----------------------------------------------------------------------------------------------*/

/** v << amount; an amount of 64 or more gives 0. */
TARN_INLINE tarn_V64 tarn_V64LogicalShiftLeft(tarn_V64 v, unsigned amount) TARNLIB_NOEXCEPT {
    const uint64_t kept = 0U - TARN_CAST(uint64_t, amount < 64U);
    return tarn_V64Of(v.aval << (amount & 63U) & kept, v.bval << (amount & 63U) & kept);
}

/** v >> amount (Logical) and v >>> amount of a signed v (Arithmetical). An amount of 64 or more
 *  leaves what moves in, 0 or bit 63 of aval and of bval. */
TARN_INLINE tarn_V64 tarn_V64LogicalShiftRight(tarn_V64 v, unsigned amount) TARNLIB_NOEXCEPT {
    const uint64_t kept = 0U - TARN_CAST(uint64_t, amount < 64U);
    return tarn_V64Of(v.aval >> (amount & 63U) & kept, v.bval >> (amount & 63U) & kept);
}

/** @copydoc tarn_V64LogicalShiftRight */
TARN_INLINE tarn_V64 tarn_V64ArithmeticalShiftRight(tarn_V64 v, unsigned amount) TARNLIB_NOEXCEPT {
    const unsigned bits = amount < 64U ? amount : 63U;
    return tarn_V64Of(TARN_CAST(uint64_t, TARN_CAST(int64_t, v.aval) >> bits),
                      TARN_CAST(uint64_t, TARN_CAST(int64_t, v.bval) >> bits));
}

/** What a clean value is as the amount of a shift: 0: its aval is the amount; 1: it is known and 2
 *  to the power 32 or more; 3: it is unknown. */
TARN_INLINE int tarn_V64ScanShiftCount(tarn_V64 amount) TARNLIB_NOEXCEPT {
    const int isPast = amount.aval >> 32 != 0;
    return isPast | 3 * (amount.bval != 0);
}

/* A clean value as an amount of which all above 64 are alike. */
TARN_INLINE unsigned tarn_ShiftAmount(tarn_V64 amount) TARNLIB_NOEXCEPT {
    return amount.aval < 64U ? TARN_CAST(unsigned, amount.aval) : 64U;
}

TARN_INLINE tarn_V64 tarn_V64AllXWhere(int isX, tarn_V64 v) TARNLIB_NOEXCEPT {
    const uint64_t x = 0U - TARN_CAST(uint64_t, isX);
    return tarn_V64Of(v.aval | x, v.bval | x);
}

/** The shifts by an amount that is a vector, a clean value.
 *  unknown   any bval bit set in the amount: all 64 bits X.
 *  source    IEEE 1364-2005, 5.1.12 */
TARN_INLINE tarn_V64 tarn_V64LogicalShiftLeftBy(tarn_V64 v, tarn_V64 amount) TARNLIB_NOEXCEPT {
    return tarn_V64AllXWhere(amount.bval != 0,
                             tarn_V64LogicalShiftLeft(v, tarn_ShiftAmount(amount)));
}

/** @copydoc tarn_V64LogicalShiftLeftBy */
TARN_INLINE tarn_V64 tarn_V64LogicalShiftRightBy(tarn_V64 v, tarn_V64 amount) TARNLIB_NOEXCEPT {
    return tarn_V64AllXWhere(amount.bval != 0,
                             tarn_V64LogicalShiftRight(v, tarn_ShiftAmount(amount)));
}

/** @copydoc tarn_V64LogicalShiftLeftBy */
TARN_INLINE tarn_V64 tarn_V64ArithmeticalShiftRightBy(tarn_V64 v,
                                                      tarn_V64 amount) TARNLIB_NOEXCEPT {
    return tarn_V64AllXWhere(amount.bval != 0,
                             tarn_V64ArithmeticalShiftRight(v, tarn_ShiftAmount(amount)));
}

/*------------------------------------------------------------------------------------------------
 * Fields and bits. A field lies inside bits 0 to 63, unless "indexed" stands in the name.
 *----------------------------------------------------------------------------------------------*/

/** v[low + width - 1 : low], clean (Partselect) or extended by its top bit (SignedPartselect).
 *  widths    bits, at least 1; low is 0 to 63, low + width at most 64. */
TARN_INLINE tarn_V64 tarn_V64Partselect(tarn_V64 v, int low, int width) TARNLIB_NOEXCEPT {
    return tarn_V64UnsignedFit(width, tarn_V64Of(v.aval >> low, v.bval >> low));
}

/** @copydoc tarn_V64Partselect */
TARN_INLINE tarn_V64 tarn_V64SignedPartselect(tarn_V64 v, int low, int width) TARNLIB_NOEXCEPT {
    return tarn_V64SignedFit(width, tarn_V64Of(v.aval >> low, v.bval >> low));
}

/** v[index +: width] with X for the bits that v does not have, clean.
 *  widths    bits, 1 to 64; v has sourceWidth of them. index is any number. */
TARN_INLINE tarn_V64 tarn_V64IndexedPartselect(int sourceWidth, tarn_V64 v, int index,
                                               int width) TARNLIB_NOEXCEPT {
    const uint64_t beyond = ~tarn_LowBits64(sourceWidth);
    /* A field farther away than 64 bits is as good as one that is 64 bits away: all X. */
    const unsigned up = index < -64 ? 64U : index < 0 ? -TARN_CAST(unsigned, index) : 0U;
    const unsigned down = index > 64 ? 64U : index > 0 ? TARN_CAST(unsigned, index) : 0U;
    const tarn_V64 ones = tarn_V64Of(TARN_ALL_X, TARN_ALL_X);
    /* The shifts make inverted bits 0, as those outside are that are X. */
    tarn_V64 inverted = tarn_V64Of(~(v.aval | beyond), ~(v.bval | beyond));
    inverted = tarn_V64LogicalShiftLeft(tarn_V64LogicalShiftRight(inverted, down), up);
    return tarn_V64UnsignedFit(width,
                               tarn_V64Of(ones.aval ^ inverted.aval, ones.bval ^ inverted.bval));
}

/** The code of bit `index` of a value of sourceWidth bits, X for a bit that it does not have.
 *  widths    bits, 1 to 64; index is any number. */
TARN_INLINE LogicCode tarn_V64BitValue(int sourceWidth, tarn_V64 v, int index) TARNLIB_NOEXCEPT {
    const int isInside = TARN_CAST(unsigned, index) < TARN_CAST(unsigned, sourceWidth);
    const unsigned at = TARN_CAST(unsigned, index) & 63U;
    const uint64_t code = (v.aval >> at & 1U) | (v.bval >> at & 1U) << 1;
    return TARN_CAST(LogicCode, code) | (3 * !isInside);
}

/** The target with target[low + width - 1 : low] = value.
 *  widths    bits, at least 1; low is 0 to 63, low + width at most 64. */
TARN_INLINE tarn_V64 tarn_V64PartselectAssign(tarn_V64 target, tarn_V64 value, int low,
                                              int width) TARNLIB_NOEXCEPT {
    const uint64_t field = tarn_LowBits64(width) << low;
    return tarn_V64Of((target.aval & ~field) | (value.aval << low & field),
                      (target.bval & ~field) | (value.bval << low & field));
}

/** The target with target[index +: width] = value, as far as the target has the bits.
 *  widths    bits, 1 to 64; the target has targetWidth of them. index is any number. */
TARN_INLINE tarn_V64 tarn_V64IndexedPartselectAssign(int targetWidth, tarn_V64 target,
                                                     tarn_V64 value, int index,
                                                     int width) TARNLIB_NOEXCEPT {
    const unsigned down = index < -64 ? 64U : index < 0 ? -TARN_CAST(unsigned, index) : 0U;
    const unsigned up = index > 64 ? 64U : index > 0 ? TARN_CAST(unsigned, index) : 0U;
    const uint64_t own = tarn_LowBits64(width);
    const tarn_V64 field =
        tarn_V64LogicalShiftLeft(tarn_V64LogicalShiftRight(tarn_V64Of(own, 0), down), up);
    const uint64_t written = field.aval & tarn_LowBits64(targetWidth);
    const tarn_V64 moved = tarn_V64LogicalShiftLeft(tarn_V64LogicalShiftRight(value, down), up);
    return tarn_V64Of((target.aval & ~written) | (moved.aval & written),
                      (target.bval & ~written) | (moved.bval & written));
}

/** A value as an index for the functions that take any number, those on wider storage included.
 *  unknown   X or Z: see returns.
 *  top word  the value is clean (Unsigned) or in signed form (Signed).
 *  returns   the index; INT_MIN, where no vector has a bit, for one that is unknown or no int: a
 *            field read there is X, and a write there changes nothing.
 *  source    IEEE 1364-2005, 5.2.1
 *  example   v[i] is tarn_BitValue(width, v, tarn_V64UnsignedIndex(i)). */
TARN_INLINE int tarn_V64UnsignedIndex(tarn_V64 index) TARNLIB_NOEXCEPT {
    const int isIndex = index.bval == 0 && index.aval <= INT_MAX;
    return isIndex ? TARN_CAST(int, index.aval) : INT_MIN;
}

/** @copydoc tarn_V64UnsignedIndex */
TARN_INLINE int tarn_V64SignedIndex(tarn_V64 index) TARNLIB_NOEXCEPT {
    const int64_t number = TARN_CAST(int64_t, index.aval);
    const int isIndex = index.bval == 0 && number >= INT_MIN && number <= INT_MAX;
    return isIndex ? TARN_CAST(int, number) : INT_MIN;
}

/** Whether a value is an index that a 32-bit integer can hold: 1 or 0; a signed value in signed
 *  form, an unsigned one clean. */
TARN_INLINE int tarn_V64UnsignedScanIndexOfSelect(tarn_V64 index) TARNLIB_NOEXCEPT {
    return (index.bval | index.aval >> 31) == 0;
}

/** @copydoc tarn_V64UnsignedScanIndexOfSelect */
TARN_INLINE int tarn_V64SignedScanIndexOfSelect(tarn_V64 index) TARNLIB_NOEXCEPT {
    /* From -2^31 upward the numbers become those from 0 upward. */
    return (index.bval | (index.aval + UINT32_C(0x80000000)) >> 32) == 0;
}

/** {high, low}: low has lowWidth bits and is clean.
 *  widths    bits, at least 1; both together have at most 64. */
TARN_INLINE tarn_V64 tarn_V64Concatenate(tarn_V64 high, int lowWidth,
                                         tarn_V64 low) TARNLIB_NOEXCEPT {
    return tarn_V64Of(high.aval << lowWidth | low.aval, high.bval << lowWidth | low.bval);
}

/** {count{v}}: v has `width` bits and is clean.
 *  widths    bits, 1 to 64; count at least 1, count * width at most 64. */
TARN_INLINE tarn_V64 tarn_V64Replicate(int count, int width, tarn_V64 v) TARNLIB_NOEXCEPT {
    /* A bit at the foot of each copy. */
    const uint64_t feet = tarn_LowBits64(count * width) / tarn_LowBits64(width);
    return tarn_V64Of(v.aval * feet, v.bval * feet);
}

/*------------------------------------------------------------------------------------------------
 * Memory words
 *----------------------------------------------------------------------------------------------*/

/* The low 1 to 8 bytes of a number. */
TARN_INLINE uint64_t tarn_LoadBytes(const uint8_t* from, int count) TARNLIB_NOEXCEPT {
    uint64_t bytes = 0;
    int done = 0;
    if (count >= 8) {
        memcpy(&bytes, from, sizeof bytes);
        return bytes;
    }
    if ((count & 4) != 0) {
        uint32_t four;
        memcpy(&four, from, sizeof four);
        bytes = four;
        done = 4;
    }
    if ((count & 2) != 0) {
        uint16_t two;
        memcpy(&two, from + done, sizeof two);
        bytes |= TARN_CAST(uint64_t, two) << 8 * done;
        done += 2;
    }
    if ((count & 1) != 0) bytes |= TARN_CAST(uint64_t, from[done]) << 8 * done;
    return bytes;
}

TARN_INLINE void tarn_StoreBytes(uint8_t* to, int count, uint64_t bytes) TARNLIB_NOEXCEPT {
    int done = 0;
    if (count >= 8) {
        memcpy(to, &bytes, sizeof bytes);
        return;
    }
    if ((count & 4) != 0) {
        const uint32_t four = TARN_CAST(uint32_t, bytes);
        memcpy(to, &four, sizeof four);
        done = 4;
    }
    if ((count & 2) != 0) {
        const uint16_t two = TARN_CAST(uint16_t, bytes >> 8 * done);
        memcpy(to + done, &two, sizeof two);
        done += 2;
    }
    if ((count & 1) != 0) to[done] = TARN_CAST(uint8_t, bytes >> 8 * done);
}

/* The bytes of each half of a memory word of 1 to 64 bits. */
TARN_INLINE int tarn_HalfBytes(int memoryWidth) TARNLIB_NOEXCEPT {
    return (memoryWidth + 7) >> 3;
}

/* A memory word as its bytes hold it, spare bits included. */
TARN_INLINE tarn_V64 tarn_LoadMemoryWord(int memoryWidth, const uint8_t* memory) TARNLIB_NOEXCEPT {
    const int count = tarn_HalfBytes(memoryWidth);
    return tarn_V64Of(tarn_LoadBytes(memory, count), tarn_LoadBytes(memory + count, count));
}

/** The value of a memory word, fit.
 *  widths    bits, 1 to 64. */
TARN_INLINE tarn_V64 tarn_V64UnsignedLoadMemory(int memoryWidth,
                                                const uint8_t* memory) TARNLIB_NOEXCEPT {
    return tarn_V64UnsignedFit(memoryWidth, tarn_LoadMemoryWord(memoryWidth, memory));
}

/** @copydoc tarn_V64UnsignedLoadMemory */
TARN_INLINE tarn_V64 tarn_V64SignedLoadMemory(int memoryWidth,
                                              const uint8_t* memory) TARNLIB_NOEXCEPT {
    return tarn_V64SignedFit(memoryWidth, tarn_LoadMemoryWord(memoryWidth, memory));
}

/** A value into a memory word.
 *  widths    bits, 1 to 64.
 *  top word  the spare bits take what the value has there.
 *  writes    all bytes of the memory word.
 *  returns   1 if a byte changed, spare bits included, else 0. */
TARN_INLINE int tarn_V64StoreMemory(int memoryWidth, uint8_t* memory, tarn_V64 v) TARNLIB_NOEXCEPT {
    const int count = tarn_HalfBytes(memoryWidth);
    const tarn_V64 old = tarn_LoadMemoryWord(memoryWidth, memory);
    const uint64_t changed = (old.aval ^ v.aval) | (old.bval ^ v.bval);
    tarn_StoreBytes(memory, count, v.aval);
    tarn_StoreBytes(memory + count, count, v.bval);
    return (changed & tarn_LowBits64(8 * count)) != 0;
}

#endif
