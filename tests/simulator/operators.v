// Every operator on pairs of operands of many widths, once for each choice of their signs.
`include "common.v"

`define CHECKS unsigned_unsigned
`define A_SIGN
`define B_SIGN
`include "operators.vh"

`undef CHECKS
`undef A_SIGN
`define CHECKS signed_unsigned
`define A_SIGN signed
`include "operators.vh"

`undef CHECKS
`undef B_SIGN
`define CHECKS signed_signed
`define B_SIGN signed
`include "operators.vh"

`undef CHECKS
`undef A_SIGN
`define CHECKS unsigned_signed
`define A_SIGN
`include "operators.vh"

module operators #(parameter ROUNDS = 20);
    localparam COUNT = 15;
    localparam [16*COUNT-1:0] WIDTHS = {
        16'd1, 16'd2, 16'd7, 16'd8, 16'd16, 16'd31, 16'd32, 16'd33, 16'd63, 16'd64, 16'd65,
        16'd100, 16'd128, 16'd129, 16'd300};

    genvar i;
    generate
        for (i = 0; i < 4 * COUNT; i = i + 1) begin : widths
            localparam AW = WIDTHS[16*(i % COUNT) +: 16];
            localparam BW = WIDTHS[16*((4*i + i/COUNT) % COUNT) +: 16];
            localparam RW = WIDTHS[16*((7*i + i/5 + 2) % COUNT) +: 16];
            unsigned_unsigned #(RW, AW, BW) uu();
            signed_unsigned #(RW, AW, BW) su();
            signed_signed #(RW, AW, BW) ss();
            unsigned_signed #(RW, AW, BW) us();
            initial #1 repeat (ROUNDS) begin
                uu.round;
                su.round;
                ss.round;
                us.round;
            end
        end
    endgenerate

    initial #2 common.report;
endmodule
