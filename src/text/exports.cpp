// Exports: the text buffer.
#include <tarnlib/text.h>

#include "core/contract.h"
#include "text/text_buffer.h"

using namespace tarn;

extern "C" {

char* tarn_GetGlobalBuffer(unsigned count) {
    return OpenText(count);
}

char* tarn_CopyToGlobalBuffer(const char* text) {
    TARN_ARGUMENTS(text);
    TARN_REQUIRE(text != nullptr);
    return CopyText(text);
}

char* tarn_CopyNToGlobalBuffer(const char* text, unsigned count) {
    TARN_ARGUMENTS(text, count);
    TARN_REQUIRE(text != nullptr);
    return CopyPaddedText(text, count);
}

}  // extern "C"
