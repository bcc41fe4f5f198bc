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
    {"BA_", 0, 0, &Lungo<1>, "Bari: ruota 1"},
    {"CA_", 0, 0, &Lungo<2>, "Cagliari: ruota 2"},
    {"FI_", 0, 0, &Lungo<3>, "Firenze: ruota 3"},
    {"GE_", 0, 0, &Lungo<4>, "Genova: ruota 4"},
    {"MI_", 0, 0, &Lungo<5>, "Milano: ruota 5"},
    {"NA_", 0, 0, &Lungo<6>, "Napoli: ruota 6"},
    {"PA_", 0, 0, &Lungo<7>, "Palermo: ruota 7"},
    {"RO_", 0, 0, &Lungo<8>, "Roma: ruota 8"},
    {"TO_", 0, 0, &Lungo<9>, "Torino: ruota 9"},
    {"VE_", 0, 0, &Lungo<10>, "Venezia: ruota 10"},
    {"TU_", 0, 0, &Lungo<11>, "tutte le ruote insieme: 11"},
    {"TT_", 0, 0, &Lungo<11>, "tutte le ruote insieme: 11, come TU_"},
    {"NZ_", 0, 0, &Lungo<12>, "Nazionale: 12 negli script (l'archivio la conserva come ruota 11)"},
    {"AMBATA_", 0, 0, &Lungo<1>, "sorte: un numero"},
    {"AMBO_", 0, 0, &Lungo<2>, "sorte: due numeri"},
    {"TERNO_", 0, 0, &Lungo<3>, "sorte: tre numeri"},
    {"QUATERNA_", 0, 0, &Lungo<4>, "sorte: quattro numeri"},
    {"CINQUINA_", 0, 0, &Lungo<5>, "sorte: cinque numeri"},
    {"EDET1_", 0, 0, &Lungo<6>, "sorte: un numero in prima posizione"},
    {"EDET2_", 0, 0, &Lungo<7>, "sorte: un numero in seconda posizione"},
    {"EDET3_", 0, 0, &Lungo<8>, "sorte: un numero in terza posizione"},
    {"EDET4_", 0, 0, &Lungo<9>, "sorte: un numero in quarta posizione"},
    {"EDET5_", 0, 0, &Lungo<10>, "sorte: un numero in quinta posizione"},
    {"Nero_", 0, 0, &Intero<0>, "colore nero (Integer 0)"},
    {"Blu_", 0, 0, &Intero<1>, "colore blu (Integer 1)"},
    {"Rosso_", 0, 0, &Intero<2>, "colore rosso (Integer 2)"},
    {"Verde_", 0, 0, &Intero<3>, "colore verde (Integer 3)"},
    {"Giallo_", 0, 0, &Intero<4>, "colore giallo (Integer 4)"},
    {"Bianco_", 0, 0, &Intero<5>, "colore bianco (Integer 5)"},
    {"Ciano_", 0, 0, &Intero<6>, "colore ciano (Integer 6)"},
    {"Magenta_", 0, 0, &Intero<7>, "colore magenta (Integer 7)"},
    {"E_", 0, 0, &Valuta<27183>, "numero di Eulero come Currency: 2,7183"},
    {"PI_", 0, 0, &Valuta<31416>, "pi greco come Currency: 3,1416"},
    {"eu_", 0, 0, &Valuta<19362700>, "lire per un euro come Currency: 1936,27"},
};

}  // namespace

std::span<const Libreria::Funzione> FunzioniCostanti() { return kCostanti; }

}  // namespace lottolab::script
