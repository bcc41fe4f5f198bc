// The constants scripts use without declaring them: wheels, sorte, colours and three numbers.
// They are read-only members of the library object.

#include "Famiglia.h"

namespace lottolab::script {

namespace {

using namespace famiglia;

template <int32_t V>
Result<Variant> Lungo(Libreria&, CallArgs&) {
  return Variant::Long(V);
}

template <int16_t V>
Result<Variant> Intero(Libreria&, CallArgs&) {
  return Variant::Integer(V);
}

// A currency value in ten-thousandths: the constants keep four decimals.
template <int64_t DecimilliUnita>
Result<Variant> Valuta(Libreria&, CallArgs&) {
  return Variant::Currency(DecimilliUnita);
}

const Libreria::Funzione kCostanti[] = {
    {"BA_", 0, 0, &Lungo<1>, "Bari: wheel 1"},
    {"CA_", 0, 0, &Lungo<2>, "Cagliari: wheel 2"},
    {"FI_", 0, 0, &Lungo<3>, "Firenze: wheel 3"},
    {"GE_", 0, 0, &Lungo<4>, "Genova: wheel 4"},
    {"MI_", 0, 0, &Lungo<5>, "Milano: wheel 5"},
    {"NA_", 0, 0, &Lungo<6>, "Napoli: wheel 6"},
    {"PA_", 0, 0, &Lungo<7>, "Palermo: wheel 7"},
    {"RO_", 0, 0, &Lungo<8>, "Roma: wheel 8"},
    {"TO_", 0, 0, &Lungo<9>, "Torino: wheel 9"},
    {"VE_", 0, 0, &Lungo<10>, "Venezia: wheel 10"},
    {"TU_", 0, 0, &Lungo<11>, "all wheels together: 11"},
    {"TT_", 0, 0, &Lungo<11>, "all wheels together: 11, the same as TU_"},
    {"NZ_", 0, 0, &Lungo<12>, "Nazionale: 12 in scripts (the archive keeps it as wheel 11)"},
    {"AMBATA_", 0, 0, &Lungo<1>, "sorte: one number"},
    {"AMBO_", 0, 0, &Lungo<2>, "sorte: two numbers"},
    {"TERNO_", 0, 0, &Lungo<3>, "sorte: three numbers"},
    {"QUATERNA_", 0, 0, &Lungo<4>, "sorte: four numbers"},
    {"CINQUINA_", 0, 0, &Lungo<5>, "sorte: five numbers"},
    {"EDET1_", 0, 0, &Lungo<6>, "sorte: one number on the first position"},
    {"EDET2_", 0, 0, &Lungo<7>, "sorte: one number on the second position"},
    {"EDET3_", 0, 0, &Lungo<8>, "sorte: one number on the third position"},
    {"EDET4_", 0, 0, &Lungo<9>, "sorte: one number on the fourth position"},
    {"EDET5_", 0, 0, &Lungo<10>, "sorte: one number on the fifth position"},
    {"Nero_", 0, 0, &Intero<0>, "colour black (Integer 0)"},
    {"Blu_", 0, 0, &Intero<1>, "colour blue (Integer 1)"},
    {"Rosso_", 0, 0, &Intero<2>, "colour red (Integer 2)"},
    {"Verde_", 0, 0, &Intero<3>, "colour green (Integer 3)"},
    {"Giallo_", 0, 0, &Intero<4>, "colour yellow (Integer 4)"},
    {"Bianco_", 0, 0, &Intero<5>, "colour white (Integer 5)"},
    {"Ciano_", 0, 0, &Intero<6>, "colour cyan (Integer 6)"},
    {"Magenta_", 0, 0, &Intero<7>, "colour magenta (Integer 7)"},
    {"E_", 0, 0, &Valuta<27183>, "Euler's number as a Currency: 2,7183"},
    {"PI_", 0, 0, &Valuta<31416>, "pi as a Currency: 3,1416"},
    {"eu_", 0, 0, &Valuta<19362700>, "lire per euro as a Currency: 1936,27"},
};

}  // namespace

std::span<const Libreria::Funzione> FunzioniCostanti() { return kCostanti; }

}  // namespace lottolab::script
