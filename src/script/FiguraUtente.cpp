#include "FiguraUtente.h"

#include <fmt/format.h>

#include <algorithm>

#include "ArgomentiLotto.h"
#include "Famiglia.h"
#include "archive/Ruote.h"

namespace lottolab::script {

using vbs::CallArgs;
using vbs::Result;
using vbs::Variant;

int RuotaScript(int ruota) {
  constexpr int kNazionaleScript = 12;
  return ruota == NZ ? kNazionaleScript : ruota;
}

std::span<const FiguraUtente::Member> FiguraUtente::Members() {
  using F = FiguraUtente;
  static const Member kMembri[] = {
      {"Descrizione", 0, 0, &F::Descrizione, nullptr,
       "l'estrazione che completa la figura e i vertici come ruota, posizione e numero: \"2: BA1 10, BA1 33\"; è il "
       "valore dell'oggetto, così Scrivi f la scrive",
       true},
      {"IdEstrazione", 0, 0, &F::IdEstrazione, nullptr, "l'estrazione che completa la figura (la sua ultima riga)"},
      {"QuantitaVertici", 0, 0, &F::QuantitaVertici, nullptr, "quanti vertici ha la figura"},
      {"Vertice", 1, 1, &F::Vertice, nullptr,
       "Indice: il numero del vertice Indice (da 1), nell'ordine dei vertici della struttura"},
      {"EstrazioneVertice", 1, 1, &F::EstrazioneVertice, nullptr, "Indice: l'estrazione della riga del vertice"},
      {"RuotaVertice", 1, 1, &F::RuotaVertice, nullptr, "Indice: la ruota del vertice (NZ_ è 12)"},
      {"PosizioneVertice", 1, 1, &F::PosizioneVertice, nullptr, "Indice: la posizione del vertice, da 1 a 5"},
      {"Numeri", 0, 0, &F::Numeri, nullptr, "i numeri dei vertici in un array con indice da 1"},
      {"NumeriGioco", 0, 0, &F::NumeriGioco, nullptr,
       "i numeri da giocare, ciascuno una volta, in un array con indice da 1: quelli dei vertici segnati per la "
       "chiusura, o di tutti i vertici se nessuno è segnato"},
      {"Ruote", 0, 0, &F::Ruote, nullptr,
       "le ruote toccate dalla figura, ciascuna una volta nell'ordine dei vertici, in un array con indice da 1"},
  };
  return kMembri;
}

std::vector<int> FiguraUtente::NumeriDaGiocare() const {
  // Two vertices may hold the same number, which is played once.
  const auto aggiungi = [](std::vector<int>& numeri, int numero) {
    if (std::find(numeri.begin(), numeri.end(), numero) == numeri.end()) numeri.push_back(numero);
  };
  std::vector<int> tutti, segnati;
  for (const auto& vertice : m_figura.vertici) {
    aggiungi(tutti, vertice.numero);
    if (vertice.chiusura) aggiungi(segnati, vertice.numero);
  }
  return segnati.empty() ? tutti : segnati;
}

Result<size_t> FiguraUtente::PostoVertice(int32_t indice) const {
  if (indice < 1 || static_cast<size_t>(indice) > m_figura.vertici.size())
    return ArgomentoNonValido(
        fmt::format("Vertice {} inesistente: la figura ha i vertici da 1 a {}", indice, m_figura.vertici.size()));
  return static_cast<size_t>(indice - 1);
}

const Estrazione* FiguraUtente::Riga(int id_estr, const TabellaEstrazioni* archivio) const {
  const TabellaEstrazioni* tabella = m_fonte.righe ? m_fonte.righe.get() : archivio;
  const int riga = id_estr - m_fonte.spostamento;
  return tabella && tabella->Contiene(riga) ? &(*tabella)[riga] : nullptr;
}

Result<const figures::VerticePiazzato*> FiguraUtente::VerticeArgomento(const CallArgs& args) const {
  VBS_TRY_ASSIGN(auto indice, args.Long(0));
  VBS_TRY_ASSIGN(auto posto, PostoVertice(indice));
  return &m_figura.vertici[posto];
}

Result<Variant> FiguraUtente::Descrizione(CallArgs&) {
  std::string testo = fmt::format("{}:", m_estrazione);
  for (size_t k = 0; k < m_figura.vertici.size(); ++k) {
    const auto& v = m_figura.vertici[k];
    testo += fmt::format("{} {}{} {}", k ? "," : "", SiglaRuota(v.ruota), v.posizione, v.numero);
  }
  return Variant::String(text::Utf8ToUtf16(testo));
}

Result<Variant> FiguraUtente::IdEstrazione(CallArgs&) { return Variant::Long(m_estrazione); }

Result<Variant> FiguraUtente::QuantitaVertici(CallArgs&) {
  return Variant::Long(static_cast<int32_t>(m_figura.vertici.size()));
}

Result<Variant> FiguraUtente::Vertice(CallArgs& args) {
  VBS_TRY_ASSIGN(auto vertice, VerticeArgomento(args));
  return Variant::Integer(static_cast<int16_t>(vertice->numero));
}

Result<Variant> FiguraUtente::EstrazioneVertice(CallArgs& args) {
  VBS_TRY_ASSIGN(auto vertice, VerticeArgomento(args));
  return Variant::Long(vertice->id_estr);
}

Result<Variant> FiguraUtente::RuotaVertice(CallArgs& args) {
  VBS_TRY_ASSIGN(auto vertice, VerticeArgomento(args));
  return Variant::Integer(static_cast<int16_t>(RuotaScript(vertice->ruota)));
}

Result<Variant> FiguraUtente::PosizioneVertice(CallArgs& args) {
  VBS_TRY_ASSIGN(auto vertice, VerticeArgomento(args));
  return Variant::Integer(static_cast<int16_t>(vertice->posizione));
}

Result<Variant> FiguraUtente::Numeri(CallArgs&) {
  std::vector<int> numeri;
  for (const auto& vertice : m_figura.vertici) numeri.push_back(vertice.numero);
  return ArrayDaUno(numeri);
}

Result<Variant> FiguraUtente::NumeriGioco(CallArgs&) { return ArrayDaUno(NumeriDaGiocare()); }

Result<Variant> FiguraUtente::Ruote(CallArgs&) {
  std::vector<int> ruote;
  for (const auto& vertice : m_figura.vertici)
    if (std::find(ruote.begin(), ruote.end(), RuotaScript(vertice.ruota)) == ruote.end())
      ruote.push_back(RuotaScript(vertice.ruota));
  return ArrayDaUno(ruote);
}

}  // namespace lottolab::script
