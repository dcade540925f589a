// Verilog literals: the width, the sign and the flag of any text; the value as the parsers of
// digits and of characters give it, which have a target of their own.
#include <string_view>

#include <tarnlib/text.h>

#include "input.h"
#include "text_model.h"

namespace tarn::fuzz {
namespace {

// The callback has no argument for its state.
std::unique_ptr<Storage<VectorWord>> allocated;

void* Allocate(std::uint64_t byteCount) {
    Check("storage is allocated once", allocated == nullptr);
    const std::vector<VectorWord> dirt(byteCount / sizeof(VectorWord), {0xA5A5A5A5, 0x5A5A5A5A});
    allocated = std::make_unique<Storage<VectorWord>>(dirt, 4);
    return allocated->Data();
}

struct Literal {
    int width = 0;
    bool isSigned = false;
    bool isTruncated = false;
    std::vector<VectorWord> words;
};

Literal Create(const std::string* sizeText, const std::string& valueText) {
    Storage<char> size = TextStorage(sizeText != nullptr ? *sizeText : "");
    Storage<char> value = TextStorage(valueText);
    allocated = nullptr;
    Literal literal;
    VectorWord* words = nullptr;
    unsigned char truncated = 77;
    literal.isSigned = tarn_CreateVector(sizeText != nullptr ? size.Data() : nullptr, value.Data(),
                                         &literal.width, &words, Allocate, &truncated);
    Check("storage is allocated", allocated != nullptr && words == allocated->Data());
    Check("the flag is 0 or 1", truncated <= 1);
    literal.isTruncated = truncated == 1;
    literal.words = allocated->Items();
    CheckEqual("count of words", literal.words.size(), test::WordCount(literal.width));
    return literal;
}

/*------------------------------------------------------------------------------------------------
 * What is expected
 *----------------------------------------------------------------------------------------------*/

// A base is known by the bits of its digits, decimal by 0.
struct Base {
    char letter;
    int bitsPerDigit;
    bool (*parse)(int, VectorWord*, const char*);
};
constexpr Base kBases[] = {{'b', 1, tarn_BinaryStringToVector},
                           {'o', 3, tarn_OctalStringToVector},
                           {'h', 4, tarn_HexStringToVector},
                           {'d', 0, tarn_DecimalStringToVector}};
constexpr const Base& kDecimal = kBases[3];

bool IsOneOf(std::string_view characters, const std::string& text, std::size_t at) {
    return at < text.size() && characters.find(text[at]) != std::string_view::npos;
}

// 0 for none.
int SizeOf(const std::string* text) {
    if (text == nullptr) return 0;
    std::string digits = "0";
    std::remove_copy(text->begin(), text->end(), std::back_inserter(digits), '_');
    const mpz_class size(digits, 10);
    return size > TARN_MAX_LITERAL_WIDTH ? TARN_MAX_LITERAL_WIDTH : static_cast<int>(size.get_si());
}

// Whether digits are left when the width is full.
bool IsUnread(int width, int bitsPerDigit, std::string_view digits) {
    for (int filled = 0; filled < width && !digits.empty(); digits.remove_suffix(1)) {
        if (digits.back() != '_') filled += bitsPerDigit;
    }
    return !digits.empty();
}

bool IsCutDecimal(int width, const std::string& text) {
    if (IsOneOf("xXzZ?", text, 0)) return false;
    std::string digits = "0";
    for (const char c : text) {
        if (c != '_') digits += c >= '0' && c <= '9' ? c : '0';
    }
    const mpz_class value(digits, 10);
    return mpz_sizeinbase(value.get_mpz_t(), 2) > static_cast<std::size_t>(width);
}

Literal ExpectedNumber(const std::string* sizeText, const std::string& text) {
    Literal literal;
    std::size_t at = 0;
    const Base* base = &kDecimal;
    const int size = SizeOf(sizeText);
    literal.isSigned = text.empty() || text[0] != '\'';
    const bool isFill = !literal.isSigned && IsOneOf("01xXzZ", text, 1);
    if (isFill) {
        base = &kBases[0];
        at = 1;
    } else if (!literal.isSigned) {
        literal.isSigned = IsOneOf("sS", text, 1);
        at = literal.isSigned ? 2 : 1;
        for (const Base& row : kBases) {
            if (!IsOneOf({&row.letter, 1}, text, at) &&
                !(at < text.size() && text[at] == row.letter - ('a' - 'A'))) {
                continue;
            }
            base = &row;
            at = std::min(text.find_first_not_of(" \t", at + 1), text.size());
            break;
        }
    }
    const std::string digits = text.substr(at);
    const auto written = static_cast<std::int64_t>(
        digits.size() - static_cast<std::size_t>(std::count(digits.begin(), digits.end(), '_')));
    const std::int64_t needed = std::max<std::int64_t>(32, written * base->bitsPerDigit);
    literal.width = isFill ? 1 : size > 0 ? size : static_cast<int>(needed);
    literal.isTruncated = base == &kDecimal ? IsCutDecimal(literal.width, digits)
                                            : IsUnread(literal.width, base->bitsPerDigit, digits);
    literal.words.resize(test::WordCount(literal.width));
    base->parse(literal.width, literal.words.data(), digits.c_str());
    return literal;
}

Literal ExpectedString(std::string text) {
    text = text.size() > 2 ? text.substr(1, text.size() - 2) : "";
    std::string characters;
    while (!text.empty()) {
        std::size_t taken = 1;
        char character = text[0];
        if (character == '\\' && text.size() > 1) {
            taken = std::min(text.find_first_not_of("01234567", 1), text.size());
            taken = std::min<std::size_t>(taken, 4);
            const char next = text[1];
            character = taken > 1
                            ? static_cast<char>(std::stoi(text.substr(1, taken - 1), nullptr, 8))
                        : next == 'n' ? '\n'
                        : next == 't' ? '\t'
                                      : next;
            taken = std::max<std::size_t>(taken, 2);
        }
        characters += character;
        text.erase(0, taken);
    }
    if (characters.empty()) characters.push_back('\0');
    Literal literal;
    literal.width = static_cast<int>(8 * characters.size());
    literal.words = ToWords(test::PackedValue(literal.width, characters));
    return literal;
}

}  // namespace
}  // namespace tarn::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace tarn::fuzz;
    Input in(data, size);
    // As it is written, the size in front of the quote.
    const std::string text = in.Text();
    const std::size_t quote = text.find('\'');
    const bool hasSize = quote != std::string::npos && quote > 0 && text[0] != '"';
    const std::string sizeText = hasSize ? text.substr(0, quote) : "";
    const std::string valueText = hasSize ? text.substr(quote) : text;
    // Millions of bits take their time; a few digits do there.
    if (sizeText.size() > 5 && valueText.size() > 6) return 0;
    const Literal literal = Create(hasSize ? &sizeText : nullptr, valueText);
    Check("the width is within its limits",
          literal.width >= 1 && literal.width <= TARN_MAX_LITERAL_WIDTH);
    // What a size is worth that holds other characters is nowhere promised.
    if (sizeText.find_first_not_of("0123456789_") != std::string::npos) return 0;
    const Literal expected = valueText.starts_with('"')
                                 ? ExpectedString(valueText)
                                 : ExpectedNumber(hasSize ? &sizeText : nullptr, valueText);
    CheckEqual("width", literal.width, expected.width);
    CheckEqual("sign", literal.isSigned, expected.isSigned);
    CheckEqual("truncated", literal.isTruncated, expected.isTruncated);
    Check("value", AreSame(literal.words, expected.words));
    return 0;
}
