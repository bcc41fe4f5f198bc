// Every name of the library called through the engine with the arguments users pass by mistake
// (Empty, Null, Nothing, numbers out of every range, text, arrays from 0, empty arrays, arrays of
// arrays), one test per family: each call must come back, and a refusal must say what is wrong. A
// crash or a sanitizer report ends the whole program, so these tests also run in the sanitizer build.

#include <gtest/gtest.h>

#include <cctype>

#include <chrono>
#include <cmath>
#include <map>
#include <numeric>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include <fmt/format.h>

#include "LibreriaDiProva.h"
#include "TempDir.h"
#include "archive/ArchivioGioco.h"
#include "script/DisegnoGrafico.h"
#include "script/FunzioniPrevisioni.h"
#include "stats/ArchiviDiProva.h"
#include "vbscript/runtime/Interpreter.h"

namespace lottolab::script {
namespace {

namespace fs = std::filesystem;
using Funzione = ClsFunctionsGeodoScript::Funzione;

// What users pass by mistake, as VBScript writes it.
constexpr std::string_view kOstili[] = {"Empty",
                                        "Null",
                                        "Nothing",
                                        "0",
                                        "-1",
                                        "13",
                                        "91",
                                        "2147483647",
                                        "2147483648",
                                        "100000000",
                                        "1E+300",
                                        "-1E+300",
                                        "\"abc\"",
                                        "\"\"",
                                        "Array(5, 12, 33)",
                                        "Array()",
                                        "Array(Array(1, 2), Array(3, 4))"};

// The names a harness cannot call: they hand the user's desktop a file or a folder to open.
const std::map<std::string_view, std::string_view, std::less<>> kEscluse = {
    {"LanciaFile", "apre il file con il programma del desktop"},
    {"ApriDirectory", "apre la cartella nel gestore di file del desktop"},
};

// Draws of every wheel with dates three days apart, so that the names reading dates have some.
TabellaEstrazioni ArchivioDatato() {
  TabellaEstrazioni casuale = test::ArchivioCasuale(40, 90, 11);
  std::vector<Estrazione> estrazioni;
  const auto inizio = std::chrono::sys_days(std::chrono::year{2020} / 1 / 2);
  for (int id = 1; id <= casuale.EstrazioniArchivio(); ++id) {
    Estrazione estrazione = casuale[id];
    const std::chrono::year_month_day giorno{inizio + std::chrono::days(3 * (id - 1))};
    estrazione.data =
        GruppoData{static_cast<int16_t>(id), static_cast<int16_t>(unsigned(giorno.day())),
                   static_cast<int16_t>(unsigned(giorno.month())), static_cast<int16_t>(int(giorno.year()))};
    estrazioni.push_back(estrazione);
  }
  return TabellaEstrazioni(std::move(estrazioni));
}

TabellaGioco ArchivioGiocoCasuale(const FormatoGioco& formato) {
  std::mt19937 generatore(static_cast<unsigned>(formato.numeri * 100 + formato.massimo));
  std::vector<int> urna(static_cast<size_t>(formato.massimo));
  std::iota(urna.begin(), urna.end(), 1);
  std::vector<EstrazioneGioco> estrazioni;
  for (int id = 1; id <= 30; ++id) {
    EstrazioneGioco estrazione;
    estrazione.id_estr = id;
    estrazione.data = GruppoData{static_cast<int16_t>(id), static_cast<int16_t>(1 + (id - 1) % 28),
                                 static_cast<int16_t>(1 + (id - 1) / 28), 2021};
    estrazione.concorso = static_cast<int16_t>(id);
    estrazione.minuti = static_cast<int16_t>(formato.con_ora ? 600 + id : 0);
    std::shuffle(urna.begin(), urna.end(), generatore);
    for (int i = 0; i < formato.numeri; ++i) estrazione.numeri[static_cast<size_t>(i)] = static_cast<uint8_t>(urna[i]);
    for (int i = 0; i < formato.extra; ++i)
      estrazione.extra[static_cast<size_t>(i)] = static_cast<uint8_t>(urna[static_cast<size_t>(formato.numeri + i)]);
    for (int i = 0; i < formato.speciali; ++i)
      estrazione.speciali[static_cast<size_t>(i)] = static_cast<uint8_t>(1 + (id * (i + 3)) % formato.massimo_speciale);
    estrazioni.push_back(estrazione);
  }
  return TabellaGioco(formato, std::move(estrazioni));
}

// A picture area that draws nothing and notes every value no painter should be given.
class AreaControllata final : public AreaDisegno {
 public:
  void SetDimensioni(int larghezza, int altezza) override {
    Lato(larghezza, "larghezza");
    Lato(altezza, "altezza");
    m_dimensioni = {larghezza, altezza};
  }
  void ColoreSfondo(Rgb colore) override { Colore(colore); }
  void Riempi(Rgb colore) override { Colore(colore); }
  void Clear() override {}
  int TextWidth(const std::string& testo, int dimensione) override {
    Dimensione(dimensione);
    return static_cast<int>(testo.size()) * dimensione / 2;
  }
  int TextHeight(const std::string&, int dimensione) override {
    Dimensione(dimensione);
    return dimensione;
  }
  void StampaTesto(double x, double y, const std::string&, Rgb colore, int dimensione, double angolo) override {
    Punti({x, y, angolo});
    Colore(colore);
    Dimensione(dimensione);
  }
  void Punto(double x, double y, const Tratto& tratto) override {
    Punti({x, y});
    Linea(tratto);
  }
  void Linea(double x1, double y1, double x2, double y2, const Tratto& tratto) override {
    Punti({x1, y1, x2, y2});
    Linea(tratto);
  }
  void Poligono(const std::vector<std::pair<double, double>>& punti, const Tratto& tratto,
                std::optional<Rgb> riempimento) override {
    Spezzata(punti, tratto);
    if (riempimento) Colore(*riempimento);
  }
  void Cerchio(double x, double y, double raggio, const Tratto& tratto, std::optional<Rgb> riempimento) override {
    Punti({x, y, raggio});
    Linea(tratto);
    if (riempimento) Colore(*riempimento);
  }
  void Spezzata(const std::vector<std::pair<double, double>>& punti, const Tratto& tratto) override {
    for (const auto& [x, y] : punti) Punti({x, y});
    Linea(tratto);
  }
  std::pair<int, int> Dimensioni() const override { return m_dimensioni; }
  void DisegnaCerchio(const DisegnoCerchio& disegno, double x, double y, double lato) override {
    Punti({x, y, lato});
    Cerchio(disegno);
  }
  Esito<Fatto> Esegui() override { return Fatto{}; }
  Esito<std::optional<fs::path>> MostraCerchio(const DisegnoCerchio& disegno, const std::string&,
                                               const fs::path&) override {
    Cerchio(disegno);
    return std::optional<fs::path>{};
  }
  Esito<std::optional<fs::path>> MostraGrafico(const DisegnoGrafico& grafico, const fs::path&) override {
    for (const SerieGrafico& serie : grafico.serie) {
      Punti(serie.x);
      Punti(serie.y);
    }
    const AsseGrafico x = AsseX(grafico);
    const AsseGrafico y = AsseY(grafico);
    Punti({x.minimo, x.massimo, x.passo, y.minimo, y.massimo, y.passo});
    return std::optional<fs::path>{};
  }
  std::optional<fs::path> FileImmagine(const fs::path&) override { return std::nullopt; }

  // What was wrong since the last call, which forgets it.
  std::string Difetti() { return std::exchange(m_difetti, {}); }
  void Difetto(std::string testo) { m_difetti += testo + "; "; }

 private:
  void Lato(int lato, std::string_view cosa) {
    if (lato < 1 || lato > 8000) Difetto(fmt::format("{} {}", cosa, lato));
  }
  void Dimensione(int dimensione) {
    if (dimensione < 1 || dimensione > 400) Difetto(fmt::format("testo alto {}", dimensione));
  }
  void Colore(Rgb colore) {
    if (colore > 0xFFFFFF) Difetto(fmt::format("colore {:#x}", colore));
  }
  void Linea(const Tratto& tratto) {
    if (!(tratto.spessore >= 0 && tratto.spessore <= 100)) Difetto(fmt::format("spessore {}", tratto.spessore));
    Colore(tratto.colore);
  }
  void Punti(const std::vector<double>& valori) {
    for (double v : valori)
      if (!(std::abs(v) <= 1e15)) Difetto(fmt::format("coordinata {}", v));
  }
  void Cerchio(const DisegnoCerchio& disegno) {
    for (int n : disegno.marcati)
      if (n < 1 || n > 90) Difetto(fmt::format("numero marcato {}", n));
    for (const FiguraCerchio& figura : disegno.figure)
      for (int n : figura.numeri)
        if (n < 1 || n > 90) Difetto(fmt::format("vertice {}", n));
  }

  std::pair<int, int> m_dimensioni{400, 300};
  std::string m_difetti;
};

// A user who cancels every dialog, and a picture area that checks what it is given.
class OspiteOstile final : public InterfacciaScript {
 public:
  void Scrivi(const TrattoTesto&) override {}
  void Mostra(const Avviso& avviso) override { avvisi.push_back(avviso); }
  void Messaggio(const std::string&) override {}
  void Avanzamento(double percentuale) override {
    if (!(percentuale >= 0 && percentuale <= 100)) area.Difetto(fmt::format("avanzamento {}", percentuale));
  }
  AreaDisegno* Disegno() override { return &area; }
  std::optional<std::vector<int>> ScegliVoci(const std::string&, const std::vector<std::string>&, bool) override {
    return std::nullopt;
  }
  std::optional<std::vector<int>> ScegliNumeri(const std::string&, int, int, const std::vector<int>&) override {
    return std::nullopt;
  }
  std::optional<std::vector<double>> ScegliImporti(const std::string&, const std::vector<std::string>&,
                                                   const std::vector<double>&) override {
    return std::nullopt;
  }
  std::optional<std::string> ScegliPercorso(const std::string&, const std::string&, bool) override {
    return std::nullopt;
  }

  std::vector<Avviso> avvisi;
  AreaControllata area;
};

// The value each argument of a row gets while another one is hostile, from its name in the row's
// text: a list from 1 for the names of arrays (aNumeri), a text for names and formats, else 1.
std::vector<std::string> ArgomentiPlausibili(const Funzione& funzione) {
  std::vector<std::string> plausibili;
  const std::string_view firma = funzione.descrizione.substr(0, funzione.descrizione.find(':'));
  size_t inizio = 0;
  while (inizio <= firma.size() && plausibili.size() < funzione.max_args) {
    size_t fine = firma.find(',', inizio);
    if (fine == std::string_view::npos) fine = firma.size();
    std::string_view nome = firma.substr(inizio, fine - inizio);
    while (!nome.empty() && (nome.front() == ' ' || nome.front() == '[')) nome.remove_prefix(1);
    if (nome.size() > 1 && nome[0] == 'a' && std::isupper(static_cast<unsigned char>(nome[1])))
      plausibili.emplace_back("DaUno()");
    else if (nome.starts_with("Nome") || nome.starts_with("Testo") || nome.starts_with("Titolo") ||
             nome.starts_with("sFile") || nome.starts_with("File"))
      plausibili.emplace_back("\"prova.txt\"");
    else
      plausibili.emplace_back("1");
    inizio = fine + 1;
  }
  plausibili.resize(funzione.max_args, "1");
  return plausibili;
}

// The small archives of every game, written once for all the names.
struct Archivi {
  Archivi() : lotto(ArchivioDatato()) {
    for (size_t g = 0; g < giochi.size(); ++g) {
      const Gioco gioco = static_cast<Gioco>(g);
      giochi[g] = cartella / fmt::format("gioco{}.dat", g);
      const FormatoGioco formato = gioco == Gioco::Generico ? FormatoGenerico(6, 40) : Formato(gioco);
      EXPECT_TRUE(SalvaArchivioGioco(ArchivioGiocoCasuale(formato), giochi[g]).Riuscito());
    }
  }
  TabellaEstrazioni lotto;
  test::CartellaTemporanea cartella;
  FileDeiGiochi giochi;
};

// One fresh run per name: a base folder of its own with a copy of the archives, the library and the
// engine.
class Banco {
 public:
  explicit Banco(const Archivi& archivi, Modalita modalita = Modalita::Normale) {
    fs::create_directories(m_base / "scriptOutput");
    ImpostazioniLibreria impostazioni;
    impostazioni.archivio = &archivi.lotto;
    impostazioni.cartella_base = m_base.Percorso();
    impostazioni.cartella_output = m_base / "scriptOutput";
    impostazioni.cartella_dati_app = m_base.Percorso();
    impostazioni.file_agenda = m_base / "agenda.dat";
    impostazioni.modalita = modalita;
    for (size_t g = 0; g < impostazioni.archivi_giochi.size(); ++g) {
      impostazioni.archivi_giochi[g] = m_base / archivi.giochi[g].filename();
      fs::copy_file(archivi.giochi[g], impostazioni.archivi_giochi[g]);
    }
    m_libreria = vbs::MakeRef<ClsFunctionsGeodoScript>(m_ospite, m_motore.interpreter().locale(), impostazioni);
    m_libreria->SetMotore(&m_motore.interpreter());
    m_libreria->SetNomeFileHtmlOut((m_base / "scriptOutput" / "pagina.htm").string());
    EXPECT_TRUE(m_motore.SetLanguage("VBScript"));
    m_motore.interpreter().SetFileAccessPolicy(m_libreria->accesso());
    EXPECT_TRUE(m_motore.AddObject("ClsFunctionsGeodoScript", vbs::Ref<vbs::Object>(m_libreria.get()), true));
    EXPECT_TRUE(m_motore.AddCode(
        u"Function DaUno()\n Dim a(5), i : For i = 1 To 5 : a(i) = i : Next : DaUno = a\nEnd Function\n", "banco"));
    for (std::u16string_view avvio : {u"InitScript", u"AzzeraArrayInterruzioni", u"InitArrayFlagEstrazioniAttive",
                                      u"AzzeraFlagStopProcess", u"ResettaGiocate", u"AzzeraHtmlOutput"})
      EXPECT_TRUE(m_motore.ExecuteStatement(avvio)) << text::Utf16ToUtf8(avvio);
  }
  ~Banco() {
    for (std::u16string_view chiusura : {u"ChiudiFileHtmlOutput", u"CloseAllFileHandle", u"DeinizializzaXls"})
      (void)m_motore.ExecuteStatement(chiusura);
  }

  // What is wrong with the call, empty when it came back with a value or a refusal that says why.
  std::string Chiama(const std::string& chiamata) {
    m_ospite.avvisi.clear();
    // A library loop that asks for the interruption ends here at the latest; one that does not ask
    // keeps the test from ending, which is the fault it shows.
    m_motore.interpreter().ClearAbort();
    m_motore.interpreter().SetDeadline(std::chrono::steady_clock::now() + std::chrono::seconds(20));
    auto valore = m_motore.Eval(text::Utf8ToUtf16(chiamata));
    m_motore.interpreter().SetDeadline(std::nullopt);
    std::string difetti = m_ospite.area.Difetti();
    if (!valore) {
      const auto& errore = m_motore.Error();
      if (errore.number == vbs::err::kAborted)
        difetti += "non termina; ";
      else if (errore.number == 0 || errore.description.empty())
        difetti += fmt::format("errore {} senza descrizione; ", errore.number);
    }
    for (const Avviso& avviso : m_ospite.avvisi) {
      // An error shows as "5- " and its description; any other notice is its text.
      const size_t trattino = avviso.testo.find("- ");
      const size_t spiegazione = trattino != std::string::npos && trattino < 12 ? trattino + 2 : 0;
      if (avviso.testo.find_first_not_of(" \n", spiegazione) == std::string::npos)
        difetti += fmt::format("avviso senza spiegazione \"{}\"; ", avviso.testo);
    }
    return difetti;
  }

  // The notices of the last call.
  const std::vector<Avviso>& Avvisi() const { return m_ospite.avvisi; }

 private:
  test::CartellaTemporanea m_base;
  OspiteOstile m_ospite;
  vbs::ScriptControl m_motore;
  vbs::Ref<ClsFunctionsGeodoScript> m_libreria;
};

// Every call for the name: for each count of arguments, every argument hostile at once, then each
// argument hostile in turn with the others plausible.
std::vector<std::string> ChiamateOstili(const Funzione& funzione) {
  std::vector<std::string> chiamate;
  const std::vector<std::string> plausibili = ArgomentiPlausibili(funzione);
  auto componi = [&](size_t quanti, auto valore) {
    std::string chiamata = std::string(funzione.nome) + "(";
    for (size_t i = 0; i < quanti; ++i) chiamata += (i ? ", " : "") + valore(i);
    chiamate.push_back(chiamata + ")");
  };
  // A name of any number of arguments (ScegliOpzioneMenu takes up to 255) is called with a few and
  // with the most: the counts between add nothing but time.
  const size_t kConteggiDiSeguito = 8;
  for (size_t quanti = funzione.min_args; quanti <= funzione.max_args; ++quanti) {
    if (quanti >= funzione.min_args + kConteggiDiSeguito && quanti < funzione.max_args) continue;
    if (quanti == 0) componi(0, [](size_t) { return std::string(); });
    for (std::string_view ostile : kOstili) {
      componi(quanti, [&](size_t) { return std::string(ostile); });
      for (size_t posto = 0; posto < quanti && quanti > 1; ++posto)
        componi(quanti, [&](size_t i) { return i == posto ? std::string(ostile) : plausibili[i]; });
    }
  }
  return chiamate;
}

// The downloads and uploads run in the protected mode, which refuses every address before a
// transfer starts: the test never reaches the network.
Modalita ModalitaDi(const ClsFunctionsGeodoScript::Famiglia& famiglia) {
  return famiglia.titolo == "Rete" ? Modalita::Protetta : Modalita::Normale;
}

class ArgomentiOstili : public ::testing::TestWithParam<ClsFunctionsGeodoScript::Famiglia> {
 protected:
  static void SetUpTestSuite() { s_archivi = new Archivi(); }
  static void TearDownTestSuite() {
    delete s_archivi;
    s_archivi = nullptr;
  }
  static inline Archivi* s_archivi = nullptr;
};

TEST_P(ArgomentiOstili, OgniChiamataTornaEUnRifiutoDiceIlPerche) {
  size_t chiamate = 0;
  for (const Funzione& funzione : GetParam().funzioni) {
    if (kEscluse.contains(funzione.nome)) continue;
    Banco banco(*s_archivi, ModalitaDi(GetParam()));
    for (const std::string& chiamata : ChiamateOstili(funzione)) {
      ++chiamate;
      const std::string difetti = banco.Chiama(chiamata);
      EXPECT_EQ(difetti, "") << chiamata;
    }
  }
  RecordProperty("chiamate", static_cast<int>(chiamate));
}

// What the main names answer to the mistakes users make most: the library's conventions where it
// has one (a number brought into 1..90, an empty range giving 0, any wheel value answering 0 from
// Estratto), else error 5 naming what is wrong; 0 where no notice is due.
TEST_F(ArgomentiOstili, GliErroriPiuComuniHannoLaRispostaAttesa) {
  const struct {
    std::string_view chiamata;
    int errore;
    std::string_view parola;
  } kCasi[] = {
      {"ScriviMatrice(Array())", 0, ""},
      {"FormatSpace(\"a\", 2147483647)", 5, "Lunghezza non valida"},
      {"Permutazioni(171)", 6, "massimo di un Double"},
      {"Diametrale(1E+300)", 5, "troppo grande"},
      {"Combinazioni(2000, 1000)", 6, "massimo di un Double"},
      {"ScriviMatrice(Array(Array(1, 2), Array(3, 4)))", 13, "Tipo"},
      {"RitardoCombinazione(BA_, Array(5, 12, 33), AMBO_, 40)", 0, ""},
      {"RitardoCombinazione(13, Array(5, 12), AMBO_, 40)", 5, "Ruota non valida: 13"},
      {"RitardoCombinazione(0, Array(5, 12), AMBO_, 40)", 5, "Ruota non valida: 0"},
      {"RitardoCombinazione(BA_, Array(), AMBO_, 40)", 5, "Nessun numero"},
      {"RitardoCombinazione(BA_, Array(5, 1E+300), AMBO_, 40)", 5, "troppo grande"},
      {"RitardoCombinazione(BA_, Array(5, 12), 0, 40)", 5, "Sorte"},
      {"RitardoCombinazione(BA_, Array(5, 12), AMBO_, 41)", 5, "Fine fuori dall'archivio"},
      {"RitardoCombinazione(BA_, Array(5, 12), AMBO_, 40, Array(True, True))", 5, "indici da 1 a 5"},
      {"RitardoEstratto(BA_, 2147483648)", 5, "troppo grande"},
      {"RitardoEstratto(BA_, 91)", 0, ""},
      {"RitardoEstratto(BA_, 1, 13, 1)", 0, ""},
      {"EstrattoFrequenza(BA_, -1E+300)", 5, "troppo grande"},
      {"Estratto(1, 13, 1)", 0, ""},
      {"Estratto(41, BA_, 1)", 9, ""},
      {"RitardoCombinazioneSE(Array(5, 1E+300), AMBO_, 30)", 5, "1..90"},
      {"RitardoCombinazioneDL(Array(5, 12), AMBO_, 30, , 31)", 5, "Inizio fuori dall'archivio"},
  };
  Banco banco(*s_archivi);
  for (const auto& caso : kCasi) {
    const std::string chiamata(caso.chiamata);
    EXPECT_EQ(banco.Chiama(chiamata), "") << chiamata;
    if (caso.errore == 0) {
      EXPECT_TRUE(banco.Avvisi().empty()) << chiamata << ": " << banco.Avvisi().front().testo;
      continue;
    }
    ASSERT_EQ(banco.Avvisi().size(), 1u) << chiamata;
    const std::string& testo = banco.Avvisi().front().testo;
    EXPECT_TRUE(testo.starts_with(std::to_string(caso.errore) + "- ")) << chiamata << ": " << testo;
    EXPECT_NE(testo.find(caso.parola), std::string::npos) << chiamata << ": " << testo;
  }
}

// The transfers run in protected mode, which refuses every destination the arguments name (none is in
// scriptOutput/) and any upload before a transfer starts: no call reaches the network.
// Every family the library has, a family added tomorrow included.
INSTANTIATE_TEST_SUITE_P(Famiglie, ArgomentiOstili, ::testing::ValuesIn(ClsFunctionsGeodoScript::Famiglie()),
                         [](const ::testing::TestParamInfo<ClsFunctionsGeodoScript::Famiglia>& info) {
                           std::string nome;
                           for (char c : info.param.titolo)
                             if (std::isalnum(static_cast<unsigned char>(c))) nome += c;
                           return nome;
                         });

}  // namespace

// A family reads as its title in the test's report.
void PrintTo(const ClsFunctionsGeodoScript::Famiglia& famiglia, std::ostream* out) { *out << famiglia.titolo; }

}  // namespace lottolab::script
