#pragma once

// The library added to an engine as a script run adds it, over a table of draws chosen by each
// test: the fixture of the tests of the library's families.

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "script/AreaDisegno.h"
#include "script/ClsFunctionsGeodoScript.h"
#include "script/DisegnoGrafico.h"
#include "text/Utf.h"
#include "vbscript/ScriptControl.h"

namespace lottolab::script {

// A draw of the given date in which every wheel holds (wheel * 7 + position), so that any wheel
// read by mistake shows.
inline Estrazione Datata(int id, GruppoData data) {
  Estrazione estrazione;
  estrazione.id_estr = id;
  estrazione.data = data;
  for (int ruota = 1; ruota <= kNumeroRuote; ++ruota)
    for (int p = 1; p <= kNumeriPerRuota; ++p) estrazione.ImpostaNumero(ruota, p, ruota * 7 + p);
  return estrazione;
}

// A picture area that keeps its size and draws nothing: what the library computes for a picture
// runs, and a test looks only at what it returns.
class AreaMuta final : public AreaDisegno {
 public:
  void SetDimensioni(int larghezza, int altezza) override { m_dimensioni = {larghezza, altezza}; }
  void ColoreSfondo(Rgb) override {}
  void Riempi(Rgb) override {}
  void Clear() override {}
  int TextWidth(const std::string& testo, int dimensione) override {
    return static_cast<int>(testo.size()) * dimensione / 2;
  }
  int TextHeight(const std::string&, int dimensione) override { return dimensione; }
  void StampaTesto(double, double, const std::string&, Rgb, int, double) override {}
  void Punto(double, double, const Tratto&) override {}
  void Linea(double, double, double, double, const Tratto&) override {}
  void Poligono(const std::vector<std::pair<double, double>>&, const Tratto&, std::optional<Rgb>) override {}
  void Cerchio(double, double, double, const Tratto&, std::optional<Rgb>) override {}
  void Spezzata(const std::vector<std::pair<double, double>>&, const Tratto&) override {}
  std::pair<int, int> Dimensioni() const override { return m_dimensioni; }
  void DisegnaCerchio(const DisegnoCerchio&, double, double, double) override {}
  Esito<Fatto> Esegui() override { return Fatto{}; }
  Esito<std::optional<std::filesystem::path>> MostraCerchio(const DisegnoCerchio&, const std::string&,
                                                            const std::filesystem::path&) override {
    return std::optional<std::filesystem::path>();
  }
  Esito<std::optional<std::filesystem::path>> MostraGrafico(const DisegnoGrafico&,
                                                            const std::filesystem::path&) override {
    return std::optional<std::filesystem::path>();
  }
  std::optional<std::filesystem::path> FileImmagine(const std::filesystem::path&) override { return std::nullopt; }

 private:
  std::pair<int, int> m_dimensioni{800, 600};
};

// Keeps everything the library hands to its host.
class OspiteDiProva final : public InterfacciaScript {
 public:
  AreaDisegno* Disegno() override { return disegno; }
  void Scrivi(const TrattoTesto& tratto) override { testo += tratto.testo; }
  void Mostra(const Avviso& avviso) override { avvisi.push_back(avviso); }
  void Messaggio(const std::string& messaggio) override { messaggi.push_back(messaggio); }
  void Avanzamento(double) override {}

  AreaDisegno* disegno = nullptr;  // none unless the test gives one
  std::string testo;
  std::vector<Avviso> avvisi;
  std::vector<std::string> messaggi;
};

// The library added to an engine as a script run does, over a table built by each test.
class Libreria : public ::testing::Test {
 protected:
  void Avvia(TabellaEstrazioni tab, ImpostazioniLibreria impostazioni = {}) {
    m_tab = std::move(tab);
    impostazioni.archivio = &m_tab;
    ASSERT_TRUE(m_engine.SetLanguage("VBScript"));
    auto libreria = vbs::MakeRef<ClsFunctionsGeodoScript>(m_ospite, m_engine.interpreter().locale(), impostazioni);
    libreria->SetMotore(&m_engine.interpreter());
    ASSERT_TRUE(m_engine.AddObject("ClsFunctionsGeodoScript", std::move(libreria), true));
  }

  // The value as the script prints it; "errore n" when evaluating it failed in the engine itself.
  std::string Testo(std::string_view espressione) {
    auto valore = m_engine.Eval(text::Utf8ToUtf16(espressione));
    if (!valore) return "errore " + std::to_string(m_engine.Error().number);
    auto testo = valore->to_string(m_engine.interpreter().locale());
    return testo ? text::Utf16ToUtf8(testo->view()) : "non stampabile";
  }

  bool Vuoto(std::string_view espressione) {
    auto valore = m_engine.Eval(text::Utf8ToUtf16(espressione));
    return valore && valore->is_empty();
  }

  void Esegui(std::string_view codice) { ASSERT_TRUE(m_engine.AddCode(text::Utf8ToUtf16(codice), "prova")); }

  // The one message shown since the last call, which is forgotten.
  Avviso UnicoAvviso() {
    EXPECT_EQ(m_ospite.avvisi.size(), 1u);
    Avviso avviso = m_ospite.avvisi.empty() ? Avviso{} : m_ospite.avvisi.back();
    m_ospite.avvisi.clear();
    return avviso;
  }

  // The one message shown since the last call is error 5 from `funzione`, its reason naming
  // `spiegazione`; `dove` says which call, in failure messages.
  void AvvisoErrore5(std::string_view funzione, std::string_view spiegazione, std::string_view dove) {
    const Avviso avviso = UnicoAvviso();
    EXPECT_EQ(avviso.titolo, "ClsFunctionsGeodoScript." + std::string(funzione)) << dove;
    EXPECT_TRUE(avviso.testo.starts_with("5- ")) << avviso.testo << " <- " << dove;
    EXPECT_NE(avviso.testo.find(spiegazione), std::string::npos) << avviso.testo << " <- " << dove;
  }

  TabellaEstrazioni m_tab;
  OspiteDiProva m_ospite;
  vbs::ScriptControl m_engine;
};

}  // namespace lottolab::script
