/* module memory */
#include <stddef.h>

#include "design.h"

VectorWord memory_q[2] = {X_BITS(0xffffffff), X_BITS(0xffff)};
VectorWord memory_pair[1] = {X_BITS(0xffff)};

/* reg [47:0] words [0:15]: the words lie packed, six bytes of aval and six of bval each. */
enum { WORD_BYTES = 2 * 6 };
static uint8_t memory_words[16 * WORD_BYTES];

/* Where the waiting updates write, and what. Both were fixed when the assignment was met. */
static uint8_t* next_word_target;
static VectorWord next_word[2];
static uint8_t* next_byte_target;
static int next_byte_index;
static VectorWord next_byte[1];

/* A memory begins with X in every bit. */
void memory_start(void) {
    VectorWord unknown[2];
    tarn_CleanBasedFillX(unknown, 48, 0);
    for (int i = 0; i < 16; ++i) {
        tarn_MemoryWordAssign(48, &memory_words[i * WORD_BYTES], unknown);
    }
}

/* words[address], where the port is connected to count[3:0]; null where an X or Z bit leaves open
 * which word is meant. Every known address of four bits has its word. */
static uint8_t* addressed_word(void) {
    VectorWord address[1];
    tarn_Partselect(address, counter_count, 0, 4);
    if (!tarn_UnsignedScanIndexOfSelect(4, address)) return NULL;
    return &memory_words[address[0].aval * WORD_BYTES];
}

/* 8*lane, an index of at most 56: three known bits are a machine integer. */
static int has_lane_index(int* index) {
    if (!tarn_UnsignedScanIndexOfSelect(3, memory_lane)) return 0;
    *index = 8 * (int)memory_lane[0].aval;
    return 1;
}

/* assign q = words[address]; */
void memory_q_assign(void) {
    VectorWord value[2];
    const uint8_t* word = addressed_word();
    if (word != NULL) {
        tarn_UnsignedCopyMemoryValue(48, value, 48, word, -48 & 31);
    } else {
        tarn_CleanBasedFillX(value, 48, 0);
    }
    AssignVector(48, memory_q, value, Q_READERS);
}

/* assign pair = words[address][8*lane +: 16];
 *
 * No process waits for pair: it is written without asking whether it changes. */
void memory_pair_assign(void) {
    int index;
    const uint8_t* word = addressed_word();
    if (word != NULL && has_lane_index(&index)) {
        tarn_MemoryWordIndexedPartselect(memory_pair, 48, word, index, 16);
    } else {
        tarn_CleanBasedFillX(memory_pair, 16, 0);
    }
}

/* always @(posedge clk)
 *     if (write) words[address] <= data;
 *     else if (write_byte) words[address][8*lane +: 8] <= data[7:0];
 *
 * The port data is connected to y[47:0]. An unknown index writes nothing. */
void memory_posedge(void) {
    if (memory_write == TARN_LOGIC_1) {
        next_word_target = addressed_word();
        tarn_Partselect(next_word, alu_y, 0, 48);
        if (next_word_target != NULL) Schedule(MEMORY_WORD);
    } else if (memory_write_byte == TARN_LOGIC_1) {
        next_byte_target = addressed_word();
        tarn_Partselect(next_byte, alu_y, 0, 8);
        if (next_byte_target != NULL && has_lane_index(&next_byte_index)) Schedule(MEMORY_BYTE);
    }
}

/* Spare bits of a memory word take what the value has above its width: it must be clean. */
void memory_word_update(void) {
    if (tarn_NotIdenticalMemoryWordAssign(48, next_word_target, next_word)) Wake(WORDS_READERS);
}

/* Of a byte beyond the word nothing is written, and then nothing has changed. */
void memory_byte_update(void) {
    if (tarn_NotIdenticalMemoryWordIndexedPartselectAssign(48, next_byte_target, next_byte,
                                                           next_byte_index, 8)) {
        Wake(WORDS_READERS);
    }
}
