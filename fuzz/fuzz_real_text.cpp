// Real literals: text without its underscores, as the C library reads it; and reals written down
// and read back.
#include <bit>
#include <cmath>

#include <tarnlib/real.h>
#include <tarnlib/text.h>

#include "input.h"

namespace tarn::fuzz {
namespace {

double Read(const std::string& text) {
    Storage<char> storage = TextStorage(text);
    double value = -1;
    tarn_CreateReal(storage.Data(), &value);
    return value;
}

// NaNs are all one; zeros and infinities have their sign.
void CheckSame(const char* what, double actual, double expected) {
    if (std::isnan(actual) && std::isnan(expected)) return;
    CheckEqual(what, std::bit_cast<std::uint64_t>(actual), std::bit_cast<std::uint64_t>(expected));
}

// A string as a real is the signed vector of its last eight characters.
void CheckPacked(const std::string& characters) {
    Storage<char> storage({characters.begin(), characters.end()}, characters.size() % 8);
    const auto length = static_cast<int>(characters.size());
    VectorWord words[2];
    tarn_AssignStringToVector(64, words, length, storage.Data());
    double value = -1;
    tarn_AssignStringToReal(&value, length, storage.Data());
    CheckSame("tarn_AssignStringToReal", value, tarn_SignedConvertToReal(64, words));
}

}  // namespace
}  // namespace tarn::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace tarn::fuzz;
    Input in(data, size);
    const std::string all = in.Rest();
    CheckPacked(all);
    const std::string text = all.c_str();
    std::string plain = text;
    plain.erase(std::remove(plain.begin(), plain.end(), '_'), plain.end());
    const double value = Read(text);
    CheckSame("tarn_CreateReal", value, std::strtod(plain.c_str(), nullptr));
    for (const char* const format : {"%.17g", "%.17e", "%a", "%.1100f"}) {
        const std::string written = tarn_ConvertToStringR(format, value);
        CheckSame(format, Read(written), value);
        const std::size_t middle = written.size() / 2;
        CheckSame("with underscores",
                  Read("_" + written.substr(0, middle) + "__" + written.substr(middle)), value);
    }
    return 0;
}
