/* What generated code does to a result that is to be an operand. */
#ifndef GUIDE_TOP_WORD_H
#define GUIDE_TOP_WORD_H

#include <tarnlib/vector.h>

//! [top word]
/* Clean storage, for an unsigned vector: zeros above the width. */
static inline void ClearAbove(int width, VectorWord* v) {
    VectorWord* top = &v[(width - 1) >> 5];
    uint32_t mask = 0xffffffffu >> (-width & 31);
    top->aval &= mask;
    top->bval &= mask;
}

/* Signed storage, for a signed vector: the top bit above the width, of aval and of bval. */
static inline void ExtendAbove(int width, VectorWord* v) {
    VectorWord* top = &v[(width - 1) >> 5];
    int above = -width & 31;
    top->aval = (uint32_t)((int32_t)(top->aval << above) >> above);
    top->bval = (uint32_t)((int32_t)(top->bval << above) >> above);
}
//! [top word]

#endif
