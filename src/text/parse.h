// Vectors from digit strings and from characters.
#ifndef TARN_TEXT_PARSE_H
#define TARN_TEXT_PARSE_H

#include <string_view>

#include "core/vector.h"
#include "text/digits.h"

namespace tarn {

// Each parser writes every word of the result, clean above the width. The two digit parsers tell
// what became of the digits that the width has no room for.
enum class Fit {
    kWhole,      // every character was read, or the decimal value fits
    kTruncated,  // something was left over
    kUnsettled   // the decimal parser gives no verdict: the value is all X, all Z or 0
};

template <class Layout>
Fit ParseRadixDigits(Result result, std::string_view digits) noexcept;

// Allocates room for the digits of a value beyond a few hundred of them; std::bad_alloc passes
// through.
Fit ParseDecimalDigits(Result result, std::string_view digits);

// The last characters that the words of the result can hold, the last one in bits 0 to 7.
void PackCharacters(Result result, std::string_view characters) noexcept;

// Clears the bits of the top word above the width.
inline void CleanTopWord(Result result) noexcept {
    if (result.width < 1) return;
    VectorWord* const top = result.words + result.Count() - 1;
    StoreWord(top, LoadWord(top) & InBothHalves(LowMask(result.width)));
}

}  // namespace tarn

#endif  // TARN_TEXT_PARSE_H
