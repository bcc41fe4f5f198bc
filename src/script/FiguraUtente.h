#pragma once

// The object a script gets for each placement of a user figure (figures/RicercaFigure.h) found on
// the table of draws, item of the collections of GetCollFiguraUtente: its vertices with the draw,
// wheel, position and number of each, the numbers to play and the wheels it touches. It only reads.

#include "figures/FiguraPiazzata.h"
#include "vbscript/HostObject.h"

namespace lottolab::script {

class FiguraUtente final : public vbs::HostObject<FiguraUtente> {
 public:
  // `estrazione`: the draw that completes the figure, its last row.
  FiguraUtente(const vbs::Locale& locale, int estrazione, figures::FiguraPiazzata figura)
      : HostObject(locale), m_estrazione(estrazione), m_figura(std::move(figura)) {}
  static std::span<const Member> Members();
  std::u16string ClassName() const override { return u"FiguraGeodomica"; }

  const figures::FiguraPiazzata& figura() const { return m_figura; }
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
};

// A wheel of the table (Nazionale 11) in the script's numbering (NZ_ is 12).
int RuotaScript(int ruota);

}  // namespace lottolab::script
