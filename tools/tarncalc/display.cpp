#include "display.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <utility>

#include "conversion.h"
#include "diagnostic.h"

namespace tarncalc {

namespace {

constexpr TaskRow kTasks[] = {
    {"$display", 'd', true},  {"$displayb", 'b', true}, {"$displayo", 'o', true},
    {"$displayh", 'h', true}, {"$write", 'd', false},   {"$writeb", 'b', false},
    {"$writeo", 'o', false},  {"$writeh", 'h', false},
};

// A bound on storage.
constexpr std::size_t kMaxCharacters = 500'000'000;

/** Where a string stands as an argument of its own, it is a format. */
const Literal* FormatOf(const Expression& argument) {
    if (argument.tree.size() != 1) return nullptr;
    const auto* const literal = std::get_if<Literal>(&argument.tree.front().content);
    return literal != nullptr && literal->kind == Literal::Kind::kString ? literal : nullptr;
}

class Writer {
  public:
    Writer(const TaskCall& call, Context& context)
        : row_(*call.row),
          place_(call.place),
          next_(call.arguments.begin()),
          end_(call.arguments.end()),
          context_(context) {}

    std::string Run() {
        while (next_ != end_) {
            const std::optional<Expression>& argument = *next_++;
            if (!argument) {
                Append(" ");
            } else if (const Literal* const format = FormatOf(*argument)) {
                AppendFormat(*format);
            } else {
                AppendValue(*argument);
            }
        }
        if (row_.endsLine) text_ += '\n';
        return std::move(text_);
    }

  private:
    void AppendValue(const Expression& argument) {
        Value value = Evaluate(argument, context_);
        // The form of reals outside a format isn't standardised; this one keeps trailing zeros.
        const std::string text =
            value.IsReal() ? RealText("%#g", value.Real())
                           : TextOf(Conversion{{}, row_.letter, false, {}, {}}, std::move(value));
        Append(text);
    }

    void AppendFormat(const Literal& literal) {
        bool isCut = false;
        const Value value(literal, isCut);
        if (isCut) context_.cutLiterals.push_back(literal.spelling);
        const std::string format = tarn_ConvertToString(value.Width(), value.Words(), 0);
        for (std::size_t at = 0; at < format.size();) {
            const std::size_t percent = std::min(format.find('%', at), format.size());
            Append(std::string_view(format).substr(at, percent - at));
            at = percent;
            if (at == format.size()) return;
            at += AppendConversion(format, at, literal.GetPlace());
        }
    }

    /** Returns the count of the conversion's characters. */
    std::size_t AppendConversion(std::string_view format, std::size_t position, Place place) {
        if (format.substr(position).starts_with("%%")) {
            Append("%");
            return 2;
        }
        const std::optional<Conversion> conversion = ConversionAt(format, position);
        if (!conversion) {
            const std::string_view shown = format.substr(position, 4);
            throw InputError(place, "unknown conversion at " + InQuotes(shown));
        }
        const std::string name = InQuotes(conversion->spelling);
        if (next_ == end_ || !*next_) throw InputError(place, name + " has no argument");
        const Expression& argument = **next_++;
        Value value = Evaluate(argument, context_);
        if (!CanShow(*conversion, value)) {
            throw InputError(argument.tree.back().place, name + " can't show a real");
        }
        Append(TextOf(*conversion, std::move(value)));
        return conversion->spelling.size();
    }

    void Append(std::string_view text) {
        text_ += text;
        if (text_.size() > kMaxCharacters) throw InputError(place_, "this writes too much text");
    }

    const TaskRow& row_;
    Place place_;
    std::vector<std::optional<Expression>>::const_iterator next_, end_;
    Context& context_;
    std::string text_;
};

}  // namespace

const TaskRow* FindTask(std::string_view name) {
    const auto* const found = std::find_if(std::begin(kTasks), std::end(kTasks),
                                           [name](const TaskRow& row) { return row.name == name; });
    return found == std::end(kTasks) ? nullptr : found;
}

std::string TextOf(const TaskCall& call, Context& context) {
    return Writer(call, context).Run();
}

}  // namespace tarncalc
