#include <algorithm>
#include <charconv>
#include <climits>
#include <deque>
#include <filesystem>
#include <fmt/format.h>
#include <fmt/ostream.h>
#include <fstream>
#include <sstream>

#include "Comandi.h"
#include "app/ErroreInatteso.h"
#include "app/Percorsi.h"
#include "archive/ClsEstrazioni.h"
#include "disegno/TelaImmagine.h"
#include "script/EsecutoreScript.h"
#include "script/LetturaFile.h"
#include "text/Utf.h"
#include "vbscript/runtime/Interpreter.h"

namespace lottolab::cli {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kUsoEsegui =
    "uso: lottolab esegui SCRIPT.ls [--protetto] [--timeout MINUTI] [--html FILE] [--risposte FILE]";

// "3", "1.4.7", "2, 5": whole numbers separated by "." or ","; nothing when anything else is there.
std::optional<std::vector<int>> NumeriDellaRisposta(std::string_view riga) {
  std::vector<int> numeri;
  while (true) {
    const size_t separatore = riga.find_first_of(".,");
    std::string_view campo = riga.substr(0, separatore);
    while (campo.starts_with(' ')) campo.remove_prefix(1);
    while (campo.ends_with(' ')) campo.remove_suffix(1);
    int numero = 0;
    auto [fine, errore] = std::from_chars(campo.data(), campo.data() + campo.size(), numero);
    if (campo.empty() || errore != std::errc() || fine != campo.data() + campo.size()) return std::nullopt;
    numeri.push_back(numero);
    if (separatore == std::string_view::npos) return numeri;
    riga.remove_prefix(separatore + 1);
  }
}

// "1 0,5 0 0 0" or "1; 0.5; 0": amounts separated by blanks or ";", with a decimal point or comma;
// nothing when anything else is there.
std::optional<std::vector<double>> ImportiDellaRisposta(std::string_view riga) {
  std::vector<double> importi;
  std::string campo;
  std::string testo{riga};
  std::replace(testo.begin(), testo.end(), ';', ' ');
  std::replace(testo.begin(), testo.end(), ',', '.');
  std::istringstream in(testo);
  while (in >> campo) {
    double importo = 0;
    auto [fine, errore] = std::from_chars(campo.data(), campo.data() + campo.size(), importo);
    if (errore != std::errc() || fine != campo.data() + campo.size()) return std::nullopt;
    importi.push_back(importo);
  }
  if (importi.empty()) return std::nullopt;
  return importi;
}

// A script run from a terminal: its text output on stdout, everything meant for a window on stderr.
// The script's dialogs are answered by the lines of the answers file, in order: numbers, positions
// of items counted from 1, or a path; an empty line cancels. Once the lines are over, and for a line
// that does not fit its dialog, the dialog takes its default answer.
class OspiteTerminale final : public script::InterfacciaScript {
 public:
  OspiteTerminale(std::ostream& out, SegnalatoreTerminale& segnalatore, std::ostream& err,
                  std::deque<std::string> risposte)
      : m_out(out), m_segnalatore(segnalatore), m_err(err), m_risposte(std::move(risposte)) {}
  void Scrivi(const script::TrattoTesto& tratto) override { m_out << tratto.testo; }
  void Mostra(const Avviso& avviso) override { m_segnalatore.Mostra(avviso); }
  void Messaggio(const std::string& testo) override { m_err << testo << '\n'; }
  void Avanzamento(double) override {}
  // The picture is made at the first drawing of the run: a run that draws nothing needs no Qt.
  script::AreaDisegno* Disegno() override {
    if (!m_tela) {
      disegno::AssicuraApplicazioneGrafica();
      m_tela = std::make_unique<disegno::TelaPng>();
    }
    return m_tela.get();
  }
  // Writes the picture of the run, if it drew one, and says where on stderr.
  void SalvaDisegno() {
    if (!m_tela) return;
    auto file = m_tela->Salva();
    if (!file)
      m_segnalatore.Mostra(file.Errore());
    else if (*file)
      m_err << fmt::format("immagine del disegno: {}\n", (*file)->string());
  }

  std::optional<std::vector<int>> ScegliVoci(const std::string& titolo, const std::vector<std::string>& voci,
                                             bool multipla) override {
    auto riga = ProssimaRisposta(titolo);
    if (riga && riga->empty()) return std::nullopt;
    auto posizioni = riga ? NumeriDiRisposta(*riga) : std::nullopt;
    if (!posizioni) return InterfacciaScript::ScegliVoci(titolo, voci, multipla);
    for (int& posizione : *posizioni) --posizione;
    return posizioni;
  }
  std::optional<std::vector<int>> ScegliNumeri(const std::string& titolo, int quanti, int massimo,
                                               const std::vector<int>& proposti) override {
    auto riga = ProssimaRisposta(titolo);
    if (riga && riga->empty()) return std::nullopt;
    auto numeri = riga ? NumeriDiRisposta(*riga) : std::nullopt;
    return numeri ? numeri : InterfacciaScript::ScegliNumeri(titolo, quanti, massimo, proposti);
  }
  std::optional<std::vector<double>> ScegliImporti(const std::string& titolo, const std::vector<std::string>& voci,
                                                   const std::vector<double>& proposti) override {
    auto riga = ProssimaRisposta(titolo);
    if (riga && riga->empty()) return std::nullopt;
    auto importi = riga ? ImportiDellaRisposta(*riga) : std::nullopt;
    if (riga && !importi) m_err << fmt::format("risposta non valida, vale la scelta predefinita: {}\n", *riga);
    return importi ? importi : InterfacciaScript::ScegliImporti(titolo, voci, proposti);
  }
  std::optional<std::string> ScegliPercorso(const std::string& titolo, const std::string& proposto,
                                            bool cartella) override {
    auto riga = ProssimaRisposta(titolo);
    if (riga && riga->empty()) return std::nullopt;
    return riga ? riga : InterfacciaScript::ScegliPercorso(titolo, proposto, cartella);
  }

 private:
  // The dialog's title goes to stderr, as a message box's text does; nothing once the lines are over.
  std::optional<std::string> ProssimaRisposta(const std::string& titolo) {
    m_err << titolo << '\n';
    if (m_risposte.empty()) return std::nullopt;
    std::string riga = std::move(m_risposte.front());
    m_risposte.pop_front();
    return riga;
  }
  std::optional<std::vector<int>> NumeriDiRisposta(const std::string& riga) {
    auto numeri = NumeriDellaRisposta(riga);
    if (!numeri) m_err << fmt::format("risposta non valida, vale la scelta predefinita: {}\n", riga);
    return numeri;
  }

  std::ostream& m_out;
  SegnalatoreTerminale& m_segnalatore;
  std::ostream& m_err;
  std::deque<std::string> m_risposte;
  std::unique_ptr<disegno::TelaPng> m_tela;
};

Esito<std::deque<std::string>> RigheDelFile(const fs::path& file) {
  auto contenuto = script::LeggiFileRegolare(file, script::kLimiteFileScript);
  if (!contenuto) return contenuto.Errore();
  std::istringstream in(std::move(contenuto).Valore());
  std::deque<std::string> righe;
  for (std::string riga; std::getline(in, riga);) {
    if (righe.empty() && riga.starts_with("\xEF\xBB\xBF")) riga.erase(0, 3);
    if (riga.ends_with('\r')) riga.pop_back();
    righe.push_back(std::move(riga));
  }
  return righe;
}

// Nobody answers dialogs on the command line: a message box prints its text and takes its first
// button, an input box takes its default answer.
class UiSenzaRisposte final : public vbs::UiHandler {
 public:
  explicit UiSenzaRisposte(std::ostream& err) : m_err(err) {}
  int MessageBox(std::u16string_view prompt, int buttons, std::u16string_view) override {
    m_err << text::Utf16ToUtf8(prompt) << '\n';
    return vbs::FirstButton(buttons);
  }
  std::optional<std::u16string> InputBox(std::u16string_view prompt, std::u16string_view,
                                         std::u16string_view predefinito) override {
    m_err << text::Utf16ToUtf8(prompt) << '\n';
    return std::u16string(predefinito);
  }

 private:
  std::ostream& m_err;
};

// Minutes as a whole or decimal number ("2", "0.5"); nothing for anything else.
std::optional<double> Minuti(const std::string& testo) {
  if (testo.empty() || testo.size() > 8 || testo.find_first_not_of("0123456789.") != std::string::npos ||
      testo.find('.') != testo.rfind('.') || testo == ".")
    return std::nullopt;
  return std::stod(testo);
}

}  // namespace

int ComandoEsegui(Contesto& contesto, const Parole& parole) {
  std::optional<fs::path> script_file;
  std::optional<fs::path> pagina;
  std::deque<std::string> risposte;
  int32_t timeout_ms = -1;
  script::Modalita modalita = script::Modalita::Normale;
  for (size_t i = 0; i < parole.size(); ++i) {
    const std::string& parola = parole[i];
    if (parola == "--protetto") {
      modalita = script::Modalita::Protetta;
    } else if (parola == "--timeout" || parola == "--html" || parola == "--risposte") {
      if (i + 1 == parole.size())
        return contesto.Fallisci(AvvisoEsclamativo(fmt::format("manca il valore dell'opzione {}", parola)));
      const std::string& valore = parole[++i];
      if (parola == "--html") {
        std::error_code ec;
        pagina = fs::absolute(valore, ec);
        if (ec) pagina = valore;
        continue;
      }
      if (parola == "--risposte") {
        auto righe = RigheDelFile(valore);
        if (!righe)
          return contesto.Fallisci(
              AvvisoEsclamativo(fmt::format("file delle risposte non letto: {}", righe.Errore().testo)));
        risposte = std::move(righe).Valore();
        continue;
      }
      auto minuti = Minuti(valore);
      if (!minuti)
        return contesto.Fallisci(AvvisoEsclamativo(fmt::format("--timeout vuole i minuti (0 = Infinito): {}", valore)));
      if (*minuti * 60000 > INT32_MAX)
        return contesto.Fallisci(
            AvvisoEsclamativo(fmt::format("--timeout al massimo {} minuti (circa 24 giorni; 0 = Infinito): {}",
                                          script::kMinutiTimeoutMassimi, valore)));
      timeout_ms = *minuti == 0 ? -1 : std::max(1, static_cast<int32_t>(*minuti * 60000));
    } else if (!script_file && !parola.starts_with("--")) {
      script_file = parola;
    } else {
      return contesto.Fallisci(AvvisoEsclamativo(std::string(kUsoEsegui)));
    }
  }
  if (!script_file) return contesto.Fallisci(AvvisoEsclamativo(std::string(kUsoEsegui)));
  auto contenuto = script::LeggiFileRegolare(*script_file, script::kLimiteFileScript);
  if (!contenuto) return contesto.Fallisci(contenuto.Errore());

  std::optional<TabellaEstrazioni> archivio;
  // A path the system will not even look at is left to the load, which says why.
  std::error_code ec;
  if (fs::exists(contesto.archivio, ec) || ec) {
    auto tabella = contesto.CaricaTabella();
    if (!tabella) return contesto.Fallisci(tabella.Errore());
    archivio = std::move(tabella).Valore();
  }

  script::OpzioniEsecuzione opzioni;
  opzioni.libreria.archivio = archivio ? &*archivio : nullptr;
  opzioni.libreria.cartella_base = contesto.configurazione.base;
  opzioni.libreria.cartella_dati_app = contesto.configurazione.base;
  opzioni.libreria.cartella_output = pagina ? pagina->parent_path() : contesto.configurazione.base / "scriptOutput";
  opzioni.libreria.modalita = modalita;
  opzioni.libreria.sola_lettura = {contesto.archivio, contesto.configurazione.ArchivioLotto(),
                                   contesto.configurazione.ArchivioModificabile(),
                                   app::FileConfigurazione(contesto.configurazione.base)};
  opzioni.libreria.archivi_giochi = contesto.configurazione.ArchiviGiochi();
  opzioni.libreria.file_agenda = contesto.configurazione.FileAgenda();
  opzioni.libreria.file_archivio = contesto.archivio;
  opzioni.libreria.indirizzo_risultati = contesto.configurazione.IndirizzoRisultati();
  opzioni.libreria.indirizzi_giochi = contesto.configurazione.IndirizziRisultatiGiochi();
  opzioni.libreria.sola_lettura.insert(opzioni.libreria.sola_lettura.end(), opzioni.libreria.archivi_giochi.begin(),
                                       opzioni.libreria.archivi_giochi.end());
  if (pagina) opzioni.nome_file_html = pagina->filename().string();
  opzioni.timeout_ms = timeout_ms;
  opzioni.nome_script = script_file->filename().string();
  std::error_code ignorato;
  fs::create_directories(opzioni.libreria.cartella_output, ignorato);

  OspiteTerminale ospite(contesto.out, contesto.segnalatore, contesto.err, std::move(risposte));
  UiSenzaRisposte ui(contesto.err);
  script::EsecutoreScript esecutore(ospite, &ui);
  const auto esito = esecutore.Esegui(text::DecodeScriptFile(*contenuto), opzioni);
  ospite.SalvaDisegno();
  contesto.out.flush();
  switch (esito.stato) {
    case script::EsitoEsecuzione::Stato::Completato:
      // Library functions that failed were reported, and the script went on to its end.
      return kUscitaRiuscita;
    case script::EsitoEsecuzione::Stato::ErroreScript:
      contesto.err << script::RapportoErrore(*esito.errore);
      return kUscitaErrore;
    default: return kUscitaErrore;
  }
}

int ComandoNuovoScript(Contesto& contesto, const Parole& parole) {
  if (parole.size() != 1) return contesto.Fallisci(AvvisoEsclamativo("uso: lottolab nuovo-script FILE.ls"));
  const fs::path file = parole[0];
  std::error_code ec;
  if (fs::exists(file, ec))
    return contesto.Fallisci(
        AvvisoEsclamativo(fmt::format("il file {} esiste già: non lo sovrascrivo", file.string())));
  if (ec)
    return contesto.Fallisci(
        AvvisoEsclamativo(fmt::format("impossibile controllare il file {}: {}",
                                      app::PercorsoPerMessaggio(file.string()), app::DescriviErroreDiSistema(ec))));
  std::ofstream out(file, std::ios::binary);
  out << script::kModelloScript;
  if (!out.flush())
    return contesto.Fallisci(AvvisoEsclamativo(fmt::format("impossibile scrivere il file {}", file.string())));
  return kUscitaRiuscita;
}

}  // namespace lottolab::cli
