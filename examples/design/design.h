/* The elaborated design: its signals, its processes in their order, and who reads what.
 *
 * Signals are called instance_name. Vectors of unsigned signals are kept clean (0 above the width),
 * those of signed ones in signed storage (the top bit repeated above it). */
#ifndef DESIGN_H
#define DESIGN_H

#include "runtime.h"

extern LogicCode testbench_clk, testbench_reset, testbench_enable; /* reg clk, reset, enable */
extern LogicCode testbench_use_word, testbench_write, testbench_write_byte;
extern VectorWord testbench_op[1];      /* reg [3:0] op */
extern VectorWord testbench_lane[1];    /* reg [2:0] lane */
extern VectorWord testbench_a[3];       /* reg [79:0] a */
extern VectorWord testbench_b[3];       /* reg [79:0] b */
extern VectorWord testbench_operand[3]; /* wire [79:0] operand */

extern VectorWord counter_count[2]; /* output reg [39:0] count */
extern LogicCode counter_full;      /* output full */

extern VectorWord alu_y[3];          /* output reg [79:0] y */
extern LogicCode alu_less, alu_zero; /* output less, zero */

extern VectorWord memory_q[2];    /* output [47:0] q */
extern VectorWord memory_pair[1]; /* output [15:0] pair */

/* A port is the signal that it is connected to. */
#define counter_reset testbench_reset
#define counter_enable testbench_enable
#define alu_op testbench_op
#define alu_a testbench_a
#define alu_b testbench_operand
#define memory_write testbench_write
#define memory_write_byte testbench_write_byte
#define memory_lane testbench_lane

enum Process {
    COUNTER_POSEDGE,
    MEMORY_POSEDGE,
    COUNTER_FULL,
    MEMORY_Q,
    MEMORY_PAIR,
    TESTBENCH_OPERAND,
    ALU_LEFT,
    ALU_RIGHT,
    ALU_LESS,
    ALU_Y,
    ALU_ZERO,
    PROCESSES
};

enum Update { COUNTER_COUNT, MEMORY_WORD, MEMORY_BYTE, UPDATES };

#define POSEDGE_CLK_READERS (MEMBER(COUNTER_POSEDGE) | MEMBER(MEMORY_POSEDGE))
#define USE_WORD_READERS MEMBER(TESTBENCH_OPERAND)
#define OP_READERS MEMBER(ALU_Y)
#define LANE_READERS MEMBER(MEMORY_PAIR)
#define A_READERS (MEMBER(ALU_LEFT) | MEMBER(ALU_Y))
#define B_READERS MEMBER(TESTBENCH_OPERAND)
#define OPERAND_READERS (MEMBER(ALU_RIGHT) | MEMBER(ALU_Y))
#define COUNT_READERS (MEMBER(COUNTER_FULL) | MEMBER(MEMORY_Q) | MEMBER(MEMORY_PAIR))
#define WORDS_READERS (MEMBER(MEMORY_Q) | MEMBER(MEMORY_PAIR))
#define Q_READERS MEMBER(TESTBENCH_OPERAND)
#define LEFT_READERS (MEMBER(ALU_LESS) | MEMBER(ALU_Y))
#define RIGHT_READERS MEMBER(ALU_LESS)
#define LESS_READERS MEMBER(ALU_Y)
#define Y_READERS MEMBER(ALU_ZERO)

void counter_posedge(void);
void counter_full_assign(void);
void counter_count_update(void);

void alu_left_assign(void);
void alu_right_assign(void);
void alu_less_assign(void);
void alu_y_always(void);
void alu_zero_assign(void);

void memory_start(void);
void memory_posedge(void);
void memory_q_assign(void);
void memory_pair_assign(void);
void memory_word_update(void);
void memory_byte_update(void);

void testbench_start(void);
void testbench_operand_assign(void);
void testbench_initial(void);

#endif
