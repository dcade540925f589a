// What --help prints.
#ifndef TARNCALC_HELP_H
#define TARNCALC_HELP_H

#include <string_view>

namespace tarncalc {

inline constexpr std::string_view kHelp =
    R"help(Usage: tarncalc [OPTION]... [STATEMENT | -f FILE]...
Calculate with Verilog values: vectors of any width, of bits 0, 1, x and z, and
reals.

Each STATEMENT is an argument of its own, so quote it for the shell. The value
of an expression is printed on a line of its own, as a literal. Without
statements and files, statements are read from standard input; on a terminal
with line editing and history, until Ctrl-D.

  tarncalc "8'hFF + 8'h01"          8'h00
  tarncalc "9'hFF + 8'h01"          9'h100
  tarncalc -d "-8'sd5"              -8'sd5
  tarncalc -d "7 - 2*(4 + 1)"       -32'sd3
  tarncalc "4'b1x0z + 1"            32'hxxxxxxxx
  tarncalc "8'hFF & 4'b1x0z"        8'b00001x0x

Options hold for all statements; of several bases the last one counts:
  -x           print in hexadecimal (the default)
  -d           print in decimal
  -o           print in octal
  -b           print in binary
  -f FILE      run the statements of a file, in its turn; variables live on
  -h, --help   print this text and stop
  --version    print the version and stop
  --           the arguments after it are statements, whatever they look like
An argument such as -5 or "-8'd1" is no option but an expression; one such as
-a is taken for an option, so write "(-a)".

Statements end at a semicolon or at the end of a line. A line's end is a blank
inside ( ) [ ] { }, between ? and :, and where an operand or a name must follow,
as it must behind an operator, a comma or an equals sign; on a terminal the
prompt is "..." then. // begins a comment up to the end of the line; /* and */
enclose one.
  EXPRESSION   prints its value
  reg [7:0] a, b = 5
               declares vectors, of any bounds: [7:0] [0:7] [-1:-8]; without
               bounds a single bit; with signed behind reg, signed ones. An
               initial value is assigned to each where it stands.
  integer i    declares a signed vector of 32 bits, [31:0]
  real r = 1.5 declares a real
  reg [7:0] m [0:255], integer n [1:4]
               declare memories of 256 and 4 words
  a = 5, a[3] = 1, m[7][3:0] = 2, {a, b[1:0]} = 3
               assign: the right side is calculated with the bits of the left
               one where those are more than its own, then cut to them; a real
               is rounded, halves away from zero; all indices are taken before
               anything is assigned
  $display("%d and %h", a, b), $write(a, " ", b)
               write text, with and without a new line; see below
Every bit of a variable is x until it is assigned, a real is 0. All variables
together can have 2000000000 bits, words of memories counting as whole bytes.

  tarncalc "reg [7:0] a = 9'h1f0; a"  8'hf0
  tarncalc "reg [7:0] a = 5; a[6:4] = 3; {a, a[5:4]}"  10'h0d7

Operands:
  8'hFF 12'o777 4'b1x0z 16'd500
               width in bits, quote, base (h, o, b or d), digits: unsigned
  8'shFF       with s in front of the base: signed
  500          a plain decimal number: 32 bits, signed
  'hFF 'sd500  without a width: 32 bits, or more where h, o or b digits need it
  '0 '1 'x 'z  one bit, unsigned; it does not fill the width of its context
  1.5 2.5e-3   a real, with digits on both sides of the point
  "abc"        8 bits a character, unsigned; \n \t \\ \" and octal \101 are
               single characters
  a m[3]       a variable, a word of a memory (as signed as its declaration)
  a[i] a[6:4] a[i +: 2] a[i -: 2] m[3][i]
               bits of them: a single one, those between constant bounds, two
               from i upward, two from i downward, a bit of a word: unsigned.
               Bits outside the declared bounds are x, and all are where i has x
               or z bits; what is assigned to such bits is lost.
  {a, 4'd2}    the bits of all, the first on top, unsigned
  {4{a}}       the same four times; the number is a constant
  $clog2(a)    a function: $signed $unsigned $clog2 $rtoi $itor $realtobits
               $bitstoreal $ln $log10 $exp $sqrt $pow $floor $ceil $sin $cos
               $tan $asin $acos $atan $atan2 $hypot $sinh $cosh $tanh $asinh
               $acosh $atanh; arguments determine their own size
Underscores may divide digits. x and z (or ?) are digits too, in decimal only
alone. Spaces may stand before the quote and after the base. No value is wider
than 10000000 bits.

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

Reals are allowed with + - * / ** < <= > >= == != ! && || and ?:, and make the
result of the first five and of ?: real. A vector beside a real is calculated by
itself, then converted; its x and z bits count as 0.

$display and $write write strings as they are and values in decimal, reals with
six digits; an argument that is left out is a space. $displayb, $displayo and
$displayh, and $write likewise, write vectors in another base. In a string
  %d           is the next argument in decimal, right-aligned in a field for any
               value of its type; %0d takes as little room as it needs, %8d at
               least eight characters, %08d the same filled with zeros
  %b %o %h %x  are all its digits; %0b as few as it needs, %8b at least eight
  %c %s        are its low 8 bits, and all its bits, as characters; %s has a
               blank for each zero, %0s and %8s leave them out
  %t           is like %20d
  %e %f %g     are those of C, %10.3f too; vectors are converted
  %%           is a percent sign
A digit or number only some of whose bits are x or z is X or Z. So
$display("[%d][%0d][%h]", 8'd5, -1, 8'bx1) writes [  5][-1][xX].

  tarncalc -d "7 / 2 + 0.5"         3.5

A result, given back as an expression, has the same value. So a negative number
in decimal has its minus in front of the literal; and where an octal, decimal
or hexadecimal digit can't tell which bits are x or z, the value is printed in
binary, whatever base was chosen; a real has as many digits as it takes, and
"inf" and "nan" can't be given back:

  tarncalc "8'b0000x000"            8'b0000x000
  tarncalc -d "8'hx1"               8'bxxxx0001

Errors are shown on standard error with a caret under the place, those of a file
with its name, line and column; the other statements are still carried out.
Where the text of a statement is wrong, what follows it up to a semicolon or the
end of the line is skipped. There is a warning for each literal that loses upper
bits because its width is too small for its digits. A statement that needs too
much storage, or a power that would take minutes, is an error, and so are more
than 1000 brackets inside each other and more than 1000000 operators and
operands in an expression.

Exit status: 0 if all went well, 1 if reading or writing failed, 2 if an option
or a statement was wrong.
)help";

}  // namespace tarncalc

#endif
