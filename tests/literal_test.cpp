// Verilog literals as new vectors.
#include <optional>
#include <tuple>

#include <tarnlib/text.h>

#include "support/guarded.h"
#include "support/model.h"
#include "support/property.h"

namespace tarn::test {
namespace {

struct Literal {
    int width = -1;
    std::vector<VectorWord> words;
    bool isSigned = false;
    int truncated = 0;
    std::string broken;

    friend bool operator==(const Literal& a, const Literal& b) {
        const auto areEqual = [](VectorWord x, VectorWord y) {
            return x.aval == y.aval && x.bval == y.bval;
        };
        return std::tie(a.width, a.isSigned, a.truncated, a.broken) ==
                   std::tie(b.width, b.isSigned, b.truncated, b.broken) &&
               std::equal(a.words.begin(), a.words.end(), b.words.begin(), b.words.end(), areEqual);
    }
    friend std::ostream& operator<<(std::ostream& out, const Literal& literal) {
        return out << Words(literal.width, literal.words)
                   << (literal.isSigned ? ", signed" : ", unsigned") << ", truncated "
                   << literal.truncated << ' ' << literal.broken;
    }
};

Literal Signed(const Vec& value, int truncated = 0) {
    return {value.width, ToWords(value), true, truncated, ""};
}
Literal Unsigned(const Vec& value, int truncated = 0) {
    return {value.width, ToWords(value), false, truncated, ""};
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
        literal.isSigned = tarn_CreateVector(size, value, &literal.width, &words, Allocate,
                                             wantsTruncated ? &truncated : nullptr);
        const std::size_t count = WordCount(literal.width);
        if (allocations != std::vector<std::uint64_t>{8 * count}) {
            literal.broken = "not one allocation of the vector's size";
            return literal;
        }
        literal.words.assign(words, words + count);
        literal.truncated = wantsTruncated ? truncated : literals.front().truncated;
        literals.push_back(literal);
    }
    if (literals[1] != literals[0] || literals[2] != literals[0]) {
        literals[0].broken = "the place of text or storage changes the vector";
    }
    return literals[0];
}

struct Row {
    SizeText size;
    std::string text;
    Literal expected;
};

void ExpectRows(const std::vector<Row>& rows) {
    for (const Row& row : rows) {
        EXPECT_EQ(Create(row.size, row.text), row.expected)
            << row.size.value_or("no size") << " " << row.text.substr(0, 60);
    }
}

TEST(Literal, Numbers) {
    ExpectRows({
        {"8", "'hFF", Unsigned("8'hff"_v)},
        {"8", "'sd200", Signed("8'hc8"_v)},
        {"8", "'SD 200", Signed("8'hc8"_v)},
        {std::nullopt, "42", Signed("32'h2a"_v)},
        {std::nullopt, "4_294_967_297", Signed("32'h1"_v, 1)},
        {"4", "10", Signed("4'ha"_v)},
        {std::nullopt, "'hF", Unsigned("32'hf"_v)},
        {std::nullopt, "'hFFFFFFFFFF", Unsigned("40'hffffffffff"_v)},
        // An underscore needs no bits, but counts as unread where it is left over.
        {std::nullopt, "'h_FF_FFFF_FFFF_", Unsigned("40'hffffffffff"_v, 1)},
        {std::nullopt, "'hFF_FFFF_FFFF_", Unsigned("40'hffffffffff"_v)},
        {std::nullopt, "'o77777777777", Unsigned("33'h1ffffffff"_v)},
        {std::nullopt, "'sb1", Signed("32'h1"_v)},
        {std::nullopt, "'bx", Unsigned("32'bx"_v)},
        {std::nullopt, "'d4294967296", Unsigned("32'h0"_v, 1)},
        {"4", "'b10101", Unsigned("4'b0101"_v, 1)},
        {"4", "'b_0101", Unsigned("4'b0101"_v, 1)},
        {"4", "'b0101_", Unsigned("4'b0101"_v)},
        {"8", "'d300", Unsigned("8'h2c"_v, 1)},
        {"8", "'d0000", Unsigned("8'h0"_v)},
        {"16", "'hx", Unsigned("16'hx"_v)},
        {"16", "'dz", Unsigned("16'hz"_v)},
        {"16", "'O \t?7", Unsigned(FromDigits(16, 3, "z7"))},
        {"6", "'hff", Unsigned("6'h3f"_v)},
        {"16", "'h", Unsigned("16'h0"_v)},
        {"16", "'", Unsigned("16'h0"_v)},
        {"16", "'q7", Unsigned("16'h7"_v)},
        {"16", "'s9", Signed("16'h9"_v)},
    });
}

TEST(Literal, FillDigitsAreOneBitWide) {
    ExpectRows({
        {std::nullopt, "'1", Unsigned("1'b1"_v)},
        {std::nullopt, "'0", Unsigned("1'b0"_v)},
        {std::nullopt, "'z", Unsigned("1'bz"_v)},
        {std::nullopt, "'X", Unsigned("1'bx"_v)},
        {"8", "'1", Unsigned("1'b1"_v)},
        {std::nullopt, "'10", Unsigned("1'b0"_v, 1)},
    });
}

TEST(Literal, SizeTexts) {
    ExpectRows({
        {"000", "'h1", Unsigned("32'h1"_v)},
        {"", "'h1", Unsigned("32'h1"_v)},
        {"0_8", "'h1", Unsigned("8'h1"_v)},
        {"1_2", "'h1", Unsigned("12'h1"_v)},
        {"0040", "'hx", Unsigned("40'hx"_v)},
        {"10000000", "'b1", Unsigned(FromDigits(10'000'000, 1, "1"))},
        {"20000000", "'b1", Unsigned(FromDigits(10'000'000, 1, "1"))},
        {"99999999999999999999", "'bx", Unsigned(FromDigits(10'000'000, 1, "x"))},
    });
}

TEST(Literal, UnsizedNumbersEndAtTheWidthLimit) {
    const std::string hexDigits(2'500'001, 'e'), octalDigits(3'333'334, '7');
    ExpectRows({
        {std::nullopt, "'h" + hexDigits, Unsigned(FromDigits(10'000'000, 4, hexDigits), 1)},
        {std::nullopt, "'h" + hexDigits.substr(1), Unsigned(FromDigits(10'000'000, 4, hexDigits))},
        // The last digit reaches past the limit, but no digit is left unread.
        {std::nullopt, "'o" + octalDigits, Unsigned(FromDigits(10'000'000, 3, octalDigits))},
    });
}

TEST(Literal, Strings) {
    ExpectRows({
        {std::nullopt, R"("AB")", Unsigned("16'h4142"_v)},
        {"4", R"("AB")", Unsigned("16'h4142"_v)},
        {std::nullopt, R"("")", Unsigned("8'h0"_v)},
        {std::nullopt, R"(")", Unsigned("8'h0"_v)},
        {std::nullopt, R"("a\101")", Unsigned("16'h6141"_v)},
        {std::nullopt, R"("\7\18\1017")", Unsigned("40'h0701384137"_v)},
        {std::nullopt, R"("\777\0")", Unsigned("16'hff00"_v)},
        {std::nullopt, R"("\n\t\\\"\q\ ")", Unsigned("48'h0a095c227120"_v)},
        {std::nullopt, R"("a\")", Unsigned("16'h615c"_v)},
        {std::nullopt, "\"\xE9'h1\"", Unsigned("32'he9276831"_v)},
    });
}

TEST(Literal, LongStringsKeepTheirLastCharacters) {
    const std::string last(1'249'999, 'b');
    Literal expected{10'000'000, {312'500, {0x62626262, 0}}, false, 0, ""};
    expected.words.back().aval = 0x61626262;
    EXPECT_TRUE(Create(std::nullopt, "\"a" + last + "\"") == expected);
    expected.truncated = 1;
    EXPECT_TRUE(Create(std::nullopt, "\"-\\141" + last + "\"") == expected);
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
            digits += base.digits[static_cast<std::size_t>(
                gen.Below(static_cast<int>(base.digits.size())))];
        }
        const auto written =
            static_cast<int>(digits.size() - static_cast<std::size_t>(
                                                 std::count(digits.begin(), digits.end(), '_')));
        const int width = hasSize ? gen.Width() : std::max(32, written * base.bitsPerDigit);
        Vec value;
        bool truncated = false;
        if (isDecimal) {
            std::string plain;
            std::remove_copy(digits.begin(), digits.end(), std::back_inserter(plain), '_');
            const mpz_class number(plain, 10);
            value = Clean(FromInteger(width, number));
            truncated = ToInteger(value) != number;
        } else {
            std::size_t unread = 0;
            value = FromDigits(width, base.bitsPerDigit, digits, &unread);
            truncated = unread > 0;
        }
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
