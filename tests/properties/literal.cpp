// Verilog literals as new vectors.
#include <cstdlib>
#include <optional>

#include <tarnlib/text.h>

#include "text_model.h"

namespace tarn::test {
namespace {

struct Literal {
    std::optional<std::string> size;
    std::string text;
    bool wantsTruncated = true;
};

struct Created {
    Vec value;
    bool isSigned;
    int truncated;
};

Created Signed(const Vec& value, int truncated = 0) {
    return {value, true, truncated};
}
Created Unsigned(const Vec& value, int truncated = 0) {
    return {value, false, truncated};
}

/*------------------------------------------------------------------------------------------------
 * The call
 *----------------------------------------------------------------------------------------------*/

// The callback has no argument for its state.
VectorWord* expectedStorage;
std::uint64_t expectedByteCount;
int allocations;

// What is asked for wrongly gets storage of its own.
void* Allocate(std::uint64_t byteCount) {
    ++allocations;
    return byteCount == expectedByteCount ? expectedStorage : std::malloc(byteCount);
}

// The storage, of the width's size, is dirty as the harness has it.
std::string Create(const char* size, const char* text, int* width, VectorWord* storage,
                   std::uint64_t byteCount, unsigned char* truncated) {
    expectedStorage = storage;
    expectedByteCount = byteCount;
    allocations = 0;
    VectorWord* created = nullptr;
    const bool isSigned = tarn_CreateVector(size, text, width, &created, Allocate, truncated);
    if (allocations != 1 || created != storage) return "not one allocation of the vector's size";
    return isSigned ? "signed" : "unsigned";
}

Case CaseOf(const Literal& literal, const Created& created) {
    const std::uint64_t byteCount = WordCount(created.value.width) * sizeof(VectorWord);
    const Party truncated = NumberResult(static_cast<unsigned char>(created.truncated));
    const Party width = NumberResult(created.value.width), value = Result(created.value);
    const auto call = [&](auto size, auto flag) {
        return Case(Create, size, literal.text, width, value, byteCount, flag)
            .Returns(created.isSigned ? "signed" : "unsigned");
    };
    if (!literal.size) return call(Null{}, truncated);
    return literal.wantsTruncated ? call(*literal.size, truncated) : call(*literal.size, Null{});
}

/*------------------------------------------------------------------------------------------------
 * The model
 *----------------------------------------------------------------------------------------------*/

// A base is known by the bits of its digits, decimal by 0.
struct Base {
    std::string_view letters;
    int bitsPerDigit;
    std::string_view digits;
};
constexpr Base kBases[] = {{"bB", 1, "01xz?_"},
                           {"oO", 3, "01234567xZ_"},
                           {"hH", 4, "0123456789abcdefABCDEFXz?_"},
                           {"dD", 0, "0123456789_"}};
constexpr const Base& kDecimal = kBases[3];

// 0 for none.
int SizeOf(const std::optional<std::string>& text) {
    const Integer size = DecimalNumber(text.value_or(""));
    return size > TARN_MAX_LITERAL_WIDTH ? TARN_MAX_LITERAL_WIDTH
                                         : static_cast<int>(ToDouble(size));
}

Created StringValue(const std::string& text) {
    const std::string inner = text.size() > 2 ? text.substr(1, text.size() - 2) : "";
    std::string characters;
    for (std::size_t at = 0; at < inner.size(); ++at) {
        char character = inner[at];
        if (character == '\\' && at + 1 < inner.size()) {
            character = inner[++at];
            if (character == 'n') character = '\n';
            if (character == 't') character = '\t';
            if (IsOneOf("01234567", character)) {
                const std::size_t end = std::min(inner.find_first_not_of("01234567", at), at + 3);
                character = static_cast<char>(std::stoi(inner.substr(at, end - at), nullptr, 8));
                at = std::min(end, inner.size()) - 1;
            }
        }
        characters += character;
    }
    const bool isCut = characters.size() > TARN_MAX_LITERAL_CHARACTERS;
    if (isCut) characters.erase(0, characters.size() - TARN_MAX_LITERAL_CHARACTERS);
    if (characters.empty()) characters.push_back('\0');
    return Unsigned(PackedValue(static_cast<int>(8 * characters.size()), characters), isCut);
}

Created LiteralValue(const Literal& literal) {
    const std::string& text = literal.text;
    if (!text.empty() && text[0] == '"') return StringValue(text);
    const auto isAt = [&](std::string_view characters, std::size_t at) {
        return at < text.size() && IsOneOf(characters, text[at]);
    };
    const bool isBased = isAt("'", 0), isFill = isBased && isAt("01xXzZ", 1);
    const bool isSigned = !isBased || (!isFill && isAt("sS", 1));
    std::size_t at = !isBased ? 0 : isSigned ? 2 : 1;
    const Base* base = isFill ? &kBases[0] : &kDecimal;
    for (const Base& row : kBases) {
        if (!isBased || isFill || !isAt(row.letters, at)) continue;
        base = &row;
        at = text.find_first_not_of(" \t", at + 1);
        break;
    }
    const std::string digits = at < text.size() ? text.substr(at) : "";
    const std::size_t written = WithoutUnderscores(digits).size();
    const std::size_t needed = written * static_cast<std::size_t>(base->bitsPerDigit);
    const int size = SizeOf(literal.size);
    const int width =
        isFill     ? 1
        : size > 0 ? size
                   : static_cast<int>(std::clamp<std::size_t>(needed, 32, TARN_MAX_LITERAL_WIDTH));
    std::size_t unread = 0;
    Vec value = FromDigits(width, base->bitsPerDigit, digits, &unread);
    if (base == &kDecimal) {
        value = DecimalValue(width, digits);
        unread = !HasUnknown(value) && ToInteger(value) != DecimalNumber(digits) ? 1 : 0;
    }
    return {value, isSigned, unread > 0 ? 1 : 0};
}

/*------------------------------------------------------------------------------------------------
 * Draws
 *----------------------------------------------------------------------------------------------*/

std::string DrawNumber(Gen& gen) {
    const Base& base = gen.Pick(kBases);
    std::string text;
    if (!gen.OneIn(16)) {
        text = gen.OneIn(2) ? "'" : gen.OneIn(2) ? "'s" : "'S";
        text += gen.Pick(base.letters);
        if (gen.OneIn(4)) text += " \t";
    }
    for (int i = gen.Below(gen.OneIn(64) ? 2000 : 70); i > 0; --i) {
        text += gen.Pick(base.digits);
    }
    return text;
}

// Mostly a literal as its grammar has it, now and then with a character exchanged.
std::string DrawText(Gen& gen) {
    constexpr std::string_view kAny = "'sbodhxz?_01789fF \t\\\"nt\xE9q";
    std::string text;
    if (gen.OneIn(4)) {
        text = '"';
        for (int i = gen.Below(40); i > 0; --i) {
            text += gen.Pick(kAny);
        }
        text += '"';
    } else {
        text = DrawNumber(gen);
    }
    if (gen.OneIn(4) && !text.empty()) text[gen.Bits() % text.size()] = gen.Pick(kAny);
    return text;
}

// As it is written, the size in front of the quote. Huge sizes, which take their time, are rows by
// hand.
Literal DrawLiteral(Gen& gen) {
    Literal literal{std::nullopt, "", gen.OneIn(2)};
    const std::string text = gen.Text([&] {
        if (gen.OneIn(2)) return DrawText(gen);
        return (gen.OneIn(8) ? "0_" : "") + std::to_string(gen.Width()) + DrawText(gen);
    });
    const std::size_t sizeEnd = std::min(text.find_first_not_of("0123456789_"), text.size());
    const bool hasSize =
        sizeEnd > 0 && sizeEnd < text.size() && SizeOf(text.substr(0, sizeEnd)) < 70'000;
    if (hasSize) literal.size = text.substr(0, sizeEnd);
    literal.text = text.substr(hasSize ? sizeEnd : 0).c_str();
    return literal;
}

std::vector<Case> ByHand() {
    constexpr auto kNoSize = std::nullopt;
    const std::string hexDigits(2'500'001, 'e'), octalDigits(3'333'334, '7');
    const std::string last(TARN_MAX_LITERAL_CHARACTERS - 1, 'b');
    std::vector<VectorWord> words(312'500, {0x62626262, 0});
    words.back().aval = 0x61626262;
    const std::pair<Literal, Created> rows[] = {
        {{"8", "'SD 200"}, Signed("8'hc8"_v)},
        {{kNoSize, "4_294_967_297"}, Signed("32'h1"_v, 1)},
        {{"16", "'"}, Unsigned("16'h0"_v)},
        // An underscore needs no bits, but counts as unread where it is left over.
        {{kNoSize, "'h_FF_FFFF_FFFF_"}, Unsigned("40'hffffffffff"_v, 1)},
        {{kNoSize, "'hFF_FFFF_FFFF_"}, Unsigned("40'hffffffffff"_v)},
        // Fill digits are one bit wide.
        {{"8", "'1"}, Unsigned("1'b1"_v)},
        {{kNoSize, "'10"}, Unsigned("1'b0"_v, 1)},
        // Sizes, up to the widest literal; its last digit may reach past the limit.
        {{"000", "'h1"}, Unsigned("32'h1"_v)},
        {{"20000000", "'b1"}, Unsigned(FromDigits(10'000'000, 1, "1"))},
        {{kNoSize, "'h" + hexDigits}, Unsigned(FromDigits(10'000'000, 4, hexDigits), 1)},
        {{kNoSize, "'o" + octalDigits}, Unsigned(FromDigits(10'000'000, 3, octalDigits))},
        // Strings: escapes, and the last characters of long ones.
        {{kNoSize, R"(")"}, Unsigned("8'h0"_v)},
        {{kNoSize, R"("\7\18\1017")"}, Unsigned("40'h0701384137"_v)},
        {{kNoSize, R"("\n\t\\\"\q\ ")"}, Unsigned("48'h0a095c227120"_v)},
        {{kNoSize, R"("a\")"}, Unsigned("16'h615c"_v)},
        {{kNoSize, "\"a" + last + '"'}, Unsigned(Words(10'000'000, words))},
        {{kNoSize, "\"-\\141" + last + '"'}, Unsigned(Words(10'000'000, words), 1)},
    };
    std::vector<Case> known;
    for (const auto& [literal, created] : rows) {
        known.push_back(CaseOf(literal, created).Named(literal.text.substr(0, 30).c_str()));
    }
    return known;
}

}  // namespace

Family LiteralFamily() {
    const auto draw = [](Gen& gen) {
        const Literal literal = DrawLiteral(gen);
        return CaseOf(literal, LiteralValue(literal));
    };
    return {"Literal", {{"tarn_CreateVector", draw}}, ByHand};
}

}  // namespace tarn::test
