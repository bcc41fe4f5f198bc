#pragma once

// The picture area of a script (the Pic... functions) and the circle of the 90 numbers, as the
// library sees them: plain values and one interface, no Qt. The host paints them (src/disegno holds
// the one painter code for the desktop and for the PNG of a headless run), so the library stays
// free of any window system and a test host can count what a script drew.

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "archive/Esito.h"

namespace lottolab::script {

struct DisegnoGrafico;  // DisegnoGrafico.h

// A colour as 0xRRGGBB.
using Rgb = uint32_t;

// The RGB of a script colour: 0..7 is the palette Nero_ .. Magenta_, a larger value a colour made
// by RGB(r, g, b) (red in the low byte, as VBScript builds it); nothing for a negative value or one
// past &HFFFFFF.
std::optional<Rgb> RgbDiColoreScript(int32_t colore);

// How a line is drawn.
struct Tratto {
  Rgb colore = 0x000000;
  double spessore = 1;
  bool tratteggiato = false;
};

// The kinds of figure on the circle, by the count of their vertices; a bit each in
// ImpostazioniCerchio::flag, which says the kinds that are drawn.
enum class TipoFiguraCerchio : uint8_t { Diametro = 0, Triangolo = 1, Quadrilatero = 2, Poligono = 3 };
TipoFiguraCerchio TipoDiFigura(size_t vertici);
inline constexpr uint32_t kFlagNumeri = 1u << 4;   // the 90 numbers written around the circle
inline constexpr uint32_t kFlagMarcati = 1u << 5;  // the marked numbers ringed
inline constexpr uint32_t kFlagTutti = 0x3F;

// What ImpostaPropColoriCerchioCiclo, ImpostaPropDrawWidthCerchioCiclo and
// ImpostaPropFlagFigureCerchioCiclo change.
struct ImpostazioniCerchio {
  Rgb sfondo = 0xFFFFFF;
  Rgb cerchio = 0x808080;
  Rgb numeri = 0x000000;
  Rgb marcati = 0xFF0000;
  Rgb figure = 0x0000FF;
  Rgb evidenziata = 0xFF00FF;
  double spessore_cerchio = 1;
  double spessore_figure = 2;
  double spessore_evidenziata = 4;
  uint32_t flag = kFlagTutti;
};

// A figure on the circle: its vertices (numbers 1..90, in the order they are joined) and, when it
// has its own, its colour and width; a figure found by a search also has the words that name it in
// the list beside a view.
struct FiguraCerchio {
  std::vector<int> numeri;
  std::optional<Rgb> colore;
  std::optional<double> spessore;
  std::string descrizione;
};

// A whole circle: the settings, the numbers marked, the figures and the one highlighted (an index of
// figure, none when negative).
struct DisegnoCerchio {
  ImpostazioniCerchio impostazioni;
  std::vector<int> marcati;
  std::vector<FiguraCerchio> figure;
  int evidenziata = -1;
};

// The picture area. Coordinates are pixels from the top left corner; every call is made on the
// script's thread.
class AreaDisegno {
 public:
  virtual ~AreaDisegno() = default;
  // A new blank picture of that size in the background colour.
  virtual void SetDimensioni(int larghezza, int altezza) = 0;
  // The colour Clear paints; the picture is not touched.
  virtual void ColoreSfondo(Rgb colore) = 0;
  virtual void Riempi(Rgb colore) = 0;
  virtual void Clear() = 0;
  virtual int TextWidth(const std::string& testo, int dimensione) = 0;
  virtual int TextHeight(const std::string& testo, int dimensione) = 0;
  // Text whose top left corner is at (x, y), turned by angolo degrees clockwise around it.
  virtual void StampaTesto(double x, double y, const std::string& testo, Rgb colore, int dimensione, double angolo) = 0;
  virtual void Punto(double x, double y, const Tratto& tratto) = 0;
  virtual void Linea(double x1, double y1, double x2, double y2, const Tratto& tratto) = 0;
  virtual void Poligono(const std::vector<std::pair<double, double>>& punti, const Tratto& tratto,
                        std::optional<Rgb> riempimento) = 0;
  virtual void Cerchio(double x, double y, double raggio, const Tratto& tratto, std::optional<Rgb> riempimento) = 0;
  // An open line through the points in their order (DisegnaLineaGrafico).
  virtual void Spezzata(const std::vector<std::pair<double, double>>& punti, const Tratto& tratto) = 0;
  // The picture's width and height in pixels.
  virtual std::pair<int, int> Dimensioni() const = 0;
  // The circle of the 90 numbers in the square of side lato whose top left corner is (x, y).
  virtual void DisegnaCerchio(const DisegnoCerchio& disegno, double x, double y, double lato) = 0;
  // Shows what was drawn so far: the window refreshes, a headless run writes its picture now (and
  // fails when the file cannot be written).
  virtual Esito<Fatto> Esegui() = 0;
  // Shows a circle in a view of its own (QvCerchio_InitDisegno), titled. A headless host writes it
  // as a picture beside the run's page `pagina` and returns that file, for the page to link.
  virtual Esito<std::optional<std::filesystem::path>> MostraCerchio(const DisegnoCerchio& disegno,
                                                                    const std::string& titolo,
                                                                    const std::filesystem::path& pagina) = 0;
  // Shows a chart (Grafico) in a view of its own; a headless host writes it as a picture beside the
  // run's page `pagina` and returns that file, for the page to link.
  virtual Esito<std::optional<std::filesystem::path>> MostraGrafico(const DisegnoGrafico& grafico,
                                                                    const std::filesystem::path& pagina) = 0;
  // The file the picture will be written to for the run's page `pagina` (empty when no page is
  // open), to be linked from it; nothing when this host writes no file.
  virtual std::optional<std::filesystem::path> FileImmagine(const std::filesystem::path& pagina) = 0;
};

}  // namespace lottolab::script
