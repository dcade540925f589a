// Programs for the calculator: any text ends in results or in messages, the same at every run, and
// a result that is printed reads back as itself.
//
// A few characters can ask for minutes and gigabytes: {9999999{1'b1}} ** 9999. What bounds the time
// of a run is storage: every value, variable and text lies in one piece of memory, and what asks
// for a larger piece than a run may have gets std::bad_alloc, for which the calculator has a
// message. So the paths behind a refused allocation are tried as well.
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <new>
#include <sstream>
#include <streambuf>
#include <string>
#include <string_view>

#include "radix.h"
#include "session.h"

namespace {

// Of a piece of memory. Powers take the square of what others take.
constexpr std::size_t kMaxBytes = 1U << 16U;
constexpr std::size_t kMaxBytesWithPowers = 1U << 12U;

// 0 for no limit. New memory is filled with what differs from run to run.
std::size_t byteLimit = 0;
char filler = 0;

void* Allocate(std::size_t byteCount) {
    if (byteLimit != 0 && byteCount > byteLimit) throw std::bad_alloc();
    void* const memory = std::malloc(std::max<std::size_t>(byteCount, 1));
    if (memory == nullptr) throw std::bad_alloc();
    std::memset(memory, filler, byteCount);
    return memory;
}

}  // namespace

void* operator new(std::size_t byteCount) {
    return Allocate(byteCount);
}
void* operator new[](std::size_t byteCount) {
    return Allocate(byteCount);
}
void* operator new(std::size_t byteCount, const std::nothrow_t& /*tag*/) noexcept {
    return std::malloc(byteCount);
}
void operator delete(void* memory) noexcept {
    std::free(memory);
}
void operator delete[](void* memory) noexcept {
    std::free(memory);
}
void operator delete(void* memory, std::size_t /*byteCount*/) noexcept {
    std::free(memory);
}
void operator delete[](void* memory, std::size_t /*byteCount*/) noexcept {
    std::free(memory);
}

namespace tarn::fuzz {
namespace {

// What does not hold ends the run, so that the input becomes a finding.
void Check(const char* what, bool holds) {
    if (holds) return;
    std::cerr << what << std::endl;
    std::abort();
}

// What a stream wrote, without a limit; of a long text the beginning is kept.
class Transcript : public std::streambuf {
  public:
    explicit Transcript(std::ostream& stream) : stream_(stream), before_(stream.rdbuf(this)) {}
    ~Transcript() override { stream_.rdbuf(before_); }

    std::string_view Text() const { return {text_, std::min(count_, sizeof text_)}; }
    bool IsWhole() const { return count_ <= sizeof text_; }

  protected:
    int_type overflow(int_type character) override {
        if (count_ < sizeof text_) text_[count_] = static_cast<char>(character);
        ++count_;
        return character;
    }

  private:
    std::ostream& stream_;
    std::streambuf* before_;
    char text_[5000];
    std::size_t count_ = 0;
};

struct Ending {
    tarncalc::Outcome outcome;
    std::string output, messages;
    bool isWhole;

    bool operator==(const Ending&) const = default;
};

Ending Run(const std::string& program, const tarncalc::Radix& radix, char newMemory) {
    Transcript output(std::cout), messages(std::cerr);
    filler = newMemory;
    const bool hasPower = program.find("**") != std::string::npos;
    byteLimit = hasPower ? kMaxBytesWithPowers : kMaxBytes;
    tarncalc::Outcome outcome;
    {
        tarncalc::Session session(radix);
        outcome = session.RunArgument(program);
    }
    byteLimit = 0;
    return {outcome, std::string(output.Text()), std::string(messages.Text()),
            output.IsWhole() && messages.IsWhole()};
}

// A message is fit for a terminal whatever the program holds, and says where it comes from.
void CheckMessages(const Ending& ending) {
    const bool isWrong = ending.outcome != tarncalc::Outcome::kOk;
    Check("wrong input has a message", !isWrong || !ending.messages.empty());
    const bool isPrefixed = ending.messages.starts_with("tarncalc: ");
    Check("a message begins with the program's name", ending.messages.empty() || isPrefixed);
    for (const char c : ending.messages) {
        const auto code = static_cast<unsigned char>(c);
        Check("a message has no control characters",
              c == '\n' || c == '\t' || (code >= 0x20 && code != 0x7F));
    }
}

// A line of the output is an expression of its own, but for reals that are no number.
void CheckReadsBack(const Ending& ending, const tarncalc::Radix& radix) {
    std::istringstream lines(ending.output);
    for (std::string line; std::getline(lines, line);) {
        if (line.find("inf") != std::string::npos || line == "nan") continue;
        const Ending again = Run(line, radix, 0x11);
        Check("a result reads back without a message", again.messages.empty());
        Check("a result that is read back is the same", again.output == line + '\n');
    }
}

}  // namespace
}  // namespace tarn::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace tarn::fuzz;
    const std::string program(reinterpret_cast<const char*>(data), size);
    // The first character chooses the radix of results as well.
    const tarncalc::Radix& radix =
        *tarncalc::kRadices[size == 0 ? 0 : data[0] % std::size(tarncalc::kRadices)];
    const Ending ending = Run(program, radix, 0x22);
    Check("another run ends in the same way", Run(program, radix, 0x77) == ending);
    CheckMessages(ending);
    const bool isPlain = program.find('$') == std::string::npos;
    if (isPlain && ending.isWhole) CheckReadsBack(ending, radix);
    return 0;
}
