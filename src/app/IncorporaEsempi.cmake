# Turns the example scripts into a C++ table, so that a binary carries them wherever it is copied.
# Each file becomes a string of \x escapes with its length, so any byte survives as it is.
#
# usage: cmake -DUSCITA=FILE.cpp -DESEMPI="a.ls;b.ls" -P IncorporaEsempi.cmake
set(righe "")
foreach(file IN LISTS ESEMPI)
  get_filename_component(nome "${file}" NAME)
  file(READ "${file}" esadecimale HEX)
  string(LENGTH "${esadecimale}" cifre)
  math(EXPR lunghezza "${cifre} / 2")
  string(REGEX REPLACE "([0-9a-f][0-9a-f])" "\\\\x\\1" escape "${esadecimale}")
  string(APPEND righe "    Esempio{\"${nome}\", std::string_view(\"${escape}\", ${lunghezza})},\n")
endforeach()
list(LENGTH ESEMPI quanti)
file(WRITE "${USCITA}.nuovo" "// Made by IncorporaEsempi.cmake from the files of esempi/: do not edit.
#include <array>

#include \"app/Esempi.h\"

namespace lottolab::app {

namespace {

const std::array<Esempio, ${quanti}> kEsempi = {
${righe}};

}  // namespace

std::span<const Esempio> Esempi() { return kEsempi; }

}  // namespace lottolab::app
")
# Only a change rewrites the file, so that a rebuild compiles it only when an example changed.
file(COPY_FILE "${USCITA}.nuovo" "${USCITA}" ONLY_IF_DIFFERENT)
file(REMOVE "${USCITA}.nuovo")
