// Verilog literals.
#ifndef TARN_TEXT_LITERAL_H
#define TARN_TEXT_LITERAL_H

#include <string_view>

#include "core/contract.h"

namespace tarn {

// Where the parts of a literal go: the caller's addresses, as tarn_CreateVector received them.
struct LiteralOutput {
    int* width;
    VectorWord** words;
    void* (*allocate)(std::uint64_t byteCount);
    unsigned char* truncated;  // may be null

    void StoreTruncated(bool value) const noexcept {
        if (truncated != nullptr) {
            *truncated = value ? 1 : 0;
        }
    }

    // Stores the width and obtains storage for it. What is got is the caller's duty too, and known
    // only here.
    Result Allocate(int bits) const {
        *width = bits;
        *words = static_cast<VectorWord*>(allocate(WordCount(bits) * sizeof(VectorWord)));
        TARN_ARGUMENTS(bits, *words);
        TARN_REQUIRE_IN("tarn_CreateVector", IsVector(bits, *words),
                        "allocate must return the address of words: not null, aligned");
        return {bits, *words};
    }
};

// A number: an optional size (null or all zeros for none) and 'hff, 's..., '1, or plain decimal
// digits. Returns whether it is signed.
bool ParseNumberLiteral(const char* sizeText, std::string_view text, const LiteralOutput& output);

// A string with its double quotes.
void ParseStringLiteral(std::string_view text, const LiteralOutput& output);

}  // namespace tarn

#endif  // TARN_TEXT_LITERAL_H
