#include "support/gen.h"

#include <algorithm>
#include <climits>
#include <cstdlib>
#include <gtest/gtest.h>

#include "support/platform.h"

namespace tarn::test {
namespace {

volatile std::uint64_t currentSeed = 0;

// A stray access ends the process before a test can say which run made it; this says it.
void PrintSeed() {
    char line[] = "\nstray access in the run of TARNLIB_SEED=00000000000000000000\n";
    char* digit = line + sizeof line - 3;
    for (std::uint64_t seed = currentSeed; seed != 0; seed /= 10) {
        *digit-- = static_cast<char>('0' + seed % 10);
    }
    if (currentSeed != 0) WriteError(line);
}

std::uint64_t FromEnvironment(const char* name, std::uint64_t otherwise) {
    const char* const text = std::getenv(name);
    return text == nullptr ? otherwise : std::strtoull(text, nullptr, 10);
}

}  // namespace

Seeds::Seeds(int count)
    : first_(FromEnvironment("TARNLIB_SEED", 1)),
      last_(first_ + FromEnvironment("TARNLIB_RUNS", static_cast<std::uint64_t>(count))) {
    OnStrayAccess(PrintSeed);
}

Seeds::~Seeds() {
    currentSeed = 0;
}

Gen& Seeds::Iterator::operator*() {
    currentSeed = gen_.Seed();
    return gen_;
}

// SplitMix64 (Steele, Lea and Flood, "Fast splittable pseudorandom number generators", 2014): any
// two seeds give unrelated numbers, and starting one costs nothing.
std::uint64_t Gen::Bits() {
    state_ += 0x9E3779B97F4A7C15;
    std::uint64_t mixed = state_;
    mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9;
    mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EB;
    return mixed ^ (mixed >> 31);
}

int Gen::Width() {
    const int offset = Between(-1, 1), choice = Below(16);
    if (isWide_) return 32 * Between(1000, 2000) + offset;
    if (choice < 3) return Between(1, 31);
    if (choice == 3) return Between(1, 200);
    if (choice == 4) return 64 * Between(1, 4) + offset;
    if (choice == 5) return 256 * Between(1, 5) + offset;
    return 32 * Between(1, 5) + offset;
}

int Gen::AnyWidth() {
    constexpr int kEmpty[] = {0, 0, -1, -31, -32, -33, INT_MIN};
    return OneIn(32) ? kEmpty[Below(std::size(kEmpty))] : Width();
}

int Gen::RunLength() {
    const int lengths[] = {Between(1, 3), Between(1, 40), 32 * Between(1, 9),
                           Between(1, isWide_ ? 20'000 : 300)};
    return lengths[Below(4)];
}

// Adds runs of ones (which count `weight` in a bit's number) between runs of zeros.
void Gen::AddRuns(Vec& vec, unsigned weight) {
    bool isOne = OneIn(2);
    const bool isOneRun = OneIn(8);
    for (std::size_t i = 0; i < vec.bits.size(); isOne = !isOne) {
        const std::size_t runEnd = i + static_cast<std::size_t>(RunLength());
        const std::size_t end = isOneRun ? vec.bits.size() : std::min(vec.bits.size(), runEnd);
        for (; i < end; ++i) {
            const unsigned old = static_cast<unsigned>(vec.bits[i]);
            vec.bits[i] = static_cast<Logic>(isOne ? old + weight : old);
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

OneOperandDraw Gen::OneOperand(bool fourState) {
    const int width = AnyWidth();
    const int aWidth = OneIn(2) ? width : AnyWidth();
    return {width, fourState ? FourState(aWidth) : Vector(aWidth)};
}

TwoOperandDraw Gen::TwoOperands(bool fourState) {
    auto [width, a] = OneOperand(fourState);
    const int bWidth = OneIn(3) ? AnyWidth() : OneIn(2) ? width : a.width;
    if (OneIn(6) && WordCount(bWidth) <= WordCount(a.width)) {
        Vec b = Prefix(a, bWidth);
        return {width, std::move(a), std::move(b)};
    }
    return {width, std::move(a), fourState ? FourState(bWidth) : Vector(bWidth)};
}

std::string Gen::Replay() const {
    const testing::TestInfo* const test = testing::UnitTest::GetInstance()->current_test_info();
    std::ostringstream out;
    out << "replay: TARNLIB_SEED=" << seed_ << " TARNLIB_RUNS=1 " << ProgramName()
        << " --gtest_filter=" << test->test_suite_name() << '.' << test->name();
    return out.str();
}

}  // namespace tarn::test
