// A script's bets written into the user's agenda of real bets (agenda/Agenda.h), the file the host
// names in ImpostazioniLibreria::file_agenda. A write of the agenda is a write of the user's file:
// the run's file rules judge it, so a protected script never touches the agenda.

#include <algorithm>
#include <fmt/format.h>

#include "ArgomentiLotto.h"
#include "Famiglia.h"
#include "GiocateScript.h"
#include "agenda/Agenda.h"
#include "text/Utf.h"

namespace lottolab::script {

namespace {

using namespace famiglia;

std::string ParolaSorte(const stats::PostaSorte& posta) {
  if (posta.sorte == stats::SorteLotto::EstrattoDeterminato) return fmt::format("estratto{}", posta.posizione);
  return std::string(stats::NomeSorte(posta.sorte));
}

// The agenda takes one progression for the whole bet, as whole factors of every first stake.
Result<std::vector<int>> Fattori(const stats::Giocata& giocata) {
  if (std::ranges::all_of(giocata.poste, [](const stats::PostaSorte& p) { return p.progressione.empty(); }))
    return std::vector<int>{};
  std::vector<int> fattori;
  for (int colpo = 1; colpo <= giocata.colpi; ++colpo) {
    std::optional<stats::Centesimi> fattore;
    for (const stats::PostaSorte& posta : giocata.poste) {
      const stats::Centesimi prima = posta.AlColpo(1);
      const stats::Centesimi questa = posta.AlColpo(colpo);
      if (questa % prima != 0 || (fattore && *fattore != questa / prima))
        return ArgomentoNonValido(fmt::format(
            "L'agenda tiene una progressione sola, che moltiplica ogni posta per un numero intero: le poste del colpo "
            "{} non lo sono",
            colpo));
      fattore = questa / prima;
    }
    fattori.push_back(static_cast<int>(*fattore));
  }
  return fattori;
}

Result<agenda::Giocata> VoceAgenda(const SlotLotto& slot, int prima, std::string nota) {
  if (slot.sorte_arresto > 1)
    return ArgomentoNonValido(
        "L'agenda ferma una giocata alla prima vincita di qualunque sorte: SorteArresto deve essere 0 o 1");
  agenda::Giocata voce;
  voce.gioco = agenda::GiocoGiocata::Lotto;
  voce.colonne = slot.giocata.colonne;
  voce.ruote = slot.giocata.ruote;
  for (const stats::PostaSorte& posta : slot.giocata.poste) voce.poste.push_back({ParolaSorte(posta), posta.posta});
  voce.id_estr_dal = prima;
  voce.colpi = slot.giocata.colpi;
  voce.ferma_alla_vincita = slot.sorte_arresto == 1;
  voce.nota = std::move(nota);
  // The agenda's limits first: its bound on colpi keeps the factors' list short.
  if (auto valida = agenda::ControllaGiocata(voce); !valida) return ArgomentoNonValido(valida.Errore().testo);
  VBS_TRY_ASSIGN(auto fattori, Fattori(slot.giocata));
  voce.progressione = std::move(fattori);
  return voce;
}

Result<Variant> Aggiungi(Libreria& lib, const agenda::Giocata& voce, std::string_view funzione) {
  const std::filesystem::path& file = lib.impostazioni().file_agenda;
  if (file.empty())
    return ArgomentoNonValido("Nessuna agenda delle giocate configurata: l'esecuzione non ha un file dell'agenda");
  VBS_TRY(lib.Consenti(vbs::FileAccess::Write, file, funzione));
  auto aperta = agenda::Agenda::Apri(file);
  if (!aperta) return ArgomentoNonValido(aperta.Errore().testo);
  auto id = aperta.Valore().Aggiungi(voce);
  if (!id) return ArgomentoNonValido(id.Errore().testo);
  if (*id <= INT32_MAX) return Variant::Long(static_cast<int32_t>(*id));
  return Variant::Double(static_cast<double>(*id));
}

Result<std::string> Nota(const CallArgs& args, size_t i) {
  VBS_TRY_ASSIGN(auto nota, args.String(i, u""));
  return text::Utf16ToUtf8(nota);
}

// AddRecordAgendaGiocate aNumeri, aRuote, aPoste, Colpi, [IdEstrInizio], [Nota]
Result<Variant> AddRecordAgendaGiocate(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto archivio, lib.Archivio());
  const TabellaEstrazioni& tab = *archivio;
  SlotLotto slot;
  VBS_TRY_ASSIGN(auto numeri, NumeriGiocati(args, 0));
  slot.giocata.colonne = {std::move(numeri)};
  VBS_TRY_ASSIGN(auto ruote, RuoteArgomento(args, 1));
  slot.giocata.ruote = std::move(ruote);
  VBS_TRY_ASSIGN(auto poste, PosteArgomento(args, 2));
  slot.giocata.poste = std::move(poste);
  VBS_TRY_ASSIGN(auto colpi, args.Long(3));
  slot.giocata.colpi = colpi;
  slot.sorte_arresto = 0;
  const int prossima = tab.EstrazioniArchivio() + 1;
  VBS_TRY_ASSIGN(auto prima, args.Long(4, prossima));
  if (prima < 1 || prima > prossima)
    return ArgomentoNonValido(
        fmt::format("IdEstrInizio non valido: {} (da 1 a {}, la prossima estrazione)", prima, prossima));
  VBS_TRY_ASSIGN(auto nota, Nota(args, 5));
  if (auto controllo = ControllaSlotLotto(slot, "la giocata", prima, tab); !controllo)
    return ArgomentoNonValido(controllo.Errore().testo);
  VBS_TRY_ASSIGN(auto voce, VoceAgenda(slot, prima, std::move(nota)));
  return Aggiungi(lib, voce, "AddRecordAgendaGiocate");
}

// CreaGiocataAgenda Indice, [Nota]
Result<Variant> CreaGiocataAgenda(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto archivio, lib.Archivio());
  VBS_TRY_ASSIGN(auto indice, IndiceArgomento(args, 0));
  const auto& slots = lib.Stato<StatoGiocate>().reale.lotto;
  auto slot = slots.find(indice);
  if (slot == slots.end())
    return ArgomentoNonValido(fmt::format("La giocata {} non è impostata: chiamare prima ImpostaGiocata", indice));
  VBS_TRY_ASSIGN(auto nota, Nota(args, 1));
  VBS_TRY_ASSIGN(auto voce, VoceAgenda(slot->second, archivio->EstrazioniArchivio() + 1, std::move(nota)));
  return Aggiungi(lib, voce, "CreaGiocataAgenda");
}

const Libreria::Funzione kGiocateAgenda[] = {
    {"AddRecordAgendaGiocate", 4, 6, &AddRecordAgendaGiocate,
     "aNumeri, aRuote, aPoste, Colpi, [IdEstrInizio = la prossima estrazione], [Nota]: scrive nell'agenda delle "
     "giocate una giocata del Lotto, con gli argomenti di ImpostaGiocata, da IdEstrInizio per Colpi estrazioni, "
     "senza fermarsi alla prima vincita; restituisce il numero della giocata nell'agenda. Errore se non c'è "
     "un'agenda o in modalità protetta",
     "Long: il numero della giocata nell'agenda",
     "ReDim aP(2) : aP(2) = 1 : Scrivi AddRecordAgendaGiocate(Array(12, 34), Array(BA_, NA_), aP, 9)"},
    {"CreaGiocataAgenda", 1, 2, &CreaGiocataAgenda,
     "Indice, [Nota]: scrive nell'agenda delle giocate la giocata Indice impostata con ImpostaGiocata, dalla "
     "prossima estrazione; SorteArresto 1 la ferma alla prima vincita, 0 gioca tutti i colpi, altre no; una "
     "progressione deve moltiplicare ogni posta per uno stesso intero. La giocata resta impostata; restituisce il "
     "numero della giocata nell'agenda",
     "Long: il numero della giocata nell'agenda",
     "ReDim aP(2) : aP(2) = 1 : ImpostaGiocata 1, Array(12, 34), BA_, aP, 9 : Scrivi CreaGiocataAgenda(1, \"ambo su "
     "Bari\")"},
};

}  // namespace

std::span<const Libreria::Funzione> FunzioniGiocateAgenda() { return kGiocateAgenda; }

}  // namespace lottolab::script
