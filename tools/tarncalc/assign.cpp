#include "assign.h"

#include <cstdint>
#include <utility>

#include "diagnostic.h"

namespace tarncalc {

namespace {

Field FieldOf(const ReferenceNode& node, TreeView subtree, std::span<const int> constants,
              Context& context) {
    const NodeIndex root = subtree.size() - 1;
    const Selection selection = Select(node, subtree[root].place, context.scope, constants);
    const auto operands = OperandsOf(subtree, root);
    std::vector<Value> indices;
    for (std::size_t place = 0; place < node.indexCount; ++place) {
        const Node& index = subtree[operands[place]];
        const NodeIndex first = operands[place] + 1 - index.nodeCount;
        indices.push_back(Evaluate(subtree.subspan(first, index.nodeCount), constants, context));
        if (indices.back().IsReal()) throw InputError(index.place, "an index can't be a real");
    }
    return Locate(selection, indices);
}

}  // namespace

std::vector<Field> FieldsOf(const Expression& target, Context& context) {
    const std::vector<int> constants = EvaluateConstants(target, context);
    const TreeView tree = target.tree;
    std::vector<Field> fields;
    std::int64_t width = 0;
    // Backwards in postorder the last operand of a concatenation comes right behind it.
    for (NodeIndex end = tree.size(); end > 0;) {
        const Node& node = tree[end - 1];
        if (std::holds_alternative<ConcatenationNode>(node.content)) {
            --end;
            continue;
        }
        const auto* const reference = std::get_if<ReferenceNode>(&node.content);
        if (reference == nullptr) throw InputError(node.place, "nothing can be assigned to this");
        end -= node.nodeCount;
        fields.push_back(
            FieldOf(*reference, tree.subspan(end, node.nodeCount), constants, context));
        width += fields.back().type.width;
        CheckWidth(width, tree.back().place);
        if (fields.back().type.isReal && tree.size() > 1) {
            throw InputError(node.place, "a real can't be concatenated");
        }
    }
    return fields;
}

void Assign(const std::vector<Field>& fields, const Expression& expression, Context& context) {
    int width = 0;
    for (const Field& field : fields) {
        width += field.type.width;
    }
    const bool isReal = fields.front().type.isReal;
    Value value = Evaluate(expression, context, isReal ? 0 : width);
    if (fields.size() == 1) return Write(fields.front(), std::move(value));
    value.Convert({width, false});
    int position = 0;
    for (const Field& field : fields) {
        Value piece(Type{field.type.width, false});
        tarn_Partselect(piece.Words(), value.Words() + position / kWordBits,
                        static_cast<unsigned>(position % kWordBits), field.type.width);
        Write(field, std::move(piece));
        position += field.type.width;
    }
}

}  // namespace tarncalc
