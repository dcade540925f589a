/* What generated code has besides the library: who runs when, and a few short forms.
 *
 * A process is an `always` block or a continuous assignment: a function that is called when a
 * signal that it reads has changed. Whoever changes a signal wakes its readers. An update is the
 * second half of a non-blocking assignment: a function that stores, once no process is awake any
 * more, the value that the first half computed.
 *
 * The compiler numbers the processes of a design so that the reader of a signal comes after its
 * writer: then one round through them in this order settles whatever the testbench or an update
 * has changed. */
#ifndef RUNTIME_H
#define RUNTIME_H

#include <stdint.h>
#include <stdio.h>

#include <tarnlib.h>

/* Processes or updates, a bit each. */
typedef uint32_t Set;
#define MEMBER(number) (UINT32_C(1) << (number))

extern Set awakeProcesses;
extern Set scheduledUpdates;

static inline void Wake(Set readers) {
    awakeProcesses |= readers;
}

static inline void Schedule(int update) {
    scheduledUpdates |= MEMBER(update);
}

/* Runs processes and updates until none is left: what happens between two points of time. */
void Settle(void);

/* A word in which the bits of `mask` are X, and the others 0. */
#define X_BITS(mask) \
    { (mask), (mask) }

/* A signal of one bit is no vector but its LogicCode. */
static inline void AssignBit(LogicCode* signal, LogicCode value, Set readers) {
    if (*signal != value) Wake(readers);
    *signal = value;
}

/* Stores the low `width` bits of a value in an unsigned signal, and wakes its readers where that
 * changes a bit. Above its width a result of the library may have any bits; the signal keeps the
 * zeros that it has there. */
static inline void AssignVector(int width, VectorWord* signal, const VectorWord* value,
                                Set readers) {
    if (tarn_NotIdenticalPartselectAssign(signal, value, 0, width)) Wake(readers);
}

/* From 0 to anything else, or from X or Z to 1. */
static inline int IsPosedge(LogicCode before, LogicCode after) {
    return before != after && (before == TARN_LOGIC_0 || after == TARN_LOGIC_1);
}

/* One piece of a display: the characters in front of a conversion, and its text. A text of the
 * library lasts until the next call for one, so it is printed at once. */
static inline void Print(const char* characters, const char* text) {
    fputs(characters, stdout);
    fputs(text, stdout);
}

#endif
