#pragma once

// The script's picture area painted into a QImage: the same image whether the desktop shows it or a
// headless run writes it as PNG. It counts what it drew, so tests check a picture by its counts and
// a few pixels rather than by the bytes of a whole image. What a host does with the picture (show
// it, write it) is left to a subclass.

#include <QImage>
#include <filesystem>

#include "CerchioCiclometrico.h"
#include "GraficoImmagine.h"
#include "archive/Esito.h"
#include "script/AreaDisegno.h"

namespace lottolab::disegno {

// A side of the picture may go up to kLatoMassimo pixels: a script's typo must not ask for
// gigabytes of memory.
inline constexpr int kLatoMassimo = 8000;
inline constexpr int kLarghezzaIniziale = 640;
inline constexpr int kAltezzaIniziale = 480;

// What was drawn since the picture was last made or cleared.
struct ConteggioTela {
  int punti = 0;
  int linee = 0;
  int poligoni = 0;
  int cerchi = 0;
  int spezzate = 0;
  int testi = 0;
  ConteggioCerchio cerchio;  // summed over the circles of the 90 numbers drawn
};

class TelaImmagine : public script::AreaDisegno {
 public:
  TelaImmagine();

  void SetDimensioni(int larghezza, int altezza) override;
  void ColoreSfondo(script::Rgb colore) override { m_sfondo = colore; }
  void Riempi(script::Rgb colore) override;
  void Clear() override;
  int TextWidth(const std::string& testo, int dimensione) override;
  int TextHeight(const std::string& testo, int dimensione) override;
  void StampaTesto(double x, double y, const std::string& testo, script::Rgb colore, int dimensione,
                   double angolo) override;
  void Punto(double x, double y, const script::Tratto& tratto) override;
  void Linea(double x1, double y1, double x2, double y2, const script::Tratto& tratto) override;
  void Poligono(const std::vector<std::pair<double, double>>& punti, const script::Tratto& tratto,
                std::optional<script::Rgb> riempimento) override;
  void Cerchio(double x, double y, double raggio, const script::Tratto& tratto,
               std::optional<script::Rgb> riempimento) override;
  void Spezzata(const std::vector<std::pair<double, double>>& punti, const script::Tratto& tratto) override;
  std::pair<int, int> Dimensioni() const override { return {m_immagine.width(), m_immagine.height()}; }
  void DisegnaCerchio(const script::DisegnoCerchio& disegno, double x, double y, double lato) override;

  // Back to a new run's blank picture: the initial size, white, nothing drawn.
  virtual void Ricomincia();

  const QImage& Immagine() const { return m_immagine; }
  const ConteggioTela& Conteggio() const { return m_conteggio; }
  // Whether anything was drawn since the picture was made: a run that drew nothing writes no file.
  bool Disegnata() const { return m_disegnata; }

 protected:
  // Called after every change of the picture; the desktop's area uses it to refresh.
  virtual void Cambiata() {}

 private:
  QImage m_immagine;
  script::Rgb m_sfondo = 0xFFFFFF;
  ConteggioTela m_conteggio;
  bool m_disegnata = false;
};

// The picture of a circle alone, lato pixels a side.
QImage ImmagineCerchio(const script::DisegnoCerchio& disegno, int lato, ConteggioCerchio* conteggio = nullptr);

// Writes the image as PNG all at once: into a file beside it, renamed over `file` once whole.
Esito<Fatto> SalvaPng(const QImage& immagine, const std::filesystem::path& file);

// Makes a QGuiApplication on the offscreen platform, which text needs for its fonts, when the
// process has no Qt application yet (the command line, a test). It lives until the process ends, so
// that a second run in the same process finds it. Main thread only.
void AssicuraApplicazioneGrafica();

// The picture area of a headless run: the picture goes to a PNG beside the run's HTML page (the
// page's name with ".png"), written by Esegui and by Salva at the end of the run; each circle shown
// by MostraCerchio to its own PNG (the page's name with "_cerchioN.png"), and each chart of
// MostraGrafico likewise ("_graficoN.png").
class TelaPng : public TelaImmagine {
 public:
  Esito<Fatto> Esegui() override;
  Esito<std::optional<std::filesystem::path>> MostraCerchio(const script::DisegnoCerchio& disegno,
                                                            const std::string& titolo,
                                                            const std::filesystem::path& pagina) override;
  Esito<std::optional<std::filesystem::path>> MostraGrafico(const script::DisegnoGrafico& grafico,
                                                            const std::filesystem::path& pagina) override;
  std::optional<std::filesystem::path> FileImmagine(const std::filesystem::path& pagina) override;
  // A new run also names its files anew, beside its own page.
  void Ricomincia() override;
  // What the last chart written drew.
  const ConteggioGrafico& UltimoGrafico() const { return m_ultimo_grafico; }
  // Writes the picture once the page links it (FileImmagine was asked); the file written, nothing
  // when the run never used the picture area.
  Esito<std::optional<std::filesystem::path>> Salva();
  // The file of the picture; empty until the library asked for it.
  const std::filesystem::path& File() const { return m_file; }

 private:
  std::filesystem::path m_file;
  int m_cerchi = 0;
  int m_grafici = 0;
  ConteggioGrafico m_ultimo_grafico;
};

}  // namespace lottolab::disegno
