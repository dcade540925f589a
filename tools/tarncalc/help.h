// What --help prints.
#ifndef TARNCALC_HELP_H
#define TARNCALC_HELP_H

#include <string_view>

namespace tarncalc {

inline constexpr std::string_view kHelp =
    R"help(Usage: tarncalc [OPTION]... [EXPRESSION]...
Calculate with Verilog values: vectors of any width, of bits 0, 1, x and z.

Each EXPRESSION is an argument of its own, so quote it for the shell. Its value
is printed on a line of its own, as a literal. Without arguments, expressions
are read from standard input, one a line; on a terminal with line editing and
history, until Ctrl-D.

  tarncalc "8'hFF + 8'h01"          8'h00
  tarncalc "9'hFF + 8'h01"          9'h100
  tarncalc -d "-8'sd5"              -8'sd5
  tarncalc -d "7 - 2*(4 + 1)"       -32'sd3
  tarncalc "4'b1x0z + 1"            32'hxxxxxxxx
  tarncalc "8'hFF & 4'b1x0z"        8'b00001x0x

Options hold for all expressions; of several bases the last one counts:
  -x           print in hexadecimal (the default)
  -d           print in decimal
  -o           print in octal
  -b           print in binary
  -h, --help   print this text and stop
  --version    print the version and stop
  --           the arguments after it are expressions, whatever they look like
An argument such as -5 or "-8'd1" is no option but an expression.

Operands:
  8'hFF 12'o777 4'b1x0z 16'd500
               width in bits, quote, base (h, o, b or d), digits: unsigned
  8'shFF       with s in front of the base: signed
  500          a plain decimal number: 32 bits, signed
  'hFF 'sd500  without a width: 32 bits, or more where h, o or b digits need it
  '0 '1 'x 'z  one bit, unsigned; it does not fill the width of its context
  "abc"        8 bits a character, unsigned; \n \t \\ \" and octal \101 are
               single characters
Underscores may divide digits. x and z (or ?) are digits too, in decimal only
alone. Spaces may stand before the quote and after the base. A width is at most
10000000.

Operators, the tightest first; those of one line group from the left, but ?:
from the right:
  + - ! ~ & ~& | ~| ^ ~^ ^~
               with one operand: sign; "is 0"; each bit inverted; AND, OR, XOR
               of all bits, and their inverses: -2**2 is (-2)**2
  **           power
  * / %        product, quotient (cut toward zero), remainder (signed as the
               dividend)
  + -          sum, difference
  << >> <<< >>>
               shifts; >>> moves in copies of the top bit if the result is
               signed, the others zeros
  < <= > >=    order
  == != === !== ==? !=?
               equality; === compares x and z like other bits; for ==? an x or z
               of the right operand matches anything
  &            AND of each pair of bits
  ^ ~^ ^~      exclusive OR and its inverse
  |            OR
  &&           "neither is 0"
  ||           "one is not 0"
  ?:           1 ? 2 : 3 is 2; an unknown condition gives the bits on which both
               agree, and x for the others
Parentheses group as usual.

Widths and signs follow IEEE 1364. The result of + - * / % & ^ ~^ | and ?: is as
wide as the widest operand, and unsigned if any operand is. All operands are
extended to that width before anything is calculated: by their top bit if the
result is signed, else by zeros. Upper bits that the width can't hold are lost.
Exponents, amounts of shifts and the condition of ?: stand aside: they keep
their own width and sign, and those of the result don't depend on them. An
amount is never negative. Comparisons, && || ! and the operators that take all
bits of one operand give one unsigned bit. The operands of a comparison are
extended to the wider one, and compared as signed if both are, whatever stands
around it; those of the others keep their own width.

  tarncalc -d "2 ** 40"             32'sd0
  tarncalc -d "64'd2 ** 40"         64'd1099511627776
  tarncalc -d "-7 / 2"              -32'sd3
  tarncalc -d "8'd200 * 2 / 4"      32'd100
  tarncalc "~4'h5 & 8'hff"          8'hfa
  tarncalc "-8'sd1 < 8'sd1"         1'h1
  tarncalc "8'sh80 >>> 3"           8'shf0

An x or z in an operand of + - * / % ** makes the result x in every bit; so does
division by zero, and a negative power of zero. Other negative powers are 0,
except those of 1 and -1. Order with an x or z is x, equality with one is x
unless other bits differ. An unknown amount makes a shift x in every bit. For
the other operators each bit counts by itself:

  tarncalc -b "4'b0011 & 4'b01xz"   4'b00xx
  tarncalc -b "4'b10x0 == 4'b1001"  1'b0

A result, given back as an expression, has the same value. So a negative number
in decimal has its minus in front of the literal; and where an octal, decimal
or hexadecimal digit can't tell which bits are x or z, the value is printed in
binary, whatever base was chosen:

  tarncalc "8'b0000x000"            8'b0000x000
  tarncalc -d "8'hx1"               8'bxxxx0001

Errors are shown on standard error with a caret under the place; the other
expressions are still calculated. There is a warning for each literal that
loses upper bits because its width is too small for its digits. An expression
that needs too much storage, or a power that would take minutes, is an error.

Exit status: 0 if all went well, 1 if reading or writing failed, 2 if an option
or an expression was wrong.
)help";

}  // namespace tarncalc

#endif
