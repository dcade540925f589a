#include "support/call.h"

#include <array>
#include <cstring>
#include <ostream>
#include <sstream>

#include "support/guarded.h"

namespace tarn::test {
namespace {

using WordList = std::vector<VectorWord>;

constexpr std::size_t kMaxParties = 5;

bool AreSame(const VectorWord* a, const VectorWord* b, std::size_t count) {
    return count == 0 || std::memcmp(a, b, count * sizeof(VectorWord)) == 0;
}

// Walks through all ways to put the parties of a call, its operands and then its result, into
// blocks of storage.
class EveryStorage {
  public:
    EveryStorage(const CallShape& shape, const Invoke& invoke) : shape_(shape), invoke_(invoke) {
        for (const Vec* operand : shape.operands) {
            operands_.push_back(ToWords(*operand));
        }
        hasResult_ = shape.resultPlace != ResultPlace::kNone;
        partyCount_ = operands_.size() + (hasResult_ ? 1 : 0);
    }

    Outcome Run() {
        PlaceFrom(0, 0);
        return std::move(outcome_);
    }

  private:
    void PlaceFrom(std::size_t party, std::size_t blockCount) {
        if (party == partyCount_) {
            for (const Edge edge : kEdges) {
                CallOnce(blockCount, edge);
            }
            return;
        }
        // The separate block first, so that the first call of all is the one in separate storage.
        for (std::size_t block = blockCount + 1; block-- > 0;) {
            if (!MayLieIn(party, block)) continue;
            blockOf_[party] = block;
            PlaceFrom(party + 1, std::max(blockCount, block + 1));
        }
    }

    bool MayLieIn(std::size_t party, std::size_t block) const {
        if (party == operands_.size()) {
            const auto end = blockOf_.begin() + static_cast<std::ptrdiff_t>(party);
            const bool isApart = std::find(blockOf_.begin(), end, block) == end;
            return shape_.resultPlace == ResultPlace::kAnywhere ||
                   (shape_.resultPlace == ResultPlace::kApart ? isApart : block == blockOf_[0]);
        }
        // Operands share storage where one's words begin the other's.
        for (std::size_t other = 0; other < party; ++other) {
            const WordList &a = operands_[party], &b = operands_[other];
            if (blockOf_[other] == block &&
                !AreSame(a.data(), b.data(), std::min(a.size(), b.size()))) {
                return false;
            }
        }
        return true;
    }

    void CallOnce(std::size_t blockCount, Edge edge) {
        // A result must not depend on what its storage held.
        constexpr std::uint32_t kFillers[] = {0xA5A5A5A5, 0xFFFFFFFF, 0};
        const std::uint32_t filler = kFillers[static_cast<int>(edge)];
        std::array<WordList, kMaxParties> before;
        if (hasResult_) {
            before[blockOf_[operands_.size()]].assign(shape_.resultWords, {filler, filler});
        }
        for (std::size_t i = 0; i < operands_.size(); ++i) {
            WordList& words = before[blockOf_[i]];
            words.resize(std::max(words.size(), operands_[i].size()));
            std::copy(operands_[i].begin(), operands_[i].end(), words.begin());
        }
        std::array<VectorWord*, kMaxParties> placed{};
        for (std::size_t i = 0; i < blockCount; ++i) {
            const std::size_t byteCount = before[i].size() * sizeof(VectorWord);
            placed[i] = reinterpret_cast<VectorWord*>(Blocks()[i].Place(byteCount, edge));
            std::copy(before[i].begin(), before[i].end(), placed[i]);
        }
        std::array<const VectorWord*, kMaxParties> operands{};
        for (std::size_t i = 0; i < operands_.size(); ++i) {
            operands[i] = placed[blockOf_[i]];
        }
        VectorWord* const result = hasResult_ ? placed[blockOf_[operands_.size()]] : nullptr;

        const std::int64_t returned = invoke_(result, operands.data());

        CompareResult(result, returned, edge);
        for (std::size_t i = 0; i < blockCount; ++i) {
            const std::size_t kept = placed[i] == result ? shape_.resultWords : 0;
            if (!AreSame(placed[i] + kept, before[i].data() + kept, before[i].size() - kept)) {
                Report("words changed that are not the result's", edge);
            }
            if (!Blocks()[i].MarginsAreIntact()) {
                Report("bytes changed beside the storage", edge);
            }
        }
    }

    void CompareResult(const VectorWord* result, std::int64_t returned, Edge edge) {
        const Vec found = Words(shape_.resultWidth, {result, result + shape_.resultWords});
        if (!isCalled_) {
            isCalled_ = true;
            outcome_.result = found;
            outcome_.returned = returned;
        }
        if (found == outcome_.result && returned == outcome_.returned) return;
        std::ostringstream out;
        out << "another result, " << returned << " and " << found;
        Report(out.str(), edge);
    }

    // Names the block of each operand, then that of the result.
    void Report(const std::string& what, Edge edge) {
        constexpr const char* kPlaces[] = {"end at a page", "begin at a page", "end off a page"};
        if (!outcome_.broken.empty()) return;
        outcome_.broken = what + " where blocks";
        for (std::size_t party = 0; party < partyCount_; ++party) {
            outcome_.broken += ' ' + std::to_string(blockOf_[party]);
        }
        outcome_.broken += std::string(" ") + kPlaces[static_cast<int>(edge)];
    }

    static std::array<GuardedBlock, kMaxParties>& Blocks() {
        static std::array<GuardedBlock, kMaxParties> blocks;
        return blocks;
    }

    const CallShape& shape_;
    const Invoke& invoke_;
    std::vector<WordList> operands_;
    bool hasResult_ = false;
    std::size_t partyCount_ = 0;
    std::array<std::size_t, kMaxParties> blockOf_{};
    bool isCalled_ = false;
    Outcome outcome_;
};

}  // namespace

Outcome CallInEveryStorage(const CallShape& shape, const Invoke& invoke) {
    return EveryStorage(shape, invoke).Run();
}

std::string CallForText(const Vec& value,
                        const std::function<const char*(const VectorWord* value)>& convert) {
    std::string text;
    const auto hashOfText = [&](VectorWord*, const VectorWord* const* operands) {
        text = convert(operands[0]);
        return static_cast<std::int64_t>(std::hash<std::string>{}(text));
    };
    const Outcome outcome =
        CallInEveryStorage({value.width, 0, ResultPlace::kNone, {&value}}, hashOfText);
    return outcome.broken.empty() ? text : outcome.broken + ": " + text;
}

std::ostream& operator<<(std::ostream& out, const Outcome& outcome) {
    out << outcome.result << ", returned " << outcome.returned;
    return outcome.broken.empty() ? out : out << "; but " << outcome.broken;
}

}  // namespace tarn::test
