#include "EsecutoreScript.h"

#include <algorithm>
#include <ctime>
#include <fmt/format.h>

#include "OggettoFinestra.h"
#include "text/Utf.h"
#include "vbscript/ScriptControl.h"

namespace lottolab::script {

namespace {

constexpr int kMinutiMassimi = 10;

// Clears the pointers the stop buttons reach, whatever way the run ends.
template <typename Azione>
class AllaFine {
 public:
  explicit AllaFine(Azione azione) : m_azione(std::move(azione)) {}
  ~AllaFine() { m_azione(); }
  AllaFine(const AllaFine&) = delete;
  AllaFine& operator=(const AllaFine&) = delete;

 private:
  Azione m_azione;
};

}  // namespace

std::vector<std::string> VociTimeout() {
  std::vector<std::string> voci{"Infinito"};
  for (int minuti = 1; minuti <= kMinutiMassimi; ++minuti)
    voci.push_back(fmt::format("{} {}", minuti, minuti == 1 ? "minuto" : "minuti"));
  return voci;
}

int32_t TimeoutDaVoce(int indice, std::string_view testo) {
  if (indice == 0) return -1;
  int64_t minuti = 0;
  for (char c : testo.substr(0, testo.find(' '))) {
    if (c < '0' || c > '9') return -1;
    minuti = std::min<int64_t>(minuti * 10 + (c - '0'), kMinutiTimeoutMassimi);
  }
  return static_cast<int32_t>(minuti * 60000);
}

std::string NomeFileHtmlOutput(std::chrono::system_clock::time_point quando) {
  const std::time_t t = std::chrono::system_clock::to_time_t(quando);
  std::tm locale{};
  localtime_r(&t, &locale);
  return fmt::format("Output{:04}{:02}{:02}{:02}{:02}{:02}.htm", locale.tm_year + 1900, locale.tm_mon + 1,
                     locale.tm_mday, locale.tm_hour, locale.tm_min, locale.tm_sec);
}

std::string RapportoErrore(const ErroreScript& errore) {
  return fmt::format("Errore script !\n{} - {}\nLinea   : {}\nColonna : {}\nSource : {}\n", errore.numero,
                     errore.descrizione, errore.riga, errore.colonna, errore.sorgente);
}

void EsecutoreScript::Stop() {
  std::lock_guard blocco(m_corrente);
  if (m_libreria) m_libreria->StopProcess();
}

void EsecutoreScript::InterrompiSubito() {
  std::lock_guard blocco(m_corrente);
  if (m_motore) m_motore->RequestAbort();
}

ErroreScript EsecutoreScript::Errore(const vbs::ScriptControl& motore) const {
  const vbs::ScriptErrorInfo& info = motore.Error();
  return ErroreScript{info.number, text::Utf16ToUtf8(info.description), info.line,
                      info.column, text::Utf16ToUtf8(info.source),      info.source_name};
}

EsitoEsecuzione EsecutoreScript::Esegui(std::u16string_view testo, const OpzioniEsecuzione& opzioni) {
  if (m_in_esecuzione.exchange(true)) {
    m_ospite.Mostra(AvvisoEsclamativo("Attendere il termine dello script in corso"));
    return EsitoEsecuzione{EsitoEsecuzione::Stato::GiaInEsecuzione, std::nullopt, {}, {}};
  }
  vbs::ScriptControl motore;
  auto libreria = vbs::MakeRef<ClsFunctionsGeodoScript>(m_ospite, motore.interpreter().locale(), opzioni.libreria);
  libreria->SetMotore(&motore.interpreter());
  {
    std::lock_guard blocco(m_corrente);
    m_motore = &motore;
    m_libreria = libreria.get();
  }
  AllaFine fine([this] {
    std::lock_guard blocco(m_corrente);
    m_motore = nullptr;
    m_libreria = nullptr;
    m_in_esecuzione = false;
  });
  return EseguiNelMotore(motore, *libreria, testo, opzioni);
}

EsitoEsecuzione EsecutoreScript::EseguiNelMotore(vbs::ScriptControl& motore, ClsFunctionsGeodoScript& libreria,
                                                 std::u16string_view testo, const OpzioniEsecuzione& opzioni) {
  EsitoEsecuzione esito;
  libreria.SetNomeFileHtmlOut(opzioni.nome_file_html.empty() ? NomeFileHtmlOutput(std::chrono::system_clock::now())
                                                             : opzioni.nome_file_html);
  if (opzioni.salva_previsioni) libreria.SetFlagSalvaPrevisioniInCorso(true);

  motore.Reset();
  (void)motore.SetLanguage("");
  (void)motore.SetLanguage("vbscript");
  motore.SetAllowUI(true);
  motore.SetUiHandler(m_ui);
  motore.interpreter().SetFileAccessPolicy(libreria.accesso());
  (void)motore.AddObject("ClsFunctionsGeodoScript", vbs::Ref<vbs::Object>(&libreria), true);
  (void)motore.AddObject("F_Script", vbs::Ref<vbs::Object>(vbs::MakeRef<OggettoFinestra>(libreria.locale(), m_ospite)),
                         true);
  motore.SetTimeout(opzioni.timeout_ms);

  // Each statement of the sequence stops the run at its first error; the closing ones always run.
  auto esegui = [&](std::u16string_view istruzione) {
    if (esito.stato != EsitoEsecuzione::Stato::Completato) return;
    if (!motore.ExecuteStatement(istruzione)) {
      esito.stato = EsitoEsecuzione::Stato::ErroreScript;
      esito.errore = Errore(motore);
    }
  };
  esegui(u"InitScript");

  const CartelleScript cartelle{opzioni.libreria.cartella_base, opzioni.libreria.cartella_dati_app};
  auto espanso = GestioneIncludiFile(testo, cartelle, libreria.accesso().get());
  if (!espanso) {
    m_ospite.Mostra(espanso.Errore());
    esito.stato = EsitoEsecuzione::Stato::InclusioneNonRiuscita;
  } else {
    for (const FileIncluso& incluso : espanso->inclusi) {
      if (motore.AddCode(incluso.codice, incluso.percorso.filename().string())) continue;
      m_ospite.Mostra(Avviso{TipoAvviso::Critico, "",
                             fmt::format("Il file di inclusione {}contiene errori\nLinea : {}",
                                         incluso.percorso.filename().string(), motore.Error().line)});
      esito.stato = EsitoEsecuzione::Stato::InclusioneNonRiuscita;
      break;
    }
  }
  if (esito.stato == EsitoEsecuzione::Stato::Completato &&
      !motore.AddCode(espanso->codice_utente, opzioni.nome_script)) {
    esito.stato = EsitoEsecuzione::Stato::ErroreScript;
    esito.errore = Errore(motore);
  }
  esegui(u"AzzeraArrayInterruzioni");
  esegui(u"InitArrayFlagEstrazioniAttive");
  esegui(u"AzzeraFlagStopProcess");
  esegui(u"ResettaGiocate");
  esegui(opzioni.multi_output ? u"AzzeraHtmlOutputMulti" : u"AzzeraHtmlOutput");
  esito.pagina_html = libreria.html().Percorso();
  esegui(u"main");
  esegui(opzioni.multi_output ? u"ColoraRtfOutputMulti" : u"ColoraRtfOutput");
  esegui(u"CloseAllFileHandle");
  esegui(u"DeinizializzaXls");

  // Whatever happened, the page is closed and the files the script opened too.
  (void)motore.ExecuteStatement(u"ChiudiFileHtmlOutput");
  (void)motore.ExecuteStatement(u"CloseAllFileHandle");
  esito.pagine = libreria.pagine();
  return esito;
}

}  // namespace lottolab::script
