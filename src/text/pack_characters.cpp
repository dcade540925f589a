#include <cstring>

#include "core/words.h"
#include "text/parse.h"

namespace tarn {

void PackCharacters(Result result, std::string_view characters) noexcept {
    const std::size_t count = result.Count();
    if (characters.size() > 4 * count) {
        characters.remove_prefix(characters.size() - 4 * count);
    }
    const char* end = characters.data() + characters.size();
    const std::size_t whole = characters.size() / 4;
    for (std::size_t i = 0; i < whole; ++i) {
        std::uint32_t inTextOrder;
        end -= 4;
        std::memcpy(&inTextOrder, end, 4);
        StoreWord(result.words + i, __builtin_bswap32(inTextOrder));
    }
    std::size_t stored = whole;
    if (const std::size_t rest = characters.size() % 4; rest > 0) {
        std::uint32_t bytes = 0;
        for (std::size_t i = 0; i < rest; ++i) {
            bytes = bytes << 8 | static_cast<unsigned char>(characters[i]);
        }
        StoreWord(result.words + stored++, bytes);
    }
    FillWords(result.words + stored, count - stored, 0);
    CleanTopWord(result);
}

}  // namespace tarn
