// Exports: memory words.
#include <tarnlib/memory.h>

#include "core/contract.h"
#include "select/memory_word.h"

#define TARN_REQUIRE_MEMORY(memoryWidth, memory) \
    TARN_REQUIRE_AT_LEAST_1(memoryWidth);        \
    TARN_REQUIRE((memory) != nullptr, "memory must not be null")

#define TARN_REQUIRE_APART(memoryWidth, memory, width, vector)                    \
    TARN_REQUIRE(AreApart(memory, 2 * HalfByteCount(memoryWidth), width, vector), \
                 "the memory word must lie apart from " #vector)

#define TARN_REQUIRE_INSIDE(memoryWidth, low, width)                                               \
    TARN_REQUIRE(LiesInside(memoryWidth, low, width),                                              \
                 "the field must lie inside the memory word: low at least 0, low + width at most " \
                 "memoryWidth")

#define TARN_REQUIRE_MEMORY_VALUE(resultWidth, result, memoryWidth, memory, spareBits) \
    TARN_ARGUMENTS(resultWidth, result, memoryWidth, memory, spareBits);               \
    TARN_REQUIRE_MEMORY(memoryWidth, memory);                                          \
    TARN_REQUIRE_VECTOR(resultWidth, result);                                          \
    TARN_REQUIRE(static_cast<unsigned>(spareBits) == SpareBits(memoryWidth),           \
                 "spareBits must be -memoryWidth & 31");                               \
    TARN_REQUIRE_APART(memoryWidth, memory, resultWidth, result)

#define TARN_REQUIRE_MEMORY_VECTOR(memoryWidth, memory, value) \
    TARN_ARGUMENTS(memoryWidth, memory, value);                \
    TARN_REQUIRE_MEMORY(memoryWidth, memory);                  \
    TARN_REQUIRE_VECTOR(memoryWidth, value);                   \
    TARN_REQUIRE_APART(memoryWidth, memory, memoryWidth, value)

// `position` is the field's lowest bit or its index.
#define TARN_REQUIRE_MEMORY_FIELD(memoryWidth, memory, vector, position, width) \
    TARN_ARGUMENTS(memoryWidth, memory, vector, position, width);               \
    TARN_REQUIRE_MEMORY(memoryWidth, memory);                                   \
    TARN_REQUIRE_AT_LEAST_1(width);                                             \
    TARN_REQUIRE_VECTOR(width, vector);                                         \
    TARN_REQUIRE_APART(memoryWidth, memory, width, vector)

#define TARN_REQUIRE_REGISTER_FIELD(memoryWidth, memory, vector, position, width) \
    TARN_REQUIRE_MEMORY_FIELD(memoryWidth, memory, vector, position, width);      \
    TARN_REQUIRE_AT_MOST(memoryWidth, kRegisterBits);                             \
    TARN_REQUIRE_APART(memoryWidth, memory, kRegisterBits, tarn_VectorRegister);  \
    TARN_REQUIRE_OUTSIDE_REGISTER(width, vector)

#define TARN_REQUIRE_NARROW_FIELD(memoryWidth, memory, vector, position, width) \
    TARN_REQUIRE_MEMORY_FIELD(memoryWidth, memory, vector, position, width);    \
    TARN_REQUIRE_AT_MOST(memoryWidth, kWordBits)

using namespace tarn;

extern "C" {

void tarn_UnsignedCopyMemoryValue(int resultWidth, VectorWord* result, int memoryWidth,
                                  const std::uint8_t* memory, int spareBits) noexcept {
    TARN_REQUIRE_MEMORY_VALUE(resultWidth, result, memoryWidth, memory, spareBits);
    Unpack<ZeroExtend>({resultWidth, result}, memoryWidth, memory,
                       static_cast<unsigned>(spareBits) % kWordBits);
}

void tarn_SignedCopyMemoryValue(int resultWidth, VectorWord* result, int memoryWidth,
                                const std::uint8_t* memory, int spareBits) noexcept {
    TARN_REQUIRE_MEMORY_VALUE(resultWidth, result, memoryWidth, memory, spareBits);
    Unpack<SignExtend>({resultWidth, result}, memoryWidth, memory,
                       static_cast<unsigned>(spareBits) % kWordBits);
}

void tarn_MemoryWordAssign(int memoryWidth, std::uint8_t* memory,
                           const VectorWord* value) noexcept {
    TARN_REQUIRE_MEMORY_VECTOR(memoryWidth, memory, value);
    Pack<Overwrite>(memoryWidth, memory, value);
}

int tarn_NotIdenticalMemoryWordAssign(int memoryWidth, std::uint8_t* memory,
                                      const VectorWord* value) noexcept {
    TARN_REQUIRE_MEMORY_VECTOR(memoryWidth, memory, value);
    return Pack<OverwriteAndCompare>(memoryWidth, memory, value);
}

void tarn_MemoryWordPartselect(VectorWord* result, int memoryWidth, const std::uint8_t* memory,
                               int low, int width) noexcept {
    TARN_REQUIRE_REGISTER_FIELD(memoryWidth, memory, result, low, width);
    TARN_REQUIRE_INSIDE(memoryWidth, low, width);
    ReadMemoryField(result, memoryWidth, memory, low, width);
}

void tarn_MemoryWordIndexedPartselect(VectorWord* result, int memoryWidth,
                                      const std::uint8_t* memory, int index, int width) noexcept {
    TARN_REQUIRE_REGISTER_FIELD(memoryWidth, memory, result, index, width);
    ReadMemoryField(result, memoryWidth, memory, index, width);
}

void tarn_MemoryWordPartselectAssign(int memoryWidth, std::uint8_t* memory, const VectorWord* value,
                                     int low, int width) noexcept {
    TARN_REQUIRE_REGISTER_FIELD(memoryWidth, memory, value, low, width);
    TARN_REQUIRE_INSIDE(memoryWidth, low, width);
    AssignMemoryField<Overwrite>(memoryWidth, memory, value, low, width);
}

void tarn_MemoryWordIndexedPartselectAssign(int memoryWidth, std::uint8_t* memory,
                                            const VectorWord* value, int index,
                                            int width) noexcept {
    TARN_REQUIRE_REGISTER_FIELD(memoryWidth, memory, value, index, width);
    AssignMemoryField<Overwrite>(memoryWidth, memory, value, index, width);
}

int tarn_NotIdenticalMemoryWordPartselectAssign(int memoryWidth, std::uint8_t* memory,
                                                const VectorWord* value, int low,
                                                int width) noexcept {
    TARN_REQUIRE_REGISTER_FIELD(memoryWidth, memory, value, low, width);
    TARN_REQUIRE_INSIDE(memoryWidth, low, width);
    return AssignMemoryField<OverwriteAndCompare>(memoryWidth, memory, value, low, width);
}

int tarn_NotIdenticalMemoryWordIndexedPartselectAssign(int memoryWidth, std::uint8_t* memory,
                                                       const VectorWord* value, int index,
                                                       int width) noexcept {
    TARN_REQUIRE_REGISTER_FIELD(memoryWidth, memory, value, index, width);
    return AssignMemoryField<OverwriteAndCompare>(memoryWidth, memory, value, index, width);
}

void tarn_MemoryWordPartselectAssign1(int memoryWidth, std::uint8_t* memory,
                                      const VectorWord* value, int low, int width) noexcept {
    TARN_REQUIRE_NARROW_FIELD(memoryWidth, memory, value, low, width);
    TARN_REQUIRE_INSIDE(memoryWidth, low, width);
    AssignNarrowField(memoryWidth, memory, value, low, width);
}

int tarn_NotIdenticalMemoryWordPartselectAssign1(int memoryWidth, std::uint8_t* memory,
                                                 const VectorWord* value, int low,
                                                 int width) noexcept {
    TARN_REQUIRE_NARROW_FIELD(memoryWidth, memory, value, low, width);
    TARN_REQUIRE_INSIDE(memoryWidth, low, width);
    return AssignNarrowField(memoryWidth, memory, value, low, width);
}

void tarn_MemoryWordIndexedPartselectAssign1(int memoryWidth, std::uint8_t* memory,
                                             const VectorWord* value, int index,
                                             int width) noexcept {
    TARN_REQUIRE_NARROW_FIELD(memoryWidth, memory, value, index, width);
    AssignNarrowField(memoryWidth, memory, value, index, width);
}

int tarn_NotIdenticalMemoryWordIndexedPartselectAssign1(int memoryWidth, std::uint8_t* memory,
                                                        const VectorWord* value, int index,
                                                        int width) noexcept {
    TARN_REQUIRE_NARROW_FIELD(memoryWidth, memory, value, index, width);
    return AssignNarrowField(memoryWidth, memory, value, index, width);
}

}  // extern "C"
