// Verilog literals as new vectors.
#include <optional>

#include <tarnlib/text.h>

#include "support/guarded.h"
#include "support/model.h"
#include "support/property.h"

namespace tarn::test {
namespace {

struct Literal {
    Vec value;
    bool isSigned = false;
    int truncated = 0;
    std::string broken;

    friend bool operator==(const Literal&, const Literal&) = default;
    friend std::ostream& operator<<(std::ostream& out, const Literal& literal) {
        return out << literal.value << (literal.isSigned ? ", signed" : ", unsigned")
                   << ", truncated " << literal.truncated << ' ' << literal.broken;
    }
};

Literal Signed(const Vec& value, int truncated = 0) {
    return {value, true, truncated, ""};
}
Literal Unsigned(const Vec& value, int truncated = 0) {
    return {value, false, truncated, ""};
}

using SizeText = std::optional<std::string>;

// The callback has no argument for its state. The storage is dirty, of the exact size, and beside
// an unmapped page.
Edge allocationEdge = Edge::kEndsAtPage;
std::vector<std::uint64_t> allocations;

void* Allocate(std::uint64_t byteCount) {
    static GuardedBlock block;
    allocations.push_back(byteCount);
    std::byte* const storage = block.Place(byteCount, allocationEdge);
    std::fill(storage, storage + byteCount, std::byte{0xA5});
    return storage;
}

Literal Create(const SizeText& sizeText, const std::string& valueText) {
    static GuardedBlock sizeBlock, valueBlock;
    std::vector<Literal> literals;
    for (const Edge edge : kEdges) {
        allocationEdge = edge;
        allocations.clear();
        const char* const size = sizeText ? sizeBlock.PlaceText(*sizeText, edge) : nullptr;
        const char* const value = valueBlock.PlaceText(valueText, edge);
        Literal literal;
        VectorWord* words = nullptr;
        unsigned char truncated = 77;
        const bool wantsTruncated = edge != Edge::kOffPage;
        int width = -1;
        literal.isSigned = tarn_CreateVector(size, value, &width, &words, Allocate,
                                             wantsTruncated ? &truncated : nullptr);
        const std::size_t count = WordCount(width);
        if (allocations != std::vector<std::uint64_t>{8 * count}) {
            literal.broken = "not one allocation of the vector's size";
            return literal;
        }
        literal.value = Words(width, {words, words + count});
        literal.truncated = wantsTruncated ? truncated : literals.front().truncated;
        literals.push_back(literal);
    }
    if (literals[1] != literals[0] || literals[2] != literals[0]) {
        literals[0].broken = "the place of text or storage changes the vector";
    }
    return literals[0];
}

// What a literal drawn from its parts is not.
TEST(Literal, KnownLiterals) {
    constexpr auto kNoSize = std::nullopt;
    const std::string hexDigits(2'500'001, 'e'), octalDigits(3'333'334, '7');
    struct Row {
        SizeText size;
        std::string text;
        Literal expected;
    };
    const Row rows[] = {
        {"8", "'hFF", Unsigned("8'hff"_v)},
        {"8", "'SD 200", Signed("8'hc8"_v)},
        {kNoSize, "42", Signed("32'h2a"_v)},
        {kNoSize, "4_294_967_297", Signed("32'h1"_v, 1)},
        {"4", "10", Signed("4'ha"_v)},
        {"16", "'dz", Unsigned("16'hz"_v)},
        {"8", "'d0000", Unsigned("8'h0"_v)},
        {"8", "'d1" + std::string(600, '0'), Unsigned("8'h0"_v, 1)},
        {"8", "'d9" + std::string(600, '0') + "77", Unsigned("8'h4d"_v, 1)},
        {"16", "'O \t?7", Unsigned(FromDigits(16, 3, "z7"))},
        {"16", "'h", Unsigned("16'h0"_v)},
        {"16", "'", Unsigned("16'h0"_v)},
        {"16", "'q7", Unsigned("16'h7"_v)},
        {"16", "'s9", Signed("16'h9"_v)},
        // An underscore needs no bits, but counts as unread where it is left over.
        {kNoSize, "'h_FF_FFFF_FFFF_", Unsigned("40'hffffffffff"_v, 1)},
        {kNoSize, "'hFF_FFFF_FFFF_", Unsigned("40'hffffffffff"_v)},
        {"4", "'b_0101", Unsigned("4'b0101"_v, 1)},
        // Fill digits are one bit wide.
        {kNoSize, "'0", Unsigned("1'b0"_v)},
        {"8", "'1", Unsigned("1'b1"_v)},
        {kNoSize, "'z", Unsigned("1'bz"_v)},
        {kNoSize, "'X", Unsigned("1'bx"_v)},
        {kNoSize, "'10", Unsigned("1'b0"_v, 1)},
        // Sizes.
        {"000", "'h1", Unsigned("32'h1"_v)},
        {"", "'h1", Unsigned("32'h1"_v)},
        {"0_8", "'h1", Unsigned("8'h1"_v)},
        {"1_2", "'h1", Unsigned("12'h1"_v)},
        {"20000000", "'b1", Unsigned(FromDigits(10'000'000, 1, "1"))},
        {"99999999999999999999", "'bx", Unsigned(FromDigits(10'000'000, 1, "x"))},
        {kNoSize, "'h" + hexDigits, Unsigned(FromDigits(10'000'000, 4, hexDigits), 1)},
        {kNoSize, "'h" + hexDigits.substr(1), Unsigned(FromDigits(10'000'000, 4, hexDigits))},
        // The last digit reaches past the limit, but no digit is left unread.
        {kNoSize, "'o" + octalDigits, Unsigned(FromDigits(10'000'000, 3, octalDigits))},
        // Strings.
        {"4", R"("AB")", Unsigned("16'h4142"_v)},
        {kNoSize, R"("")", Unsigned("8'h0"_v)},
        {kNoSize, R"(")", Unsigned("8'h0"_v)},
        {kNoSize, R"("\7\18\1017")", Unsigned("40'h0701384137"_v)},
        {kNoSize, R"("\777\0")", Unsigned("16'hff00"_v)},
        {kNoSize, R"("\n\t\\\"\q\ ")", Unsigned("48'h0a095c227120"_v)},
        {kNoSize, R"("a\")", Unsigned("16'h615c"_v)},
        {kNoSize, "\"\xE9'h1\"", Unsigned("32'he9276831"_v)},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(Create(row.size, row.text), row.expected)
            << row.size.value_or("no size") << " " << row.text.substr(0, 60);
    }
}

TEST(Literal, LongStringsKeepTheirLastCharacters) {
    const std::string last(1'249'999, 'b');
    std::vector<VectorWord> words(312'500, {0x62626262, 0});
    words.back().aval = 0x61626262;
    const Vec expected = Words(10'000'000, words);
    EXPECT_TRUE(Create(std::nullopt, "\"a" + last + "\"") == Unsigned(expected));
    EXPECT_TRUE(Create(std::nullopt, "\"-\\141" + last + "\"") == Unsigned(expected, 1));
}

// A literal is written down from its parts, so that the expected vector needs no parser.
TEST(Literal, MatchesModel) {
    struct Base {
        const char* letters;
        int bitsPerDigit;
        std::string_view digits;
    };
    constexpr Base kBases[] = {{"bB", 1, "01xz?_"},
                               {"oO", 3, "01234567xZ_"},
                               {"hH", 4, "0123456789abcdefABCDEFXz?_"},
                               {"dD", 0, "0123456789_"}};
    for (Gen& gen : Seeds(kRuns)) {
        const Base& base = kBases[gen.Below(4)];
        const bool isSigned = gen.OneIn(2), hasSize = gen.OneIn(2),
                   isDecimal = base.letters[0] == 'd';
        // The first digit is no x or z, which a decimal number takes as the whole value.
        std::string digits = "1";
        for (int i = gen.Below(70); i > 0; --i) {
            digits += base.digits[gen.Bits() % base.digits.size()];
        }
        std::string plain;
        std::remove_copy(digits.begin(), digits.end(), std::back_inserter(plain), '_');
        const int needed = static_cast<int>(plain.size()) * base.bitsPerDigit;
        const int width = hasSize ? gen.Width() : std::max(32, needed);
        std::size_t unread = 0;
        Vec value = FromDigits(width, base.bitsPerDigit, digits, &unread);
        if (isDecimal) {
            const Integer number = FromDecimal(plain);
            value = Clean(FromInteger(width, number));
            unread = ToInteger(value) != number;
        }
        const int truncated = unread > 0 ? 1 : 0;
        const std::string text = std::string("'") + (isSigned ? gen.OneIn(2) ? "s" : "S" : "") +
                                 base.letters[gen.Below(2)] + (gen.OneIn(4) ? " \t" : "") + digits;
        const SizeText size = hasSize ? SizeText(std::to_string(width)) : std::nullopt;
        ASSERT_EQ(Create(size, text),
                  isSigned ? Signed(value, truncated) : Unsigned(value, truncated))
            << gen.Reproducer(size.value_or("no size"), text);
    }
}

}  // namespace
}  // namespace tarn::test
