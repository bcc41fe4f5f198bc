// A draw, or the part of the table of draws a user figure spans, drawn on the script's picture area
// as a table (TavolaDisegno.h). Each name returns the height it drew, so that a script stacks
// drawings one under the other. The limits of coordinates and text are those of the Pic... names.

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cmath>

#include "AreaDisegnoScript.h"
#include "ArgomentiLotto.h"
#include "ArgomentiRitardi.h"
#include "Famiglia.h"
#include "FiguraUtente.h"
#include "TavolaDisegno.h"
#include "archive/DateEstrazione.h"

namespace lottolab::script {

namespace {

using namespace famiglia;

constexpr Rgb kRosso = 0xFF0000;

// Where a table goes and how big its text is: X, Y and Dimensione from argument i on.
struct Posto {
  double x = 0;
  double y = 0;
  StileTavola stile;
};

Result<Posto> PostoArgomenti(const CallArgs& args, size_t i) {
  Posto posto;
  VBS_TRY_ASSIGN(posto.x, CoordinataDisegno(args, i, 0));
  VBS_TRY_ASSIGN(posto.y, CoordinataDisegno(args, i + 1, 0));
  VBS_TRY_ASSIGN(posto.stile.dimensione, DimensioneTestoDisegno(args, i + 2, StileTavola{}.dimensione));
  return posto;
}

Result<Variant> Disegna(Libreria& lib, std::string_view funzione, const Tavola& tavola, const Posto& posto) {
  VBS_TRY_ASSIGN(auto area, AreaDelloScript(lib, funzione));
  return Variant::Long(static_cast<int32_t>(std::ceil(DisegnaTavola(*area, tavola, posto.x, posto.y, posto.stile))));
}

// Argument i as the wheels to draw, in the order given: every wheel when omitted or TT_.
Result<std::vector<int>> RuoteDaDisegnare(const CallArgs& args, size_t i) {
  std::vector<int> ruote;
  if (args.Has(i)) {
    VBS_TRY_ASSIGN(ruote, RuoteGiocate(args, i));
  }
  if (ruote.empty() || std::find(ruote.begin(), ruote.end(), kTutteLeRuote) != ruote.end()) {
    ruote.clear();
    for (int ruota = 1; ruota <= kNumeroRuote; ++ruota) ruote.push_back(ruota);
  }
  return ruote;
}

// A row per wheel of aRuote (argument 1), its five numbers from `estrazione`.
Result<Variant> DisegnaRuote(Libreria& lib, const CallArgs& args, std::string_view funzione, std::string titolo,
                             const Estrazione& estrazione) {
  VBS_TRY_ASSIGN(auto ruote, RuoteDaDisegnare(args, 1));
  VBS_TRY_ASSIGN(auto posto, PostoArgomenti(args, 2));
  Tavola tavola;
  tavola.titolo = std::move(titolo);
  for (int ruota : ruote) {
    tavola.etichette.emplace_back(SiglaRuota(ruota));
    std::vector<int>& riga = tavola.numeri.emplace_back();
    for (int p = 1; p <= kNumeriPerRuota; ++p) riga.push_back(estrazione.Numero(ruota, p));
  }
  return Disegna(lib, funzione, tavola, posto);
}

Result<Variant> DisegnaEstrazione(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto tab, lib.Archivio());
  VBS_TRY_ASSIGN(auto id_estr, EstrazioneArgomento(*tab, args, 0, 0, "IdEstr"));
  const Estrazione& estrazione = (*tab)[id_estr];
  return DisegnaRuote(
      lib, args, "DisegnaEstrazione",
      fmt::format("Estrazione n. {} del {}", estrazione.data.indice_annuale, FormattaData(estrazione.data)),
      estrazione);
}

Result<Variant> DisegnaEstrazioneQN(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto numeri, ValoriArgomento(args, 0));
  constexpr size_t kCelle = kNumeroRuote * kNumeriPerRuota;
  if (numeri.size() != kCelle)
    return ArgomentoNonValido(fmt::format(
        "aNumeri deve avere {} elementi, uno per posizione di ogni ruota (BA 1..5, CA 6..10, ..., NZ 51..55); ne ha {}",
        kCelle, numeri.size()));
  Estrazione estrazione;
  for (size_t i = 0; i < kCelle; ++i) {
    if (numeri[i] != std::floor(numeri[i]) || numeri[i] < 0 || numeri[i] > kMassimoNumero)
      return ArgomentoNonValido(
          fmt::format("Numero non valido in aNumeri({}): {} (da 1 a 90, 0 dove manca)", i + 1, numeri[i]));
    estrazione.numeri[i] = static_cast<uint8_t>(numeri[i]);
  }
  return DisegnaRuote(lib, args, "DisegnaEstrazioneQN", "Estrazione data dallo script", estrazione);
}

// What tells each kind of figure apart: the collection that gives it and the name that draws it.
struct NomiOrigine {
  std::string_view collezione;
  std::string_view disegno;
};

constexpr std::array<NomiOrigine, 3> kNomiOrigine = {{
    {"GetCollFiguraUtente", "DisegnaFiguraGeodomica"},
    {"GetCollFiguraUtenteQN", "DisegnaFiguraGeodomicaQN"},
    {"GetCollFiguraUtenteFT", "DisegnaFiguraGeodomicaFT"},
}};

const NomiOrigine& Nomi(OrigineFigura origine) { return kNomiOrigine[static_cast<size_t>(origine)]; }

Result<const FiguraUtente*> FiguraDellOrigine(const CallArgs& args, OrigineFigura attesa) {
  const Variant& valore = args[0];
  const auto* figura = valore.is_object() ? dynamic_cast<const FiguraUtente*>(valore.as_object()) : nullptr;
  if (!figura)
    return ArgomentoNonValido(fmt::format("Il primo argomento deve essere una figura di {}", Nomi(attesa).collezione));
  if (figura->origine() != attesa)
    return ArgomentoNonValido(fmt::format("La figura viene da {}: la disegna {}", Nomi(figura->origine()).collezione,
                                          Nomi(figura->origine()).disegno));
  return figura;
}

// The figure's rows and columns as a table: the draws from its first row to its last; the wheels
// from the first to the last it touches, so that its shape keeps its proportions (the generic
// archive's K columns as one block, since its columns are no wheels).
Result<Tavola> TavolaDellaFigura(const FiguraUtente& figura, const TabellaEstrazioni* archivio) {
  const auto& vertici = figura.figura().vertici;
  const bool generico = figura.origine() == OrigineFigura::Generico;
  int prima = figura.estrazione();
  int prima_ruota = kNumeroRuote;
  int ultima_ruota = 1;
  for (const auto& v : vertici) {
    prima = std::min(prima, v.id_estr);
    prima_ruota = std::min(prima_ruota, v.ruota);
    ultima_ruota = std::max(ultima_ruota, v.ruota);
  }
  if (generico || vertici.empty()) prima_ruota = 1;
  if (vertici.empty()) ultima_ruota = kNumeroRuote;

  Tavola tavola;
  if (generico) {
    tavola.celle_per_gruppo = figura.colonne();
  } else {
    tavola.gruppi = ultima_ruota - prima_ruota + 1;
    for (int ruota = prima_ruota; ruota <= ultima_ruota; ++ruota) tavola.intestazioni.emplace_back(SiglaRuota(ruota));
  }
  const int prima_colonna = (prima_ruota - 1) * kNumeriPerRuota + 1;
  const int celle = tavola.gruppi * tavola.celle_per_gruppo;
  for (int id = prima; id <= figura.estrazione(); ++id) {
    const Estrazione* riga = figura.Riga(id, archivio);
    if (!riga) return ArgomentoNonValido(fmt::format("L'estrazione {} della figura non è nell'archivio", id));
    const bool dello_script = figura.origine() == OrigineFigura::NumeriScript && id == figura.estrazione();
    tavola.etichette.push_back(dello_script ? "aNumeri" : FormattaData(riga->data));
    std::vector<int>& numeri = tavola.numeri.emplace_back();
    for (int colonna = prima_colonna; colonna < prima_colonna + celle; ++colonna)
      numeri.push_back(riga->numeri[static_cast<size_t>(colonna - 1)]);
  }

  const bool segnati = std::any_of(vertici.begin(), vertici.end(), [](const auto& v) { return v.chiusura; });
  for (const auto& v : vertici) {
    const int colonna = (v.ruota - 1) * kNumeriPerRuota + v.posizione;
    const PostoCella posto{v.id_estr - prima, colonna - prima_colonna};
    tavola.percorso.push_back(posto);
    if (v.chiusura || !segnati) tavola.evidenziate.push_back(posto);
  }

  std::string gioca;
  for (int numero : figura.NumeriDaGiocare()) gioca += (gioca.empty() ? "" : " ") + TestoNumero(numero);
  const Estrazione& ultima = *figura.Riga(figura.estrazione(), archivio);
  tavola.titolo =
      figura.origine() == OrigineFigura::NumeriScript
          ? fmt::format("Figura sui numeri dello script all'estrazione {}, da giocare: {}", figura.estrazione(), gioca)
          : fmt::format("Figura all'estrazione {} del {}{}, da giocare: {}", figura.estrazione(),
                        FormattaData(ultima.data), generico ? " (archivio generico)" : "", gioca);
  return tavola;
}

template <OrigineFigura Origine>
Result<Variant> DisegnaFiguraGeodomica(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto figura, FiguraDellOrigine(args, Origine));
  VBS_TRY_ASSIGN(auto posto, PostoArgomenti(args, 1));
  VBS_TRY_ASSIGN(posto.stile.vertici.colore, ColoreDisegno(args, 4, kRosso));
  VBS_TRY_ASSIGN(posto.stile.vertici.spessore, SpessoreDisegno(args, 5, 2));
  const TabellaEstrazioni* archivio = nullptr;
  if (Origine == OrigineFigura::Lotto) {
    VBS_TRY_ASSIGN(archivio, lib.Archivio());
  }
  VBS_TRY_ASSIGN(auto tavola, TavolaDellaFigura(*figura, archivio));
  return Disegna(lib, Nomi(Origine).disegno, tavola, posto);
}

const Libreria::Funzione kDisegnoTavola[] = {
    {"DisegnaEstrazione", 1, 5, &DisegnaEstrazione,
     "IdEstr, [aRuote = TT_], [X = 0], [Y = 0], [Dimensione = 12]: disegna l'estrazione come tabella, una riga per "
     "ruota con i cinque numeri, data e numero dell'estrazione in alto, con l'angolo in alto a sinistra in (X, Y) e "
     "il testo alto Dimensione pixel; restituisce l'altezza disegnata in pixel",
     "Long: l'altezza disegnata in pixel",
     "y = DisegnaEstrazione(EstrazioniArchivio) : y = y + DisegnaEstrazione(EstrazioniArchivio - 1, Array(BA_, NA_), "
     "0, y + 10)"},
    {"DisegnaEstrazioneQN", 1, 5, &DisegnaEstrazioneQN,
     "aNumeri, [aRuote = TT_], [X = 0], [Y = 0], [Dimensione = 12]: come DisegnaEstrazione per i 55 numeri di "
     "aNumeri (BA posizioni 1..5, CA 6..10, ..., NZ 51..55; 0 dove non c'è numero)",
     "Long: l'altezza disegnata in pixel",
     "ReDim aN(55) : For i = 1 To 55 : aN(i) = 0 : Next : aN(1) = 12 : aN(2) = 34 : aN(6) = 56 : Scrivi "
     "DisegnaEstrazioneQN(aN, BA_)"},
    {"DisegnaFiguraGeodomica", 1, 6, &DisegnaFiguraGeodomica<OrigineFigura::Lotto>,
     "Figura, [X = 0], [Y = 0], [Dimensione = 12], [Colore = Rosso_], [Spessore = 2]: disegna la parte della "
     "tabella delle estrazioni che una figura di GetCollFiguraUtente occupa (le sue estrazioni, le ruote dalla prima "
     "all'ultima che tocca), i vertici cerchiati e uniti nell'ordine della struttura, i numeri da giocare evidenziati; "
     "restituisce l'altezza disegnata in pixel",
     "Long: l'altezza disegnata in pixel",
     "y = 0 : For Each f In GetCollFiguraUtente(\"strutture\\coppia.dat\", EstrazioniArchivio - 1, EstrazioniArchivio) "
     ": y = y + DisegnaFiguraGeodomica(f, 0, y) : Next"},
    {"DisegnaFiguraGeodomicaQN", 1, 6, &DisegnaFiguraGeodomica<OrigineFigura::NumeriScript>,
     "Figura, [X = 0], [Y = 0], [Dimensione = 12], [Colore = Rosso_], [Spessore = 2]: come DisegnaFiguraGeodomica "
     "per una figura di GetCollFiguraUtenteQN, l'ultima riga i numeri dello script",
     "Long: l'altezza disegnata in pixel",
     "ReDim aN(55) : For i = 1 To 55 : aN(i) = 0 : Next : aN(1) = 12 : aN(2) = 34 : aN(6) = 56 : For Each f In "
     "GetCollFiguraUtenteQN(\"strutture\\coppia.dat\", EstrazioniArchivio, aN) : DisegnaFiguraGeodomicaQN f : Next"},
    {"DisegnaFiguraGeodomicaFT", 1, 6, &DisegnaFiguraGeodomica<OrigineFigura::Generico>,
     "Figura, [X = 0], [Y = 0], [Dimensione = 12], [Colore = Rosso_], [Spessore = 2]: come DisegnaFiguraGeodomica "
     "per una figura di GetCollFiguraUtenteFT, i K numeri di ogni estrazione dell'archivio generico in fila",
     "Long: l'altezza disegnata in pixel",
     "For Each f In GetCollFiguraUtenteFT(\"strutture\\coppia.dat\", EstrazioniArchivioFT - 10, EstrazioniArchivioFT) "
     ": DisegnaFiguraGeodomicaFT f : Next"},
};

}  // namespace

std::span<const Libreria::Funzione> FunzioniDisegnoTavola() { return kDisegnoTavola; }

}  // namespace lottolab::script
