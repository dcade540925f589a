/** @file
 *  The four-state vector; copies with extension; integers and bit patterns as vectors; the exported
 *  registers, tables and data items. */
#ifndef TARNLIB_VECTOR_H
#define TARNLIB_VECTOR_H

#include <stdint.h>

#include <tarnlib/export.h>

TARNLIB_BEGIN_C

/** A slice of 32 bits of a vector. Bit i is the pair (bit i of aval, bit i of bval): (0,0) is 0,
 *  (1,0) is 1, (0,1) is Z and (1,1) is X. Bit k of a vector is bit k & 31 of its word k >> 5.
 *  limits    4-byte alignment is enough.
 *  source    IEEE 1364-2005, 27.14 (the VPI vector value record) */
typedef struct VectorWord {
    uint32_t aval; /**< value bits */
    uint32_t bval; /**< control bits */
} VectorWord;

/** The value of one bit as a number from 0 to 5: 0, 1, Z, and three spellings of X.
 *  Functions that return a code return one of the first four. */
typedef int LogicCode;

enum {
    TARN_LOGIC_0 = 0, /**< the LogicCode of 0 */
    TARN_LOGIC_1 = 1, /**< the LogicCode of 1 */
    TARN_LOGIC_Z = 2, /**< the LogicCode of Z */
    TARN_LOGIC_X = 3  /**< the LogicCode of X; 4 and 5 mean X too */
};

/*------------------------------------------------------------------------------------------------
 * Copies
 *----------------------------------------------------------------------------------------------*/

/** A vector brought to another width, bit by bit: result = source.
 *  widths    bits, any. A narrower source is extended (Signed: by bit 31 of its top word, aval and
 *            bval each by its own; Unsigned: by zeros). Of a wider one the low words are copied.
 *            A source of width below 1 counts as 0.
 *  unknown   X and Z bits are copied as they are; a sign bit that is X or Z extends as X or Z.
 *  top word  copied whole: bits of the source above the result's width come with it.
 *  writes    exactly N(resultWidth) words; none for a width below 1.
 *  aliasing  result may be source itself; partly overlapping storage is not supported.
 *  source    IEEE 1364-2005, 5.4.1
 *  example   a signed 8-bit -128, {0xffffff80, 0}, copied to width 40 stores {0xffffff80, 0} and
 *            {0xffffffff, 0}. */
TARNLIB_API void tarn_SignedCopy(int resultWidth, VectorWord* result, int sourceWidth,
                                 const VectorWord* source) TARNLIB_NOEXCEPT;
/** @copydoc tarn_SignedCopy */
TARNLIB_API void tarn_UnsignedCopy(int resultWidth, VectorWord* result, int sourceWidth,
                                   const VectorWord* source) TARNLIB_NOEXCEPT;

/*------------------------------------------------------------------------------------------------
 * Vectors from machine values
 *----------------------------------------------------------------------------------------------*/

/** A 32-bit integer as a vector: result = value.
 *  widths    bits, any.
 *  top word  word 0 takes all 32 bits of the value whatever the width; the words above it hold the
 *            sign (Signed) or zeros (Unsigned), whole.
 *  writes    N(resultWidth) words; word 0 also for a width below 1.
 *  source    IEEE 1364-2005, 5.5
 *  example   -1 at width 70 stores three times {0xffffffff, 0}; at width 8 it stores it once. */
TARNLIB_API void tarn_SignedConvert(int resultWidth, VectorWord* result,
                                    int32_t value) TARNLIB_NOEXCEPT;
/** @copydoc tarn_SignedConvert */
TARNLIB_API void tarn_UnsignedConvert(int resultWidth, VectorWord* result,
                                      uint32_t value) TARNLIB_NOEXCEPT;

/** A 64-bit integer as a vector: result = value.
 *  widths    bits, any; up to 32 the low 32 bits of the value are stored and the rest is lost.
 *  top word  words 0 and 1 take all 64 bits of the value; the words above them hold the sign
 *            (Signed) or zeros (Unsigned), whole.
 *  writes    N(resultWidth) words; word 0 also for a width below 1.
 *  source    IEEE 1364-2005, 5.5 */
TARNLIB_API void tarn_SignedConvertLong(int resultWidth, VectorWord* result,
                                        int64_t value) TARNLIB_NOEXCEPT;
/** @copydoc tarn_SignedConvertLong */
TARNLIB_API void tarn_UnsignedConvertLong(int resultWidth, VectorWord* result,
                                          uint64_t value) TARNLIB_NOEXCEPT;

/** The 64 bits of a double as a vector ($realtobits).
 *  widths    bits, any; up to 32 only the low half of the pattern is stored, above 64 zeros follow.
 *  writes    N(resultWidth) words; word 0 also for a width below 1.
 *  source    IEEE 1364-2005, 17.8; IEEE 754-2008, 3.4
 *  example   1.0 at width 64 stores {0, 0} and {0x3ff00000, 0}. */
TARNLIB_API void tarn_MapToVector(int resultWidth, VectorWord* result,
                                  double value) TARNLIB_NOEXCEPT;

/** The 32 bits of a double rounded to single precision (to nearest, ties to even) as a vector
 *  ($shortrealtobits).
 *  widths    bits, any; above 32 zeros follow.
 *  writes    N(resultWidth) words; word 0 also for a width below 1.
 *  source    IEEE 754-2008, 3.4
 *  example   1.0 stores {0x3f800000, 0}. */
TARNLIB_API void tarn_MapToShortVector(int resultWidth, VectorWord* result,
                                       double value) TARNLIB_NOEXCEPT;

/*------------------------------------------------------------------------------------------------
 * Registers, tables and data items
 *----------------------------------------------------------------------------------------------*/

/** Number of words of tarn_VectorRegister: room for 20,000,000 bits. */
#define TARN_VECTOR_REGISTER_WORDS 625000

/** A vector that generated code may use as scratch space and pass as an operand or a result.
 *  Zero when the library is loaded. The comment of a function that uses it itself says so under
 *  "scratch"; every other function leaves it alone. */
TARNLIB_API extern VectorWord tarn_VectorRegister[TARN_VECTOR_REGISTER_WORDS];

/** Scratch reals for generated code: zero at load, never touched by the library. */
TARNLIB_API extern double tarn_RealRegister[5];
/** @copydoc tarn_RealRegister */
TARNLIB_API extern float tarn_ShortRealRegister[5];

/** The one-bit vector of each LogicCode.
 *  top word  tarn_LogicVectorLUT: zeros above bit 0, an unsigned bit. tarn_LogicSignedVectorLUT:
 *            the bit copied through the whole word, a signed one. */
TARNLIB_API extern const VectorWord tarn_LogicVectorLUT[6];
/** @copydoc tarn_LogicVectorLUT */
TARNLIB_API extern const VectorWord tarn_LogicSignedVectorLUT[6];

/** Data items of eight bytes that generated code links against. They lie one behind the other in
 *  this order, are zero when the library is loaded, and are never touched by it. */
TARNLIB_API extern uint64_t ArrayAEB;
TARNLIB_API extern uint64_t DirectAEB;     /**< @copydoc ArrayAEB */
TARNLIB_API extern uint64_t EventAEB;      /**< @copydoc ArrayAEB */
TARNLIB_API extern uint64_t VectorAAIB;    /**< @copydoc ArrayAEB */
TARNLIB_API extern uint64_t RealAAIB;      /**< @copydoc ArrayAEB */
TARNLIB_API extern uint64_t ShortRealAAIB; /**< @copydoc ArrayAEB */
TARNLIB_API extern uint64_t ArrayAAIB;     /**< @copydoc ArrayAEB */
TARNLIB_API extern uint64_t ClassAAIB;     /**< @copydoc ArrayAEB */
TARNLIB_API extern uint64_t VectorAEB;     /**< @copydoc ArrayAEB */
TARNLIB_API extern uint64_t BitAEB;        /**< @copydoc ArrayAEB */
TARNLIB_API extern uint64_t RealAEB;       /**< @copydoc ArrayAEB */
TARNLIB_API extern uint64_t ShortRealAEB;  /**< @copydoc ArrayAEB */
TARNLIB_API extern uint64_t ClassAEB;      /**< @copydoc ArrayAEB */

TARNLIB_END_C

#endif
