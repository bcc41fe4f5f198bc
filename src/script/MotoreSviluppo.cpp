#include "MotoreSviluppo.h"

#include <fmt/format.h>

#include <limits>

#include "ArgomentiLotto.h"
#include "Famiglia.h"

namespace lottolab::script {

using vbs::CallArgs;
using vbs::Result;
using vbs::Variant;

Variant ConteggioSviluppo(double conteggio) {
  if (conteggio <= std::numeric_limits<int32_t>::max()) return Variant::Long(static_cast<int32_t>(conteggio));
  return Variant::Double(conteggio);
}

Result<int> LivelloArgomento(const CallArgs& args, size_t i, int classe) {
  VBS_TRY_ASSIGN(auto livello, args.Long(i));
  if (livello < 1 || livello > classe)
    return ArgomentoNonValido(fmt::format(
        "Livello {} non valido: deve essere compreso tra 1 e {}, la classe dello sviluppo", livello, classe));
  return livello;
}

MotoreSviluppoIntegrale::MotoreSviluppoIntegrale(const vbs::Locale& locale, std::vector<Variant> elementi, int classe)
    : HostObject(locale),
      m_elementi(std::move(elementi)),
      m_classe(classe),
      m_sviluppo(static_cast<int>(m_elementi.size()), classe) {}

std::span<const MotoreSviluppoIntegrale::Member> MotoreSviluppoIntegrale::Members() {
  using M = MotoreSviluppoIntegrale;
  static const Member kMembri[] = {
      {"GetCombSviluppo", 1, 1, &M::GetCombSviluppo, nullptr,
       "aRet: mette in aRet la combinazione successiva come array con indice da 1 e restituisce True; False alla "
       "fine"},
      {"GetCombSviluppate", 0, 0, &M::GetCombSviluppate, nullptr,
       "le combinazioni date o saltate finora, quella corrente compresa"},
      {"GetPercCombSviluppate", 0, 0, &M::GetPercCombSviluppate, nullptr,
       "la percentuale, 0..100, delle combinazioni date o saltate finora (Double)"},
      {"GetNumPerSviluppo", 1, 1, &M::GetNumPerSviluppo, nullptr,
       "aRet: riempie aRet con i numeri dello sviluppo, con indice da 1, e restituisce quanti sono"},
      {"ForzaIncrementoPuntatoreSvilSisInt", 1, 1, &M::ForzaIncremento, nullptr,
       "Livello: salta tutte le combinazioni che hanno i primi Livello elementi uguali a quella corrente; "
       "restituisce quante ne ha saltate"},
      {"QuantitaCombinazioni", 0, 0, &M::QuantitaCombinazioni, nullptr, "quante combinazioni ha lo sviluppo"},
      {"Riavvia", 0, 0, &M::Riavvia, nullptr, "riporta lo sviluppo a prima della prima combinazione"},
  };
  return kMembri;
}

Result<Variant> MotoreSviluppoIntegrale::GetCombSviluppo(CallArgs& args) {
  if (!m_sviluppo.Avanza()) return Variant::Boolean(false);
  std::vector<Variant> gruppo;
  for (int posizione : m_sviluppo.Gruppo()) gruppo.push_back(m_elementi[static_cast<size_t>(posizione)]);
  args.Out(0) = ArrayDaUno(std::move(gruppo));
  return Variant::Boolean(true);
}

Result<Variant> MotoreSviluppoIntegrale::GetCombSviluppate(CallArgs&) {
  return ConteggioSviluppo(m_sviluppo.Sviluppati());
}

Result<Variant> MotoreSviluppoIntegrale::GetPercCombSviluppate(CallArgs&) {
  return Variant::Double(100 * m_sviluppo.Sviluppati() / m_sviluppo.Totale());
}

Result<Variant> MotoreSviluppoIntegrale::GetNumPerSviluppo(CallArgs& args) {
  args.Out(0) = ArrayDaUno(m_elementi);
  return Variant::Long(static_cast<int32_t>(m_elementi.size()));
}

Result<Variant> MotoreSviluppoIntegrale::ForzaIncremento(CallArgs& args) {
  VBS_TRY_ASSIGN(auto livello, LivelloArgomento(args, 0, m_classe));
  return ConteggioSviluppo(m_sviluppo.Salta(livello));
}

Result<Variant> MotoreSviluppoIntegrale::QuantitaCombinazioni(CallArgs&) {
  return ConteggioSviluppo(m_sviluppo.Totale());
}

Result<Variant> MotoreSviluppoIntegrale::Riavvia(CallArgs&) {
  m_sviluppo = stats::SviluppoIntegrale(static_cast<int>(m_elementi.size()), m_classe);
  return Variant();
}

}  // namespace lottolab::script
