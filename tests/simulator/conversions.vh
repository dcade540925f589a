// A vector as text and as a real, and back, for one choice of its sign. Included once for each.
module `CHECKS #(parameter W = 8);
    localparam CHARACTERS = W + 8;

    reg `A_SIGN [W-1:0] a, got, expected;
    reg [8*CHARACTERS:1] text, expected_text;
    real x, y;
    integer matched;

    task compare(input [8*24:1] name, input is_same);
        begin
            common.comparisons = common.comparisons + 1;
            if (is_same !== 1'b1) begin
                common.differences = common.differences + 1;
                $display("%m %0s: a = %0d'b%b", name, W, a);
                $display("    tarnlib   %b, %h, \"%0s\"", got, $realtobits(x), text);
                $display("    simulator %b, %h, \"%0s\"", expected, $realtobits(y), expected_text);
            end
        end
    endtask

`define CHECK_TEXT(NAME, CALL, FORMAT) \
    begin CALL; $sformat(expected_text, FORMAT, a); compare(NAME, text === expected_text); end

    task texts;
        begin
            `CHECK_TEXT("bin_text", $tarn_bin_text(text, a, -1), "%b")
            `CHECK_TEXT("bin_text 0", $tarn_bin_text(text, a, 0), "%0b")
            `CHECK_TEXT("oct_text", $tarn_oct_text(text, a, -1), "%o")
            `CHECK_TEXT("oct_text 0", $tarn_oct_text(text, a, 0), "%0o")
            `CHECK_TEXT("hex_text", $tarn_hex_text(text, a, -1), "%h")
            `CHECK_TEXT("hex_text 0", $tarn_hex_text(text, a, 0), "%0h")
            `CHECK_TEXT("dec_text 0", $tarn_dec_text(text, a, 0, 0), "%0d")
            `CHECK_TEXT("string_text", $tarn_string_text(text, a, 1), "%s")

            // The library gives every signed number a place for its sign beside the digits of W
            // bits; the simulator needs none where the digits of W - 1 bits are fewer.
            $tarn_dec_text(text, a, -1, 0);
            $sformat(expected_text, "%d", a);
            if (text !== expected_text) begin
                $sformat(expected_text, " %d", a);
                common.wider_fields = common.wider_fields + 1;
            end
            compare("dec_text", text === expected_text);
        end
    endtask

// The digits of a value, read back.
`define CHECK_PARSE(NAME, CALL, FORMAT, VALUE) \
    begin \
        $sformat(text, FORMAT, VALUE); \
        CALL; \
        matched = $sscanf(text, FORMAT, expected); \
        compare(NAME, got === expected); \
    end

    task parses;
        begin
            `CHECK_PARSE("parse_bin", $tarn_parse_bin(got, text), "%b", a)
            `CHECK_PARSE("parse_oct", $tarn_parse_oct(got, text), "%o", a)
            `CHECK_PARSE("parse_hex", $tarn_parse_hex(got, text), "%h", a)
            if (^a !== 1'bx)
                `CHECK_PARSE("parse_dec", $tarn_parse_dec(got, text), "%0d", $unsigned(a))
            $sformat(text, "%0h", a);
            $tarn_parse_string(got, text);
            expected = text;
            compare("parse_string", got === expected);
        end
    endtask

    // X and Z count as 0. The simulator gets that wrong for signed vectors, and the last bit of
    // vectors of more than 64 bits.
    task to_real;
        reg `A_SIGN [W-1:0] value;
        reg is_negative;
        reg [W-1:0] magnitude;
        reg [54:0] leading;
        integer i, length;
        begin
            length = 0;
            for (i = 0; i < W; i = i + 1) value[i] = a[i] === 1'b1;
            is_negative = value < 0;
            magnitude = is_negative ? -value : value;
            for (i = 0; i < W; i = i + 1) if (magnitude[i]) length = i + 1;
            if (length <= 53) y = magnitude;
            else begin
                leading = magnitude >> (length - 54);
                y = (leading + 1) >> 1;
                y = y * 2.0 ** (length - 53);
            end
            if (is_negative) y = -y;
            $tarn_to_real(x, a);
            compare("to_real", x == y);
            y = a;
            if (x != y) common.departures[common.TO_REAL] = common.departures[common.TO_REAL] + 1;
        end
    endtask

`define CHECK_VECTOR(NAME, CALL, EXPRESSION) \
    begin CALL; expected = EXPRESSION; compare(NAME, got === expected); end

    task reals;
        begin
            x = common.draw_real(W);
            // Halves are added as reals: from 2 to the power 52 on, that may round.
            y = (x < 0) ? x - 0.5 : x + 0.5;
            if (x < 2.0 ** 52 && -x < 2.0 ** 52) y = x;
            `CHECK_VECTOR("from_real", $tarn_from_real(got, x), y)
            `CHECK_VECTOR("real_bits", $tarn_real_bits(got, x), $realtobits(x))
            if (W <= 32) `CHECK_VECTOR("truncate_real", $tarn_truncate_real(got, x), $rtoi(x))
            if (^a !== 1'bx) `CHECK_VECTOR("clog2", $tarn_clog2(got, a), $clog2(a))
        end
    endtask

    task round;
        begin
            a = common.draw(W);
            texts;
            parses;
            to_real;
            reals;
        end
    endtask
endmodule
