// Functions, texts and parsing of reals.
`include "common.v"

module reals #(parameter ROUNDS = 500);
    real x, y, got, expected;
    reg [8*400:1] text, expected_text;
    integer matched;

    task compare(input [8*24:1] name);
        begin
            common.comparisons = common.comparisons + 1;
            if ($realtobits(got) !== $realtobits(expected) || text !== expected_text) begin
                common.differences = common.differences + 1;
                $display("%m %0s: x = %h, y = %h", name, $realtobits(x), $realtobits(y));
                $display("    tarnlib   %h \"%0s\"", $realtobits(got), text);
                $display("    simulator %h \"%0s\"", $realtobits(expected), expected_text);
            end
        end
    endtask

`define CHECK(NAME, CALL, EXPRESSION) begin CALL; expected = EXPRESSION; compare(NAME); end

    task functions;
        begin
            `CHECK("asinh", $tarn_asinh(got, x), $asinh(x))
            `CHECK("atan", $tarn_atan(got, x), $atan(x))
            `CHECK("ceil", $tarn_ceil(got, x), $ceil(x))
            `CHECK("cos", $tarn_cos(got, x), $cos(x))
            `CHECK("cosh", $tarn_cosh(got, x), $cosh(x))
            `CHECK("exp", $tarn_exp(got, x), $exp(x))
            `CHECK("floor", $tarn_floor(got, x), $floor(x))
            `CHECK("sin", $tarn_sin(got, x), $sin(x))
            `CHECK("sinh", $tarn_sinh(got, x), $sinh(x))
            `CHECK("tan", $tarn_tan(got, x), $tan(x))
            `CHECK("tanh", $tarn_tanh(got, x), $tanh(x))
            `CHECK("atan2", $tarn_atan2(got, x, y), $atan2(y, x))
            `CHECK("hypot", $tarn_hypot(got, x, y), $hypot(x, y))
        end
    endtask

    // Functions that have no value for some numbers. What stands for it is the library's choice.
    task partial_functions;
        begin
            if (x > 0) begin
                `CHECK("ln", $tarn_ln(got, x), $ln(x))
                `CHECK("log10", $tarn_log10(got, x), $log10(x))
                `CHECK("sqrt", $tarn_sqrt(got, x), $sqrt(x))
                `CHECK("pow", $tarn_pow(got, x, y), $pow(x, y))
            end
            if (x >= 1) `CHECK("acosh", $tarn_acosh(got, x), $acosh(x))
            x = common.below(2001) / 1000.0 - 1.0;
            `CHECK("acos", $tarn_acos(got, x), $acos(x))
            `CHECK("asin", $tarn_asin(got, x), $asin(x))
            if (x > -1 && x < 1) `CHECK("atanh", $tarn_atanh(got, x), $atanh(x))
        end
    endtask

// The text of a number, and the number that it means.
`define CHECK_TEXT(FORMAT) \
    begin \
        $tarn_real_text(text, FORMAT, x); \
        $sformat(expected_text, FORMAT, x); \
        $tarn_parse_real(got, text); \
        matched = $sscanf(expected_text, "%f", expected); \
        compare({"text ", FORMAT}); \
        text = 0; \
        expected_text = 0; \
    end

    task texts;
        begin
            `CHECK_TEXT("%f")
            `CHECK_TEXT("%e")
            `CHECK_TEXT("%g")
            `CHECK_TEXT("%12.3f")
            `CHECK_TEXT("%.17g")
        end
    endtask

    initial begin
        #1 text = 0;
        expected_text = 0;
        repeat (ROUNDS) begin
            x = common.draw_real(300);
            y = common.draw_real(10);
            if (common.below(2) == 0) x = x / 2.0 ** common.below(300);
            functions;
            texts;
            partial_functions;
        end
        common.report;
    end
endmodule
