// The operators of two vectors, for one choice of their signs. The file is included once for each.
module `CHECKS #(parameter RW = 8, AW = 8, BW = 8);
    reg `A_SIGN [AW-1:0] a;
    reg `B_SIGN [BW-1:0] b;
    reg [RW-1:0] got, expected;
    reg [AW-1:0] target, expected_target;
    reg [RW-1:0] value;
    reg signed [31:0] index;
    reg isUsable;
    integer low, width, i;

    task compare(input [8*24:1] name);
        begin
            common.comparisons = common.comparisons + 1;
            if (got !== expected) begin
                common.differences = common.differences + 1;
                $display("%m %0s: a = %0d'b%b, b = %0d'b%b", name, AW, a, BW, b);
                $display("    tarnlib   %0d'b%b", RW, got);
                $display("    simulator %0d'b%b", RW, expected);
            end
        end
    endtask

`define CHECK(NAME, CALL, EXPRESSION) begin CALL; expected = EXPRESSION; compare(NAME); end

// Where the simulator departs from the standard, CLAUSE says by other operators what is right.
`define CHECK_CLAUSE(KIND, NAME, CALL, EXPRESSION, CLAUSE) \
    begin \
        `CHECK(NAME, CALL, CLAUSE) \
        got = EXPRESSION; \
        if (got !== expected) common.departures[KIND] = common.departures[KIND] + 1; \
    end

    task arithmetic;
        begin
            `CHECK_CLAUSE(common.PLUS, "plus", $tarn_plus(got, a), +a, a - 1'sb0)
            `CHECK("minus", $tarn_minus(got, a), -a)
            `CHECK("add", $tarn_add(got, a, b), a + b)
            `CHECK("sub", $tarn_sub(got, a, b), a - b)
            `CHECK("mul", $tarn_mul(got, a, b), a * b)
        end
    endtask

    task in_place;
        reg [RW-1:0] v;
        begin
            v = a;
            `CHECK("inc", got = v; $tarn_inc(got), v + 1)
            `CHECK("dec", got = v; $tarn_dec(got), v - 1)
            `CHECK("0_to_z", got = v; $tarn_0_to_z(got), v;
                   for (i = 0; i < RW; i = i + 1) if (v[i] === 1'b0) expected[i] = 1'bz)
            `CHECK("1_to_z", got = v; $tarn_1_to_z(got), v;
                   for (i = 0; i < RW; i = i + 1) if (v[i] === 1'b1) expected[i] = 1'bz)
            `CHECK("xz_to_0", got = v; $tarn_xz_to_0(got), 0;
                   for (i = 0; i < RW; i = i + 1) expected[i] = v[i] === 1'b1)
        end
    endtask

    task bitwise;
        begin
            `CHECK("and", $tarn_and(got, a, b), a & b)
            `CHECK("nand", $tarn_nand(got, a, b), ~(a & b))
            `CHECK("or", $tarn_or(got, a, b), a | b)
            `CHECK("nor", $tarn_nor(got, a, b), ~(a | b))
            `CHECK("xor", $tarn_xor(got, a, b), a ^ b)
            `CHECK("xnor", $tarn_xnor(got, a, b), a ~^ b)
            `CHECK_CLAUSE(common.MIX, "mix", $tarn_mix(got, a, b), 1'bx ? a : b,
                          1'bx ? ~(~a) : ~(~b))
            `CHECK("not", $tarn_not(got, a), ~a)
            `CHECK("buf", $tarn_buf(got, a), ~(~a))
            `CHECK("reduce_and", $tarn_reduce_and(got, a), &a)
            `CHECK("reduce_or", $tarn_reduce_or(got, a), |a)
            `CHECK("reduce_xor", $tarn_reduce_xor(got, a), ^a)
            `CHECK("truth", $tarn_truth(got, a), a || 1'b0)
            `CHECK("condition", $tarn_condition(got, a), 0; if (a) expected = 1)
        end
    endtask

    task comparison;
        begin
            `CHECK("eq", $tarn_eq(got, a, b), a == b)
            `CHECK("neq", $tarn_neq(got, a, b), a != b)
            `CHECK("case_eq", $tarn_case_eq(got, a, b), a === b)
            `CHECK("case_neq", $tarn_case_neq(got, a, b), a !== b)
            `CHECK("casex", $tarn_casex(got, a, b), 0; casex (a) b: expected = 1; endcase)
            `CHECK("casez", $tarn_casez(got, a, b), 0; casez (a) b: expected = 1; endcase)
            `CHECK("wild_eq", $tarn_wild_eq(got, a, b), a ==? b)
            `CHECK("wild_neq", $tarn_wild_neq(got, a, b), a !=? b)
            `CHECK("lt", $tarn_lt(got, a, b), a < b)
            `CHECK("le", $tarn_le(got, a, b), a <= b)
            `CHECK("gt", $tarn_gt(got, a, b), a > b)
            `CHECK("ge", $tarn_ge(got, a, b), a >= b)
        end
    endtask

    // Both read a vector at the index b.
    task indexed;
        begin
            // What no integer holds lies out of bounds.
            index = b;
            isUsable = index == b && (b < 0 || index >= 0);
            `CHECK_CLAUSE(common.WIDE_INDEX, "indexed_select",
                          $tarn_indexed_select(got, a, b, RW), a[b +: RW],
                          (isUsable === 1'b1) ? a[index +: RW] : {RW{1'bx}})
            `CHECK("indexed_memory_select", $tarn_indexed_memory_select(got, a, b, RW),
                   (isUsable === 1'b1) ? a[index +: RW] : {RW{1'bx}})
            `CHECK_CLAUSE(common.WIDE_INDEX, "bit", $tarn_bit(got, a, b), a[b],
                          (isUsable === 1'b1) ? a[index] : 1'bx)
        end
    endtask

    // A field inside a, of any width.
    task field;
        reg [AW-1:0] top;
        reg signed [AW-1:0] signed_top;
        begin
            low = common.below(AW);
            width = 1 + common.below(AW - low);
            top = a << (AW - low - width);
            signed_top = top;
            `CHECK("select", $tarn_select(got, a, low, width), top >> (AW - width))
            `CHECK("signed_select", $tarn_signed_select(got, a, low, width),
                   signed_top >>> (AW - width))
            `CHECK("memory_select", $tarn_memory_select(got, a, low, width), top >> (AW - width))
            `CHECK("memory_copy", $tarn_memory_copy(got, a), a)
        end
    endtask

    task shift;
        begin
            `CHECK("concatenate", $tarn_concatenate(got, a, b), {a, b})
            `CHECK("shl", $tarn_shl(got, a, b), a << b)
            `CHECK("shr", $tarn_shr(got, a, b), a >> b)
            `CHECK("ashr", $tarn_ashr(got, a, b), a >>> b)
        end
    endtask

    task compare_target(input [8*24:1] name);
        begin
            common.comparisons = common.comparisons + 1;
            if (target !== expected_target) begin
                common.differences = common.differences + 1;
                $display("%m %0s: a = %0d'b%b, value = %b, b = %b, low = %0d, width = %0d",
                         name, AW, a, value, b, low, width);
                $display("    tarnlib   %b", target);
                $display("    simulator %b", expected_target);
            end
        end
    endtask

`define CHECK_TARGET(NAME, CALL) begin target = a; CALL; compare_target(NAME); end

    // A field inside a is written.
    task field_assign;
        begin
            value = common.draw(RW);
            low = common.below(AW);
            width = 1 + common.below((AW - low < RW) ? AW - low : RW);
            expected_target = a;
            for (i = 0; i < width; i = i + 1) expected_target[low + i] = value[i];
            `CHECK_TARGET("select_assign", $tarn_select_assign(target, value, low, width))
            `CHECK_TARGET("memory_assign", $tarn_memory_assign(target, value, low, width))
            `CHECK("select_update", target = a; $tarn_select_update(got, target, value, low, width),
                   a !== expected_target)
            compare_target("select_update");
        end
    endtask

    // A field anywhere is written.
    task indexed_assign;
        begin
            value = common.draw(RW);
            expected_target = a;
            if (isUsable === 1'b1) expected_target[index +: RW] = value;
            `CHECK_TARGET("indexed_select_assign",
                          $tarn_indexed_select_assign(target, value, b, RW))
            `CHECK("indexed_select_update",
                   target = a; $tarn_indexed_select_update(got, target, value, b, RW),
                   a !== expected_target)
            compare_target("indexed_select_update");
            `CHECK_TARGET("indexed_memory_assign",
                          $tarn_indexed_memory_assign(target, value, b, RW))
        end
    endtask

    // Of wider divisors the simulator calculates wrong quotients, or none in finite time (5.1.5).
    task division;
        begin
            if (BW > 64) b = b >> (BW - 63);
            `CHECK("div", $tarn_div(got, a, b), a / b)
            `CHECK("mod", $tarn_mod(got, a, b), a % b)
        end
    endtask

    task power;
        reg signed [RW-1:0] minus_one;
        begin
            minus_one = -1;
            if (b < 0)
                `CHECK_CLAUSE(common.NEGATIVE_POWER, "power", $tarn_power(got, a, b), a ** b,
                              (^a === 1'bx || a == 0) ? {RW{1'bx}} : (a == 1) ? 1 :
                              ((a < 0) && &a) ? (b[0] ? minus_one : 1) : 0)
            else
                `CHECK("power", $tarn_power(got, a, b), a ** b)
        end
    endtask

    task round;
        begin
            a = common.draw(AW);
            b = common.draw(BW);
            arithmetic;
            in_place;
            bitwise;
            comparison;
            field;
            field_assign;
            b = common.draw_near(AW, BW);
            indexed;
            indexed_assign;
            shift;
            b = common.draw(BW);
            division;
            b = common.draw_near(4, BW);
            power;
        end
    endtask
endmodule
