/* module testbench
 *
 * Its initial block is the only process that waits, so it keeps the C stack: where it waits, the
 * others run until they have settled. */
#include "design.h"

LogicCode testbench_clk = TARN_LOGIC_X;
LogicCode testbench_reset = TARN_LOGIC_X;
LogicCode testbench_enable = TARN_LOGIC_X;
LogicCode testbench_use_word = TARN_LOGIC_X;
LogicCode testbench_write = TARN_LOGIC_X;
LogicCode testbench_write_byte = TARN_LOGIC_X;
VectorWord testbench_op[1] = {X_BITS(0xf)};
VectorWord testbench_lane[1] = {X_BITS(0x7)};
VectorWord testbench_a[3] = {X_BITS(0xffffffff), X_BITS(0xffffffff), X_BITS(0xffff)};
VectorWord testbench_b[3] = {X_BITS(0xffffffff), X_BITS(0xffffffff), X_BITS(0xffff)};
VectorWord testbench_operand[3] = {X_BITS(0xffffffff), X_BITS(0xffffffff), X_BITS(0xffff)};

/* Literals that the compiler has folded: 80'd0, -80'd4096, {80{1'bz}}, 8'bz. */
static const VectorWord k0[3] = {{0, 0}, {0, 0}, {0, 0}};
static const VectorWord kMinus4096[3] = {{0xfffff000, 0}, {0xffffffff, 0}, {0xffff, 0}};
static const VectorWord kAllZ[3] = {{0, 0xffffffff}, {0, 0xffffffff}, {0, 0xffff}};
static const VectorWord kByteOfZ[1] = {{0, 0xff}};

/* localparam [36*8-1:0] NAMES: the library reads it once, before time 0. */
static VectorWord testbench_NAMES[9];

void testbench_start(void) {
    tarn_StringToVector(36 * 8, testbench_NAMES, "addsuband orxorshlshrasrmulavgcatslt");
}

/* wire [79:0] operand = use_word ? q : b; the copy widens the 48 bits of q, and so does the mix. */
void testbench_operand_assign(void) {
    VectorWord value[3];
    switch (testbench_use_word) {
        case TARN_LOGIC_0:
            tarn_UnsignedCopy(80, value, 80, testbench_b);
            break;
        case TARN_LOGIC_1:
            tarn_UnsignedCopy(80, value, 48, memory_q);
            break;
        default:
            tarn_UnsignedConditionalMix(80, value, 80, testbench_b, 48, memory_q);
            break;
    }
    AssignVector(80, testbench_operand, value, OPERAND_READERS);
}

static void assign_clk(LogicCode value) {
    const LogicCode before = testbench_clk;
    testbench_clk = value;
    if (IsPosedge(before, value)) Wake(POSEDGE_CLK_READERS);
}

/* task cycle: #5 clk = 1; #5 clk = 0; */
static void cycle(void) {
    Settle();
    assign_clk(TARN_LOGIC_1);
    Settle();
    assign_clk(TARN_LOGIC_0);
}

/* task calculate */
static void calculate(void) {
    /* $display("a = %h, b = %h", a, b); */
    Print("a = ", tarn_ConvertToHex(80, testbench_a, -1));
    Print(", b = ", tarn_ConvertToHex(80, testbench_b, -1));
    Print("\n", "");
    /* for (i = 0; i < 12; i = i + 1): i never has an X bit, so it is a machine integer. */
    for (int i = 0; i < 12; ++i) {
        /* name = NAMES[24*(11 - i) +: 24]; */
        VectorWord name[1];
        tarn_IndexedPartselect(name, 288, testbench_NAMES, 24 * (11 - i), 24);
        /* op = i; cycle; */
        AssignVector(4, testbench_op, &(VectorWord){(uint32_t)i, 0}, OP_READERS);
        cycle();
        /* $display("%s %h %b%b %0d", name, y, less, zero, $signed(y)); */
        Print("", tarn_ConvertToString(24, name, 1));
        Print(" ", tarn_ConvertToHex(80, alu_y, -1));
        Print(" ", tarn_ConvertToBin0(alu_less));
        Print("", tarn_ConvertToBin0(alu_zero));
        Print(" ", tarn_SignedConvertToDec(80, alu_y, 0, 0));
        Print("\n", "");
    }
}

/* task show */
static void show(void) {
    VectorWord address[1];
    /* $write("%d %b, word %o: ", count, full, count[3:0]); */
    Print("", tarn_UnsignedConvertToDec(40, counter_count, -1, 0));
    Print(" ", tarn_ConvertToBin0(counter_full));
    tarn_Partselect(address, counter_count, 0, 4);
    Print(", word ", tarn_ConvertToOct(4, address, -1));
    Print(": ", "");
    /* $display("%h \"%s\" %h", q, q, pair); */
    Print("", tarn_ConvertToHex(48, memory_q, -1));
    Print(" \"", tarn_ConvertToString(48, memory_q, 1));
    Print("\" ", tarn_ConvertToHex(16, memory_pair, -1));
    Print("\n", "");
}

/* task store(input [6*8-1:0] text): a = text; cycle; */
static void store(const char* text) {
    VectorWord value[3];
    tarn_StringToVector(80, value, text);
    AssignVector(80, testbench_a, value, A_READERS);
    cycle();
}

/* task restart: reset = 1; cycle; reset = 0; */
static void restart(void) {
    testbench_reset = TARN_LOGIC_1;
    cycle();
    testbench_reset = TARN_LOGIC_0;
}

/* task use_alu */
static void use_alu(void) {
    VectorWord value[3];

    /* a = 80'd1_000_000_000_000_000_000_000; */
    tarn_DecimalStringToVector(80, value, "1_000_000_000_000_000_000_000");
    AssignVector(80, testbench_a, value, A_READERS);
    /* b = 80'd4_294_967_300; calculate; */
    tarn_UnsignedConvertLong(80, value, UINT64_C(4294967300));
    AssignVector(80, testbench_b, value, B_READERS);
    calculate();
    /* b[15:8] = 8'bz; calculate; */
    if (tarn_NotIdenticalPartselectAssign(testbench_b, kByteOfZ, 8, 8)) Wake(B_READERS);
    calculate();
    /* a = -80'd4096; */
    AssignVector(80, testbench_a, kMinus4096, A_READERS);
    /* b = 80'd3; calculate; */
    tarn_UnsignedConvert(80, value, 3);
    AssignVector(80, testbench_b, value, B_READERS);
    calculate();
    /* a = 80'h1234_zzzz_xxxx_00ff_5678; calculate; */
    tarn_HexStringToVector(80, value, "1234_zzzz_xxxx_00ff_5678");
    AssignVector(80, testbench_a, value, A_READERS);
    calculate();
}

/* task use_memory */
static void use_memory(void) {
    VectorWord byte[1];

    /* enable = 1; write = 1; op = 3; b = 0; */
    testbench_enable = TARN_LOGIC_1;
    testbench_write = TARN_LOGIC_1;
    AssignVector(4, testbench_op, &(VectorWord){3, 0}, OP_READERS);
    AssignVector(80, testbench_b, k0, B_READERS);
    /* store("better"); store("memory"); store("packed"); */
    store("better");
    store("memory");
    store("packed");
    /* op = 10; a = {80{1'bz}}; cycle; write = 0; restart; */
    AssignVector(4, testbench_op, &(VectorWord){10, 0}, OP_READERS);
    AssignVector(80, testbench_a, kAllZ, A_READERS);
    cycle();
    testbench_write = TARN_LOGIC_0;
    restart();
    /* repeat (4) begin show; cycle; end */
    for (int i = 0; i < 4; ++i) {
        show();
        cycle();
    }

    /* restart; enable = 0; op = 3; write_byte = 1; lane = 4; store("u"); show; */
    restart();
    testbench_enable = TARN_LOGIC_0;
    AssignVector(4, testbench_op, &(VectorWord){3, 0}, OP_READERS);
    testbench_write_byte = TARN_LOGIC_1;
    AssignVector(3, testbench_lane, &(VectorWord){4, 0}, LANE_READERS);
    store("u");
    show();
    /* lane = 6; store("o"); show; */
    AssignVector(3, testbench_lane, &(VectorWord){6, 0}, LANE_READERS);
    store("o");
    show();
    /* write_byte = 0; lane = 5; #5 show; */
    testbench_write_byte = TARN_LOGIC_0;
    AssignVector(3, testbench_lane, &(VectorWord){5, 0}, LANE_READERS);
    Settle();
    show();
    /* $display("byte %d is %c", lane, pair[7:0]); */
    Print("byte ", tarn_UnsignedConvertToDec(3, testbench_lane, -1, 0));
    tarn_Partselect(byte, memory_pair, 0, 8);
    Print(" is ", tarn_ConvertToChar(byte, 1));
    Print("\n", "");
    /* lane[0] = 1'bx; #5 show; */
    const VectorWord* x = &tarn_LogicVectorLUT[TARN_LOGIC_X];
    if (tarn_NotIdenticalPartselectAssign(testbench_lane, x, 0, 1)) Wake(LANE_READERS);
    Settle();
    show();
}

/* task choose(input choice) */
static void choose(LogicCode choice) {
    /* use_word = choice; #5; */
    AssignBit(&testbench_use_word, choice, USE_WORD_READERS);
    Settle();
    /* if (operand == q) $display("equal");
     * else if (operand != q) $display("not equal");
     * else $display("not known: %h", operand); */
    if (tarn_UnsignedEq(80, testbench_operand, 48, memory_q) == TARN_LOGIC_1) {
        Print("equal\n", "");
    } else if (tarn_UnsignedNEq(80, testbench_operand, 48, memory_q) == TARN_LOGIC_1) {
        Print("not equal\n", "");
    } else {
        Print("not known: ", tarn_ConvertToHex(80, testbench_operand, -1));
        Print("\n", "");
    }
}

/* initial */
void testbench_initial(void) {
    VectorWord value[3];

    /* clk = 0; enable = 1; write = 1; write_byte = 0; use_word = 0; op = 3; b = 0; */
    assign_clk(TARN_LOGIC_0);
    testbench_enable = TARN_LOGIC_1;
    testbench_write = TARN_LOGIC_1;
    testbench_write_byte = TARN_LOGIC_0;
    AssignBit(&testbench_use_word, TARN_LOGIC_0, USE_WORD_READERS);
    AssignVector(4, testbench_op, &(VectorWord){3, 0}, OP_READERS);
    AssignVector(80, testbench_b, k0, B_READERS);
    /* store("nobody"); show; */
    store("nobody");
    show();
    /* enable = 0; write = 0; restart; show; */
    testbench_enable = TARN_LOGIC_0;
    testbench_write = TARN_LOGIC_0;
    restart();
    show();
    /* use_alu; use_memory; */
    use_alu();
    use_memory();
    /* b = "butler"; choose(0); choose(1'bx); choose(1); */
    tarn_StringToVector(80, value, "butler");
    AssignVector(80, testbench_b, value, B_READERS);
    choose(TARN_LOGIC_0);
    choose(TARN_LOGIC_X);
    choose(TARN_LOGIC_1);
    /* enable = 1; cycle; choose(1); */
    testbench_enable = TARN_LOGIC_1;
    cycle();
    choose(TARN_LOGIC_1);
}
