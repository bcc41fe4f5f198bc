#pragma once

// The object a script gets for each figure of the circle of 90 (stats/Ciclometria.h), item of the
// collections of the GetColl... names of the cyclometry: its kind, its vertices in drawing order
// and the wheels of each vertex. It only reads: a script that wants other numbers builds a set.

#include "stats/Ciclometria.h"
#include "vbscript/HostObject.h"

namespace lottolab::script {

class FiguraCiclo final : public vbs::HostObject<FiguraCiclo> {
 public:
  FiguraCiclo(const vbs::Locale& locale, const stats::FiguraCiclometrica& figura)
      : HostObject(locale), m_figura(figura) {}
  static std::span<const Member> Members();
  std::u16string ClassName() const override { return u"FiguraCiclometrica"; }

  const stats::FiguraCiclometrica& figura() const { return m_figura; }

 private:
  vbs::Result<vbs::Variant> Descrizione(vbs::CallArgs& args);
  vbs::Result<vbs::Variant> Tipo(vbs::CallArgs& args);
  vbs::Result<vbs::Variant> IdTipo(vbs::CallArgs& args);
  vbs::Result<vbs::Variant> QuantitaVertici(vbs::CallArgs& args);
  vbs::Result<vbs::Variant> Vertice(vbs::CallArgs& args);
  vbs::Result<vbs::Variant> Numeri(vbs::CallArgs& args);
  vbs::Result<vbs::Variant> Ruote(vbs::CallArgs& args);
  vbs::Result<vbs::Variant> RuoteVertice(vbs::CallArgs& args);

  // Argument i as the place of a vertex, 1..QuantitaVertici; error 5 otherwise.
  vbs::Result<size_t> PostoVertice(const vbs::CallArgs& args, size_t i) const;

  stats::FiguraCiclometrica m_figura;
};

// The wheels of a mask of InsiemeCiclometrico in the script's numbering (Nazionale 12), in order.
std::vector<int> RuoteScript(uint16_t ruote);

}  // namespace lottolab::script
