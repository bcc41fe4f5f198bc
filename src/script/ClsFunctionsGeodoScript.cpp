#include "ClsFunctionsGeodoScript.h"

#include <algorithm>
#include <unordered_map>

#include "FunzioniPrevisioni.h"
#include "text/AsciiCase.h"
#include "text/Utf.h"
#include "vbscript/runtime/Interpreter.h"
#include "vbscript/value/ErrorTable.h"

namespace lottolab::script {

namespace {

using Funzione = ClsFunctionsGeodoScript::Funzione;

using Famiglia = ClsFunctionsGeodoScript::Famiglia;

struct Tabella {
  std::vector<Famiglia> famiglie;
  std::vector<Funzione> funzioni;
  std::unordered_map<std::string, vbs::DispId> per_nome;  // lower-case name -> member number
};

const Tabella& TabellaCompleta() {
  static const Tabella tabella = [] {
    Tabella t;
    t.famiglie = {{"Costanti", FunzioniCostanti()},
                  {"Esecuzione dello script", FunzioniEsecuzione()},
                  {"Inclusioni, oggetti e banda di stato", FunzioniMotore()},
                  {"Output di testo", FunzioniOutput()},
                  {"Archivio e date", FunzioniArchivio()},
                  {"Estrazioni: descrizione e ricerca", FunzioniInfoEstrazioni()},
                  {"Aritmetica dei numeri", FunzioniAritmetica()},
                  {"Conversioni e proporzioni", FunzioniConversioni()},
                  {"Ritardi", FunzioniRitardi()},
                  {"Frequenze e storici", FunzioniStatistiche()},
                  {"Elenchi di ritardatari", FunzioniElenchi()},
                  {"Ritardi relativi", FunzioniRitardiRelativi()},
                  {"Lunghette", FunzioniLunghette()},
                  {"Formazioni", FunzioniFormazioni()},
                  {"Tabelle di output", FunzioniTabelle()},
                  {"Tabellone analitico", FunzioniAnalitico()},
                  {"Testi di numeri ed estrazioni", FunzioniTesto()},
                  {"Combinazioni e sviluppi", FunzioniCombinazioni()},
                  {"Array di numeri", FunzioniArray()},
                  {"File", FunzioniFile()},
                  {"Rete", FunzioniRete()},
                  {"Dialoghi con l'utente", FunzioniDialoghi()},
                  {"Estrazioni attive", FunzioniEstrazioniAttive()},
                  {"Collezioni", FunzioniCollezioni()},
                  {"Ciclometria", FunzioniCiclometria()},
                  {"Figure utente", FunzioniFigureUtente()},
                  {"Altri giochi: archivio", FunzioniGiochiArchivio()},
                  {"Altri giochi: ritardi e frequenze", FunzioniGiochiStatistiche()},
                  {"Altri giochi: elenchi", FunzioniGiochiElenchi()},
                  {"Altri giochi: estrazioni attive", FunzioniGiochiEstrazioniAttive()},
                  {"Archivio generico: file", FunzioniGiochiFile()},
                  {"Basi dati", FunzioniBaseDati()},
                  {"Basi dati degli altri giochi", FunzioniBaseDatiGiochi()},
                  {"Aggiornamento degli archivi", FunzioniAggiornaArchivio()},
                  {"Sistemi", FunzioniSistemi()},
                  {"Giocate e resoconto", FunzioniGiocate()},
                  {"Giocate degli altri giochi", FunzioniGiocateGiochi()},
                  {"Agenda delle giocate", FunzioniGiocateAgenda()},
                  {"Previsioni", FunzioniPrevisioni()},
                  {"Esiti", FunzioniEsiti()},
                  {"Esiti degli altri giochi", FunzioniEsitiGiochi()},
                  {"Premi", FunzioniPremi()},
                  {"Disegni", FunzioniPic()},
                  {"Disegni del cerchio", FunzioniPicCerchio()},
                  {"Disegni della tavola", FunzioniDisegnoTavola()},
                  {"Grafici", FunzioniGrafici()},
                  {"Fogli di calcolo", FunzioniXls()}};
    for (const Famiglia& famiglia : t.famiglie)
      t.funzioni.insert(t.funzioni.end(), famiglia.funzioni.begin(), famiglia.funzioni.end());
    for (size_t i = 0; i < t.funzioni.size(); ++i) {
      [[maybe_unused]] bool nuovo =
          t.per_nome.emplace(text::LowerAscii(t.funzioni[i].nome), static_cast<vbs::DispId>(i + 1)).second;
      assert(nuovo && "a name appears twice in the library's table");
    }
    return t;
  }();
  return tabella;
}

}  // namespace

ClsFunctionsGeodoScript::ClsFunctionsGeodoScript(InterfacciaScript& ospite, const vbs::Locale& locale,
                                                 ImpostazioniLibreria impostazioni)
    : m_ospite(ospite), m_locale(locale), m_impostazioni(std::move(impostazioni)) {
  RegoleAccesso regole;
  regole.modalita = m_impostazioni.modalita;
  regole.cartella_base = m_impostazioni.cartella_base;
  regole.cartelle_scrivibili = {m_impostazioni.cartella_output};
  if (!m_impostazioni.cartella_base.empty())
    regole.cartelle_scrivibili.push_back(m_impostazioni.cartella_base / "scriptOutput");
  regole.sola_lettura = m_impostazioni.sola_lettura;
  m_accesso = std::make_shared<AccessoFile>(std::move(regole));
}

ClsFunctionsGeodoScript::~ClsFunctionsGeodoScript() { m_html.Chiudi(); }

std::span<const Funzione> ClsFunctionsGeodoScript::Funzioni() { return TabellaCompleta().funzioni; }

std::span<const Famiglia> ClsFunctionsGeodoScript::Famiglie() { return TabellaCompleta().famiglie; }

vbs::DispId ClsFunctionsGeodoScript::FindMember(std::string_view name) {
  const auto& per_nome = TabellaCompleta().per_nome;
  auto it = per_nome.find(text::LowerAscii(name));
  return it == per_nome.end() ? vbs::kUnknownMember : it->second;
}

vbs::Result<vbs::Variant> ClsFunctionsGeodoScript::Invoke(vbs::DispId member, vbs::InvokeKind kind,
                                                          std::span<vbs::Variant> args) {
  if (member < 1 || static_cast<size_t>(member) > m_funzioni.size()) [[unlikely]]
    return vbs::MakeError(vbs::err::kNoMember);
  const Funzione& funzione = m_funzioni[member - 1];
  // Nothing in the library can be assigned to: constants are read-only.
  if (kind == vbs::InvokeKind::Let || kind == vbs::InvokeKind::Set) return vbs::MakeError(vbs::err::kIllegalAssignment);
  if (args.size() < funzione.min_args || args.size() > funzione.max_args) return vbs::MakeError(vbs::err::kWrongArgs);
  vbs::CallArgs call(args, m_locale);
  auto risultato = funzione.chiamata(*this, call);
  if (risultato) [[likely]]
    return risultato;
  return Avvisa(funzione.nome, std::move(risultato).error());
}

vbs::Result<vbs::Variant> ClsFunctionsGeodoScript::Avvisa(std::string_view funzione, vbs::Failure errore) {
  const int32_t numero = errore->number;
  if (numero == vbs::err::kAborted || numero == vbs::err::kPermissionDenied) return errore;
  std::string descrizione = errore->description.empty() ? text::Utf16ToUtf8(vbs::ErrorText(numero, m_locale.language))
                                                        : text::Utf16ToUtf8(errore->description);
  m_ospite.Mostra(AvvisoCritico("ClsFunctionsGeodoScript." + std::string(funzione), numero, std::move(descrizione)));
  return vbs::Variant();
}

vbs::Object::WholeNumberCall ClsFunctionsGeodoScript::WholeNumberForm(vbs::DispId member) {
  if (member < 1 || static_cast<size_t>(member) > m_funzioni.size()) return nullptr;
  const std::string_view nome = m_funzioni[member - 1].nome;
  for (const FormaIntera& forma : FormeIntereArchivio())
    if (forma.nome == nome) return forma.forma;
  return nullptr;
}

vbs::Status ClsFunctionsGeodoScript::ControllaInterruzione() const {
  if (m_motore && m_motore->InterruptDue()) [[unlikely]]
    return m_motore->InterruptError();
  return vbs::Ok();
}

void ClsFunctionsGeodoScript::SostituisciArchivio(std::shared_ptr<const TabellaEstrazioni> tabella) {
  m_archivio_aperto = std::move(tabella);
  m_impostazioni.archivio = m_archivio_aperto.get();
  m_estrazioni_attive.assign(static_cast<size_t>(m_archivio_aperto->EstrazioniArchivio()) + 1, true);
}

vbs::ScriptError ClsFunctionsGeodoScript::ArchivioMancante() {
  return vbs::MakeError(vbs::err::kInvalidCall, u"Archivio delle estrazioni non caricato");
}

void ClsFunctionsGeodoScript::Scrivi(std::string testo, int16_t colore, bool grassetto) {
  m_html.Scrivi(testo, colore, grassetto);
  m_ospite.Scrivi(TrattoTesto{std::move(testo), colore, grassetto});
}

}  // namespace lottolab::script
