#include "expression_parser.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <utility>

#include "keywords.h"

namespace tarncalc {

namespace {

// Operators and operands together; a bound on storage.
constexpr std::size_t kMaxNodes = 1'000'000;

const OperatorRow* FindOperator(const Token& token, bool isPrefix) {
    const auto* const found =
        std::find_if(std::begin(kOperators), std::end(kOperators), [&](const OperatorRow& row) {
            return (row.operandCount == 1) == isPrefix && token.Is(row.spelling);
        });
    return found == std::end(kOperators) ? nullptr : found;
}

/** Parsing by operator precedence: an operator waits on a stack until one that binds no tighter, or
 *  the end of the expression, shows that its last operand is complete. So neither a row of
 *  operators nor a row of conditionals uses the call stack. */
class ExpressionParser {
  public:
    explicit ExpressionParser(TokenStream& tokens) : tokens_(tokens) {}

    Expression Run() {
        Parse();
        return std::move(expression_);
    }

  private:
    struct Waiting {
        const OperatorRow* row;
        Place place;
        NodeIndex first;  // where its first operand begins
    };

    void Parse() {
        const std::size_t bottom = waiting_.size();
        for (;;) {
            tokens_.SkipLineEnds();
            while (const OperatorRow* const prefix = FindOperator(tokens_.Current(), true)) {
                waiting_.push_back({prefix, Here(), tree_.size()});
                tokens_.Advance();
                tokens_.SkipLineEnds();
            }
            ParseOperand();
            const OperatorRow* const row = FindOperator(tokens_.Current(), false);
            Complete(bottom, row);
            if (row == nullptr) return;
            waiting_.push_back({row, Here(), tree_.size() - tree_.back().nodeCount});
            if (row->op == Operator::kConditional) {
                tokens_.Open();
                Parse();
                tokens_.Close(":");
            } else {
                tokens_.Advance();
            }
        }
    }

    /** Appends the waiting operators above `bottom` that bind at least as tightly as the next one;
     *  all of them where there is no next one. */
    void Complete(std::size_t bottom, const OperatorRow* next) {
        const int precedence = next == nullptr ? 0 : next->precedence;
        const bool groupsFromRight = precedence == kConditionalPrecedence;
        while (waiting_.size() > bottom) {
            const Waiting last = waiting_.back();
            if (last.row->precedence < precedence + (groupsFromRight ? 1 : 0)) return;
            Append(last.place, last.first, OperatorNode{last.row});
            waiting_.pop_back();
        }
    }

    void ParseOperand() {
        const Token& token = tokens_.Current();
        if (token.kind == Token::Kind::kLiteral) {
            Append(Here(), tree_.size(), token.literal);
            tokens_.Advance();
        } else if (token.kind == Token::Kind::kName) {
            ParseReference();
        } else if (token.kind == Token::Kind::kSystemName) {
            ParseCall();
        } else if (token.Is("(")) {
            tokens_.Open();
            Parse();
            tokens_.Close(")");
        } else if (token.Is("{")) {
            ParseConcatenation(true);
        } else {
            throw InputError(token.place, "expected an operand");
        }
    }

    void ParseReference() {
        const Place place = Here();
        const NodeIndex first = tree_.size();
        ReferenceNode node{ParseName(tokens_)};
        while (tokens_.Current().Is("[")) {
            if (node.indexCount == 2 || node.part != Part::kNone) {
                throw InputError(Here(), "nothing can be selected from a part of a variable");
            }
            ParseSelect(node);
        }
        Append(place, first, node);
    }

    void ParseSelect(ReferenceNode& node) {
        tokens_.Open();
        const NodeIndex first = tree_.size();
        Parse();
        if (tokens_.Skip(":")) {
            node.part = Part::kBounds;
            node.left = MoveToConstants(first);
            node.right = ParseConstant();
        } else {
            ++node.indexCount;
            if (tokens_.Skip("+:")) {
                node.part = Part::kUp;
            } else if (tokens_.Skip("-:")) {
                node.part = Part::kDown;
            }
            if (node.part != Part::kNone) node.right = ParseConstant();
        }
        tokens_.Close("]");
    }

    /** A concatenation, or where that is allowed a replication. */
    void ParseConcatenation(bool mayBeReplication) {
        const Place place = Here();
        const NodeIndex first = tree_.size();
        tokens_.Open();
        Parse();
        if (mayBeReplication && tokens_.Current().Is("{")) {
            const ConstantIndex count = MoveToConstants(first);
            ParseConcatenation(false);
            tokens_.Close("}");
            Append(place, first, ReplicationNode{count});
            return;
        }
        const std::size_t operandCount = 1 + (tokens_.Skip(",") ? ParseList() : 0);
        tokens_.Close("}", "',' or ");
        Append(place, first, ConcatenationNode{operandCount});
    }

    void ParseCall() {
        const Place place = Here();
        const NodeIndex first = tree_.size();
        const std::string name = InQuotes(tokens_.Current().text);
        const FunctionRow* const row = FindFunction(tokens_.Current().text);
        if (row == nullptr) throw InputError(place, name + " is no function");
        tokens_.Advance();
        if (!tokens_.Current().Is("(")) throw InputError(Here(), "expected '('");
        tokens_.Open();
        const std::size_t argumentCount = ParseList();
        tokens_.Close(")", "',' or ");
        if (argumentCount != row->argumentCount) {
            const bool takesOne = row->argumentCount == 1;
            throw InputError(place, name + " takes " + std::to_string(row->argumentCount) +
                                        (takesOne ? " argument" : " arguments"));
        }
        Append(place, first, CallNode{row});
    }

    /** Expressions between commas; returns how many. */
    std::size_t ParseList() {
        std::size_t count = 0;
        do {
            Parse();
            ++count;
        } while (tokens_.Skip(","));
        return count;
    }

    ConstantIndex ParseConstant() {
        const NodeIndex first = tree_.size();
        Parse();
        return MoveToConstants(first);
    }

    /** The last nodes of the tree, from the first one of a subtree on. */
    ConstantIndex MoveToConstants(NodeIndex first) {
        const auto begin = tree_.begin() + static_cast<std::ptrdiff_t>(first);
        expression_.constants.emplace_back(begin, tree_.end());
        constantNodeCount_ += tree_.size() - first;
        tree_.erase(begin, tree_.end());
        return expression_.constants.size() - 1;
    }

    template <typename Content>
    void Append(Place place, NodeIndex first, const Content& content) {
        if (tree_.size() + constantNodeCount_ == kMaxNodes) {
            throw InputError(place,
                             "more than " + std::to_string(kMaxNodes) + " operators and operands");
        }
        tree_.push_back({place, tree_.size() - first + 1, content});
    }

    Place Here() const { return tokens_.Current().place; }

    TokenStream& tokens_;
    Expression expression_;
    Tree& tree_ = expression_.tree;
    std::size_t constantNodeCount_ = 0;
    std::vector<Waiting> waiting_;
};

}  // namespace

Expression ParseExpression(TokenStream& tokens) {
    return ExpressionParser(tokens).Run();
}

std::string_view ParseName(TokenStream& tokens) {
    const Token token = tokens.Current();
    if (token.kind != Token::Kind::kName) throw InputError(token.place, "expected a name");
    if (IsKeyword(token.text)) {
        throw InputError(token.place, InQuotes(token.text) + " is a word of the language, no name");
    }
    tokens.Advance();
    return token.text;
}

}  // namespace tarncalc
