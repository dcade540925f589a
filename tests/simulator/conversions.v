// Texts and reals of vectors of many widths.
`include "common.v"

`define CHECKS unsigned_conversions
`define A_SIGN
`include "conversions.vh"

`undef CHECKS
`undef A_SIGN
`define CHECKS signed_conversions
`define A_SIGN signed
`include "conversions.vh"

module conversions #(parameter ROUNDS = 50);
    localparam COUNT = 18;
    localparam [16*COUNT-1:0] WIDTHS = {
        16'd1, 16'd2, 16'd3, 16'd4, 16'd7, 16'd8, 16'd16, 16'd31, 16'd32, 16'd33, 16'd54, 16'd63,
        16'd64, 16'd65, 16'd100, 16'd128, 16'd129, 16'd300};

    genvar i;
    generate
        for (i = 0; i < COUNT; i = i + 1) begin : widths
            unsigned_conversions #(WIDTHS[16*i +: 16]) u();
            signed_conversions #(WIDTHS[16*i +: 16]) s();
            initial #1 repeat (ROUNDS) begin
                u.round;
                s.round;
            end
        end
    endgenerate

    initial #2 common.report;
endmodule
