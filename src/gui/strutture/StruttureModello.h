#pragma once

// What the structure editor edits, without the window: the vertices placed on the grid of draws, the
// lines between them, the conditions, and whether the changes are saved. The editor's window shows
// this and calls it for every action, so that the editing rules are tested without a display.

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "app/Configurazione.h"
#include "archive/Esito.h"
#include "figures/Struttura.h"
#include "gui/strutture/GrigliaEstrazioni.h"

namespace lottolab::gui {

// The direction settings the editor offers (Piazzamento.h).
inline constexpr int16_t kVersoDisegnato = 1;
inline constexpr int16_t kVersoRovesciato = -1;
inline constexpr int16_t kVersoEntrambi = 2;

// The caption cut to the characters the structure file keeps.
std::string CaptionAmmessa(std::string_view caption);

// The folder that keeps the user's structures: key sCartellaStrutture of section GENERALE, "Strutture"
// by default, relative paths from the base folder. Apart from the archives, so that a dialog opened
// there never offers an archive's name.
std::filesystem::path CartellaStrutture(const app::Configurazione& configurazione);

// Whether a structure may be saved as `file`: not over an archive of the configuration, nor over
// anything that exists and is not a structure file. The refusal says why, in Italian.
Esito<Fatto> DestinazioneAmmessa(const std::filesystem::path& file, const app::Configurazione& configurazione);

class StruttureModello {
 public:
  const GrigliaEstrazioni& Griglia() const { return m_griglia; }
  // The grid moved to end on another draw; the vertices keep their cells and the draws they were
  // drawn on.
  void MostraFinoA(int ultima_estrazione) { m_griglia.ultima_estrazione = ultima_estrazione; }

  const std::vector<figures::ClsVertice>& Vertici() const { return m_vertici; }
  const std::vector<figures::ClsLinea>& Linee() const { return m_linee; }
  const std::vector<std::string>& Condizioni() const { return m_condizioni; }
  const figures::ClsVertice* Vertice(int16_t index) const;
  const figures::ClsVertice* VerticeNellaCella(int riga, int colonna) const;

  // A new vertex on an empty cell of the grid, with the first free Index and the first free letter as
  // caption; its Index, or 0 when the cell is taken or outside the grid or VerticeNonAmmesso refuses.
  int16_t AggiungiVertice(int riga, int colonna);
  // Why a vertex on the cell would take the structure beyond its limits (LimitiStrutture.h).
  std::optional<std::string> VerticeNonAmmesso(int riga) const;
  // The vertex and every line that touches it.
  void RimuoviVertice(int16_t index);
  // The caption cut to the characters the file keeps; refused, keeping the old one, when the file
  // could not keep it as typed (LimitiStrutture.h's TestoNonAmmesso).
  Esito<Fatto> ImpostaCaption(int16_t index, std::string_view caption);
  // One pivot of each kind: marking a vertex unmarks the others.
  void ImpostaFulcroOrizz(int16_t index, bool fulcro);
  void ImpostaFulcroVert(int16_t index, bool fulcro);
  void ImpostaVersoVert(int16_t index, int16_t verso);
  void ImpostaVersoOrizz(int16_t index, int16_t verso);
  void ImpostaChiusura(int16_t index, bool chiusura);

  // A line between two different vertices not yet joined; false otherwise, or when LineaNonAmmessa.
  bool Unisci(int16_t inizio, int16_t fine);
  std::optional<std::string> LineaNonAmmessa() const;

  // Refused when the structure holds the most conditions it may (CondizioneNonAmmessa says so before
  // a text is asked for) or when the file could not keep the text as typed.
  Esito<Fatto> AggiungiCondizione(std::string testo);
  Esito<Fatto> ModificaCondizione(size_t posto, std::string testo);
  std::optional<std::string> CondizioneNonAmmessa() const;
  void RimuoviCondizione(size_t posto);

  figures::Struttura Struttura() const;
  // The structure in place of what was edited, with the grid set to show it (see GrigliaPer) on an
  // archive of `estrazioni` draws.
  void Carica(const figures::Struttura& struttura, int estrazioni);
  // Empty, with the grid ending on the archive's last draw.
  void Nuova(int estrazioni);

  // A file that cannot be read leaves the editor empty and gives the file's message.
  Esito<Fatto> Apri(const std::filesystem::path& file, int estrazioni);
  // Writes the file as it is named: the caller checks DestinazioneAmmessa first. Refuses a structure
  // the file would not read back whole (a text with "fine" loaded from an old file).
  Esito<Fatto> Salva(const std::filesystem::path& file);
  const std::filesystem::path& File() const { return m_file; }
  bool Modificata() const { return m_modificata; }

 private:
  figures::ClsVertice* Modificabile(int16_t index);
  int16_t IndexLibero() const;
  std::string CaptionLibera() const;
  void Rinumera();

  GrigliaEstrazioni m_griglia;
  std::vector<figures::ClsVertice> m_vertici;
  std::vector<figures::ClsLinea> m_linee;
  std::vector<std::string> m_condizioni;
  std::filesystem::path m_file;
  bool m_modificata = false;
};

}  // namespace lottolab::gui
