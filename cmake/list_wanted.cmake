# Writes the symbols of ours that a library has from the program which loads it, or shares with it, as a list
# for the linker:  cmake -D NM=... -D LIBRARY=... -D LIST=... -P list_wanted.cmake
execute_process(COMMAND ${NM} --dynamic ${LIBRARY} OUTPUT_VARIABLE symbols COMMAND_ERROR_IS_FATAL ANY)
# U: has to be in the program. u and V: in both, such as a static of an inline function, and one for both.
string(REGEX MATCHALL "[UuV] [A-Za-z0-9_]*nocturo[A-Za-z0-9_]*" wanted "${symbols}")
list(TRANSFORM wanted REPLACE "^[UuV] " "  ")
list(SORT wanted)
list(JOIN wanted ";\n" wanted)
file(WRITE ${LIST} "{\n${wanted};\n};\n")
