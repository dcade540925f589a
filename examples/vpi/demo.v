// iverilog -g2012 -o demo.vvp demo.v && vvp -M DIRECTORY_OF_TARN_VPI -m tarn demo.vvp
module demo;
    reg signed [7:0] a;
    reg signed [15:0] b, sum;
    reg [8*20:1] text;
    reg is_less;
    real half;

    initial begin
        a = -5;
        b = 300;
        $tarn_add(sum, a, b);
        $display("%0d", sum);

        $tarn_add(sum, a, 8'd1);  // an unsigned operand makes the sum unsigned
        $display("%0d", sum);

        b[3] = 1'bx;
        $tarn_lt(is_less, a, b);
        $tarn_hex_text(text, b, -1);
        $display("%b %0s", is_less, text);

        $tarn_to_real(half, a);
        $display("%g", half / 2);
    end
endmodule
