/* Runs the elaborated design: its processes and updates by their numbers, and the whole program. */
#include "design.h"

typedef void Action(void);

static Action* const kProcesses[PROCESSES] = {
    [COUNTER_POSEDGE] = counter_posedge,  [MEMORY_POSEDGE] = memory_posedge,
    [COUNTER_FULL] = counter_full_assign, [MEMORY_Q] = memory_q_assign,
    [MEMORY_PAIR] = memory_pair_assign,   [TESTBENCH_OPERAND] = testbench_operand_assign,
    [ALU_LEFT] = alu_left_assign,         [ALU_RIGHT] = alu_right_assign,
    [ALU_LESS] = alu_less_assign,         [ALU_Y] = alu_y_always,
    [ALU_ZERO] = alu_zero_assign,
};

static Action* const kUpdates[UPDATES] = {
    [COUNTER_COUNT] = counter_count_update,
    [MEMORY_WORD] = memory_word_update,
    [MEMORY_BYTE] = memory_byte_update,
};

Set awakeProcesses;
Set scheduledUpdates;

static void RunRound(Set* waiting, Action* const* actions, int count) {
    for (int i = 0; i < count; ++i) {
        if ((*waiting & MEMBER(i)) == 0) continue;
        *waiting &= ~MEMBER(i);
        actions[i]();
    }
}

/* Updates wait until no process is awake: whoever runs before them still reads the old values. */
void Settle(void) {
    while (awakeProcesses != 0 || scheduledUpdates != 0) {
        if (awakeProcesses != 0) {
            RunRound(&awakeProcesses, kProcesses, PROCESSES);
        } else {
            RunRound(&scheduledUpdates, kUpdates, UPDATES);
        }
    }
}

int main(void) {
    memory_start();
    testbench_start();
    /* Continuous assignments run at the start; always blocks wait for a change. */
    Wake((MEMBER(PROCESSES) - 1) & ~(POSEDGE_CLK_READERS | MEMBER(ALU_Y)));
    testbench_initial();
    return 0;
}
