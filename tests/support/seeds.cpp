// The runs of a test: their seeds, and what is told of one that a stray access or a deadline ends.
#include <algorithm>
#include <cstdlib>
#include <gtest/gtest.h>

#include "support/gen.h"
#include "support/platform.h"

namespace tarn::test {
namespace {

volatile std::uint64_t currentSeed = 0;

// A stray access or a run without end ends the process before a test can say which run it was; this
// says it.
void PrintSeed() {
    char line[] = "\nno further than the run of TARNLIB_SEED=00000000000000000000\n";
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
      last_(first_ +
            std::max<std::uint64_t>(
                FromEnvironment("TARNLIB_RUNS", kRuns) * static_cast<unsigned>(count) / kRuns, 1)) {
    OnStrayAccess(PrintSeed);
}

Seeds::~Seeds() {
    SetDeadline(0, nullptr);
    currentSeed = 0;
}

Gen& Seeds::Iterator::operator*() {
    currentSeed = gen_.Seed();
    SetDeadline(10, PrintSeed);
    return gen_;
}

std::string Gen::Replay() const {
    const testing::TestInfo* const test = testing::UnitTest::GetInstance()->current_test_info();
    std::ostringstream out;
    out << "replay: TARNLIB_SEED=" << seed_ << " TARNLIB_RUNS=1 " << ProgramName()
        << " --gtest_filter=" << test->test_suite_name() << '.' << test->name();
    return out.str();
}

}  // namespace tarn::test
