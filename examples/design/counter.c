/* module counter, WIDTH = 40, START = 40'hff_ffff_fffd */
#include "design.h"

VectorWord counter_count[2] = {X_BITS(0xffffffff), X_BITS(0xff)};
LogicCode counter_full = TARN_LOGIC_X;

/* A constant that the compiler knows needs no call: it is there as words. */
static const VectorWord kStart[2] = {{0xfffffffd, 0}, {0xff, 0}};

/* The value that waits for its update. */
static VectorWord next_count[2];

/* assign full = &count; */
void counter_full_assign(void) {
    counter_full = tarn_ReductionAND(40, counter_count);
}

/* always @(posedge clk)
 *     if (reset) count <= START;
 *     else if (enable) count <= count + 1; */
void counter_posedge(void) {
    if (counter_reset == TARN_LOGIC_1) {
        tarn_UnsignedCopy(40, next_count, 40, kStart);
        Schedule(COUNTER_COUNT);
    } else if (counter_enable == TARN_LOGIC_1) {
        tarn_UnsignedCopy(40, next_count, 40, counter_count);
        tarn_Inc(40, next_count);
        Schedule(COUNTER_COUNT);
    }
}

/* A carry out of bit 39 stands above the value now, and is left behind. */
void counter_count_update(void) {
    AssignVector(40, counter_count, next_count, COUNT_READERS);
}
