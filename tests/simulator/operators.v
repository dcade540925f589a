// Every operator on pairs of operands of many widths and of either sign. An expression that is not
// the operator itself avoids the entry of departures.v that its comment names.
`include "common.v"

module pair #(parameter RW = 8, AW = 8, BW = 8, A_SIGNED = 0, B_SIGNED = 0);
    `VECTOR(a, AW, A_SIGNED)
    `VECTOR(b, BW, B_SIGNED)
    reg [RW-1:0] got, expected, value;
    reg signed [RW-1:0] minus_one = -1;
    reg [AW-1:0] top, target, expected_target;
    reg signed [AW-1:0] signed_top;
    reg signed [31:0] index;
    reg is_usable;
    integer low, width, i;

    task compare(input [8*80:1] call, input is_same);
        begin
            common.comparisons = common.comparisons + 1;
            if (!is_same) begin
                common.differences = common.differences + 1;
                $display("%m %0s: a = %0d'b%b, b = %0d'b%b", call, AW, a.v, BW, b.v);
                $display("    value = %b, low = %0d, width = %0d", value, low, width);
                $display("    tarnlib   %0d'b%b, target %b", RW, got, target);
                $display("    simulator %0d'b%b, target %b", RW, expected, expected_target);
            end
        end
    endtask

// The same for a call that writes into a target, and for one that also tells whether it changed.
`define CHECK_WRITE(CALL) \
    begin target = a.v; CALL; compare(`"CALL`", target === expected_target); end
`define CHECK_UPDATE(CALL) \
    begin `CHECK_WRITE(CALL) `CHECK(target = a.v; CALL, a.v !== expected_target) end

    task operators;
        begin
            `CHECK($tarn_plus(got, a.v), a.v - 1'sb0)  // plus
            `CHECK($tarn_minus(got, a.v), -a.v)
            `CHECK($tarn_add(got, a.v, b.v), a.v + b.v)
            `CHECK($tarn_sub(got, a.v, b.v), a.v - b.v)
            `CHECK($tarn_mul(got, a.v, b.v), a.v * b.v)

            `CHECK($tarn_and(got, a.v, b.v), a.v & b.v)
            `CHECK($tarn_nand(got, a.v, b.v), ~(a.v & b.v))
            `CHECK($tarn_or(got, a.v, b.v), a.v | b.v)
            `CHECK($tarn_nor(got, a.v, b.v), ~(a.v | b.v))
            `CHECK($tarn_xor(got, a.v, b.v), a.v ^ b.v)
            `CHECK($tarn_xnor(got, a.v, b.v), a.v ~^ b.v)
            `CHECK($tarn_mix(got, a.v, b.v), 1'bx ? ~(~a.v) : ~(~b.v))  // mix
            `CHECK($tarn_not(got, a.v), ~a.v)
            `CHECK($tarn_buf(got, a.v), ~(~a.v))
            `CHECK($tarn_reduce_and(got, a.v), &a.v)
            `CHECK($tarn_reduce_or(got, a.v), |a.v)
            `CHECK($tarn_reduce_xor(got, a.v), ^a.v)
            `CHECK($tarn_truth(got, a.v), a.v || 1'b0)
            `CHECK($tarn_condition(got, a.v), 0; if (a.v) expected = 1)

            `CHECK($tarn_eq(got, a.v, b.v), a.v == b.v)
            `CHECK($tarn_neq(got, a.v, b.v), a.v != b.v)
            `CHECK($tarn_case_eq(got, a.v, b.v), a.v === b.v)
            `CHECK($tarn_case_neq(got, a.v, b.v), a.v !== b.v)
            `CHECK($tarn_casex(got, a.v, b.v), 0; casex (a.v) b.v: expected = 1; endcase)
            `CHECK($tarn_casez(got, a.v, b.v), 0; casez (a.v) b.v: expected = 1; endcase)
            `CHECK($tarn_wild_eq(got, a.v, b.v), a.v ==? b.v)
            `CHECK($tarn_wild_neq(got, a.v, b.v), a.v !=? b.v)
            `CHECK($tarn_lt(got, a.v, b.v), a.v < b.v)
            `CHECK($tarn_le(got, a.v, b.v), a.v <= b.v)
            `CHECK($tarn_gt(got, a.v, b.v), a.v > b.v)
            `CHECK($tarn_ge(got, a.v, b.v), a.v >= b.v)
        end
    endtask

    task in_place;
        begin
            value = a.v;
            `CHECK(got = value; $tarn_inc(got), value + 1)
            `CHECK(got = value; $tarn_dec(got), value - 1)
            `CHECK(got = value; $tarn_0_to_z(got), value;
                   for (i = 0; i < RW; i = i + 1) if (value[i] === 1'b0) expected[i] = 1'bz)
            `CHECK(got = value; $tarn_1_to_z(got), value;
                   for (i = 0; i < RW; i = i + 1) if (value[i] === 1'b1) expected[i] = 1'bz)
            `CHECK(got = value; $tarn_xz_to_0(got), 0;
                   for (i = 0; i < RW; i = i + 1) expected[i] = value[i] === 1'b1)
        end
    endtask

    // A field inside a.
    task field;
        begin
            low = common.below(AW);
            width = 1 + common.below(AW - low);
            top = a.v << (AW - low - width);
            signed_top = top;
            `CHECK($tarn_select(got, a.v, low, width), top >> (AW - width))
            `CHECK($tarn_signed_select(got, a.v, low, width), signed_top >>> (AW - width))
            `CHECK($tarn_memory_select(got, a.v, low, width), top >> (AW - width))
            `CHECK($tarn_memory_copy(got, a.v), a.v)

            // Often what is there already but for a bit.
            value = common.below(2) ? common.draw(RW) : (a.v >> low) ^ 320'd1 << common.below(RW);
            if (width > RW) width = RW;
            expected_target = a.v;
            for (i = 0; i < width; i = i + 1) expected_target[low + i] = value[i];
            `CHECK_WRITE($tarn_select_assign(target, value, low, width))
            `CHECK_WRITE($tarn_memory_assign(target, value, low, width))
            `CHECK_UPDATE($tarn_select_update(got, target, value, low, width))
        end
    endtask

    // A field of RW bits that begins at b, anywhere.
    task indexed_field;
        begin
            // What no integer holds lies out of bounds.
            index = b.v;
            is_usable = (index == b.v && (b.v < 0 || index >= 0)) === 1'b1;
            expected_target = a.v;
            if (is_usable) expected_target[index +: RW] = value;
            `CHECK($tarn_indexed_select(got, a.v, b.v, RW),  // index
                   is_usable ? a.v[index +: RW] : {RW{1'bx}})
            `CHECK($tarn_indexed_memory_select(got, a.v, b.v, RW),
                   is_usable ? a.v[index +: RW] : {RW{1'bx}})
            `CHECK($tarn_bit(got, a.v, b.v), is_usable ? a.v[index] : 1'bx)  // index
            `CHECK_WRITE($tarn_indexed_select_assign(target, value, b.v, RW))
            `CHECK_WRITE($tarn_indexed_memory_assign(target, value, b.v, RW))
            `CHECK_UPDATE($tarn_indexed_select_update(got, target, value, b.v, RW))
        end
    endtask

    task round;
        begin
            a.v = common.draw(AW);
            b.v = common.draw(BW);
            operators;
            in_place;
            field;
            `CHECK($tarn_concatenate(got, a.v, b.v), {a.v, b.v})

            b.v = common.draw_near(AW, BW);
            indexed_field;
            `CHECK($tarn_shl(got, a.v, b.v), a.v << b.v)
            `CHECK($tarn_shr(got, a.v, b.v), a.v >> b.v)
            `CHECK($tarn_ashr(got, a.v, b.v), a.v >>> b.v)

            b.v = common.draw_near(4, BW);
            if (b.v < 0)  // power
                `CHECK($tarn_power(got, a.v, b.v), (^a.v === 1'bx || a.v == 0) ? {RW{1'bx}} :
                       (a.v == 1) ? 1 : (a.v < 0 && &a.v) ? (b.v[0] ? minus_one : 1) : 0)
            else
                `CHECK($tarn_power(got, a.v, b.v), a.v ** b.v)

            b.v = common.draw(BW);
            if (BW > 64) b.v = b.v >> (BW - 63);  // quotient
            `CHECK($tarn_div(got, a.v, b.v), a.v / b.v)
            `CHECK($tarn_mod(got, a.v, b.v), a.v % b.v)
        end
    endtask

    initial #1 repeat (common.rounds) round;
endmodule

module operators;
    localparam COUNT = 15;
    localparam [16*COUNT-1:0] WIDTHS = {
        16'd1, 16'd2, 16'd7, 16'd8, 16'd16, 16'd31, 16'd32, 16'd33, 16'd63, 16'd64, 16'd65,
        16'd100, 16'd128, 16'd129, 16'd300};

    genvar i, signs;
    generate
        for (i = 0; i < 4 * COUNT; i = i + 1) begin : widths
            for (signs = 0; signs < 4; signs = signs + 1) begin : signs
                pair #(WIDTHS[16*((7*i + i/5 + 2) % COUNT) +: 16], WIDTHS[16*(i % COUNT) +: 16],
                       WIDTHS[16*((4*i + i/COUNT) % COUNT) +: 16], signs[0], signs[1]) pair();
            end
        end
    endgenerate
endmodule
