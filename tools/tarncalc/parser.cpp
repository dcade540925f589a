#include "parser.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <utility>

#include "diagnostic.h"
#include "lexer.h"

namespace tarncalc {

namespace {

// Parentheses and unary operators inside each other. Bounds the call stack, and the operands that
// wait for their operator.
constexpr int kMaxNesting = 1000;

// Operators and operands together; a bound on storage.
constexpr std::size_t kMaxNodes = 1'000'000;

template <typename Row, std::size_t kCount>
const Row* FindSpelling(const Row (&rows)[kCount], const Token& token) {
    const Row* const found = std::find_if(std::begin(rows), std::end(rows),
                                          [&](const Row& row) { return token.Is(row.spelling); });
    return found == std::end(rows) ? nullptr : found;
}

class Parser {
  public:
    explicit Parser(std::string_view text) : lexer_(text), token_(lexer_.Next()) {}

    Tree Parse() {
        ParseExpression(0);
        if (token_.Is(")")) throw ExpressionError(token_.position, "unmatched ')'");
        if (token_.kind != Token::Kind::kEnd) {
            throw ExpressionError(token_.position, "expected an operator");
        }
        return std::move(tree_);
    }

  private:
    /** Precedence climbing: an operand, and every operator after it that binds at least as tightly
     *  as `minPrecedence`, with its right operand. */
    NodeIndex ParseExpression(int minPrecedence) {
        NodeIndex left = ParseOperand();
        while (const BinarySpelling* const row = FindSpelling(kBinaryOperators, token_)) {
            if (row->precedence < minPrecedence) break;
            const std::size_t position = token_.position;
            Advance();
            const NodeIndex right = ParseExpression(row->precedence + 1);
            left = Append({position, BinaryNode{row->op, left, right}});
        }
        return left;
    }

    NodeIndex ParseOperand() {
        const Token token = token_;
        if (token.kind == Token::Kind::kLiteral) {
            Advance();
            return Append({token.position, token.literal});
        }
        const UnarySpelling* const row = FindSpelling(kUnaryOperators, token);
        if (row == nullptr && !token.Is("(")) {
            throw ExpressionError(token.position, "expected an operand");
        }
        if (nesting_ == kMaxNesting) {
            throw ExpressionError(
                token.position, "nested more than " + std::to_string(kMaxNesting) + " levels deep");
        }
        ++nesting_;
        Advance();
        const NodeIndex inner = row != nullptr
                                    ? Append({token.position, UnaryNode{row->op, ParseOperand()}})
                                    : ParseParenthesised();
        --nesting_;
        return inner;
    }

    /** What follows an opening parenthesis. */
    NodeIndex ParseParenthesised() {
        const NodeIndex inner = ParseExpression(0);
        if (!token_.Is(")")) {
            const bool atEnd = token_.kind == Token::Kind::kEnd;
            throw ExpressionError(token_.position,
                                  atEnd ? "expected ')'" : "expected an operator or ')'");
        }
        Advance();
        return inner;
    }

    NodeIndex Append(const Node& node) {
        if (tree_.size() == kMaxNodes) {
            throw ExpressionError(node.position, "more than " + std::to_string(kMaxNodes) +
                                                     " operators and operands");
        }
        tree_.push_back(node);
        return tree_.size() - 1;
    }

    void Advance() { token_ = lexer_.Next(); }

    Lexer lexer_;
    Token token_;
    Tree tree_;
    int nesting_ = 0;
};

}  // namespace

Tree Parse(std::string_view text) {
    return Parser(text).Parse();
}

}  // namespace tarncalc
