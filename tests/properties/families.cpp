#include "families.h"

namespace tarn::test {

One DrawOneOperand(Gen& gen, bool fourState) {
    const int width = gen.AnyWidth(), aWidth = gen.OneIn(2) ? width : gen.AnyWidth();
    return {width, fourState ? gen.FourState(aWidth) : gen.Vector(aWidth)};
}

Two DrawTwoOperands(Gen& gen, bool fourState) {
    auto [width, a] = DrawOneOperand(gen, fourState);
    const int bWidth = gen.OneIn(3) ? gen.AnyWidth() : gen.OneIn(2) ? width.bits : a.width;
    if (gen.OneIn(6) && WordCount(bWidth) <= WordCount(a.width)) {
        return {width, a, Prefix(a, bWidth)};
    }
    return {width, a, fourState ? gen.FourState(bWidth) : gen.Vector(bWidth)};
}

const std::vector<Family>& AllFamilies() {
    static const std::vector<Family> families = {ArithFamily(),  LogicFamily(),  CompareFamily(),
                                                 SelectFamily(), AssignFamily(), RealFamily(),
                                                 TextFamily(),   ParseFamily(),  LiteralFamily()};
    return families;
}

}  // namespace tarn::test
