/* The inline forms of memory words of up to 64 bits. */
#ifndef TARNLIB_INLINE_FORM_MEMORY_H
#define TARNLIB_INLINE_FORM_MEMORY_H

#include <tarnlib/inline/form.h>
#include <tarnlib/inline/form_select.h>
#include <tarnlib/memory.h>

/* The number of spare bits follows from the width. */
#define TARN_UNPACK_FORM(form, function, load)                                     \
    TARN_INLINE void form(int resultWidth, VectorWord* result, int memoryWidth,    \
                          const uint8_t* memory, int spareBits) TARNLIB_NOEXCEPT { \
        if (TARN_IS_NARROW(TARN_BELOW(resultWidth) | TARN_BELOW(memoryWidth))) {   \
            tarn_V64Store(resultWidth, result, load(memoryWidth, memory));         \
        } else {                                                                   \
            function(resultWidth, result, memoryWidth, memory, spareBits);         \
        }                                                                          \
    }

TARN_UNPACK_FORM(tarn_InlineUnsignedCopyMemoryValue, tarn_UnsignedCopyMemoryValue,
                 tarn_V64UnsignedLoadMemory)
TARN_UNPACK_FORM(tarn_InlineSignedCopyMemoryValue, tarn_SignedCopyMemoryValue,
                 tarn_V64SignedLoadMemory)

TARN_INLINE void tarn_InlineMemoryWordAssign(int memoryWidth, uint8_t* memory,
                                             const VectorWord* value) TARNLIB_NOEXCEPT {
    if (TARN_IS_NARROW(TARN_BELOW(memoryWidth))) {
        tarn_V64StoreMemory(memoryWidth, memory, tarn_V64UnsignedLoad(memoryWidth, value));
    } else {
        tarn_MemoryWordAssign(memoryWidth, memory, value);
    }
}

TARN_INLINE int tarn_InlineNotIdenticalMemoryWordAssign(int memoryWidth, uint8_t* memory,
                                                        const VectorWord* value) TARNLIB_NOEXCEPT {
    return TARN_IS_NARROW(TARN_BELOW(memoryWidth))
               ? tarn_V64StoreMemory(memoryWidth, memory, tarn_V64UnsignedLoad(memoryWidth, value))
               : tarn_NotIdenticalMemoryWordAssign(memoryWidth, memory, value);
}

/* A field that is not all inside its memory word is rare, and left to the export. */
#define TARN_IS_INNER_FIELD(memoryWidth, low, width)                \
    (TARN_IS_NARROW(TARN_BELOW(memoryWidth) | TARN_BELOW(width)) && \
     tarn_LiesInside(memoryWidth, low, width))

/* The register holds the memory word afterwards. */
#define TARN_READ_MEMORY_FORM(form, function)                                                  \
    TARN_INLINE void form(VectorWord* result, int memoryWidth, const uint8_t* memory, int low, \
                          int width) TARNLIB_NOEXCEPT {                                        \
        if (TARN_IS_INNER_FIELD(memoryWidth, low, width)) {                                    \
            const tarn_V64 word = tarn_V64UnsignedLoadMemory(memoryWidth, memory);             \
            tarn_V64Store(memoryWidth, tarn_VectorRegister, word);                             \
            tarn_V64Store(width, result, tarn_V64Partselect(word, low, width));                \
        } else {                                                                               \
            function(result, memoryWidth, memory, low, width);                                 \
        }                                                                                      \
    }

TARN_READ_MEMORY_FORM(tarn_InlineMemoryWordPartselect, tarn_MemoryWordPartselect)
TARN_READ_MEMORY_FORM(tarn_InlineMemoryWordIndexedPartselect, tarn_MemoryWordIndexedPartselect)

/* The memory word with a field written into it, its spare bits 0. */
TARN_INLINE tarn_V64 tarn_MemoryWordWith(int memoryWidth, const uint8_t* memory,
                                         const VectorWord* value, int low,
                                         int width) TARNLIB_NOEXCEPT {
    return tarn_V64PartselectAssign(tarn_V64UnsignedLoadMemory(memoryWidth, memory),
                                    tarn_V64UnsignedLoad(width, value), low, width);
}

/* Returns whether a byte changed. Word1 is for memory words of up to 32 bits. */
TARN_INLINE int tarn_AssignMemoryWord(int memoryWidth, uint8_t* memory, const VectorWord* value,
                                      int low, int width) TARNLIB_NOEXCEPT {
    const tarn_V64 word = tarn_MemoryWordWith(memoryWidth, memory, value, low, width);
    tarn_V64Store(memoryWidth, tarn_VectorRegister, word);
    return tarn_V64StoreMemory(memoryWidth, memory, word);
}

TARN_INLINE int tarn_AssignMemoryWord1(int memoryWidth, uint8_t* memory, const VectorWord* value,
                                       int low, int width) TARNLIB_NOEXCEPT {
    return tarn_V64StoreMemory(memoryWidth, memory,
                               tarn_MemoryWordWith(memoryWidth, memory, value, low, width));
}

#define TARN_WRITE_MEMORY_FORM(form, function, assign, widest)                                \
    TARN_INLINE void form(int memoryWidth, uint8_t* memory, const VectorWord* value, int low, \
                          int width) TARNLIB_NOEXCEPT {                                       \
        if (TARN_IS_INNER_FIELD(memoryWidth, low, width) && memoryWidth <= (widest)) {        \
            assign(memoryWidth, memory, value, low, width);                                   \
        } else {                                                                              \
            function(memoryWidth, memory, value, low, width);                                 \
        }                                                                                     \
    }

#define TARN_CHANGE_MEMORY_FORM(form, function, assign, widest)                              \
    TARN_INLINE int form(int memoryWidth, uint8_t* memory, const VectorWord* value, int low, \
                         int width) TARNLIB_NOEXCEPT {                                       \
        return TARN_IS_INNER_FIELD(memoryWidth, low, width) && memoryWidth <= (widest)       \
                   ? assign(memoryWidth, memory, value, low, width)                          \
                   : function(memoryWidth, memory, value, low, width);                       \
    }

TARN_WRITE_MEMORY_FORM(tarn_InlineMemoryWordPartselectAssign, tarn_MemoryWordPartselectAssign,
                       tarn_AssignMemoryWord, 64)
TARN_WRITE_MEMORY_FORM(tarn_InlineMemoryWordIndexedPartselectAssign,
                       tarn_MemoryWordIndexedPartselectAssign, tarn_AssignMemoryWord, 64)
TARN_CHANGE_MEMORY_FORM(tarn_InlineNotIdenticalMemoryWordPartselectAssign,
                        tarn_NotIdenticalMemoryWordPartselectAssign, tarn_AssignMemoryWord, 64)
TARN_CHANGE_MEMORY_FORM(tarn_InlineNotIdenticalMemoryWordIndexedPartselectAssign,
                        tarn_NotIdenticalMemoryWordIndexedPartselectAssign, tarn_AssignMemoryWord,
                        64)
TARN_WRITE_MEMORY_FORM(tarn_InlineMemoryWordPartselectAssign1, tarn_MemoryWordPartselectAssign1,
                       tarn_AssignMemoryWord1, 32)
TARN_WRITE_MEMORY_FORM(tarn_InlineMemoryWordIndexedPartselectAssign1,
                       tarn_MemoryWordIndexedPartselectAssign1, tarn_AssignMemoryWord1, 32)
TARN_CHANGE_MEMORY_FORM(tarn_InlineNotIdenticalMemoryWordPartselectAssign1,
                        tarn_NotIdenticalMemoryWordPartselectAssign1, tarn_AssignMemoryWord1, 32)
TARN_CHANGE_MEMORY_FORM(tarn_InlineNotIdenticalMemoryWordIndexedPartselectAssign1,
                        tarn_NotIdenticalMemoryWordIndexedPartselectAssign1, tarn_AssignMemoryWord1,
                        32)

#endif
