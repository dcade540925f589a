// Where the simulator departs from IEEE 1364-2005, one case each with the clause that decides. The
// comparisons keep away from these or, where an operator would be left out, compare with the
// clause's value. A line that says "agrees" tells that the simulator has changed, and that the
// comparisons may then be widened.
//
// Two more can't be shown, as the simulation would not go on: other quotients by divisors of more
// than 64 bits never end, and a write to a field that leaves a word of a memory aborts.
`include "common.v"

module departures;
    integer count = 0;
    reg [12*8:1] text;
    reg [63:0] unknown;
    reg [299:0] dividend;
    reg [99:0] divisor;
    reg signed [32:0] minus_one;
    reg [63:0] index;
    reg signed [127:0] wide;
    reg signed [0:0] bit_value;
    reg [7:9] ascending;
    reg signed [1:0] amount;
    reg signed [3:0] unknown_sign;
    real x;

    task show(input [8*8:1] clause, input [80*8:1] what, input departs);
        begin
            common.comparisons = common.comparisons + 1;
            if (departs === 1'b1) count = count + 1;
            $display("%0s %0s: %0s", (departs === 1'b1) ? "departs" : "agrees ", clause, what);
        end
    endtask

    initial begin
        unknown = 64'bx;
        show("5.1.5", "+a keeps the known bits of an a with X or Z bits",
             +{unknown[0], 1'b1} !== 2'bxx);

        dividend =
            300'hfffffffffffff8000000ffff000000001ffffffffffffc00000000000003fff9fffc0000000;
        divisor = 100'hffffffffffffffffffffffff6;
        show("5.1.5", "the quotient by a divisor of more than 64 bits is wrong",
             dividend / divisor !== 300'hfffffffffffff8000000ffffa00000001ffffb0000009bffc4);

        minus_one = -1;
        show("5.1.5", "a power of more than 32 bits with a negative exponent is 0",
             minus_one ** -1 !== minus_one);

        bit_value = 1;
        $sformat(text, "%0d", bit_value >>> 1);
        show("5.1.12", "a signed bit shifted by >>> loses its sign", text !== "-1");

        amount = 2'b10;
        show("5.5.1", "a field of a signed vector is negative as the amount of a shift",
             (8'd1 << amount[1:0]) !== 8'd4);

        show("5.1.13", "an unknown condition between Z and Z gives Z",
             (unknown[0] ? 1'bz : 1'bz) !== 1'bx);

        ascending = 3'b110;
        index = 64'h1_0000_0007;
        show("5.2.1", "an index beyond 32 bits reads a bit", ascending[index] !== 1'bx);

        show("5.2.1", "a field [9 +: 3] of a vector [7:9] reads bits 7 and 8",
             ascending[9 +: 3] !== 3'b0xx);

        unknown_sign = 4'b10x1;
        x = unknown_sign;
        show("4.8.2", "the X bits of a negative vector are no zeros in a real", x != -7.0);

        wide = 128'h619211c36c1b6dd8526827a4fefc54fd;
        x = wide;
        show("4.8.2", "a vector of more than 64 bits becomes a real beside the nearest one",
             $realtobits(x) !== 64'h47d8648470db06db);

        $sformat(text, "%o", unknown[3:0] + 1'b1);
        show("17.1.1", "the unknown top digit of an expression is X where it is not full",
             text !== "xx");
        $display("%0d departures shown, %0d seen", common.comparisons, count);
    end
endmodule
