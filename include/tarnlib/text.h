/** @file
 *  Text of vectors, and vectors from text.
 *
 *  Every function that returns a `char*` writes into the library's one text buffer. The text stays
 *  readable until the next such call, which may overwrite it or move the buffer; it is never freed
 *  by the caller. Where the buffer can't grow, the C++ run-time's std::bad_alloc passes through to
 *  the caller and the buffer keeps what it had. */
#ifndef TARNLIB_TEXT_H
#define TARNLIB_TEXT_H

#include <stdbool.h>
#include <stdint.h>

#include <tarnlib/vector.h>

TARNLIB_BEGIN_C

/*------------------------------------------------------------------------------------------------
 * The text buffer
 *----------------------------------------------------------------------------------------------*/

/** The text buffer with room for `count` characters, for the caller to fill.
 *  writes    a NUL at index count; the characters before it keep what they held.
 *  returns   the start of the buffer. Growth keeps the old contents at the start of the new
 *            storage.
 *  limits    a count of 4,294,967,295 returns an empty text, without room. */
TARNLIB_API char* tarn_GetGlobalBuffer(unsigned count);

/** A text copied to the start of the text buffer.
 *  returns   the start of the buffer.
 *  aliasing  text may lie in the text buffer.
 *  limits    a text of 2,147,483,647 characters or more returns an empty text. */
TARNLIB_API char* tarn_CopyToGlobalBuffer(const char* text);

/** The first `count` characters of a text, copied to the start of the text buffer. A shorter text
 *  is padded with NULs up to count, as strncpy does; a further NUL follows.
 *  writes    exactly count + 1 characters.
 *  returns   the start of the buffer.
 *  aliasing  text may lie in the text buffer.
 *  limits    a count of 4,294,967,295 returns an empty text. */
TARNLIB_API char* tarn_CopyNToGlobalBuffer(const char* text, unsigned count);

/*------------------------------------------------------------------------------------------------
 * Vectors as binary, octal and hexadecimal digits
 *----------------------------------------------------------------------------------------------*/

/** The digits of a vector, most significant first, in base 2, 8 or 16 (the display conversions %b,
 *  %o and %h).
 *  widths    bits, at least 1; a width below 1 returns an empty text. minDigits chooses the digits:
 *            negative all digits of the width, leading zeros included; 0 as few as the value needs,
 *            at least one; positive at least so many, padded with '0' (whatever the top digit is).
 *            Only '0' characters are ever left out.
 *  unknown   a digit whose bits are all X is 'x', all Z is 'z'; any other digit with an X bit is
 *            'X', with a Z bit but no X is 'Z'. A top digit of fewer bits whose bits are all X (all
 *            Z) counts as all X (all Z); its missing bits are otherwise known zeros.
 *  top word  bits above the width are ignored.
 *  returns   the start of the text buffer.
 *  source    IEEE 1364-2005, 17.1.1.2 and 17.1.1.4
 *  example   8'b00000101 in binary with minDigits 0 is "101", with minDigits -1 "00000101". */
TARNLIB_API char* tarn_ConvertToBin(int width, const VectorWord* value, int minDigits);
/** @copydoc tarn_ConvertToBin */
TARNLIB_API char* tarn_ConvertToOct(int width, const VectorWord* value, int minDigits);
/** @copydoc tarn_ConvertToBin */
TARNLIB_API char* tarn_ConvertToHex(int width, const VectorWord* value, int minDigits);

/** The digit of a one-bit value given as a LogicCode: "0", "1", "z" or "x".
 *  unknown   the code is 0 to 5; any other gives "x".
 *  returns   the start of the text buffer. */
TARNLIB_API char* tarn_ConvertToBin0(int code);
/** @copydoc tarn_ConvertToBin0 */
TARNLIB_API char* tarn_ConvertToOct0(int code);
/** @copydoc tarn_ConvertToBin0 */
TARNLIB_API char* tarn_ConvertToHex0(int code);

/*------------------------------------------------------------------------------------------------
 * Vectors as decimal digits, and reals
 *----------------------------------------------------------------------------------------------*/

/** The decimal digits of a vector, right-aligned in a field (the display conversion %d).
 *  widths    bits, at least 1; a width below 1 returns an empty text. minDigits chooses the field:
 *            negative the digits that the width can need (and, Signed, one for the sign); 0 as few
 *            characters as the value needs; positive at least so many. The field is padded on the
 *            left with spaces, or with zeros (behind the sign) where zeroPad is not 0.
 *  unknown   all bits X give one 'x', all Z one 'z'; else any X gives one 'X', any Z one 'Z'.
 *  top word  Signed: the value is negative where its top bit or any aval bit above that is set, and
 *            bits above the width are dropped from its magnitude. Otherwise the digits are those of
 *            the whole words, and X or Z bits above the width count.
 *  returns   the first character, which is in general not the start of the text buffer.
 *  scratch   a known value leaves its words' places at the start of tarn_VectorRegister 0. The
 *            value may lie there.
 *  limits    40,000,000 bits; not checked.
 *  source    IEEE 1364-2005, 17.1.1.2 and 17.1.1.3
 *  example   8'sd-5 is "  -5", with zeroPad "-005", with minDigits 0 "-5". */
TARNLIB_API char* tarn_UnsignedConvertToDec(int width, const VectorWord* value, int minDigits,
                                            int zeroPad);
/** @copydoc tarn_UnsignedConvertToDec */
TARNLIB_API char* tarn_SignedConvertToDec(int width, const VectorWord* value, int minDigits,
                                          int zeroPad);

/** The decimal text of a one-bit value given as a LogicCode: as tarn_ConvertToBin0, but a signed 1
 *  (tarn_SignedConvertToDec0) is "-1".
 *  unknown   the code is 0 to 5; any other gives "x".
 *  returns   the start of the text buffer. */
TARNLIB_API char* tarn_UnsignedConvertToDec0(int code);
/** @copydoc tarn_UnsignedConvertToDec0 */
TARNLIB_API char* tarn_SignedConvertToDec0(int code);

/** The value of a vector as a machine integer, for use as a size or count.
 *  widths    bits, at least 1; below 1 the value is 0. The vector comes before its width here.
 *  unknown   X and Z bits count as 0.
 *  top word  Unsigned, and Signed from 32 bits up: word 0 as it is stored. Signed below 32 bits:
 *            the sign is bit width - 1, copied upward. Elsewhere bits above the width are ignored.
 *  writes    to *overflow 1 where a known 1 lies at bit 64 or above, within the width, else 0.
 *  returns   the low 32 bits. Bits 32 to 63 neither reach the result nor raise the flag.
 *  limits    may run in any thread. */
TARNLIB_API unsigned tarn_UnsignedConvertToSizeT(const VectorWord* value, int width,
                                                 int* overflow) TARNLIB_NOEXCEPT;
/** @copydoc tarn_UnsignedConvertToSizeT */
TARNLIB_API int tarn_SignedConvertToSizeT(const VectorWord* value, int width,
                                          int* overflow) TARNLIB_NOEXCEPT;

/** A real under a printf format with exactly one conversion for a double.
 *  returns   the start of the text buffer, which has room for 4096 characters at least.
 *  aliasing  format must not lie in the text buffer.
 *  limits    a format that the C library rejects returns an empty text. */
TARNLIB_API char* tarn_ConvertToStringR(const char* format, double value);

/*------------------------------------------------------------------------------------------------
 * Vectors as characters
 *----------------------------------------------------------------------------------------------*/

/** The low 8 bits of a vector as one character (the display conversion %c).
 *  unknown   X and Z bits read as 0.
 *  returns   the start of the text buffer. A character 0 becomes ' ' where spaceForNul is not 0,
 *            and an empty text otherwise.
 *  source    IEEE 1364-2005, 17.1.1.2 */
TARNLIB_API char* tarn_ConvertToChar(const VectorWord* value, int spaceForNul);

/** A one-bit value as one character: code 1 gives the character of value 1, every other code ' '
 *  where spaceForNul is not 0 and an empty text otherwise.
 *  unknown   the code is 0 to 5.
 *  returns   the start of the text buffer. */
TARNLIB_API char* tarn_ConvertToChar0(int code, int spaceForNul);
/** @copydoc tarn_ConvertToChar0 */
TARNLIB_API char* tarn_ConvertToString0(int code, int spaceForNul);

/** A vector as 8-bit characters, the most significant first (the display conversion %s).
 *  widths    bits, at least 1; a width below 1 returns an empty text.
 *  unknown   X and Z bits read as 0.
 *  top word  the byte that holds the top bit is read whole, bits above the width included.
 *  returns   the first character, which is in general not the start of the text buffer. Characters
 *            0 become ' ' where spaceForNul is not 0 and are left out otherwise.
 *  source    IEEE 1364-2005, 17.1.1.6 */
TARNLIB_API char* tarn_ConvertToString(int width, const VectorWord* value, int spaceForNul);

/*------------------------------------------------------------------------------------------------
 * Digits and characters as vectors
 *----------------------------------------------------------------------------------------------*/

/** A vector from binary, octal or hexadecimal digits without size or base.
 *  widths    bits, at least 1; reading goes from the last digit to the first and stops when the
 *            width is full. Where the digits run out first, x and z in front of all others extend
 *            the value as X and Z, any other digit as zeros. No digit at all gives 0.
 *  unknown   'x' and 'X' give a digit of X bits; 'z', 'Z' and '?' one of Z bits.
 *  top word  clean: the bits above the width are 0.
 *  writes    exactly N(width) words; none for a width below 1.
 *  returns   false.
 *  aliasing  result must not overlap the text.
 *  limits    '_' is skipped wherever it stands. A character that is no digit of the base counts as
 *            0. May run in any thread.
 *  source    IEEE 1364-2005, 3.5.1
 *  example   "x1" in binary at width 8 is 8'bxxxxxxx1. */
TARNLIB_API bool tarn_BinaryStringToVector(int width, VectorWord* result,
                                           const char* digits) TARNLIB_NOEXCEPT;
/** @copydoc tarn_BinaryStringToVector */
TARNLIB_API bool tarn_OctalStringToVector(int width, VectorWord* result,
                                          const char* digits) TARNLIB_NOEXCEPT;
/** @copydoc tarn_BinaryStringToVector */
TARNLIB_API bool tarn_HexStringToVector(int width, VectorWord* result,
                                        const char* digits) TARNLIB_NOEXCEPT;

/** A vector from decimal digits without size or base.
 *  widths    bits, at least 1; the value is taken modulo 2 to the power width.
 *  unknown   a text that begins with 'x' or 'X' gives X in every bit, with 'z', 'Z' or '?' Z in
 *            every bit; what follows is not read.
 *  top word  clean: the bits above the width are 0.
 *  writes    exactly N(width) words; none for a width below 1.
 *  returns   false.
 *  aliasing  result must not overlap the text.
 *  limits    '_' is skipped wherever it stands. A character that is no digit counts as 0. For a
 *            long text working areas are allocated during the call; std::bad_alloc passes through.
 *            May run in any thread.
 *  source    IEEE 1364-2005, 3.5.1
 *  example   "300" at width 8 is 44. */
TARNLIB_API bool tarn_DecimalStringToVector(int width, VectorWord* result, const char* digits);

/** A vector from the characters of a text, 8 bits each, the last one in bits 0 to 7.
 *  widths    bits, at least 1. Of a text of more characters than the words of the result can hold,
 *            the last ones are used; the bits above the width are then cleared.
 *  top word  clean: the bits above the width are 0.
 *  writes    exactly N(width) words; none for a width below 1.
 *  returns   false.
 *  aliasing  result must not overlap the text.
 *  limits    may run in any thread.
 *  source    IEEE 1364-2005, 3.6
 *  example   "abc" at width 24 is 24'h616263, at width 16 it is 16'h6263. */
TARNLIB_API bool tarn_StringToVector(int width, VectorWord* result,
                                     const char* text) TARNLIB_NOEXCEPT;

/** The assignment of a string of `length` characters, NULs included, to a vector, 8 bits each, the
 *  last one in bits 0 to 7.
 *  widths    bits, at least 1. Of a string of more characters than the words of the result can
 *            hold, the last ones are used. length is 0 or more; below 0 it counts as 0. With length
 *            0 text may be null.
 *  top word  clean where the string reached the top word (its bits above the width are cleared) and
 *            where it did not (0).
 *  writes    exactly N(width) words, bval 0; none for a width below 1.
 *  aliasing  result must not overlap the text.
 *  limits    may run in any thread.
 *  source    IEEE 1364-2005, 3.6 */
TARNLIB_API void tarn_AssignStringToVector(int width, VectorWord* result, int length,
                                           const char* text) TARNLIB_NOEXCEPT;

/*------------------------------------------------------------------------------------------------
 * Digits and characters as reals
 *----------------------------------------------------------------------------------------------*/

/** The value of a real literal.
 *  writes    *result: what the C library's strtod makes of the text without its '_' characters. It
 *            skips white space, stops where the number ends, and gives 0.0 where there is none.
 *  limits    the decimal point is that of the program's locale, and hexadecimal reals, infinities
 *            and NaNs are read too. A text that has a '_' is copied; for a long one working areas
 *            are allocated during the call, and std::bad_alloc passes through, *result unchanged.
 *            May run in any thread.
 *  source    IEEE 1364-2005, 3.5.2
 *  example   "1_000.5" gives 1000.5, "3.5xyz" gives 3.5. */
TARNLIB_API void tarn_CreateReal(const char* text, double* result);

/** The assignment of a string of `length` characters, NULs included, to a real: the signed 64-bit
 *  number that tarn_AssignStringToVector makes of it, as tarn_SignedConvertToReal converts it.
 *  writes    *result.
 *  limits    of a longer string the last 8 characters are used. length is 0 or more; below 0 it
 *            counts as 0. With length 0 text may be null. May run in any thread.
 *  source    IEEE 1364-2005, 3.6 and 4.8.2
 *  example   "AB" gives 16706.0; eight characters of value 255 give -1.0. */
TARNLIB_API void tarn_AssignStringToReal(double* result, int length,
                                         const char* text) TARNLIB_NOEXCEPT;

/*------------------------------------------------------------------------------------------------
 * Literals
 *----------------------------------------------------------------------------------------------*/

/** The widest number literal, in bits, and the longest string literal, in characters. */
#define TARN_MAX_LITERAL_WIDTH 10000000
/** @copydoc TARN_MAX_LITERAL_WIDTH */
#define TARN_MAX_LITERAL_CHARACTERS 1250000

/** The vector of a Verilog literal, in storage from the caller's allocation function.
 *
 *  For 8'hFF `sizeText` is "8" and `valueText` "'hFF". Without a size, sizeText is null (or zeros)
 *  and the width is 32, or for base 2, 8 and 16 what the written digits need where that is more. An
 *  unbased fill digit ('0 '1 'x 'z) is one bit wide. A valueText that begins with a double quote is
 *  a string literal, its closing quote included; its backslash escapes are \n, \t, up to three
 *  octal digits, and any other character for itself.
 *  widths    *width receives the width in bits: at most 10,000,000 for a number, 8 bits a character
 *            for a string, at most 1,250,000 characters (an empty string is one NUL).
 *  unknown   digits as in tarn_BinaryStringToVector and tarn_DecimalStringToVector.
 *  top word  clean: the bits above the width are 0.
 *  writes    N(*width) words of new storage, its address to *result. To *truncated (where not null)
 *            1 where a string or a decimal value was cut, or where characters in front of the bits
 *            that fill the width were left unread, zeros and underscores included; else 0.
 *  returns   true for a signed number: a plain decimal number, or one with s before the base.
 *  limits    `allocate` is called once, with N(*width) * 8 bytes; what it returns is the caller's,
 *            and is not null. No literal is rejected. For a long text working areas are allocated
 *            during the call; std::bad_alloc passes through, and *result, where it was stored by
 *            then, has no value yet. May run in any thread.
 *  source    IEEE 1364-2005, 3.5.1 and 3.6
 *  example   "4" and "'b10101" give 4'b0101 and *truncated 1. */
TARNLIB_API bool tarn_CreateVector(const char* sizeText, const char* valueText, int* width,
                                   VectorWord** result, void* (*allocate)(uint64_t byteCount),
                                   unsigned char* truncated);

TARNLIB_END_C

#endif
