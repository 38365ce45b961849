# Writes the bytes of the catalogue QM as a C++ array SYMBOL (and SYMBOL_size) into OUT.
file(READ ${QM} hex HEX)
string(LENGTH "${hex}" digits)
math(EXPR size "${digits} / 2")
string(REGEX REPLACE "([0-9a-f][0-9a-f])" "0x\\1," bytes "${hex}")
file(WRITE ${OUT} "// Generated from ${QM}.\nextern const unsigned char ${SYMBOL}[] = {${bytes}};\nextern const unsigned ${SYMBOL}_size = ${size};\n")
