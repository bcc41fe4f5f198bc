#include "GiocateScript.h"

#include "ArgomentiPremi.h"

#include <algorithm>
#include <cmath>
#include <fmt/format.h>

#include "ArgomentiLotto.h"
#include "Famiglia.h"
#include "OutputHtml.h"
#include "archive/DateEstrazione.h"
#include "archive/Ruote.h"
#include "vbscript/value/SafeArray.h"

namespace lottolab::script {

namespace {

using stats::Centesimi;

void Aggiungi(stats::Tassato& totale, const stats::Tassato& parte) {
  totale.lordo += parte.lordo;
  totale.ritenuta += parte.ritenuta;
  totale.netto += parte.netto;
}

// `posizione` names the estratto determinato's position, 0 for the other sorti.
std::string DescriviVincita(const stats::VincitaGiocata& vincita, size_t colonne, int posizione) {
  std::string testo = fmt::format("{}{} su {}", stats::NomeSorte(vincita.sorte),
                                  posizione > 0 ? fmt::format(" in posizione {}", posizione) : std::string(),
                                  SiglaRuota(vincita.ruota));
  if (vincita.combinazioni > 1) testo += fmt::format(" x{}", vincita.combinazioni);
  if (colonne > 1) testo += fmt::format(" (colonna {})", vincita.colonna + 1);
  return testo;
}

// The 10eLotto's wins are a score on one of its tables, the pool games' a category.
std::string DescriviVincita(const stats::VincitaGioco& vincita, size_t colonne) {
  const bool tabella = vincita.categoria == "base" || vincita.categoria == "Extra" || vincita.categoria == "Oro" ||
                       vincita.categoria == "Doppio Oro";
  std::string testo = tabella ? fmt::format("punti {} {}", vincita.punti, vincita.categoria) : vincita.categoria;
  if (!vincita.vinto) testo += tabella ? " (premio non noto)" : " (quota non nota)";
  if (colonne > 1) testo += fmt::format(" (colonna {})", vincita.colonna + 1);
  return testo;
}

// The positions of the estratto determinato that a column won on a wheel, in the order of the
// bet's stakes: the order in which the engine lists those wins.
std::vector<int> PosizioniVinte(const stats::Giocata& giocata, const Estrazione& estrazione, int ruota,
                                const std::vector<int>& colonna) {
  const stats::CinquinaRuota numeri = stats::NumeriRuota(estrazione, ruota);
  std::vector<int> posizioni;
  for (const stats::PostaSorte& posta : giocata.poste)
    if (posta.sorte == stats::SorteLotto::EstrattoDeterminato &&
        std::ranges::find(colonna, numeri[static_cast<size_t>(posta.posizione - 1)]) != colonna.end())
      posizioni.push_back(posta.posizione);
  return posizioni;
}

// The account cut after the first colpo that won a sorte of `minima` numbers or more.
void FermaAllaSorte(stats::EsitoGiocata& esito, int minima) {
  const auto vincente = std::ranges::find_if(esito.colpi, [minima](const stats::ColpoGiocata& colpo) {
    return std::ranges::any_of(colpo.vincite, [minima](const stats::VincitaGiocata& vincita) {
      return stats::NumeriDellaSorte(vincita.sorte) >= minima;
    });
  });
  if (vincente == esito.colpi.end()) return;
  esito.colpi.erase(vincente + 1, esito.colpi.end());
  esito.spesa = 0;
  esito.vinto = {};
  for (const stats::ColpoGiocata& colpo : esito.colpi) {
    esito.spesa += colpo.spesa;
    Aggiungi(esito.vinto, colpo.vinto);
  }
  esito.saldo = esito.colpi.back().saldo;
  esito.colpi_mancanti = 0;
}

Cella Testo(std::string testo) { return {std::move(testo), {}}; }

std::string Unisci(const std::vector<std::string>& parti, std::string_view separatore) {
  std::string testo;
  for (const std::string& parte : parti) testo += (testo.empty() ? "" : std::string(separatore)) + parte;
  return testo;
}

// The hits of a column among the first `estratti` numbers of a draw.
int Presi(const std::vector<int>& colonna, const EstrazioneGioco& estrazione, int estratti) {
  const auto numeri = std::span(estrazione.numeri).first(static_cast<size_t>(estratti));
  return static_cast<int>(
      std::ranges::count_if(colonna, [&](int n) { return std::ranges::find(numeri, n) != numeri.end(); }));
}

Esito<Fatto> ControllaColonneFT(const std::vector<std::vector<int>>& colonne, const FormatoGioco& formato) {
  for (const std::vector<int>& colonna : colonne) {
    if (colonna.empty() || static_cast<int>(colonna.size()) > formato.massimo)
      return AvvisoEsclamativo(fmt::format("una colonna ha {} numeri (da 1 a {})", colonna.size(), formato.massimo));
    for (size_t i = 0; i < colonna.size(); ++i)
      if (colonna[i] < 1 || colonna[i] > formato.massimo ||
          std::find(colonna.begin(), colonna.begin() + i, colonna[i]) !=
              colonna.begin() + static_cast<std::ptrdiff_t>(i))
        return AvvisoEsclamativo(
            fmt::format("numero non valido o ripetuto: {} (da 1 a {})", colonna[i], formato.massimo));
  }
  return Fatto{};
}

// One draw of an FT bet: the hits of each column, won when the script gave that score a prize;
// `ferma` says whether a win stops the bet, as FermaGioco does for the other games.
ColpoConto ColpoFT(const SlotGioco& slot, const EstrazioneGioco& estrazione, int colpo, const FormatoGioco& formato,
                   const std::map<int, Centesimi>& premi, bool& ferma) {
  ColpoConto conto{colpo, estrazione.id_estr, estrazione.data, 0, {}, 0, {}, false};
  ferma = false;
  for (size_t c = 0; c < slot.colonne.size(); ++c) {
    conto.spesa += slot.AlColpo(colpo);
    const int punti = Presi(slot.colonne[c], estrazione, formato.numeri);
    const auto premio = premi.find(punti);
    if (punti == 0 && premio == premi.end()) continue;
    std::string testo = fmt::format("punti {}", punti);
    if (slot.colonne.size() > 1) testo += fmt::format(" (colonna {})", c + 1);
    conto.vincite.push_back(std::move(testo));
    if (premio == premi.end()) continue;
    conto.vincente = true;
    ferma = ferma || slot.sorte_arresto == 1 || (slot.sorte_arresto > 1 && punti >= slot.sorte_arresto);
    conto.vinto.lordo += premio->second;
    conto.vinto.netto += premio->second;
  }
  return conto;
}

bool FermaGioco(const stats::ColpoGioco& colpo, int sorte_arresto) {
  if (sorte_arresto == 0 || colpo.vincite.empty()) return false;
  return sorte_arresto == 1 || std::ranges::any_of(colpo.vincite, [sorte_arresto](const stats::VincitaGioco& v) {
           return v.punti >= sorte_arresto;
         });
}

// Where a bet ends: its account and state filled from the colpi played.
void Chiudi(GiocataEffettuata& giocata, int giocati, bool fermata) {
  for (const ColpoConto& conto : giocata.conto) {
    giocata.spesa += conto.spesa;
    Aggiungi(giocata.vinto, conto.vinto);
  }
  giocata.colpi_mancanti = fermata ? 0 : giocata.colpi - giocati;
}

std::string_view NomeGioco(GiocoGiocata gioco) {
  switch (gioco) {
    case GiocoGiocata::Lotto: return "Lotto";
    case GiocoGiocata::SE: return "SuperEnalotto";
    case GiocoGiocata::DL: return "10eLotto";
    case GiocoGiocata::WF: return "Win for Life";
    case GiocoGiocata::FT: return "archivio generico";
  }
  return "";
}

}  // namespace

vbs::Result<int> IndiceArgomento(const vbs::CallArgs& args, size_t i) {
  VBS_TRY_ASSIGN(auto indice, args.Long(i));
  if (indice < 1 || indice > kMassimoIndice)
    return ArgomentoNonValido(fmt::format("Indice della giocata non valido: {} (da 1 a {})", indice, kMassimoIndice));
  return int{indice};
}

vbs::Result<std::optional<int>> IndiceFacoltativo(const vbs::CallArgs& args, size_t i) {
  if (!args.Has(i)) return std::optional<int>();
  VBS_TRY_ASSIGN(auto indice, IndiceArgomento(args, i));
  return std::optional<int>(indice);
}

vbs::Result<std::vector<int>> NumeriGiocati(const vbs::CallArgs& args, size_t i) {
  VBS_TRY_ASSIGN(auto valori, ValoriArgomento(args, i));
  if (valori.empty()) return ArgomentoNonValido("aNumeri non contiene nessun numero");
  std::vector<int> numeri;
  for (double valore : valori) {
    // Past any game's range but well inside an int: the game's check names it.
    if (valore != std::floor(valore) || std::abs(valore) > 1e6)
      return ArgomentoNonValido(fmt::format("numero non valido: {} (un numero intero)", valore));
    numeri.push_back(static_cast<int>(valore));
  }
  return numeri;
}

vbs::Result<stats::Centesimi> CentesimiDi(const vbs::Variant& valore, const vbs::Locale& locale,
                                          std::string_view cosa) {
  VBS_TRY_ASSIGN(auto euro, valore.to_double(locale));
  return CentesimiDaEuro(euro, cosa);
}

vbs::Result<std::vector<stats::Centesimi>> ProgressioneArgomento(const vbs::CallArgs& args, size_t i) {
  VBS_TRY_ASSIGN(auto valore, args.Value(i));
  if (!valore.is_array()) return ArgomentoNonValido("aPoste deve essere un array delle poste in euro, una per colpo");
  std::vector<stats::Centesimi> poste;
  for (const vbs::Variant& elemento : valore.as_array()->elements()) {
    if (elemento.is_empty()) continue;
    VBS_TRY_ASSIGN(auto posta, CentesimiDi(elemento, args.locale(), "Posta della progressione"));
    poste.push_back(posta);
  }
  if (poste.empty()) return ArgomentoNonValido("aPoste non contiene nessuna posta");
  if (poste.size() > kMassimaProgressione)
    return ArgomentoNonValido(fmt::format("aPoste ha {} poste: al più {}", poste.size(), kMassimaProgressione));
  return poste;
}

namespace {

constexpr int kSorti = 11;

stats::PostaSorte PostaDellaSorte(int sorte) {
  if (sorte <= 5) return {static_cast<stats::SorteLotto>(sorte), 0, {}, 0};
  if (sorte <= 10) return {stats::SorteLotto::EstrattoDeterminato, 0, {}, sorte - 5};
  return {stats::SorteLotto::Ambetto, 0, {}, 0};
}

constexpr std::string_view kFormaPoste =
    "aPoste deve essere un array delle poste in euro indicizzato per sorte: da 1 (estratto) a 5 (cinquina), da 6 a "
    "10 l'estratto determinato nelle posizioni da 1 a 5 (EDET1_ .. EDET5_), 11 l'ambetto";

}  // namespace

vbs::Result<stats::PostaSorte> SorteGiocataArgomento(const vbs::CallArgs& args, size_t i) {
  VBS_TRY_ASSIGN(auto sorte, args.Long(i));
  if (sorte < 1 || sorte > kSorti)
    return ArgomentoNonValido(
        fmt::format("Sorte non valida: {} (da 1 a 5 estratto .. cinquina, da 6 a 10 l'estratto "
                    "determinato nelle posizioni 1 .. 5, 11 l'ambetto)",
                    sorte));
  return PostaDellaSorte(sorte);
}

vbs::Result<std::vector<stats::PostaSorte>> PosteArgomento(const vbs::CallArgs& args, size_t i) {
  VBS_TRY_ASSIGN(auto valore, args.Value(i));
  if (!valore.is_array() || valore.as_array()->DimensionCount() != 1) return ArgomentoNonValido(kFormaPoste);
  const vbs::SafeArray& array = *valore.as_array();
  std::vector<stats::PostaSorte> poste;
  for (size_t k = 0; k < array.size(); ++k) {
    const vbs::Variant& elemento = array.elements()[k];
    if (elemento.is_empty()) continue;
    VBS_TRY_ASSIGN(auto posta, CentesimiDi(elemento, args.locale(), "Posta"));
    if (posta == 0) continue;
    const int64_t sorte = array.bounds()[0].lower + static_cast<int64_t>(k);
    if (sorte < 1 || sorte > kSorti) return ArgomentoNonValido(fmt::format("aPoste({}): {}", sorte, kFormaPoste));
    stats::PostaSorte posta_sorte = PostaDellaSorte(static_cast<int>(sorte));
    posta_sorte.posta = posta;
    poste.push_back(std::move(posta_sorte));
  }
  if (poste.empty()) return ArgomentoNonValido(fmt::format("Nessuna posta in aPoste: {}", kFormaPoste));
  return poste;
}

vbs::Result<int> SorteArrestoArgomento(const vbs::CallArgs& args, size_t i, int massima) {
  VBS_TRY_ASSIGN(auto sorte, args.Long(i, 1));
  if (sorte < 0 || sorte > massima)
    return ArgomentoNonValido(fmt::format(
        "SorteArresto non valida: {} (0 gioca tutti i colpi, da 1 a {} ferma alla prima vincita di quella sorte o più)",
        sorte, massima));
  return int{sorte};
}

GiocoGiocata GiocoDi(Suffisso suffisso) { return static_cast<GiocoGiocata>(static_cast<int>(suffisso) + 1); }

stats::Centesimi SlotGioco::AlColpo(int colpo) const {
  if (progressione.empty()) return posta;
  return progressione[std::min(progressione.size(), static_cast<size_t>(colpo)) - 1];
}

int GiocataEffettuata::PrimoColpoVincente() const {
  const auto vincente = std::ranges::find_if(conto, [](const ColpoConto& c) { return c.vincente; });
  return vincente == conto.end() ? 0 : vincente->colpo;
}

StatoGiocata GiocataEffettuata::Stato() const {
  if (interrotta) return StatoGiocata::Interrotta;
  if (colpi_mancanti > 0) return StatoGiocata::Aperta;
  return PrimoColpoVincente() > 0 ? StatoGiocata::Vinta : StatoGiocata::Persa;
}

void RegistroGiocate::InterrompiAperte() {
  for (GiocataEffettuata& giocata : effettuate)
    if (giocata.colpi_mancanti > 0) {
      giocata.colpi_mancanti = 0;
      giocata.interrotta = true;
    }
}

Esito<Fatto> ControllaSlotLotto(const SlotLotto& slot, std::string_view dove, int prima, const TabellaEstrazioni& tab) {
  stats::Giocata giocata = slot.giocata;
  giocata.prima_estrazione = std::min(prima, tab.EstrazioniArchivio());
  if (auto controllo = stats::ControllaGiocata(giocata, tab); !controllo)
    return AvvisoEsclamativo(fmt::format("{}: {}", dove, controllo.Errore().testo));
  return Fatto{};
}

GiocataEffettuata GiocaSlotLotto(const SlotLotto& slot, int indice, int dopo, const TabellaEstrazioni& tab) {
  stats::Giocata giocata = slot.giocata;
  giocata.prima_estrazione = dopo + 1;
  giocata.arresto = slot.sorte_arresto == 1 ? stats::Arresto::AllaPrimaVincita : stats::Arresto::AllaFine;
  stats::EsitoGiocata esito;
  if (giocata.prima_estrazione <= tab.EstrazioniArchivio())
    esito = stats::VerificaGiocata(giocata, tab);
  else
    esito.colpi_mancanti = giocata.colpi;
  if (slot.sorte_arresto > 1) FermaAllaSorte(esito, slot.sorte_arresto);

  GiocataEffettuata effettuata{GiocoGiocata::Lotto, indice, dopo, giocata.colpi, {}, 0, {}, 0, false, false, {}};
  for (const stats::ColpoGiocata& colpo : esito.colpi) {
    ColpoConto conto{colpo.colpo, colpo.id_estr,         tab[colpo.id_estr].data, colpo.spesa, colpo.vinto, colpo.saldo,
                     {},          !colpo.vincite.empty()};
    std::map<std::pair<int, int>, size_t> determinati;  // by column and wheel
    for (const stats::VincitaGiocata& vincita : colpo.vincite) {
      int posizione = 0;
      if (vincita.sorte == stats::SorteLotto::EstrattoDeterminato) {
        const auto posizioni = PosizioniVinte(giocata, tab[colpo.id_estr], vincita.ruota,
                                              giocata.colonne[static_cast<size_t>(vincita.colonna)]);
        const size_t k = determinati[{vincita.colonna, vincita.ruota}]++;
        posizione = k < posizioni.size() ? posizioni[k] : 0;
      }
      conto.vincite.push_back(DescriviVincita(vincita, giocata.colonne.size(), posizione));
    }
    effettuata.conto.push_back(std::move(conto));
  }
  effettuata.spesa = esito.spesa;
  effettuata.vinto = esito.vinto;
  effettuata.colpi_mancanti = esito.colpi_mancanti;
  effettuata.esito_lotto = std::move(esito);
  return effettuata;
}

Esito<GiocataEffettuata> GiocaSlotGioco(const SlotGioco& slot, GiocoGiocata gioco, int indice, int dopo,
                                        const TabellaGioco& tab, const std::map<int, stats::Centesimi>& premi_ft) {
  auto rifiuto = [indice](const Avviso& errore) {
    return AvvisoEsclamativo(fmt::format("giocata {}: {}", indice, errore.testo));
  };
  if (slot.colpi < 1) return rifiuto(AvvisoEsclamativo(fmt::format("colpi non validi: {} (almeno 1)", slot.colpi)));
  GiocataEffettuata effettuata{gioco, indice, dopo, slot.colpi, {}, 0, {}, 0, false, false, {}};
  stats::GiocataGioco giocata;
  giocata.colonne = slot.colonne;
  giocata.opzione = slot.opzione;
  const int ultima = tab.EstrazioniArchivio();
  if (gioco == GiocoGiocata::FT) {
    if (auto controllo = ControllaColonneFT(slot.colonne, tab.formato()); !controllo)
      return rifiuto(controllo.Errore());
  } else {
    // A bet placed after the last draw plays nothing yet: it is checked on the last one.
    giocata.prima_estrazione = std::min(dopo + 1, ultima);
    giocata.posta = slot.AlColpo(1);
    if (auto controllo = stats::VerificaGiocataGioco(giocata, tab); !controllo) return rifiuto(controllo.Errore());
  }

  int colpo = 0;
  bool fermata = false;
  for (int id = dopo + 1; id <= ultima && colpo < slot.colpi && !fermata; ++id) {
    ++colpo;
    if (gioco == GiocoGiocata::FT) {
      effettuata.conto.push_back(ColpoFT(slot, tab[id], colpo, tab.formato(), premi_ft, fermata));
      continue;
    }
    giocata.prima_estrazione = id;
    giocata.posta = slot.AlColpo(colpo);
    auto esito = stats::VerificaGiocataGioco(giocata, tab);
    if (!esito) return rifiuto(esito.Errore());
    const stats::ColpoGioco& uno = esito->colpi.front();
    ColpoConto conto{colpo, id, tab[id].data, uno.spesa, uno.vinto, 0, {}, !uno.vincite.empty()};
    for (const stats::VincitaGioco& vincita : uno.vincite)
      conto.vincite.push_back(DescriviVincita(vincita, slot.colonne.size()));
    effettuata.importi_mancanti = effettuata.importi_mancanti || esito->importi_mancanti;
    effettuata.conto.push_back(std::move(conto));
    fermata = FermaGioco(uno, slot.sorte_arresto);
  }
  Centesimi saldo = 0;
  for (ColpoConto& conto : effettuata.conto) conto.saldo = saldo += conto.vinto.netto - conto.spesa;
  Chiudi(effettuata, colpo, fermata);
  return effettuata;
}

Totali Somma(const std::vector<GiocataEffettuata>& effettuate, std::optional<int> indice) {
  Totali totali;
  for (const GiocataEffettuata& giocata : effettuate) {
    if (indice && giocata.indice != *indice) continue;
    ++totali.giocate;
    totali.colpi += static_cast<int>(giocata.conto.size());
    totali.spesa += giocata.spesa;
    Aggiungi(totali.vinto, giocata.vinto);
  }
  return totali;
}

stats::Riepilogo RiepilogoLotto(const std::vector<GiocataEffettuata>& effettuate) {
  std::map<int, stats::ColpoGiocata> per_estrazione;
  for (const GiocataEffettuata& giocata : effettuate) {
    if (!giocata.esito_lotto) continue;
    for (const stats::ColpoGiocata& colpo : giocata.esito_lotto->colpi) {
      stats::ColpoGiocata& unito = per_estrazione[colpo.id_estr];
      unito.id_estr = colpo.id_estr;
      unito.spesa += colpo.spesa;
      Aggiungi(unito.vinto, colpo.vinto);
      unito.vincite.insert(unito.vincite.end(), colpo.vincite.begin(), colpo.vincite.end());
    }
  }
  stats::EsitoGiocata unito;
  for (auto& [id, colpo] : per_estrazione) {
    colpo.colpo = static_cast<int>(unito.colpi.size()) + 1;
    unito.spesa += colpo.spesa;
    Aggiungi(unito.vinto, colpo.vinto);
    unito.saldo = unito.vinto.netto - unito.spesa;
    colpo.saldo = unito.saldo;
    unito.vinta = unito.vinta || !colpo.vincite.empty();
    unito.colpi.push_back(std::move(colpo));
  }
  return stats::Riassumi(unito);
}

TabellaOutput TabellaResoconto(const std::vector<GiocataEffettuata>& effettuate, GiocoGiocata gioco,
                               std::optional<int> indice) {
  struct Riga {
    GruppoData data;
    int giocate = 0;
    Centesimi spesa = 0;
    stats::Tassato vinto;
    std::vector<std::string> vincite;
  };
  std::map<int, Riga> righe;
  for (const GiocataEffettuata& giocata : effettuate) {
    if (giocata.gioco != gioco || (indice && giocata.indice != *indice)) continue;
    for (const ColpoConto& conto : giocata.conto) {
      Riga& riga = righe[conto.id_estr];
      riga.data = conto.data;
      ++riga.giocate;
      riga.spesa += conto.spesa;
      Aggiungi(riga.vinto, conto.vinto);
      riga.vincite.insert(riga.vincite.end(), conto.vincite.begin(), conto.vincite.end());
    }
  }
  RigaTabella titoli;
  for (std::string_view titolo :
       {"Estrazione", "Data", "Giocate", "Spesa", "Vinto lordo", "Vinto netto", "Saldo", "Vincite"})
    titoli.celle.push_back(Testo(std::string(titolo)));
  titoli.allineamento = Allineamento::Centro;
  TabellaOutput tabella(std::move(titoli), 1);
  Centesimi spesa = 0;
  stats::Tassato vinto;
  for (const auto& [id, riga] : righe) {
    spesa += riga.spesa;
    Aggiungi(vinto, riga.vinto);
    RigaTabella celle;
    for (std::string testo :
         {std::to_string(id), FormattaData(riga.data), std::to_string(riga.giocate), stats::FormattaEuro(riga.spesa),
          stats::FormattaEuro(riga.vinto.lordo), stats::FormattaEuro(riga.vinto.netto),
          stats::FormattaEuro(vinto.netto - spesa), Unisci(riga.vincite, ", ")})
      celle.celle.push_back(Testo(std::move(testo)));
    if (!riga.vincite.empty()) celle.colori.testo = kRosso;
    tabella.AggiungiRiga(std::move(celle));
  }
  RigaTabella totale;
  for (std::string testo :
       {std::string("Totale"), std::string(), std::string(), stats::FormattaEuro(spesa),
        stats::FormattaEuro(vinto.lordo), stats::FormattaEuro(vinto.netto), stats::FormattaEuro(vinto.netto - spesa)})
    totale.celle.push_back(Testo(std::move(testo)));
  tabella.AggiungiRiga(std::move(totale));
  return tabella;
}

TabellaOutput TabellaRiepilogo(const std::vector<GiocataEffettuata>& effettuate) {
  std::vector<GiocataEffettuata> lotto;
  std::ranges::copy_if(effettuate, std::back_inserter(lotto),
                       [](const GiocataEffettuata& g) { return g.gioco == GiocoGiocata::Lotto; });
  const Totali totali = Somma(lotto);
  const stats::Riepilogo riepilogo = RiepilogoLotto(lotto);
  std::array<int, 4> stati{};
  for (const GiocataEffettuata& giocata : lotto) ++stati[static_cast<size_t>(giocata.Stato())];

  RigaTabella titoli;
  titoli.celle = {Testo("Voce"), Testo("Valore")};
  TabellaOutput tabella(std::move(titoli), 1);
  auto riga = [&tabella](std::string voce, std::string valore) {
    RigaTabella celle;
    celle.celle = {Testo(std::move(voce)), Testo(std::move(valore))};
    tabella.AggiungiRiga(std::move(celle));
  };
  riga("Giocate", std::to_string(totali.giocate));
  riga("Giocate vinte", std::to_string(stati[static_cast<size_t>(StatoGiocata::Vinta)]));
  riga("Giocate perse", std::to_string(stati[static_cast<size_t>(StatoGiocata::Persa)]));
  riga("Giocate in corso", std::to_string(stati[static_cast<size_t>(StatoGiocata::Aperta)]));
  riga("Giocate interrotte", std::to_string(stati[static_cast<size_t>(StatoGiocata::Interrotta)]));
  riga("Colpi giocati", std::to_string(totali.colpi));
  riga("Estrazioni giocate", std::to_string(riepilogo.colpi));
  riga("Spesa", stats::FormattaEuro(totali.spesa));
  riga("Vinto lordo", stats::FormattaEuro(totali.vinto.lordo));
  riga("Ritenuta", stats::FormattaEuro(totali.vinto.ritenuta));
  riga("Vinto netto", stats::FormattaEuro(totali.vinto.netto));
  riga("Saldo", stats::FormattaEuro(totali.Guadagno()));
  for (int s = static_cast<int>(stats::SorteLotto::Estratto); s <= static_cast<int>(stats::SorteLotto::Ambetto); ++s) {
    const auto sorte = static_cast<size_t>(s);
    if (riepilogo.colpi_vincenti_per_sorte[sorte] == 0) continue;
    riga(fmt::format("Estrazioni vincenti di {}", stats::NomeSorte(static_cast<stats::SorteLotto>(s))),
         fmt::format("{} (lordo {})", riepilogo.colpi_vincenti_per_sorte[sorte],
                     stats::FormattaEuro(riepilogo.lordo_per_sorte[sorte])));
  }
  riga("Serie più lunga senza vincite", fmt::format("{} estrazioni", riepilogo.massima_serie_senza_vincite));
  riga("Calo massimo del saldo", stats::FormattaEuro(riepilogo.massimo_calo));
  return tabella;
}

std::string RigaGiocata(const GiocataEffettuata& giocata) {
  std::string riga =
      fmt::format("Giocata {} ({}) dopo l'estrazione {}: ", giocata.indice, NomeGioco(giocata.gioco), giocata.dopo);
  std::vector<std::string> vincenti;
  for (const ColpoConto& conto : giocata.conto)
    if (conto.vincente)
      vincenti.push_back(fmt::format("al colpo {} (estrazione {} del {}: {})", conto.colpo, conto.id_estr,
                                     FormattaData(conto.data), Unisci(conto.vincite, ", ")));
  riga += vincenti.empty() ? "nessuna vincita" : "vinta " + Unisci(vincenti, "; ");
  if (giocata.colpi_mancanti > 0) riga += fmt::format(", {} colpi ancora da giocare", giocata.colpi_mancanti);
  if (giocata.interrotta) riga += ", interrotta";
  riga +=
      fmt::format("; spesa {}, vinto netto {}, saldo {}", stats::FormattaEuro(giocata.spesa),
                  stats::FormattaEuro(giocata.vinto.netto), stats::FormattaEuro(giocata.vinto.netto - giocata.spesa));
  if (giocata.importi_mancanti) riga += " (senza le quote non note)";
  return riga;
}

void ScriviTabella(ClsFunctionsGeodoScript& lib, const TabellaOutput& tabella) {
  // The page is in preformatted text: the table goes between two runs of it.
  if (lib.html().Aperto()) lib.html().ScriviMarkup("</pre>\n" + tabella.Html(false) + "<pre>");
  for (const TrattoTesto& tratto : tabella.Testo()) lib.ospite().Scrivi(tratto);
}

}  // namespace lottolab::script
