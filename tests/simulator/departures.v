// The table of the simulator's departures from IEEE 1364-2005: a word that the comparisons refer
// to, the clause that decides, what the simulator does, and a case. The comparisons keep away from
// them or, where an operator would be left out, compare with the clause's value. A row that is
// printed with "agrees" tells that the simulator has changed, and that they may be widened.
//
// Two have no case, as the simulation would not go on:
//   quotient  5.1.5  a quotient by a divisor of more than 64 bits is wrong, or never found
//   memory    5.2.2  a write to a field that leaves a word of a memory aborts
module departures;
    integer count = 0, seen = 0;
    reg [3:0] unknown = 4'b1x0x;
    reg signed [3:0] negative = 4'b10x1;
    reg signed [32:0] minus_one = -1;
    reg signed [0:0] bit_value = 1;
    reg signed [1:0] amount = 2'b10;
    reg [7:9] ascending = 3'b110;
    reg [63:0] index = 64'h1_0000_0007;
    reg [127:0] above_half = 128'd1 << 106 | 128'd1 << 53 | 128'd1;

    task row(input [8*20:1] entry, input [8*64:1] what, input departs);
        count = count + 1;
        seen = seen + (departs === 1'b1);
        $display("%0s %0s: %0s", departs ? "departs" : "agrees", entry, what);
    endtask

    initial begin
        row("plus 5.1.5", "+a keeps the known bits of an a with X bits", +unknown !== 4'bx);
        row("power 5.1.5", "a ** -b is 0 above 32 bits", minus_one ** -1 !== minus_one);
        row("ashr 5.1.12", "a >>> b of a signed bit loses the sign",
            $sformatf("%0d", bit_value >>> 1) != "-1");
        row("amount 5.5.1", "a field of a signed vector is negative as the b of a << b",
            (8'd1 << amount[1:0]) !== 8'd4);
        row("mix 5.1.13", "1'bx ? 1'bz : 1'bz is Z", (unknown[0] ? 1'bz : 1'bz) !== 1'bx);
        row("index 5.2.1", "a[b] ignores the bits of b above 32", ascending[index] !== 1'bx);
        row("field 5.2.1", "a[9 +: 3] of a vector [7:9] reads bits 7 and 8",
            ascending[9 +: 3] !== 3'b0xx);
        row("real 4.8.2", "X bits of a negative vector are no zeros in a real",
            negative * 1.0 != -7.0);
        row("real 4.8.2", "more than 64 bits become a real beside the nearest",
            above_half * 1.0 != 2.0 ** 106 + 2.0 ** 54);
        row("digits 17.1.1", "the top digit of an unknown sum is X where it is not full",
            $sformatf("%o", unknown + 4'd1) != "xx");
        row("characters 17.1.1", "a character of an unknown sum is a blank, of a variable not",
            $sformatf("%s", {4'd4, unknown} + 8'd1) == " ");
        row("places 17.1.1.3", "%d of a signed number has no place for its top bit's digits",
            $sformatf("%d", $signed(4'd1)) != "  1");
        $display("%0d departures shown, %0d seen", count, seen);
    end
endmodule
