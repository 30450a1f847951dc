# Writes the header that holds a text file as the constant NAME.
# cmake -DTEXT=... -DNAME=... -DHEADER=... -P EmbedText.cmake
file(READ "${TEXT}" text)
file(WRITE "${HEADER}" "// Made from a text file by cmake/EmbedText.cmake.\n#pragma once\n\n"
    "inline constexpr char ${NAME}[] = R\"text(${text})text\";\n")
