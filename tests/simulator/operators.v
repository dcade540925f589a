// Every operator on pairs of operands of many widths and of either sign. An expression that is not
// the operator itself avoids the entry of departures.v that its comment names.
`include "common.v"

module pair #(parameter RW = 8, AW = 8, BW = 8, A_SIGNED = 0, B_SIGNED = 0);
    `VECTOR(a, AW, A_SIGNED)
    `VECTOR(b, BW, B_SIGNED)
    reg [RW-1:0] got, expected, value, part;
    reg signed [RW-1:0] minus_one = -1;
    reg [AW-1:0] top, target, expected_target;
    reg signed [AW-1:0] signed_top;
    reg signed [31:0] index;
    reg is_usable;
    integer low, width, i;

    task compare(input [8*80:1] call, input is_same);
        common.count(is_same);
        if (!is_same) begin
            $display("%m %0s: a = %0d'b%b, b = %0d'b%b", call, AW, a.v, BW, b.v);
            $display("    value = %b, low = %0d, width = %0d", value, low, width);
            $display("    tarnlib   %0d'b%b, target %b", RW, got, target);
            $display("    simulator %0d'b%b, target %b", RW, expected, expected_target);
        end
    endtask

`define UNARY(TASK, EXPECTED) `CHECK(TASK(got, a.v), EXPECTED)
`define BINARY(TASK, EXPECTED) `CHECK(TASK(got, a.v, b.v), EXPECTED)
`define MATCH(TASK, CASE) `BINARY(TASK, 0; CASE (a.v) b.v: expected = 1; endcase)
`define IN_PLACE(TASK, EXPECTED) `CHECK(got = value; TASK(got), EXPECTED)
`define EACH_BIT(NEW) 0; for (i = 0; i < RW; i = i + 1) expected[i] = NEW

// The same for a call that writes into a target, and for one that also tells whether it changed.
`define CHECK_WRITE(CALL) \
    begin target = a.v; CALL; compare(`"CALL`", target === expected_target); end
`define CHECK_UPDATE(CALL) \
    begin `CHECK_WRITE(CALL) `CHECK(target = a.v; CALL, a.v !== expected_target) end

    task operators;
        `UNARY($tarn_minus, -a.v)               `UNARY($tarn_plus, a.v - 1'sb0)  // plus
        `UNARY($tarn_not, ~a.v)                 `UNARY($tarn_buf, ~(~a.v))
        `UNARY($tarn_reduce_and, &a.v)          `UNARY($tarn_reduce_or, |a.v)
        `UNARY($tarn_reduce_xor, ^a.v)          `UNARY($tarn_truth, a.v || 1'b0)
        `UNARY($tarn_condition, 0; if (a.v) expected = 1)

        `BINARY($tarn_add, a.v + b.v)           `BINARY($tarn_sub, a.v - b.v)
        `BINARY($tarn_mul, a.v * b.v)           `BINARY($tarn_concatenate, {a.v, b.v})
        `BINARY($tarn_and, a.v & b.v)           `BINARY($tarn_nand, ~(a.v & b.v))
        `BINARY($tarn_or, a.v | b.v)            `BINARY($tarn_nor, ~(a.v | b.v))
        `BINARY($tarn_xor, a.v ^ b.v)           `BINARY($tarn_xnor, a.v ~^ b.v)
        `BINARY($tarn_eq, a.v == b.v)           `BINARY($tarn_neq, a.v != b.v)
        `BINARY($tarn_case_eq, a.v === b.v)     `BINARY($tarn_case_neq, a.v !== b.v)
        `BINARY($tarn_wild_eq, a.v ==? b.v)     `BINARY($tarn_wild_neq, a.v !=? b.v)
        `BINARY($tarn_lt, a.v < b.v)            `BINARY($tarn_le, a.v <= b.v)
        `BINARY($tarn_gt, a.v > b.v)            `BINARY($tarn_ge, a.v >= b.v)
        `MATCH($tarn_casex, casex)              `MATCH($tarn_casez, casez)
        `BINARY($tarn_mix, 1'bx ? ~(~a.v) : ~(~b.v))  // mix

        value = a.v;
        `IN_PLACE($tarn_inc, value + 1)         `IN_PLACE($tarn_dec, value - 1)
        `IN_PLACE($tarn_0_to_z, `EACH_BIT(value[i] === 1'b0 ? 1'bz : value[i]))
        `IN_PLACE($tarn_1_to_z, `EACH_BIT(value[i] === 1'b1 ? 1'bz : value[i]))
        `IN_PLACE($tarn_xz_to_0, `EACH_BIT(value[i] === 1'b1))
    endtask

    // A field inside a.
    task field;
        low = common.below(AW);
        width = 1 + common.below(AW - low);
        top = a.v << (AW - low - width);
        signed_top = top;
        `CHECK($tarn_select(got, a.v, low, width), top >> (AW - width))
        `CHECK($tarn_signed_select(got, a.v, low, width), signed_top >>> (AW - width))
        `CHECK($tarn_memory_select(got, a.v, low, width), top >> (AW - width))
        `UNARY($tarn_memory_copy, a.v)

        // Often what is there already but for a bit.
        value = common.below(2) ? common.draw(RW) : (a.v >> low) ^ 320'd1 << common.below(RW);
        if (width > RW) width = RW;
        expected_target = a.v;
        for (i = 0; i < width; i = i + 1) expected_target[low + i] = value[i];
        `CHECK_WRITE($tarn_select_assign(target, value, low, width))
        `CHECK_WRITE($tarn_memory_assign(target, value, low, width))
        `CHECK_UPDATE($tarn_select_update(got, target, value, low, width))
    endtask

    // A field of RW bits that begins at b, anywhere.
    task indexed_field;
        // What no integer holds lies out of bounds.
        index = b.v;
        is_usable = (index == b.v && (b.v < 0 || index >= 0)) === 1'b1;
        part = is_usable ? a.v[index +: RW] : {RW{1'bx}};  // index
        expected_target = a.v;
        if (is_usable) expected_target[index +: RW] = value;
        `CHECK($tarn_indexed_select(got, a.v, b.v, RW), part)
        `CHECK($tarn_indexed_memory_select(got, a.v, b.v, RW), part)
        `BINARY($tarn_bit, part[0])
        `CHECK_WRITE($tarn_indexed_select_assign(target, value, b.v, RW))
        `CHECK_WRITE($tarn_indexed_memory_assign(target, value, b.v, RW))
        `CHECK_UPDATE($tarn_indexed_select_update(got, target, value, b.v, RW))
    endtask

    initial #1 repeat (common.rounds) begin
        a.v = common.draw(AW);
        b.v = common.draw(BW);
        operators;
        field;

        b.v = common.draw_near(AW, BW);
        indexed_field;
        `BINARY($tarn_shl, a.v << b.v) `BINARY($tarn_shr, a.v >> b.v)
        `BINARY($tarn_ashr, a.v >>> b.v)

        b.v = common.draw_near(4, BW);
        if (b.v < 0)  // power
            `BINARY($tarn_power, (^a.v === 1'bx || a.v == 0) ? {RW{1'bx}} :
                    (a.v == 1) ? 1 : (a.v < 0 && &a.v) ? (b.v[0] ? minus_one : 1) : 0)
        else `BINARY($tarn_power, a.v ** b.v)

        b.v = common.draw(BW);
        if (BW > 64) b.v = b.v >> (BW - 63);  // quotient
        `BINARY($tarn_div, a.v / b.v) `BINARY($tarn_mod, a.v % b.v)
    end
endmodule

module operators;
    for (genvar i = 0; i < 4 * COUNT; i = i + 1) begin : widths
        for (genvar signs = 0; signs < 4; signs = signs + 1) begin : signs
            pair #(WIDTHS[16*((7*i + i/5 + 2) % COUNT) +: 16], WIDTHS[16*(i % COUNT) +: 16],
                   WIDTHS[16*((4*i + i/COUNT) % COUNT) +: 16], signs[0], signs[1]) pair();
        end
    end
endmodule
