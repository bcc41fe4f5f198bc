#include "Condizione.h"

#include <array>
#include <bit>
#include <cassert>
#include <cstdint>

#include "CondizioneCompilatore.h"
#include "CondizioneProgramma.h"
#include "stats/ClsFunctions.h"

namespace lottolab::figures {

namespace {

int64_t Verita(bool vero) { return vero ? -1 : 0; }

// The arithmetic wraps around instead of overflowing: an absurd text gets an absurd answer, never
// undefined behaviour.
int64_t Somma(int64_t a, int64_t b) {
  return static_cast<int64_t>(static_cast<uint64_t>(a) + static_cast<uint64_t>(b));
}

int64_t Differenza(int64_t a, int64_t b) {
  return static_cast<int64_t>(static_cast<uint64_t>(a) - static_cast<uint64_t>(b));
}

int64_t Prodotto(int64_t a, int64_t b) {
  return static_cast<int64_t>(static_cast<uint64_t>(a) * static_cast<uint64_t>(b));
}

int64_t SommaCiclometricaGlob(const FiguraPiazzata& figura, const TabelleNumeri& tabelle) {
  int64_t somma = 0;
  for (const VerticePiazzato& vertice : figura.vertici) somma += vertice.numero;
  return tabelle.Applica(FunzioneNumero::Fuori90, somma);
}

bool RuotaUnica(const FiguraPiazzata& figura) {
  for (const VerticePiazzato& vertice : figura.vertici)
    if (vertice.ruota != figura.vertici.front().ruota) return false;
  return true;
}

int64_t PuntiSu(const FiguraPiazzata& figura, int64_t ruota) {
  int64_t punti = 0;
  for (const VerticePiazzato& vertice : figura.vertici) punti += vertice.ruota == ruota;
  return punti;
}

int64_t ContaPresenze(const FiguraPiazzata& figura, int64_t numero) {
  int64_t presenze = 0;
  for (const VerticePiazzato& vertice : figura.vertici) presenze += vertice.numero == numero;
  return presenze;
}

int64_t ContaChiusure(const FiguraPiazzata& figura, int64_t numero) {
  int64_t chiusure = 0;
  for (const VerticePiazzato& vertice : figura.vertici) chiusure += vertice.chiusura && vertice.numero == numero;
  return chiusure;
}

// How many different values the function gives for the vertices' numbers: cadences are 0..9 and
// the figures of 1..90 are 1..9, so one bit each is enough.
int64_t QuanteDiverse(const FiguraPiazzata& figura, const TabelleNumeri& tabelle, FunzioneNumero funzione) {
  uint32_t visti = 0;
  for (const VerticePiazzato& vertice : figura.vertici) {
    const int64_t valore = tabelle.Applica(funzione, vertice.numero);
    assert(valore >= 0 && valore < 32);
    visti |= uint32_t{1} << valore;
  }
  return std::popcount(visti);
}

}  // namespace

Esito<Condizione, ErroreSintassi> Condizione::Compila(std::string_view testo, std::span<const ClsVertice> vertici) {
  auto compilata = CompilaCondizione(testo, vertici);
  if (!compilata) return compilata.Errore();
  return Condizione(std::make_unique<const ProgrammaCondizione>(std::move(compilata).Valore()));
}

bool Condizione::Vale(const FiguraPiazzata& figura) const {
  const ProgrammaCondizione& programma = *m_programma;
  const TabelleNumeri& tabelle = *programma.tabelle;
  assert(figura.vertici.size() >= programma.vertici_letti);
  // Never read before written: the compiler checked the stack's use.
  std::array<int64_t, kProfonditaPila> pila;
  size_t n = 0;
  auto binaria = [&](auto operazione) {
    --n;
    pila[n - 1] = operazione(pila[n - 1], pila[n]);
  };
  for (const Istruzione& istruzione : programma.istruzioni) {
    const int64_t argomento = istruzione.argomento;
    switch (istruzione.codice) {
      case Codice::Costante: pila[n++] = argomento; break;
      case Codice::NumeroVertice: pila[n++] = figura.vertici[static_cast<size_t>(argomento)].numero; break;
      case Codice::PosizioneVertice: pila[n++] = figura.vertici[static_cast<size_t>(argomento)].posizione; break;
      case Codice::SommaCiclometricaGlob: pila[n++] = SommaCiclometricaGlob(figura, tabelle); break;
      case Codice::RuotaUnica: pila[n++] = Verita(RuotaUnica(figura)); break;
      case Codice::QuantitaCadenze: pila[n++] = QuanteDiverse(figura, tabelle, FunzioneNumero::Cadenza); break;
      case Codice::QuantitaFigure: pila[n++] = QuanteDiverse(figura, tabelle, FunzioneNumero::Figura); break;
      case Codice::Opposto: pila[n - 1] = Differenza(0, pila[n - 1]); break;
      case Codice::Non: pila[n - 1] = ~pila[n - 1]; break;
      case Codice::Numero: pila[n - 1] = tabelle.Applica(static_cast<FunzioneNumero>(argomento), pila[n - 1]); break;
      case Codice::PuntiSu: pila[n - 1] = PuntiSu(figura, pila[n - 1]); break;
      case Codice::ContaPresenze: pila[n - 1] = ContaPresenze(figura, pila[n - 1]); break;
      case Codice::ContaChiusure: pila[n - 1] = ContaChiusure(figura, pila[n - 1]); break;
      case Codice::Somma: binaria(Somma); break;
      case Codice::Differenza: binaria(Differenza); break;
      case Codice::Prodotto: binaria(Prodotto); break;
      case Codice::Uguale: binaria([](int64_t a, int64_t b) { return Verita(a == b); }); break;
      case Codice::Diverso: binaria([](int64_t a, int64_t b) { return Verita(a != b); }); break;
      case Codice::Minore: binaria([](int64_t a, int64_t b) { return Verita(a < b); }); break;
      case Codice::Maggiore: binaria([](int64_t a, int64_t b) { return Verita(a > b); }); break;
      case Codice::MinoreUguale: binaria([](int64_t a, int64_t b) { return Verita(a <= b); }); break;
      case Codice::MaggioreUguale: binaria([](int64_t a, int64_t b) { return Verita(a >= b); }); break;
      case Codice::E: binaria([](int64_t a, int64_t b) { return a & b; }); break;
      case Codice::O: binaria([](int64_t a, int64_t b) { return a | b; }); break;
      case Codice::DiffCiclometrica:
        binaria([](int64_t a, int64_t b) -> int64_t {
          return stats::ClsFunctions::DiffCiclometrica(static_cast<double>(a), static_cast<double>(b));
        });
        break;
      case Codice::Vertibili:
        binaria([&](int64_t a, int64_t b) { return Verita(tabelle.Applica(FunzioneNumero::Vertibile, a) == b); });
        break;
    }
  }
  assert(n == 1);
  return pila[0] != 0;
}

const std::string& Condizione::Testo() const { return m_programma->testo; }

size_t Condizione::Costo() const { return m_programma->costo; }

Condizione::Condizione(std::unique_ptr<const ProgrammaCondizione> programma) : m_programma(std::move(programma)) {}
Condizione::Condizione(Condizione&&) noexcept = default;
Condizione& Condizione::operator=(Condizione&&) noexcept = default;
Condizione::~Condizione() = default;

}  // namespace lottolab::figures
