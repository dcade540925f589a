#include "parser.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <utility>

#include "diagnostic.h"
#include "lexer.h"

namespace tarncalc {

namespace {

// Expressions inside each other: in parentheses, or between ? and :. Bounds the call stack.
constexpr int kMaxNesting = 1000;

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
class Parser {
  public:
    explicit Parser(std::string_view text) : lexer_(text), token_(lexer_.Next()) {}

    Tree Parse() {
        ParseExpression();
        if (token_.Is(")")) throw ExpressionError(token_.position, "unmatched ')'");
        if (token_.kind != Token::Kind::kEnd) {
            throw ExpressionError(token_.position, "expected an operator");
        }
        return std::move(tree_);
    }

  private:
    struct Waiting {
        const OperatorRow* row;
        std::size_t position;
        NodeIndex first;  // where its first operand begins
    };

    void ParseExpression() {
        const std::size_t bottom = waiting_.size();
        for (;;) {
            while (const OperatorRow* const prefix = FindOperator(token_, true)) {
                waiting_.push_back({prefix, token_.position, tree_.size()});
                Advance();
            }
            ParseOperand();
            const OperatorRow* const row = FindOperator(token_, false);
            Complete(bottom, row);
            if (row == nullptr) return;
            waiting_.push_back({row, token_.position, tree_.size() - tree_.back().nodeCount});
            if (row->op == Operator::kConditional) {
                ParseNested(":");
            } else {
                Advance();
            }
        }
    }

    /** Appends the waiting operators above `bottom` that bind at least as tightly as the next one;
     *  all of them where there is no next one. */
    void Complete(std::size_t bottom, const OperatorRow* next) {
        const int precedence = next == nullptr ? 0 : next->precedence;
        while (waiting_.size() > bottom) {
            const Waiting& last = waiting_.back();
            const bool groupsFromRight = precedence == kConditionalPrecedence;
            if (last.row->precedence < precedence + (groupsFromRight ? 1 : 0)) return;
            Append(last.position, last.first, OperatorNode{last.row});
            waiting_.pop_back();
        }
    }

    void ParseOperand() {
        if (token_.kind == Token::Kind::kLiteral) {
            Append(token_.position, tree_.size(), token_.literal);
            Advance();
        } else if (token_.Is("(")) {
            ParseNested(")");
        } else {
            throw ExpressionError(token_.position, "expected an operand");
        }
    }

    /** An expression between the current token and a closing symbol, and both of them. */
    void ParseNested(std::string_view closing) {
        if (nesting_ == kMaxNesting) {
            throw ExpressionError(
                token_.position,
                "nested more than " + std::to_string(kMaxNesting) + " levels deep");
        }
        ++nesting_;
        Advance();
        ParseExpression();
        --nesting_;
        if (!token_.Is(closing)) {
            const std::string expected = std::string("'").append(closing) + '\'';
            const bool atEnd = token_.kind == Token::Kind::kEnd;
            throw ExpressionError(token_.position, atEnd ? "expected " + expected
                                                         : "expected an operator or " + expected);
        }
        Advance();
    }

    template <typename Content>
    void Append(std::size_t position, NodeIndex first, const Content& content) {
        if (tree_.size() == kMaxNodes) {
            throw ExpressionError(
                position, "more than " + std::to_string(kMaxNodes) + " operators and operands");
        }
        tree_.push_back({position, tree_.size() - first + 1, content});
    }

    void Advance() { token_ = lexer_.Next(); }

    Lexer lexer_;
    Token token_;
    Tree tree_;
    std::vector<Waiting> waiting_;
    int nesting_ = 0;
};

}  // namespace

Tree Parse(std::string_view text) {
    return Parser(text).Parse();
}

}  // namespace tarncalc
