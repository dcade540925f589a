#include "support/gen.h"

#include <algorithm>
#include <climits>

namespace tarn::test {

// From a seed by SplitMix64 (Steele, Lea and Flood, "Fast splittable pseudorandom number
// generators", 2014): any two seeds give unrelated numbers, and starting one costs nothing.
std::uint64_t Gen::Take(unsigned byteCount) {
    std::uint64_t number = 0;
    if (next_ != nullptr) {
        for (unsigned i = 0; i < byteCount && next_ != end_; ++i) {
            number |= std::uint64_t{*next_++} << (8 * i);
        }
        return number;
    }
    state_ += 0x9E3779B97F4A7C15;
    number = (state_ ^ (state_ >> 30)) * 0xBF58476D1CE4E5B9;
    number = (number ^ (number >> 27)) * 0x94D049BB133111EB;
    return (number ^ (number >> 31)) >> (64 - 8 * byteCount);
}

int Gen::Width() {
    const int offset = Between(-1, 1), choice = Below(16);
    // An input is to take no more than some milliseconds.
    if (isWide_) return 32 * (next_ == nullptr ? Between(1000, 2000) : Between(8, 400)) + offset;
    if (choice < 3) return Between(1, 31);
    if (choice == 3) return Between(1, 200);
    if (choice == 4) return 64 * Between(1, 4) + offset;
    if (choice == 5) return 256 * Between(1, 5) + offset;
    return 32 * Between(1, 5) + offset;
}

int Gen::AnyWidth() {
    constexpr int kEmpty[] = {0, 0, -1, -31, -32, -33, INT_MIN};
    return OneIn(32) ? Pick(kEmpty) : Width();
}

int Gen::RunLength() {
    switch (Below(4)) {
        case 0:
            return Between(1, 3);
        case 1:
            return Between(1, 40);
        case 2:
            return 32 * Between(1, 9);
        default:
            return Between(1, isWide_ ? 20'000 : 300);
    }
}

// Adds runs of ones (which count `weight` in a bit's number) between runs of zeros.
void Gen::AddRuns(Vec& vec, unsigned weight) {
    bool isOne = OneIn(2);
    const int form = Below(8);
    for (std::size_t i = 0; i < vec.bits.size(); isOne = !isOne) {
        const std::size_t length = form == 0   ? vec.bits.size()
                                   : form == 1 ? std::size_t{64}
                                               : static_cast<std::size_t>(RunLength());
        // Any bits now and then, else all ones or all zeros.
        const std::uint64_t pattern = form == 1 ? Bits() : isOne ? ~std::uint64_t{0} : 0;
        for (const std::size_t end = std::min(vec.bits.size(), i + length); i < end; ++i) {
            const unsigned old = static_cast<unsigned>(vec.bits[i]);
            vec.bits[i] = static_cast<Logic>((pattern >> i % 64 & 1U) != 0 ? old + weight : old);
        }
    }
}

Vec Gen::WithTop(Vec vec) {
    const int choice = Below(4);
    return choice == 0 ? vec : choice == 1 ? SignFilled(std::move(vec)) : Clean(std::move(vec));
}

Vec Gen::FourState(int width) {
    Vec vec = Filled(width, Logic::k0);
    AddRuns(vec, 1);
    AddRuns(vec, 2);
    return WithTop(std::move(vec));
}

Vec Gen::Vector(int width) {
    if (OneIn(8)) return FourState(width);
    Vec vec = Filled(width, Logic::k0);
    AddRuns(vec, 1);
    // One unknown bit anywhere, the bits above the width included, is the hardest to see.
    if (width > 0 && OneIn(8)) {
        vec.bits[Bits() % vec.bits.size()] = OneIn(2) ? Logic::kZ : Logic::kX;
    }
    return WithTop(std::move(vec));
}

}  // namespace tarn::test
