// CALL is a call that tarn.vpi refuses; the simulation ends there.
module refused;
    reg [15:0] a = 5;
    wire [15:0] net = a;
    real x = 1.5;
    reg [15:0] format = "%s";
    reg [8*20:1] text;

    initial begin
        `CALL;
        $display("went on");
    end
endmodule
