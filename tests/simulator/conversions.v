// Texts and reals of vectors of many widths, and back; functions and texts of reals. A remark names
// the entry of departures.v that an expression avoids.
`include "common.v"

module vector #(parameter W = 8, IS_SIGNED = 0);
    `VECTOR(a, W, IS_SIGNED)
    `VECTOR(wider, W + 1, IS_SIGNED)
    reg [W-1:0] got, expected, magnitude;
    reg [53:0] half;  // of two neighbouring reals
    reg [8*(W+8):1] text, expected_text;
    real x, y;
    integer matched, i;

    task compare(input [8*40:1] call, input is_same);
        common.count(is_same);
        if (!is_same) begin
            $display("%m %0s: a = %0d'b%b", call, W, a.v);
            $display("    tarnlib   %b, %h, \"%0s\"", got, $realtobits(x), text);
            $display("    simulator %b, %h, \"%0s\"", expected, $realtobits(y), expected_text);
        end
    endtask

`define CHECK_TEXT(CALL, FORMAT, VALUE) \
    begin \
        CALL; \
        $sformat(expected_text, FORMAT, VALUE); \
        compare(`"CALL`", text === expected_text); \
    end
// The digits of a value, read back.
`define CHECK_PARSE(TASK, FORMAT, VALUE) \
    begin \
        $sformat(text, FORMAT, VALUE); \
        matched = $sscanf(text, FORMAT, magnitude); \
        `CHECK(TASK(got, text), magnitude) \
    end
`define CHECK_RADIX(TEXT_TASK, PARSE_TASK, FORMAT, SHORT_FORMAT) \
    `CHECK_TEXT(TEXT_TASK(text, a.v, -1), FORMAT, a.v) \
    `CHECK_TEXT(TEXT_TASK(text, a.v, 0), SHORT_FORMAT, a.v) \
    `CHECK_PARSE(PARSE_TASK, FORMAT, a.v)

    task texts;
        `CHECK_RADIX($tarn_bin_text, $tarn_parse_bin, "%b", "%0b")
        `CHECK_RADIX($tarn_oct_text, $tarn_parse_oct, "%o", "%0o")
        `CHECK_RADIX($tarn_hex_text, $tarn_parse_hex, "%h", "%0h")
        `CHECK($tarn_parse_string(got, text), text)
        `CHECK_TEXT($tarn_string_text(text, a.v, 1), "%s", a.v)
        `CHECK_TEXT($tarn_dec_text(text, a.v, 0, 0), "%0d", a.v)
        wider.v = a.v;
        if (IS_SIGNED) `CHECK_TEXT($tarn_dec_text(text, a.v, -1, 0), "%d", wider.v)  // places
        else `CHECK_TEXT($tarn_dec_text(text, a.v, -1, 0), "%d", a.v)
        if (^a.v !== 1'bx) `CHECK_PARSE($tarn_parse_dec, "%0d", $unsigned(a.v))
    endtask

    task reals;
        // X and Z bits count as 0, and halves are rounded away from zero, as if more followed.
        for (i = 0; i < W; i = i + 1) magnitude[i] = a.v[i] === 1'b1;
        if (a.v[W-1] === 1'b1 && IS_SIGNED) magnitude = -magnitude;
        y = magnitude;
        if (magnitude >> 53 != 0) begin  // real
            $sformat(text, "%0d", {magnitude, 1'b1});
            matched = $sscanf(text, "%f", y);
            y = y / 2;
        end
        if (a.v[W-1] === 1'b1 && IS_SIGNED) y = -y;
        $tarn_to_real(x, a.v);
        compare("to_real", x == y);

        x = common.draw_real(W);
        // Halves are added as reals: from 2 to the power 52 on, that may round.
        y = (x < 0) ? x - 0.5 : x + 0.5;
        if (x < 2.0 ** 52 && -x < 2.0 ** 52) y = x;
        `CHECK($tarn_from_real(got, x), y)
        `CHECK($tarn_real_bits(got, x), $realtobits(x))
        if (W <= 32) `CHECK($tarn_truncate_real(got, x), $rtoi(x))
        if (^a.v !== 1'bx) `CHECK($tarn_clog2(got, a.v), $clog2(a.v))
    endtask

    initial #1 repeat (common.rounds) begin
        a.v = common.draw(W);
        if (common.below(4) == 0) begin
            half = common.noise(54) | 54'h20_0000_0000_0001;
            a.v = half << common.below(W);
            if (common.below(2) == 0) a.v = -a.v;
        end
        texts;
        reals;
    end
endmodule

// The tasks of reals alone. What the functions calculate is the C library's matter on both sides.
module reals;
    real x, y, positive, fraction, got, expected;
    reg [8*400:1] text, expected_text;
    integer matched;

    task compare(input [8*20:1] call, input [8*400:1] got_text);
        common.count($realtobits(got) === $realtobits(expected) && got_text === expected_text);
        if ($realtobits(got) !== $realtobits(expected) || got_text !== expected_text) begin
            $display("%m %0s: %g, %g, %g, %g", call, x, y, positive, fraction);
            $display("    tarnlib   %h \"%0s\"", $realtobits(got), got_text);
            $display("    simulator %h \"%0s\"", $realtobits(expected), expected_text);
        end
    endtask

`define FUNCTION(NAME, X) \
    begin $tarn_``NAME(got, X); expected = $``NAME(X); compare(`"NAME`", expected_text); end
`define FUNCTION_OF_TWO(NAME, CALL) \
    begin $tarn_``NAME(got, positive, y); expected = CALL; compare(`"NAME`", expected_text); end

// The text of a number, and the number that it means.
`define CHECK_REAL_TEXT(FORMAT) \
    begin \
        $tarn_real_text(text, FORMAT, x); \
        $sformat(expected_text, FORMAT, x); \
        $tarn_parse_real(got, text); \
        matched = $sscanf(expected_text, "%f", expected); \
        compare(FORMAT, text); \
    end

    initial #1 repeat (10 * common.rounds) begin
        x = common.draw_real(300);
        y = common.draw_real(10);
        if (common.below(2) == 0) x = x / 2.0 ** common.below(300);
        positive = (x < 0) ? -x : x + 1.0 / 1024;
        fraction = common.below(1999) / 1000.0 - 0.999;
        `FUNCTION(asinh, x) `FUNCTION(atan, x) `FUNCTION(ceil, x) `FUNCTION(cos, x)
        `FUNCTION(cosh, x) `FUNCTION(exp, x) `FUNCTION(floor, x) `FUNCTION(sin, x)
        `FUNCTION(sinh, x) `FUNCTION(tan, x) `FUNCTION(tanh, x) `FUNCTION(ln, positive)
        `FUNCTION(log10, positive) `FUNCTION(sqrt, positive) `FUNCTION(acosh, positive + 1)
        `FUNCTION(acos, fraction) `FUNCTION(asin, fraction) `FUNCTION(atanh, fraction)
        `FUNCTION_OF_TWO(atan2, $atan2(y, positive)) `FUNCTION_OF_TWO(pow, $pow(positive, y))
        `FUNCTION_OF_TWO(hypot, $hypot(positive, y))
        `CHECK_REAL_TEXT("%f") `CHECK_REAL_TEXT("%e") `CHECK_REAL_TEXT("%g")
        `CHECK_REAL_TEXT("%12.3f") `CHECK_REAL_TEXT("%.17g")
    end
endmodule

module conversions;
    for (genvar i = 0; i < 2 * COUNT; i = i + 1) begin : widths
        vector #(WIDTHS[16*(i/2) +: 16], i % 2) vector();
    end
    reals reals();
endmodule
