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
    {"BA_", 0, 0, &Lungo<1>, "Bari: ruota 1", "Long: 1", "Scrivi BA_"},
    {"CA_", 0, 0, &Lungo<2>, "Cagliari: ruota 2", "Long: 2", "Scrivi CA_"},
    {"FI_", 0, 0, &Lungo<3>, "Firenze: ruota 3", "Long: 3", "Scrivi FI_"},
    {"GE_", 0, 0, &Lungo<4>, "Genova: ruota 4", "Long: 4", "Scrivi GE_"},
    {"MI_", 0, 0, &Lungo<5>, "Milano: ruota 5", "Long: 5", "Scrivi MI_"},
    {"NA_", 0, 0, &Lungo<6>, "Napoli: ruota 6", "Long: 6", "Scrivi NA_"},
    {"PA_", 0, 0, &Lungo<7>, "Palermo: ruota 7", "Long: 7", "Scrivi PA_"},
    {"RO_", 0, 0, &Lungo<8>, "Roma: ruota 8", "Long: 8", "Scrivi RO_"},
    {"TO_", 0, 0, &Lungo<9>, "Torino: ruota 9", "Long: 9", "Scrivi TO_"},
    {"VE_", 0, 0, &Lungo<10>, "Venezia: ruota 10", "Long: 10", "Scrivi VE_"},
    {"TU_", 0, 0, &Lungo<11>, "tutte le ruote insieme: 11", "Long: 11", "Scrivi TU_"},
    {"TT_", 0, 0, &Lungo<11>, "tutte le ruote insieme: 11, come TU_", "Long: 11", "Scrivi TT_"},
    {"NZ_", 0, 0, &Lungo<12>, "Nazionale: 12 negli script (l'archivio la conserva come ruota 11)", "Long: 12",
     "Scrivi NZ_"},
    {"AMBATA_", 0, 0, &Lungo<1>, "sorte: un numero", "Long: 1", "Scrivi AMBATA_"},
    {"AMBO_", 0, 0, &Lungo<2>, "sorte: due numeri", "Long: 2", "Scrivi AMBO_"},
    {"TERNO_", 0, 0, &Lungo<3>, "sorte: tre numeri", "Long: 3", "Scrivi TERNO_"},
    {"QUATERNA_", 0, 0, &Lungo<4>, "sorte: quattro numeri", "Long: 4", "Scrivi QUATERNA_"},
    {"CINQUINA_", 0, 0, &Lungo<5>, "sorte: cinque numeri", "Long: 5", "Scrivi CINQUINA_"},
    {"EDET1_", 0, 0, &Lungo<6>, "sorte: un numero in prima posizione", "Long: 6", "Scrivi EDET1_"},
    {"EDET2_", 0, 0, &Lungo<7>, "sorte: un numero in seconda posizione", "Long: 7", "Scrivi EDET2_"},
    {"EDET3_", 0, 0, &Lungo<8>, "sorte: un numero in terza posizione", "Long: 8", "Scrivi EDET3_"},
    {"EDET4_", 0, 0, &Lungo<9>, "sorte: un numero in quarta posizione", "Long: 9", "Scrivi EDET4_"},
    {"EDET5_", 0, 0, &Lungo<10>, "sorte: un numero in quinta posizione", "Long: 10", "Scrivi EDET5_"},
    {"Nero_", 0, 0, &Intero<0>, "colore nero (Integer 0)", "Integer: 0", "Scrivi Nero_"},
    {"Blu_", 0, 0, &Intero<1>, "colore blu (Integer 1)", "Integer: 1", "Scrivi Blu_"},
    {"Rosso_", 0, 0, &Intero<2>, "colore rosso (Integer 2)", "Integer: 2", "Scrivi Rosso_"},
    {"Verde_", 0, 0, &Intero<3>, "colore verde (Integer 3)", "Integer: 3", "Scrivi Verde_"},
    {"Giallo_", 0, 0, &Intero<4>, "colore giallo (Integer 4)", "Integer: 4", "Scrivi Giallo_"},
    {"Bianco_", 0, 0, &Intero<5>, "colore bianco (Integer 5)", "Integer: 5", "Scrivi Bianco_"},
    {"Ciano_", 0, 0, &Intero<6>, "colore ciano (Integer 6)", "Integer: 6", "Scrivi Ciano_"},
    {"Magenta_", 0, 0, &Intero<7>, "colore magenta (Integer 7)", "Integer: 7", "Scrivi Magenta_"},
    {"E_", 0, 0, &Valuta<27183>, "numero di Eulero come Currency: 2,7183", "Currency: 2,7183", "Scrivi E_"},
    {"PI_", 0, 0, &Valuta<31416>, "pi greco come Currency: 3,1416", "Currency: 3,1416", "Scrivi PI_"},
    {"eu_", 0, 0, &Valuta<19362700>, "lire per un euro come Currency: 1936,27", "Currency: 1936,27", "Scrivi eu_"},
};

}  // namespace

std::span<const Libreria::Funzione> FunzioniCostanti() { return kCostanti; }

}  // namespace lottolab::script
