#pragma once

// The object a script gets for each placement of a user figure (figures/RicercaFigure.h) found on
// the table of draws, item of the collections of GetCollFiguraUtente: its vertices with the draw,
// wheel, position and number of each, the numbers to play and the wheels it touches. It only reads.
//
// A figure also knows the table it was found on, so that it can be drawn with the numbers around
// it: the Lotto archive, the copy of its last draws with the script's numbers (QN), or the generic
// archive's draws laid into the table's columns (FT). The copies are shared by the figures of one
// search, never one per figure.

#include <memory>

#include "archive/TabellaEstrazioni.h"
#include "figures/FiguraPiazzata.h"
#include "vbscript/HostObject.h"

namespace lottolab::script {

// Which search found a figure, so which of the DisegnaFiguraGeodomica names draws it.
enum class OrigineFigura : uint8_t { Lotto, NumeriScript, Generico };

// The table a figure was found on. Lotto figures read the run's archive (`righe` empty); the others
// keep the table searched, whose draw r is the archive's draw r + spostamento.
struct FonteFigura {
  OrigineFigura origine = OrigineFigura::Lotto;
  std::shared_ptr<const TabellaEstrazioni> righe;
  int spostamento = 0;
  int colonne = kNumeroRuote * kNumeriPerRuota;  // the columns that may hold numbers: the generic archive's K
};

class FiguraUtente final : public vbs::HostObject<FiguraUtente> {
 public:
  // `estrazione`: the draw that completes the figure, its last row.
  FiguraUtente(const vbs::Locale& locale, int estrazione, figures::FiguraPiazzata figura, FonteFigura fonte = {})
      : HostObject(locale), m_estrazione(estrazione), m_figura(std::move(figura)), m_fonte(std::move(fonte)) {}
  static std::span<const Member> Members();
  std::u16string ClassName() const override { return u"FiguraGeodomica"; }

  const figures::FiguraPiazzata& figura() const { return m_figura; }
  int estrazione() const { return m_estrazione; }
  OrigineFigura origine() const { return m_fonte.origine; }
  int colonne() const { return m_fonte.colonne; }
  // The row of the figure's table for the archive's draw `id_estr`, read from `archivio` for a Lotto
  // figure; none when the table does not hold it.
  const Estrazione* Riga(int id_estr, const TabellaEstrazioni* archivio) const;
  // The numbers to play: those of the vertices marked for the play, or every vertex's when none is.
  std::vector<int> NumeriDaGiocare() const;
  // Vertex `indice` (from 1) as a place in the list; error 5 when there is none.
  vbs::Result<size_t> PostoVertice(int32_t indice) const;

 private:
  vbs::Result<vbs::Variant> Descrizione(vbs::CallArgs& args);
  vbs::Result<vbs::Variant> IdEstrazione(vbs::CallArgs& args);
  vbs::Result<vbs::Variant> QuantitaVertici(vbs::CallArgs& args);
  vbs::Result<vbs::Variant> Vertice(vbs::CallArgs& args);
  vbs::Result<vbs::Variant> EstrazioneVertice(vbs::CallArgs& args);
  vbs::Result<vbs::Variant> RuotaVertice(vbs::CallArgs& args);
  vbs::Result<vbs::Variant> PosizioneVertice(vbs::CallArgs& args);
  vbs::Result<vbs::Variant> Numeri(vbs::CallArgs& args);
  vbs::Result<vbs::Variant> NumeriGioco(vbs::CallArgs& args);
  vbs::Result<vbs::Variant> Ruote(vbs::CallArgs& args);

  vbs::Result<const figures::VerticePiazzato*> VerticeArgomento(const vbs::CallArgs& args) const;

  int m_estrazione;
  figures::FiguraPiazzata m_figura;
  FonteFigura m_fonte;
};

// A wheel of the table (Nazionale 11) in the script's numbering (NZ_ is 12).
int RuotaScript(int ruota);

}  // namespace lottolab::script
