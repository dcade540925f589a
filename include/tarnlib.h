/** @file
 *  tarnlib: operations on four-state logic vectors.
 *
 *  The run-time support that compiled Verilog (IEEE 1364) calls for the values that a machine word
 *  can't hold: vectors of any width whose bits are 0, 1, Z or X, read as signed or unsigned.
 *
 *  Everything here is plain C, usable from C11 and from C++, and works on storage that the caller
 *  owns. In short:
 *
 *  - A vector is an array of VectorWord, least significant first, and a width in bits that travels
 *    beside it. A vector of width w >= 1 occupies N(w) = ((w - 1) >> 5) + 1 words.
 *  - Functions that write a vector take their arguments result first: result width, result address,
 *    then each operand's width and address.
 *  - The bits of the top word above the width hold the extension of the value: zeros for an
 *    unsigned vector (clean storage), copies of the top bit, of aval and of bval each for itself,
 *    for a signed one (signed storage). Arithmetic and copies rely on it and do not restore it in
 *    their results; the caller does, where a result goes on as an operand. Other bits there are a
 *    broken duty only where a comment requires clean or signed storage; elsewhere they are what
 *    "top word" says.
 *  - An address is never null, unless a comment says that it may be, and is aligned as its type
 *    asks: a vector's to 4 bytes, a memory word's to any. The address of a vector without words, of
 *    a width below 1, is not used.
 *  - No function reports an error. What can't be computed is all X: every word of the result has
 *    aval = bval = 0xFFFFFFFF, the bits above the width included.
 *  - The library is not re-entrant: the scratch registers and the text buffer are single objects.
 *    All calls come from one thread, but for the functions whose comment says otherwise.
 *
 *  Each comment uses the same labels in the same order: widths, unknown, top word, writes, returns,
 *  aliasing, scratch, limits, source, example; those that don't apply are left out. What a comment
 *  requires of the caller is not tested, except in a build configured with TARNLIB_CHECKED, which
 *  names the broken duty on the standard error output and aborts. Where a comment says what becomes
 *  of an argument outside its range, such as a width below 1 where at least 1 is required, that
 *  holds in the normal build; the checked build reports it.
 *
 *  Family headers: tarnlib/vector.h (the vector, copies and conversions, exported data),
 *  tarnlib/arith.h, tarnlib/logic.h, tarnlib/compare.h, tarnlib/select.h, tarnlib/assign.h,
 *  tarnlib/memory.h, tarnlib/shift.h, tarnlib/real.h, tarnlib/text.h. Each can be included on its
 *  own. */
#ifndef TARNLIB_H
#define TARNLIB_H

#include <tarnlib/arith.h>
#include <tarnlib/assign.h>
#include <tarnlib/compare.h>
#include <tarnlib/logic.h>
#include <tarnlib/memory.h>
#include <tarnlib/real.h>
#include <tarnlib/select.h>
#include <tarnlib/shift.h>
#include <tarnlib/text.h>
#include <tarnlib/vector.h>
#include <tarnlib/version.h>

#endif
