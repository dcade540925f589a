/* What the inline forms of tarnlib/inline.h have in common. */
#ifndef TARNLIB_INLINE_FORM_H
#define TARNLIB_INLINE_FORM_H

/* Whether the compiler knows a number, or the forms are to ask for it while the program runs. */
#if defined(TARNLIB_INLINE_ANY_WIDTH)
#define TARN_IS_KNOWN(number) 1
#else
#define TARN_IS_KNOWN(number) __builtin_constant_p(number)
#endif

/* Widths joined by | are all 1 to 64 where TARN_BELOW of each, joined the same way, is below 64. */
#define TARN_BELOW(width) (TARN_CAST(unsigned, width) - 1U)
#define TARN_IS_NARROW(below) (TARN_IS_KNOWN(below) && (below) < 64U)

#endif
