#include "Giocata.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <map>
#include <set>

#include "archive/DateEstrazione.h"
#include "archive/Ruote.h"
#include "text/AsciiCase.h"

namespace lottolab::agenda {

namespace {

// What a column of each game may hold: its count of numbers and their largest value.
struct RegoleGioco {
  std::string_view sigla;
  int minimo_numeri;
  int massimo_numeri;
  int massimo;
  int massimo_speciale;  // 0: the game has no chosen number beside the columns
};

constexpr std::array kRegole = {
    RegoleGioco{"LO", 1, 10, 90, 0},
    RegoleGioco{"SE", 6, 20, 90, 90},
    RegoleGioco{"DL", 1, 10, 90, 90},
    RegoleGioco{"WF", 10, 20, 20, 20},
};

const RegoleGioco& Regole(GiocoGiocata gioco) { return kRegole[static_cast<size_t>(gioco)]; }

// A stake past this is no ticket the operator sells (200 euro is its ceiling per ticket).
constexpr int64_t kMassimaPosta = 20000;
constexpr int kMassimiColpi = 999;
constexpr int kMassimoFattore = 1000;
constexpr size_t kMassimaNota = 2000;
constexpr size_t kMassimeColonne = 1000;

// How many numbers a column needs for a Lotto sorte.
int NumeriPerSorte(std::string_view sorte) {
  if (sorte == "ambo" || sorte == "ambetto") return 2;
  if (sorte == "terno") return 3;
  if (sorte == "quaterna") return 4;
  if (sorte == "cinquina") return 5;
  return 1;
}

Esito<Fatto> ControllaColonna(const RegoleGioco& regole, const std::vector<int>& colonna, size_t indice) {
  const std::string dove = indice == 0 ? std::string() : fmt::format(" della colonna {}", indice + 1);
  const int quanti = static_cast<int>(colonna.size());
  if (quanti < regole.minimo_numeri || quanti > regole.massimo_numeri)
    return AvvisoEsclamativo(fmt::format("i numeri{} sono {}: ne servono da {} a {}", dove, quanti,
                                         regole.minimo_numeri, regole.massimo_numeri));
  std::set<int> visti;
  for (int numero : colonna) {
    if (numero < 1 || numero > regole.massimo)
      return AvvisoEsclamativo(
          fmt::format("numero non valido{}: {} (deve essere tra 1 e {})", dove, numero, regole.massimo));
    if (!visti.insert(numero).second) return AvvisoEsclamativo(fmt::format("il numero {} è ripetuto{}", numero, dove));
  }
  return Fatto{};
}

Esito<Fatto> ControllaRuote(const Giocata& giocata) {
  if (giocata.gioco != GiocoGiocata::Lotto) {
    if (!giocata.ruote.empty()) return AvvisoEsclamativo("le ruote valgono solo per il Lotto");
    return Fatto{};
  }
  if (giocata.ruote.empty()) return AvvisoEsclamativo("mancano le ruote della giocata");
  std::set<int> viste;
  for (int ruota : giocata.ruote) {
    if (ruota < 1 || ruota > kTutteLeRuote) return AvvisoEsclamativo(fmt::format("ruota non valida: {}", ruota));
    if (!viste.insert(ruota).second) return AvvisoEsclamativo(fmt::format("la ruota {} è ripetuta", SiglaRuota(ruota)));
  }
  if (viste.contains(kTutteLeRuote) && viste.size() > 1)
    return AvvisoEsclamativo("TT (tutte le ruote) si gioca da sola, senza altre ruote");
  return Fatto{};
}

// The other games sell their plays at set prices per column.
Esito<Fatto> ControllaPosteAltriGiochi(const Giocata& giocata) {
  std::map<std::string, int64_t> poste;
  for (const Posta& posta : giocata.poste) poste[posta.sorte] = posta.centesimi;
  const std::string nome(SiglaGioco(giocata.gioco));
  if (!poste.contains("giocata"))
    return AvvisoEsclamativo(fmt::format("manca la posta della giocata base (sorte giocata) del gioco {}", nome));
  const int64_t base = poste["giocata"];
  switch (giocata.gioco) {
    case GiocoGiocata::SuperEnalotto:
      if (base != 50 && base != 100)
        return AvvisoEsclamativo("al SuperEnalotto una colonna costa 0,50 euro (fino al 01/02/2016) o 1 euro");
      if (poste.contains("superstar") && poste["superstar"] != 50)
        return AvvisoEsclamativo("la SuperStar costa 0,50 euro per colonna");
      return Fatto{};
    case GiocoGiocata::WinForLife:
      if (base != 100 && base != 200) return AvvisoEsclamativo("a Win for Life una colonna costa 1 o 2 euro");
      return Fatto{};
    case GiocoGiocata::DieciELotto: {
      for (const auto& [sorte, centesimi] : poste)
        if (sorte != "doppio-oro" && (centesimi < 100 || centesimi % 50 != 0))
          return AvvisoEsclamativo(
              fmt::format("al 10eLotto la posta della sorte {} va da 1 a 200 euro, a multipli di 0,50", sorte));
      if (poste.contains("oro") && poste.contains("doppio-oro"))
        return AvvisoEsclamativo("al 10eLotto si gioca il Numero Oro o il Doppio Oro, non entrambi");
      if (poste.contains("oro") && poste["oro"] != base)
        return AvvisoEsclamativo("al 10eLotto il Numero Oro costa quanto la giocata base");
      if (poste.contains("doppio-oro") && poste["doppio-oro"] != 2 * base)
        return AvvisoEsclamativo("al 10eLotto il Doppio Oro costa il doppio della giocata base");
      if (poste.contains("gong") && poste["gong"] != base)
        return AvvisoEsclamativo("al 10eLotto il Gong costa quanto la giocata base");
      if (poste.contains("extra") && poste["extra"] > base)
        return AvvisoEsclamativo("al 10eLotto la posta dell'Extra non supera quella della giocata base");
      return Fatto{};
    }
    case GiocoGiocata::Lotto: break;
  }
  return Fatto{};
}

Esito<Fatto> ControllaPoste(const Giocata& giocata) {
  if (giocata.poste.empty()) return AvvisoEsclamativo("manca la posta della giocata");
  std::set<std::string> viste;
  for (const Posta& posta : giocata.poste) {
    const auto& sorti = SortiDelGioco(giocata.gioco);
    if (std::find(sorti.begin(), sorti.end(), posta.sorte) == sorti.end())
      return AvvisoEsclamativo(
          fmt::format("sorte non valida per il gioco {}: {}", SiglaGioco(giocata.gioco), posta.sorte));
    if (!viste.insert(posta.sorte).second)
      return AvvisoEsclamativo(fmt::format("la posta sulla sorte {} è data due volte", posta.sorte));
    if (posta.centesimi <= 0 || posta.centesimi > kMassimaPosta)
      return AvvisoEsclamativo(
          fmt::format("posta non valida sulla sorte {}: deve essere tra 0,01 e 200 euro", posta.sorte));
    if (giocata.gioco == GiocoGiocata::Lotto) {
      const size_t servono = static_cast<size_t>(NumeriPerSorte(posta.sorte));
      for (const auto& colonna : giocata.colonne)
        if (colonna.size() < servono)
          return AvvisoEsclamativo(fmt::format("la sorte {} vuole almeno {} numeri per colonna", posta.sorte, servono));
    }
    const bool vuole_speciale = posta.sorte == "superstar" || posta.sorte == "gong";
    if (vuole_speciale && giocata.numero_speciale == 0)
      return AvvisoEsclamativo(fmt::format("la sorte {} vuole il numero speciale", posta.sorte));
  }
  if (giocata.gioco != GiocoGiocata::Lotto) return ControllaPosteAltriGiochi(giocata);
  return Fatto{};
}

Esito<Fatto> ControllaColpi(const Giocata& giocata) {
  if (!giocata.dal && !giocata.id_estr_dal) return AvvisoEsclamativo("manca la prima estrazione in gioco");
  if (giocata.dal && (!DataValida(*giocata.dal) || giocata.dal->anno < kPrimoAnnoLotto))
    return AvvisoEsclamativo(fmt::format("data non valida: {}", FormattaData(*giocata.dal)));
  if (giocata.id_estr_dal && *giocata.id_estr_dal < 1)
    return AvvisoEsclamativo(fmt::format("estrazione non valida: {}", *giocata.id_estr_dal));
  if (giocata.colpi < 1 || giocata.colpi > kMassimiColpi)
    return AvvisoEsclamativo(fmt::format("colpi non validi: {} (da 1 a {})", giocata.colpi, kMassimiColpi));
  if (!giocata.progressione.empty() && giocata.progressione.size() != static_cast<size_t>(giocata.colpi))
    return AvvisoEsclamativo(
        fmt::format("la progressione ha {} valori ma i colpi sono {}", giocata.progressione.size(), giocata.colpi));
  for (int fattore : giocata.progressione)
    if (fattore < 1 || fattore > kMassimoFattore)
      return AvvisoEsclamativo(
          fmt::format("fattore della progressione non valido: {} (da 1 a {})", fattore, kMassimoFattore));
  return Fatto{};
}

}  // namespace

std::string_view SiglaGioco(GiocoGiocata gioco) { return Regole(gioco).sigla; }

std::optional<GiocoGiocata> GiocoDaSigla(std::string_view sigla) {
  for (size_t g = 0; g < kRegole.size(); ++g)
    if (text::EqualsIgnoringAsciiCase(kRegole[g].sigla, sigla)) return static_cast<GiocoGiocata>(g);
  return std::nullopt;
}

const std::vector<std::string_view>& SortiDelGioco(GiocoGiocata gioco) {
  static const std::array<std::vector<std::string_view>, 4> kSorti = {{
      {"estratto", "ambo", "terno", "quaterna", "cinquina", "ambetto", "estratto1", "estratto2", "estratto3",
       "estratto4", "estratto5"},
      {"giocata", "superstar"},
      {"giocata", "oro", "doppio-oro", "extra", "gong"},
      {"giocata"},
  }};
  return kSorti[static_cast<size_t>(gioco)];
}

Esito<std::string> LeggiSorte(GiocoGiocata gioco, std::string_view testo) {
  std::string parola = text::LowerAscii(testo);
  if (gioco == GiocoGiocata::Lotto && parola == "ambata") parola = "estratto";
  const auto& sorti = SortiDelGioco(gioco);
  if (std::find(sorti.begin(), sorti.end(), parola) != sorti.end()) return parola;
  return AvvisoEsclamativo(fmt::format("sorte non valida per il gioco {}: {} (si gioca su {})", SiglaGioco(gioco),
                                       testo, fmt::join(sorti, ", ")));
}

Esito<Fatto> ControllaGiocata(const Giocata& giocata) {
  if (static_cast<size_t>(giocata.gioco) >= kRegole.size()) return AvvisoEsclamativo("gioco sconosciuto");
  const RegoleGioco& regole = Regole(giocata.gioco);
  if (giocata.colonne.empty()) return AvvisoEsclamativo("mancano i numeri della giocata");
  if (giocata.colonne.size() > kMassimeColonne)
    return AvvisoEsclamativo(
        fmt::format("troppe colonne: {} (al massimo {})", giocata.colonne.size(), kMassimeColonne));
  for (size_t c = 0; c < giocata.colonne.size(); ++c)
    if (auto fatto = ControllaColonna(regole, giocata.colonne[c], giocata.colonne.size() == 1 ? 0 : c); !fatto)
      return fatto;
  if (giocata.numero_speciale != 0 && (regole.massimo_speciale == 0 || giocata.numero_speciale < 1 ||
                                       giocata.numero_speciale > regole.massimo_speciale))
    return AvvisoEsclamativo(regole.massimo_speciale == 0
                                 ? std::string("il Lotto non ha un numero speciale")
                                 : fmt::format("numero speciale non valido: {} (deve essere tra 1 e {})",
                                               giocata.numero_speciale, regole.massimo_speciale));
  if (giocata.gioco == GiocoGiocata::WinForLife && giocata.numero_speciale == 0)
    return AvvisoEsclamativo("manca il Numerone della giocata");
  if (auto fatto = ControllaRuote(giocata); !fatto) return fatto;
  if (auto fatto = ControllaPoste(giocata); !fatto) return fatto;
  if (auto fatto = ControllaColpi(giocata); !fatto) return fatto;
  if (giocata.nota.size() > kMassimaNota)
    return AvvisoEsclamativo(
        fmt::format("nota troppo lunga: {} caratteri (al massimo {})", giocata.nota.size(), kMassimaNota));
  return Fatto{};
}

Esito<Fatto> ControllaVerifiche(const Giocata& giocata, const std::vector<VerificaColpo>& verifiche) {
  if (verifiche.size() > static_cast<size_t>(giocata.colpi))
    return AvvisoEsclamativo(fmt::format("la verifica ha {} estrazioni ma la giocata {} ha {} colpi", verifiche.size(),
                                         giocata.id, giocata.colpi));
  for (size_t k = 0; k < verifiche.size(); ++k) {
    const VerificaColpo& colpo = verifiche[k];
    const std::string quale = fmt::format("colpo {} della giocata {}", k + 1, giocata.id);
    if (colpo.id_estr < 1 || !DataValida(colpo.data))
      return AvvisoEsclamativo(fmt::format("{}: estrazione o data non valida", quale));
    if (colpo.spesa < 0 || colpo.lordo < 0 || colpo.ritenuta < 0 || colpo.ritenuta > colpo.lordo ||
        colpo.netto != colpo.lordo - colpo.ritenuta)
      return AvvisoEsclamativo(fmt::format("{}: importi non coerenti", quale));
    // A win of the other games may match none of the numbers (Win for Life's 0, the SuperStar alone).
    for (const VincitaColpo& vincita : colpo.vincite)
      if (vincita.sorte.empty() || (vincita.numeri.empty() && giocata.gioco == GiocoGiocata::Lotto) ||
          vincita.combinazioni < 1 || vincita.lordo < 0 || (!vincita.importo_noto && vincita.lordo != 0) ||
          vincita.ruota < 0 || vincita.ruota > kNumeroRuote)
        return AvvisoEsclamativo(fmt::format("{}: vincita non valida", quale));
  }
  return Fatto{};
}

}  // namespace lottolab::agenda
