#include "contestant.h"

#include <bit>
#include <cstring>

namespace tarn::bench {

std::string ResultBytes(const Operands& operands) {
    std::string bytes(operands.wordCount * sizeof(VectorWord), '\0');
    std::memcpy(bytes.data(), operands.result, bytes.size());
    return bytes;
}

std::string MemoryBytes(const Operands& operands) {
    return {operands.resultMemory, operands.resultMemory + operands.memoryByteCount};
}

std::string CodeText(int code) {
    return std::to_string(code);
}

// Its bits, which tell all reals apart.
std::string RealText(double real) {
    return std::to_string(std::bit_cast<std::uint64_t>(real));
}

void UnpackResultLimbs(const Operands& operands) {
    for (std::size_t i = 0; i < operands.wordCount; ++i) {
        const mp_limb_t limb = operands.resultLimbs[i / 2];
        operands.result[i] = {static_cast<std::uint32_t>(limb >> (i % 2 * 32)), 0};
    }
}

std::string DigitText(const Operands& operands, std::size_t digitCount) {
    // A count of digits may be the estimate of a peer that leaves zeros in front.
    std::size_t first = 0;
    while (first + 1 < digitCount && operands.resultDigits[first] == 0) {
        ++first;
    }
    std::string text;
    for (std::size_t i = first; i < digitCount; ++i) {
        text += kDigitCharacters[operands.resultDigits[i]];
    }
    return text;
}

}  // namespace tarn::bench
