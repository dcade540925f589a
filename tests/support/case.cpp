#include "support/case.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>
#include <iomanip>
#include <sstream>

#include "support/guarded.h"

namespace tarn::test {
namespace {

Bytes ToBytes(const Vec& vec) {
    const std::vector<VectorWord> words = ToWords(vec);
    Bytes bytes(words.size() * sizeof(VectorWord));
    if (!bytes.empty()) std::memcpy(bytes.data(), words.data(), bytes.size());
    return bytes;
}

// Words as the initialiser of an array, other bytes as two digits each; the middle of long ones is
// left out.
std::string Shown(const Bytes& bytes, bool isWords) {
    constexpr std::size_t kMost = 96;
    std::ostringstream out;
    out << std::hex << std::setfill('0');
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        if (bytes.size() > 2 * kMost && i == kMost) {
            i = bytes.size() - kMost;
            out << std::dec << " ... " << i - kMost << " bytes ... " << std::hex;
        }
        if (isWords && i % 4 == 0) {
            std::uint32_t half = 0;
            std::memcpy(&half, &bytes[i], sizeof half);
            out << (i % 8 == 0 ? "{0x" : ", 0x") << half << (i % 8 == 0 ? "" : "} ");
        } else if (!isWords) {
            out << std::setw(2) << unsigned{bytes[i]};
        }
    }
    return out.str();
}

/*------------------------------------------------------------------------------------------------
 * Where the parties may lie
 *----------------------------------------------------------------------------------------------*/

bool BeginAlike(const Bytes& a, const Bytes& b) {
    return std::equal(a.begin(), a.begin() + std::ptrdiff_t(std::min(a.size(), b.size())),
                      b.begin());
}

bool MayShare(const Party& a, const Party& b) {
    if (a.isApart || b.isApart || a.fixed != nullptr || b.fixed != nullptr) return false;
    if (a.role != Role::kOperand && b.role != Role::kOperand) return false;
    if (a.role == Role::kResult || b.role == Role::kResult) return true;
    return BeginAlike(a.before, b.before);
}

// The number of each party's block.
using Layout = std::vector<std::size_t>;

std::size_t BlockCount(const Layout& layout) {
    return layout.empty() ? 0 : *std::max_element(layout.begin(), layout.end()) + 1;
}

// Appends every layout that begins as `layout` does; the one with all parties apart is the first.
void AppendLayouts(const std::vector<Party>& parties, Layout& layout, std::vector<Layout>& all) {
    const std::size_t party = layout.size();
    if (party == parties.size()) {
        all.push_back(layout);
        return;
    }
    for (std::size_t block = BlockCount(layout) + 1; block-- > 0;) {
        bool isFree = true;
        for (std::size_t other = 0; other < party; ++other) {
            if (layout[other] == block && !MayShare(parties[party], parties[other])) isFree = false;
        }
        if (!isFree) continue;
        layout.push_back(block);
        AppendLayouts(parties, layout, all);
        layout.pop_back();
    }
}

std::vector<Layout> LayoutsOf(const Case& oneCase) {
    std::vector<Layout> all;
    Layout layout;
    AppendLayouts(oneCase.Parties(), layout, all);
    return all;
}

/*------------------------------------------------------------------------------------------------
 * One call
 *----------------------------------------------------------------------------------------------*/

struct Block {
    Bytes before, after;
    bool isWords = true;
    std::byte* place = nullptr;
    GuardedBlock* guarded = nullptr;  // null for storage that has its place
};

std::vector<Block> Fill(const std::vector<Party>& parties, const Layout& layout, Edge edge) {
    // A result must not depend on what its storage held.
    constexpr std::uint8_t kFillers[] = {0xA5, 0xFF, 0};
    std::vector<Block> blocks(BlockCount(layout));
    for (std::size_t i = 0; i < parties.size(); ++i) {
        Bytes& before = blocks[layout[i]].before;
        blocks[layout[i]].isWords = parties[i].isWords;
        before.resize(std::max({before.size(), parties[i].before.size(), parties[i].after.size()}),
                      kFillers[static_cast<int>(edge)]);
        std::copy(parties[i].before.begin(), parties[i].before.end(), before.begin());
    }
    for (Block& block : blocks) {
        block.after = block.before;
    }
    for (std::size_t i = 0; i < parties.size(); ++i) {
        const Bytes& after = parties[i].after;
        std::copy(after.begin(), after.end(), blocks[layout[i]].after.begin());
    }
    return blocks;
}

Places PlaceAll(const std::vector<Party>& parties, const Layout& layout, Edge edge,
                std::vector<Block>& blocks) {
    static std::array<GuardedBlock, 6> guarded;
    Places places;
    for (std::size_t i = 0; i < parties.size(); ++i) {
        Block& block = blocks[layout[i]];
        if (block.place == nullptr && parties[i].fixed != nullptr) {
            block.place = static_cast<std::byte*>(parties[i].fixed);
        } else if (block.place == nullptr) {
            block.guarded = &guarded.at(layout[i]);
            block.place = block.guarded->Place(block.before.size(), edge);
        }
        places.push_back(block.place);
    }
    for (const Block& block : blocks) {
        if (!block.before.empty()) {
            std::memcpy(block.place, block.before.data(), block.before.size());
        }
    }
    return places;
}

std::string DifferenceIn(const Case& oneCase, const Layout& layout, Edge edge) {
    std::vector<Block> blocks = Fill(oneCase.Parties(), layout, edge);
    const Places places = PlaceAll(oneCase.Parties(), layout, edge, blocks);
    const std::string returned = oneCase.CallAt(places);
    std::ostringstream out;
    if (returned != oneCase.Expected()) {
        out << "returned " << returned << ", expected " << oneCase.Expected() << "; ";
    }
    for (std::size_t i = 0; i < blocks.size(); ++i) {
        const Block& block = blocks[i];
        Bytes found(block.after.size());
        if (!found.empty()) std::memcpy(found.data(), block.place, found.size());
        if (found != block.after) {
            out << "block " << i << " holds " << Shown(found, block.isWords) << ", expected "
                << Shown(block.after, block.isWords) << "; ";
        }
        if (block.guarded != nullptr && !block.guarded->MarginsAreIntact()) {
            out << "bytes changed beside block " << i << "; ";
        }
    }
    std::string difference = out.str();
    if (difference.empty()) return difference;
    constexpr const char* kPlaces[] = {"end at a page", "begin at a page", "end off a page"};
    difference += "called with (" + oneCase.Arguments() + ") in blocks";
    for (const std::size_t block : layout) {
        difference += ' ' + std::to_string(block);
    }
    return difference + " that " + kPlaces[static_cast<int>(edge)];
}

}  // namespace

std::string Difference(const Case& oneCase) {
    for (const Layout& layout : LayoutsOf(oneCase)) {
        for (const Edge edge : kEdges) {
            std::string difference = DifferenceIn(oneCase, layout, edge);
            if (!difference.empty()) return difference;
        }
    }
    return "";
}

std::string DifferenceAt(const Case& oneCase, std::size_t number) {
    const std::vector<Layout> layouts = LayoutsOf(oneCase);
    return DifferenceIn(oneCase, layouts[number / std::size(kEdges) % layouts.size()],
                        kEdges[number % std::size(kEdges)]);
}

bool Case::HasArgument(std::size_t party) const {
    return std::any_of(arguments_.begin(), arguments_.end(), [&](const Argument& argument) {
        const auto* const slot = std::get_if<Again>(&argument);
        return slot != nullptr && slot->party == party;
    });
}

std::string Case::Arguments() const {
    std::ostringstream out;
    for (const Argument& argument : arguments_) {
        if (&argument != arguments_.data()) out << ", ";
        if (const auto* const number = std::get_if<std::int64_t>(&argument)) out << *number;
        if (const auto* const real = std::get_if<double>(&argument)) out << test::Shown(*real);
        if (std::holds_alternative<Null>(argument)) out << "null";
        if (std::holds_alternative<Unreadable>(argument)) out << "unreadable";
        if (const auto* const slot = std::get_if<Again>(&argument)) {
            out << '&' << static_cast<char>('A' + slot->party);
            if (slot->offset != 0) out << '[' << slot->offset << ']';
        }
    }
    for (std::size_t i = 0; i < parties_.size(); ++i) {
        if (parties_[i].role == Role::kResult) continue;
        out << "; " << static_cast<char>('A' + i) << " = "
            << Shown(parties_[i].before, parties_[i].isWords);
    }
    return out.str();
}

std::string Shown(double value) {
    std::ostringstream out;
    out << value << std::hex << " (0x" << std::bit_cast<std::uint64_t>(value) << ')';
    return out.str();
}

/*------------------------------------------------------------------------------------------------
 * Parties
 *----------------------------------------------------------------------------------------------*/

Party Operand(const Vec& vec) {
    return {Role::kOperand, ToBytes(vec), {}};
}
Party Result(const Vec& expected) {
    return {Role::kResult, {}, ToBytes(expected)};
}
Party Target(const Vec& before, const Vec& after) {
    return {Role::kTarget, ToBytes(before), ToBytes(after)};
}
Party RealResult(double expected) {
    static double reals[3];
    Party party = Target(Words(96, {{1, 2}, {3, 4}, {5, 6}}), Vec{});
    party.after = party.before;
    std::memcpy(&party.after[sizeof expected], &expected, sizeof expected);
    party.fixed = reals;
    party.offset = sizeof expected;
    return party;
}
Party Memory(const Bytes& bytes) {
    return {Role::kOperand, bytes, {}, true, false};
}
Party MemoryTarget(const Bytes& before, const Bytes& after) {
    return {Role::kTarget, before, after, true, false};
}
Party Text(std::string_view characters) {
    return Memory({characters.begin(), characters.end()});
}
Party Apart(Party party) {
    party.isApart = true;
    return party;
}
Party At(Party party, std::size_t offset) {
    party.offset = offset;
    return party;
}

}  // namespace tarn::test
