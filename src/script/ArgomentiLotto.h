#pragma once

// Arguments that many library functions share: wheels in the script's numbering, and groups of
// numbers or wheels that a script passes either as one value or as an array.
//
// Scripts call all the wheels together 11 (TU_, TT_) and Nazionale 12 (NZ_), while the table of
// draws keeps Nazionale at 11 and uses 12 for all the wheels. Existing scripts rely on that swap, so
// it is kept, and it happens here, once, as each argument arrives.

#include <cstddef>
#include <span>
#include <vector>

#include "archive/Estrazione.h"
#include <optional>

#include "vbscript/value/CallArgs.h"

namespace lottolab::script {

// The table wheel for a wheel in the script's numbering. The value is compared as the script writes
// it: only "11" and "12" are swapped, anything else is converted to a 16-bit integer and kept, so a
// wheel outside 1..12 stays outside for the caller to refuse or ignore.
vbs::Result<int> RuotaTabella(const vbs::Variant& valore, const vbs::Locale& locale);
// The same for a whole number; nothing when it is no 16-bit integer and would fail to convert.
std::optional<int> RuotaTabellaIntera(int32_t ruota);
// Inline for the whole numbers 1..10 that nearly every call passes; every other value converted.
vbs::Result<int> RuotaTabellaConvertita(const vbs::CallArgs& args, size_t i);
inline vbs::Result<int> RuotaTabella(const vbs::CallArgs& args, size_t i) {
  if (const vbs::Variant& v = args[i]; v.is_whole() && v.as_whole() >= 1 && v.as_whole() <= 10) return v.as_whole();
  return RuotaTabellaConvertita(args, i);
}

// Argument i as table wheels: the one value given, or every element of an array of any bounds.
vbs::Result<std::vector<int>> RuoteArgomento(const vbs::CallArgs& args, size_t i);

// Argument i as numbers, the one value or every element of an array, each converted to a Double.
vbs::Result<std::vector<double>> ValoriArgomento(const vbs::CallArgs& args, size_t i);

// The value brought into 1..massimo as FuoriX brings it (91 -> 1, 0 -> 90); error 5 naming it when it
// is too large to be brought there, where FuoriX would silently give the base.
vbs::Result<int> NumeroRiportato(double valore, int massimo);

// ValoriArgomento with each value brought into 1..90 by NumeroRiportato.
vbs::Result<std::vector<int>> NumeriArgomento(const vbs::CallArgs& args, size_t i);

// The numbers of a draw as the script reads them: aNumeri(Ruota, Posizione), both from 1, wheels in
// the table's order (Nazionale is 11 here).
vbs::Result<vbs::Variant> ArrayEstrazione(const Estrazione& estrazione);

// A 1-based array of the values, as the library returns its lists: element k of the script's array
// is values[k - 1]. An empty list gives an array with bounds (1 To 0).
vbs::Variant ArrayDaUno(std::vector<vbs::Variant> valori);
// The same for whole numbers, as Long.
vbs::Variant ArrayDaUno(std::span<const int> valori);

}  // namespace lottolab::script
