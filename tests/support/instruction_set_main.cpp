// tarnlib_instruction_set_tests NAME: runs the tests with the kernels on that instruction set.
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <gtest/gtest.h>

#include "core/instruction_set.h"

int main(int argumentCount, char** arguments) {
    constexpr int kSkipped = 77;
    testing::InitGoogleTest(&argumentCount, arguments);
    for (const auto& [name, set] : tarn::kInstructionSets) {
        if (argumentCount != 2 || std::strcmp(arguments[1], name) != 0) continue;
        if (!tarn::IsSupported(set)) {
            std::printf("this processor has no %s\n", name);
            return kSkipped;
        }
        tarn::ForceInstructionSet(set);
        return RUN_ALL_TESTS();
    }
    std::fprintf(stderr, "usage: tarnlib_instruction_set_tests INSTRUCTION_SET\n");
    return EXIT_FAILURE;
}
