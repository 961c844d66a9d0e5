// Every instruction of the machine, one row each. Included wherever a table over them is needed;
// the includer defines BASIC_OP(Name, operands, words).
//
// operands  what A, B, C are, one letter each, for the dump:
//             r register written, s register read, b register read and written,
//             g variable of the program (register of the top level), f field, m member,
//             p procedure, l library function, v record of the table of variables (what MAKE_...
//             make), n plain number, - not used
// words     "" none; otherwise what follows the instruction:
//             t  one word with a jump's target in B and C (A is used where the row says so)
//             w  one word whose A, B, C the row names
//             a  one word with the call's shape in A, then the argument registers, three a word
//
// Registers hold 8-byte slots. "_C" instructions work on counted ones (texts, arrays, records,
// variants): the old content is released, the new one counted. Texts that are only read may also
// stand, uncounted, in a plain register. I is a 64-bit whole number, D a double, T a text.
// No pragma once: the file is a list.
// clang-format off

// ---- moves
BASIC_OP(MOVE,            "rs-", "")   // A = B, plain
BASIC_OP(MOVE_C,          "rs-", "")   // A = B, counted
BASIC_OP(TAKE_C,          "rb-", "")   // A = B, B becomes null
BASIC_OP(CLEAR_C,         "r--", "")   // A = null
BASIC_OP(CONSTANT,        "rnn", "")   // A = constant number B + 65536 * C, uncounted
BASIC_OP(GET_GLOBAL,      "rg-", "")   // A = global B, plain, or borrowed without counting
BASIC_OP(GET_GLOBAL_C,    "rg-", "")   // A = global B, counted
BASIC_OP(SET_GLOBAL,      "gs-", "")   // global A = B, plain
BASIC_OP(SET_GLOBAL_C,    "gs-", "")   // global A = B, counted
BASIC_OP(TAKE_GLOBAL_C,   "gb-", "")   // global A = B, B becomes null

// ---- references: the address of a slot in a plain register
BASIC_OP(REF_LOCAL,       "rs-", "")   // A = address of register B
BASIC_OP(REF_GLOBAL,      "rg-", "")   // A = address of global B
BASIC_OP(REF_ELEMENT,     "rss", "")   // A = address of element C of array B
BASIC_OP(REF_ELEMENT2,    "rss", "w")  // A = address of element (C, word A) of array B
BASIC_OP(REF_FIELD,       "rsf", "")   // A = address of field C of record B
BASIC_OP(GET_REF,         "rs-", "")   // A = what reference B points to, plain or borrowed
BASIC_OP(GET_REF_C,       "rs-", "")   // A = what reference B points to, counted
BASIC_OP(SET_REF,         "ss-", "")   // what reference A points to = B, plain
BASIC_OP(SET_REF_C,       "ss-", "")   // what reference A points to = B, counted
BASIC_OP(SWAP_REF,        "ss-", "")   // exchanges what references A and B point to
BASIC_OP(KEEP,            "rs-", "")   // A = the elements of array B, so that references to them live

// ---- whole numbers
BASIC_OP(ADD_I,           "rss", "")   // A = B + C, wrapping at 64 bits
BASIC_OP(SUB_I,           "rss", "")   // A = B - C
BASIC_OP(MUL_I,           "rss", "")   // A = B * C
BASIC_OP(ADD_INTEGER,     "rss", "")   // A = B + C, low 32 bits with sign
BASIC_OP(SUB_INTEGER,     "rss", "")   // A = B - C, low 32 bits with sign
BASIC_OP(MUL_INTEGER,     "rss", "")   // A = B * C, low 32 bits with sign
BASIC_OP(DIV_I,           "rss", "")   // A = B \ C, cut; error when C is 0
BASIC_OP(MOD_I,           "rss", "")   // A = B MOD C, sign of B; error when C is 0
BASIC_OP(INV_I,           "rss", "")   // A = x with B * x = 1 (mod C), 0 when there is none
BASIC_OP(SHL_I,           "rss", "")   // A = B SHL C; 0 when C is no number from 0 to 63
BASIC_OP(SHR_I,           "rss", "")   // A = B SHR C, of 32 bits for 32-bit numbers; zeros come in
BASIC_OP(AND_I,           "rss", "")   // A = B AND C
BASIC_OP(OR_I,            "rss", "")   // A = B OR C
BASIC_OP(XOR_I,           "rss", "")   // A = B XOR C
BASIC_OP(NEG_I,           "rs-", "")   // A = -B
BASIC_OP(NOT_I,           "rs-", "")   // A = NOT B, every bit
BASIC_OP(EQ_I,            "rss", "")   // A = -1 when B = C, else 0
BASIC_OP(NE_I,            "rss", "")   // A = -1 when B <> C, else 0
BASIC_OP(LT_I,            "rss", "")   // A = -1 when B < C, else 0
BASIC_OP(LE_I,            "rss", "")   // A = -1 when B <= C, else 0

// ---- doubles
BASIC_OP(ADD_D,           "rss", "")   // A = B + C
BASIC_OP(SUB_D,           "rss", "")   // A = B - C
BASIC_OP(MUL_D,           "rss", "")   // A = B * C
BASIC_OP(DIV_D,           "rss", "")   // A = B / C; error when C is 0
BASIC_OP(POW_D,           "rss", "")   // A = B ^ C; error when that is no number
BASIC_OP(ADD_D_I,         "rss", "")   // A = B + C, which is a whole number
BASIC_OP(SUB_D_I,         "rss", "")   // A = B - C, which is a whole number
BASIC_OP(MUL_D_I,         "rss", "")   // A = B * C, which is a whole number
BASIC_OP(DIV_D_I,         "rss", "")   // A = B / C, which is a whole number; error when C is 0
BASIC_OP(NEG_D,           "rs-", "")   // A = -B
BASIC_OP(EQ_D,            "rss", "")   // A = -1 when B = C, else 0
BASIC_OP(NE_D,            "rss", "")   // A = -1 when B <> C, else 0
BASIC_OP(LT_D,            "rss", "")   // A = -1 when B < C, else 0
BASIC_OP(LE_D,            "rss", "")   // A = -1 when B <= C, else 0

// ---- fitting to the width of a variable
BASIC_OP(FIT_BYTE,        "rs-", "")   // A = low 8 bits of B
BASIC_OP(FIT_WORD,        "rs-", "")   // A = low 16 bits of B
BASIC_OP(FIT_DWORD,       "rs-", "")   // A = low 32 bits of B
BASIC_OP(FIT_SHORT,       "rs-", "")   // A = low 16 bits of B with sign
BASIC_OP(FIT_INTEGER,     "rs-", "")   // A = low 32 bits of B with sign
BASIC_OP(FIT_SINGLE,      "rs-", "")   // A = B with the precision of a SINGLE
BASIC_OP(FIT_TEXT,        "rss", "")   // A = text B cut or padded with blanks to C bytes

// ---- conversions
BASIC_OP(D_OF_I,          "rs-", "")   // A = B as double
BASIC_OP(I_OF_D,          "rs-", "")   // A = B rounded, half to even
BASIC_OP(T_OF_I,          "rs-", "")   // A = B as STR$ writes it
BASIC_OP(T_OF_D,          "rs-", "")   // A = B as STR$ writes it
BASIC_OP(I_OF_T,          "rs-", "")   // A = B as VAL reads it, rounded
BASIC_OP(D_OF_T,          "rs-", "")   // A = B as VAL reads it
BASIC_OP(BOX,             "rsn", "")   // A = variant with B, whose kind is C
BASIC_OP(I_OF_BOX,        "rs-", "")   // A = content of variant B as a whole number
BASIC_OP(D_OF_BOX,        "rs-", "")   // A = content of variant B as a double
BASIC_OP(T_OF_BOX,        "rs-", "")   // A = content of variant B as text
BASIC_OP(OBJECT_OF_BOX,   "rs-", "")   // A = object in variant B; none when it holds another kind
BASIC_OP(SET_BOX,         "ss-", "")   // the variant at reference A takes the content of variant B
BASIC_OP(BINARY_BOX,      "rss", "w")  // A = variant of B op C; word A: BinaryOperator
BASIC_OP(COMPARE_BOX,     "rss", "w")  // A = -1 or 0; word A: BinaryOperator
BASIC_OP(NEG_BOX,         "rs-", "")   // A = variant of -B

// ---- texts
BASIC_OP(JOIN,            "rss", "")   // A = B + C; in place when A is B and no one else holds it
BASIC_OP(APPEND_REF,      "ss-", "")   // the text at reference A gets B at its end
BASIC_OP(REMOVE,          "rss", "")   // A = B without every occurrence of C
BASIC_OP(CHARACTER,       "rss", "")   // A = character C of B, from 1; "" outside
BASIC_OP(EQ_T,            "rss", "")   // A = -1 when B = C, else 0
BASIC_OP(NE_T,            "rss", "")   // A = -1 when B <> C, else 0
BASIC_OP(LT_T,            "rss", "")   // A = -1 when B < C byte by byte, else 0
BASIC_OP(LE_T,            "rss", "")   // A = -1 when B <= C byte by byte, else 0

// ---- jumps; a jump backwards looks at the limits and at the stop flag
BASIC_OP(JUMP,            "---", "t")  // to the target
BASIC_OP(JUMP_IF_I,       "s--", "t")  // when A is not 0
BASIC_OP(JUMP_UNLESS_I,   "s--", "t")  // when A is 0
BASIC_OP(JUMP_IF_D,       "s--", "t")  // when A is not 0
BASIC_OP(JUMP_UNLESS_D,   "s--", "t")  // when A is 0
BASIC_OP(JUMP_EQ_I,       "ss-", "t")  // when A = B
BASIC_OP(JUMP_NE_I,       "ss-", "t")  // when A <> B
BASIC_OP(JUMP_LT_I,       "ss-", "t")  // when A < B
BASIC_OP(JUMP_LE_I,       "ss-", "t")  // when A <= B
BASIC_OP(JUMP_EQ_D,       "ss-", "t")  // when A = B
BASIC_OP(JUMP_NE_D,       "ss-", "t")  // when A <> B
BASIC_OP(JUMP_LT_D,       "ss-", "t")  // when A < B
BASIC_OP(JUMP_LE_D,       "ss-", "t")  // when A <= B
BASIC_OP(JUMP_NOT_LT_D,   "ss-", "t")  // unless A < B
BASIC_OP(JUMP_NOT_LE_D,   "ss-", "t")  // unless A <= B
BASIC_OP(FOR_I,           "sss", "t")  // when A is past limit B at step C already
BASIC_OP(FOR_D,           "sss", "t")  // when A is past limit B at step C already
BASIC_OP(NEXT_I,          "bss", "t")  // A += C; when A is not past limit B
BASIC_OP(NEXT_INTEGER,    "bss", "t")  // the same, A kept to 32 bits
BASIC_OP(NEXT_D,          "bss", "t")  // A += C; when A is not past limit B
BASIC_OP(GOSUB,           "---", "t")  // to the target; RETURN_GOSUB comes back behind it
BASIC_OP(RETURN_GOSUB,    "---", "")   // behind the last GOSUB of this call; without one as RETURN

// ---- arrays
BASIC_OP(GET_ELEMENT,     "rss", "")   // A = B(C), plain or borrowed
BASIC_OP(GET_ELEMENT_C,   "rss", "")   // A = B(C), counted
BASIC_OP(GET_BYTE,        "rss", "")   // A = B(C) of an array of bytes
BASIC_OP(SET_BYTE,        "sss", "")   // A(B) = C of an array of bytes, low 8 bits
BASIC_OP(SET_ELEMENT,     "sss", "")   // A(B) = C, plain
BASIC_OP(SET_ELEMENT_C,   "sss", "")   // A(B) = C, counted
BASIC_OP(GET_ELEMENT2,    "rss", "w")  // A = B(C, word A), plain or borrowed
BASIC_OP(SET_ELEMENT2,    "sss", "w")  // A(B, C) = word A, plain
BASIC_OP(REF_ELEMENTS,    "rs-", "a")  // A = address of the element of B at the indexes
BASIC_OP(MAKE_ARRAY,      "svn", "a")  // array at reference A of type B; arguments: low and high of
                                       // each dimension; C: kArray... bits
BASIC_OP(NEED_ARRAY,      "rsv", "")   // A = array at reference B, made without bounds of type C
                                       // when there is none
BASIC_OP(BOUND,           "rss", "w")  // A = bound of array B in dimension C; word A: 1 upper
BASIC_OP(CLEAR_ARRAY,     "s--", "")   // all elements of A as after DIM
BASIC_OP(REF_FLAT,        "rss", "")   // A = address of element C of array B, counted from 0
BASIC_OP(SORT,            "sss", "w")  // sorts A from reference B to C; word A: 1 descending

// ---- records
BASIC_OP(MAKE_RECORD,     "svn", "")   // record at reference A of type B, unless there is one; C: 1 local
BASIC_OP(GET_FIELD,       "rsf", "")   // A = field C of B, plain or borrowed
BASIC_OP(GET_FIELD_C,     "rsf", "")   // A = field C of B, counted
BASIC_OP(SET_FIELD,       "sfs", "")   // field B of A = C, plain
BASIC_OP(SET_FIELD_C,     "sfs", "")   // field B of A = C, counted
BASIC_OP(COPY_RECORD,     "ss-", "")   // the fields of record A = those of B

// ---- objects
BASIC_OP(MAKE_OBJECT,     "svn", "")   // object at reference A of class B; C: 1 for a local variable
BASIC_OP(BUILT_IN,        "rn-", "")   // A = the object of class B
BASIC_OP(GET_PROPERTY,    "rsm", "a")  // A = property C of object B; arguments: indexes
BASIC_OP(SET_PROPERTY,    "ms-", "a")  // property A of object B; arguments: value, then indexes
BASIC_OP(CALL_METHOD,     "rsm", "a")  // A = method C of object B
BASIC_OP(COPY_OBJECT,     "ss-", "")   // the values of object A = those of B
BASIC_OP(HOOK,            "smp", "w")  // event B of object A runs C; word A: bound record, or none

// ---- calls; a result register of 65535 drops the result
BASIC_OP(CALL,            "rp-", "a")  // A = procedure B
BASIC_OP(CALL_POINTER,    "rs-", "a")  // A = the procedure whose number is in B
BASIC_OP(CALL_LIBRARY,    "rl-", "a")  // A = library function B
BASIC_OP(CALL_NATIVE,     "rn-", "a")  // A = entry B of a DLL
BASIC_OP(RETURN,          "---", "")   // to the caller
BASIC_OP(END,             "---", "")   // ends the program
BASIC_OP(PARAM_TEXT,      "rs-", "")   // A = PARAMSTR$(B)
BASIC_OP(PARAM_VALUE,     "rs-", "")   // A = PARAMVAL(B)
BASIC_OP(PARAM_COUNT,     "rn-", "")   // A = PARAMSTRCOUNT when B is 1, else PARAMVALCOUNT

// ---- console and data
BASIC_OP(PRINT_TEXT,      "ss-", "")   // text A to page B
BASIC_OP(PRINT_ZONE,      "-s-", "")   // blanks up to the next zone of page B
BASIC_OP(PRINT_END,       "-s-", "")   // line end to page B
BASIC_OP(INPUT_LINE,      "---", "")   // reads the line of INPUT
BASIC_OP(INPUT_FIELD,     "rn-", "")   // A = its next part; B: 1 all that is left
BASIC_OP(READ_D,          "r--", "")   // A = the next value of DATA as a number
BASIC_OP(READ_T,          "r--", "")   // A = the next value of DATA as text
BASIC_OP(FOUND_FILE,      "rn-", "")   // A = fact B (FoundFilePart) of the file that DIR$ found
BASIC_OP(RESTORE,         "-nn", "")   // the next value is number B + 65536 * C

// ---- memory
BASIC_OP(ADDRESS,         "rsv", "w")  // A = number for the variable of kind C at reference B; word A:
                                       // counted register that keeps it, or none; B: 1 of this frame
BASIC_OP(SIZE_OF_ARRAY,   "rsn", "")   // A = elements of array B * C

BASIC_OP(WORD,            "nnn", "")   // belongs to the instruction in front of it
