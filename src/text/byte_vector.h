// Sixteen bytes computed at once, in the compilers' portable vector form.
#ifndef TARN_TEXT_BYTE_VECTOR_H
#define TARN_TEXT_BYTE_VECTOR_H

#include <cstdint>
#include <cstring>

namespace tarn {

using Bytes = std::uint8_t __attribute__((vector_size(16)));
using Limbs = std::uint64_t __attribute__((vector_size(16)));

constexpr Bytes AllBytes(unsigned byte) noexcept {
    return Bytes{} + static_cast<std::uint8_t>(byte);
}

// A comparison gives signed lanes of 0 or -1; as unsigned bytes they are masks.
template <class Comparison>
inline Bytes AsMask(Comparison lanes) noexcept {
    return reinterpret_cast<Bytes>(lanes);
}

inline Bytes Select(Bytes mask, Bytes yes, Bytes no) noexcept {
    return (mask & yes) | (~mask & no);
}

inline Bytes LoadBytes(const char* from) noexcept {
    Bytes bytes;
    std::memcpy(&bytes, from, sizeof bytes);
    return bytes;
}

// By reference: only some processors pass wider ones in a register.
template <class AnyBytes>
[[gnu::always_inline]] inline void StoreBytes(char* to, const AnyBytes& bytes) noexcept {
    std::memcpy(to, &bytes, sizeof bytes);
}

}  // namespace tarn

#endif  // TARN_TEXT_BYTE_VECTOR_H
