#include "FiguraCiclo.h"

#include <fmt/format.h>

#include "ArgomentiLotto.h"
#include "Famiglia.h"
#include "archive/Ruote.h"

namespace lottolab::script {

using vbs::CallArgs;
using vbs::Result;
using vbs::Variant;

namespace {

constexpr int kNazionaleScript = 12;  // NZ_ in the script's numbering

}  // namespace

std::vector<int> RuoteScript(uint16_t ruote) {
  std::vector<int> numeri;
  for (int ruota = 1; ruota <= kNumeroRuote; ++ruota)
    if (ruote & (1u << (ruota - 1))) numeri.push_back(ruota == NZ ? kNazionaleScript : ruota);
  return numeri;
}

std::span<const FiguraCiclo::Member> FiguraCiclo::Members() {
  using F = FiguraCiclo;
  static const Member kMembri[] = {
      {"Descrizione", 0, 0, &F::Descrizione, nullptr,
       "il tipo e i vertici, con le ruote di ciascuno se la figura viene da ruote: \"Aquilone 10-18-55-2 (BA, BA, "
       "VE, NZ)\"; è il valore dell'oggetto, così Scrivi f la scrive",
       true},
      {"Tipo", 0, 0, &F::Tipo, nullptr, "il nome del tipo: \"Triangolo isoscele\", \"Aquilone\", ..."},
      {"IdTipo", 0, 0, &F::IdTipo, nullptr,
       "il tipo come numero: 1 diametro, 2 triangolo equilatero, 3 triangolo isoscele, 4 quadrato ciclometrico, "
       "5 rettangolo, 6 trapezio isoscele, 7 aquilone, 8 parallelepipedo"},
      {"QuantitaVertici", 0, 0, &F::QuantitaVertici, nullptr, "quanti vertici ha la figura, da 2 a 4"},
      {"Vertice", 1, 1, &F::Vertice, nullptr, "Indice: il numero del vertice Indice (da 1), nell'ordine del disegno"},
      {"Numeri", 0, 0, &F::Numeri, nullptr, "i vertici in un array con indice da 1, nell'ordine del disegno"},
      {"Ruote", 0, 0, &F::Ruote, nullptr,
       "un array con indice da 1 con la ruota di ogni vertice (NZ_ è 12); la prima, se il numero è uscito su più "
       "ruote; 0 per una figura di numeri dati dallo script"},
      {"RuoteVertice", 1, 1, &F::RuoteVertice, nullptr,
       "Indice: tutte le ruote su cui è uscito il vertice Indice, in un array con indice da 1 (vuoto, da 1 a 0, "
       "per numeri dati dallo script)"},
  };
  return kMembri;
}

Result<size_t> FiguraCiclo::PostoVertice(const CallArgs& args, size_t i) const {
  VBS_TRY_ASSIGN(auto indice, args.Long(i));
  if (indice < 1 || indice > m_figura.quanti)
    return ArgomentoNonValido(
        fmt::format("Vertice {} inesistente: la figura ha i vertici da 1 a {}", indice, int{m_figura.quanti}));
  return static_cast<size_t>(indice - 1);
}

Result<Variant> FiguraCiclo::Descrizione(CallArgs&) {
  return Variant::String(text::Utf8ToUtf16(stats::DescrizioneFigura(m_figura)));
}

Result<Variant> FiguraCiclo::Tipo(CallArgs&) {
  return Variant::String(text::Utf8ToUtf16(stats::NomeTipoFigura(m_figura.tipo)));
}

Result<Variant> FiguraCiclo::IdTipo(CallArgs&) { return Variant::Integer(static_cast<int16_t>(m_figura.tipo)); }

Result<Variant> FiguraCiclo::QuantitaVertici(CallArgs&) { return Variant::Integer(m_figura.quanti); }

Result<Variant> FiguraCiclo::Vertice(CallArgs& args) {
  VBS_TRY_ASSIGN(auto posto, PostoVertice(args, 0));
  return Variant::Integer(m_figura.vertici[posto]);
}

Result<Variant> FiguraCiclo::Numeri(CallArgs&) {
  std::vector<int> vertici(m_figura.Vertici().begin(), m_figura.Vertici().end());
  return ArrayDaUno(vertici);
}

Result<Variant> FiguraCiclo::Ruote(CallArgs&) {
  std::vector<int> ruote;
  for (size_t k = 0; k < m_figura.quanti; ++k) {
    const auto tutte = RuoteScript(m_figura.ruote[k]);
    ruote.push_back(tutte.empty() ? 0 : tutte.front());
  }
  return ArrayDaUno(ruote);
}

Result<Variant> FiguraCiclo::RuoteVertice(CallArgs& args) {
  VBS_TRY_ASSIGN(auto posto, PostoVertice(args, 0));
  return ArrayDaUno(RuoteScript(m_figura.ruote[posto]));
}

}  // namespace lottolab::script
