// What the testbenches share: the widths, where operands come from, and the count of what was
// compared.

localparam COUNT = 17;
localparam [16*COUNT-1:0] WIDTHS = {
    16'd1, 16'd2, 16'd3, 16'd7, 16'd8, 16'd16, 16'd31, 16'd32, 16'd33, 16'd55, 16'd63, 16'd64,
    16'd65, 16'd100, 16'd128, 16'd129, 16'd300};

// NAME.v is a vector of WIDTH bits; its sign is a parameter, which no declaration can have.
`define VECTOR(NAME, WIDTH, IS_SIGNED) \
    if (IS_SIGNED) begin : NAME reg signed [WIDTH-1:0] v; end \
    else begin : NAME reg [WIDTH-1:0] v; end

// The library's result is in `got` after CALL.
`define CHECK(CALL, EXPECTED) \
    begin CALL; expected = EXPECTED; compare(`"CALL`", got === expected); end

module common;
    localparam MAX = 320;

    integer seed = 1, rounds = 1;
    integer comparisons = 0, differences = 0;
    reg is_given = $value$plusargs("rounds=%d", rounds);

    task count(input is_same);
        comparisons = comparisons + 1;
        differences = differences + (is_same !== 1'b1);
    endtask

    function integer below(input integer bound);
        below = $unsigned($random(seed)) % bound;
    endfunction

    function [MAX-1:0] noise(input integer width);
        for (integer i = 0; i < width; i = i + 32) noise[i +: 32] = $random(seed);
    endfunction

    // Long runs of equal bits, as carries and borrows like them.
    function [MAX-1:0] runs(input integer width);
        runs = -below(2);
        repeat (below(6)) runs = runs ^ (~320'd0 << below(width));
    endfunction

    function [MAX-1:0] known(input integer width);
        case (below(10))
            0: known = 320'd1 << (width - 1);
            1: known = (320'd1 << (width - 1)) - 1;
            2, 3, 4: known = below(40) - 20;
            5, 6: known = runs(width);
            7: known = 320'd1 << below(width);
            default: known = noise(width);
        endcase
    endfunction

    // An operand: a known value, or one in three times a value with X and Z bits.
    function [MAX-1:0] draw(input integer width);
        draw = known(width);
        case (below(24))
            0: draw = {MAX{1'bx}};
            1: draw = {MAX{1'bz}};
            2: draw[below(width)] = 1'bx;
            3: draw[below(width)] = 1'bz;
            4: draw[width - 1] = 1'bx;
            5: draw[width - 1] = 1'bz;
            6, 7: begin
                draw = draw ^ (noise(width) & runs(width) & {MAX{1'bx}});
                repeat (below(4)) draw[below(width) +: 5] = 5'bz;
                repeat (below(2)) draw[below(width) +: 40] = 40'bz;
            end
            default: ;
        endcase
    endfunction

    // An amount or an index: a number of the size of `range`, or any operand.
    function [MAX-1:0] draw_near(input integer range, input integer width);
        case (below(8))
            0: draw_near = draw(width);
            1: draw_near = -below(range + 2);
            2: draw_near = range - 2 + below(5);
            default: draw_near = below(range + 2);
        endcase
    endfunction

    // A real of up to `width` bits in front of the point, halves among them.
    function real draw_real(input integer width);
        case (below(6))
            0, 1: draw_real = (below(40) - 20) / 2.0;
            2: draw_real = $itor($random(seed)) / 4.0;
            3: draw_real = 2.0 ** below(width) * (1.0 + $itor(below(1 << 30)) / (1 << 30));
            4: draw_real = -(2.0 ** below(width));
            default: draw_real = $itor($random(seed)) * $itor($random(seed));
        endcase
    endfunction

    initial #2 $display("%0d comparisons, %0d differences", comparisons, differences);
endmodule
