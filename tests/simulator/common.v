// What the checks share: where operands come from, and the count of what was compared.
module common;
    localparam MAX = 320;

    integer seed = 1;
    integer comparisons = 0;
    integer differences = 0;

    function integer below(input integer bound);
        below = $unsigned($random(seed)) % bound;
    endfunction

    function [MAX-1:0] noise(input integer width);
        integer i;
        for (i = 0; i < width; i = i + 32) noise[i +: 32] = $random(seed);
    endfunction

    // Long runs of equal bits, as carries and borrows like them.
    function [MAX-1:0] runs(input integer width);
        begin
            runs = -below(2);
            repeat (below(6)) runs = runs ^ (~320'd0 << below(width));
        end
    endfunction

    function [MAX-1:0] known(input integer width);
        case (below(12))
            0: known = 0;
            1: known = 1;
            2: known = ~320'd0;
            3: known = 320'd1 << (width - 1);
            4: known = (320'd1 << (width - 1)) - 1;
            5: known = below(20);
            6: known = -below(20);
            7, 8: known = runs(width);
            9: known = 320'd1 << below(width);
            default: known = noise(width);
        endcase
    endfunction

    // An operand: a known value, or one in three times a value with X and Z bits.
    function [MAX-1:0] draw(input integer width);
        begin
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
        end
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
            0: draw_real = below(20) / 2.0;
            1: draw_real = -below(20) / 2.0;
            2: draw_real = $itor($random(seed)) / 4.0;
            3: draw_real = 2.0 ** below(width) * (1.0 + $itor(below(1 << 30)) / (1 << 30));
            4: draw_real = -(2.0 ** below(width));
            default: draw_real = $itor($random(seed)) * $itor($random(seed));
        endcase
    endfunction

    // Where the simulator departs from the standard, results are compared with what the clause
    // says, written with other operators of the simulator; how often it departs is counted here.
    localparam PLUS = 0, MIX = 1, WIDE_INDEX = 2, NEGATIVE_POWER = 3, TO_REAL = 4;
    localparam KINDS = 5;
    integer departures [0:KINDS-1];
    initial for (kind = 0; kind < KINDS; kind = kind + 1) departures[kind] = 0;
    integer kind;

    // Where the standard (17.1.1.3) leaves the width of a field open and the library's is wider.
    integer wider_fields = 0;

    function [8*100:1] departure(input integer kind);
        case (kind)
            PLUS: departure = "+a keeps X and Z bits (5.1.5: the entire result is X)";
            MIX: departure = "1'bx ? z : z is Z (5.1.13, table 5-21: X)";
            WIDE_INDEX: departure = "a[b] ignores the bits of b above 32 (5.2.1: out of bounds, X)";
            NEGATIVE_POWER: departure = "a ** -b is 0 above 32 bits (5.1.5, table 5-6)";
            TO_REAL: departure = "X and Z bits or over 64 bits as a real (4.8.2: 0; nearest)";
            default: departure = "?";
        endcase
    endfunction

    task report;
        begin
            for (kind = 0; kind < KINDS; kind = kind + 1)
                if (departures[kind] != 0)
                    $display("the simulator departs %0d times: %0s", departures[kind],
                             departure(kind));
            if (wider_fields != 0)
                $display("a signed %%d has one more place for its sign %0d times", wider_fields);
            $display("%0d comparisons, %0d differences", comparisons, differences);
        end
    endtask
endmodule
