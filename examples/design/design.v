// A counter, an ALU and a memory under a testbench. Beside this file lies the C that a compiler of
// Verilog would make of each module; README.md tells how to read it.

// Counts the cycles in which it is enabled, from START on.
module counter #(parameter WIDTH = 8, parameter [WIDTH-1:0] START = 0)
    (input clk, input reset, input enable, output reg [WIDTH-1:0] count, output full);

    assign full = &count;

    always @(posedge clk)
        if (reset) count <= START;
        else if (enable) count <= count + 1;
endmodule

module alu(input [3:0] op, input [79:0] a, input [79:0] b,
           output reg [79:0] y, output less, output zero);
    wire signed [79:0] left = a;
    wire signed [79:0] right = b;

    assign less = left < right;
    assign zero = y == 0;

    always @*
        case (op)
            0: y = a + b;
            1: y = a - b;
            2: y = a & b;
            3: y = a | b;
            4: y = a ^ b;
            5: y = a << b;
            6: y = a >> b;
            7: y = left >>> b;
            8: y = a * b;
            9: y = (a + b) >> 1;
            10: y = {a[39:0], b[39:0]};
            11: y = less;
            default: y = 80'bx;
        endcase
endmodule

// Sixteen words of six bytes. A word is written as a whole, or one byte of it, its lane.
module memory(input clk, input write, input write_byte, input [3:0] address, input [2:0] lane,
              input [47:0] data, output [47:0] q, output [15:0] pair);
    reg [47:0] words [0:15];

    assign q = words[address];
    assign pair = words[address][8*lane +: 16];

    always @(posedge clk)
        if (write) words[address] <= data;
        else if (write_byte) words[address][8*lane +: 8] <= data[7:0];
endmodule

module testbench;
    localparam [36*8-1:0] NAMES = "addsuband orxorshlshrasrmulavgcatslt";

    reg clk, reset, enable, use_word, write, write_byte;
    reg [3:0] op;
    reg [2:0] lane;
    reg [79:0] a, b;
    wire [39:0] count;
    wire [47:0] q;
    wire [15:0] pair;
    wire [79:0] y;
    wire full, less, zero;
    integer i;

    wire [79:0] operand = use_word ? q : b;

    counter #(.WIDTH(40), .START(40'hff_ffff_fffd)) counter(clk, reset, enable, count, full);
    alu alu(op, a, operand, y, less, zero);
    memory memory(clk, write, write_byte, count[3:0], lane, y[47:0], q, pair);

    task cycle;
        begin
            #5 clk = 1;
            #5 clk = 0;
        end
    endtask

    task calculate;  // with every operation
        reg [3*8-1:0] name;
        begin
            $display("a = %h, b = %h", a, b);
            for (i = 0; i < 12; i = i + 1) begin
                name = NAMES[24*(11 - i) +: 24];
                op = i;
                cycle;
                $display("%s %h %b%b %0d", name, y, less, zero, $signed(y));
            end
        end
    endtask

    task show;  // the counter and the memory
        begin
            $write("%d %b, word %o: ", count, full, count[3:0]);
            $display("%h \"%s\" %h", q, q, pair);
        end
    endtask

    task store(input [6*8-1:0] text);
        begin
            a = text;
            cycle;
        end
    endtask

    task restart;
        begin
            reset = 1;
            cycle;
            reset = 0;
        end
    endtask

    task use_alu;
        begin
            a = 80'd1_000_000_000_000_000_000_000;
            b = 80'd4_294_967_300;
            calculate;
            b[15:8] = 8'bz;
            calculate;
            a = -80'd4096;
            b = 80'd3;
            calculate;
            a = 80'h1234_zzzz_xxxx_00ff_5678;
            calculate;
        end
    endtask

    task use_memory;
        begin
            // Texts go through the ALU into the memory, while the counter steps through its words.
            enable = 1;
            write = 1;
            op = 3;
            b = 0;
            store("better");
            store("memory");
            store("packed");
            op = 10;
            a = {80{1'bz}};
            cycle;
            write = 0;
            restart;
            repeat (4) begin
                show;
                cycle;
            end

            // One byte of the first word is written, then one that it does not have.
            restart;
            enable = 0;
            op = 3;
            write_byte = 1;
            lane = 4;
            store("u");
            show;
            lane = 6;
            store("o");
            show;
            write_byte = 0;
            lane = 5;
            #5 show;
            $display("byte %d is %c", lane, pair[7:0]);
            lane[0] = 1'bx;
            #5 show;
        end
    endtask

    task choose(input choice);
        begin
            use_word = choice;
            #5;
            if (operand == q) $display("equal");
            else if (operand != q) $display("not equal");
            else $display("not known: %h", operand);
        end
    endtask

    initial begin
        // The counter is not known yet: neither does it count, nor does the memory take a word.
        clk = 0;
        enable = 1;
        write = 1;
        write_byte = 0;
        use_word = 0;
        op = 3;
        b = 0;
        store("nobody");
        show;
        enable = 0;
        write = 0;
        restart;
        show;
        use_alu;
        use_memory;

        // A choice that is not known keeps the bits in which both sides agree.
        b = "butler";
        choose(0);
        choose(1'bx);
        choose(1);
        enable = 1;
        cycle;
        choose(1);
    end
endmodule
