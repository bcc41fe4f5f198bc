#pragma once

// The object GetMotoreSviluppoIntegrale gives a script: an integral development with its own
// state, so that a script can walk several side by side (a search over the terni of one group
// nested in the ambi of another), which the one development of InitSviluppoIntegrale cannot. Its
// methods carry the names of the library's functions for that development, so a loop written with
// them reads the same through an object: m.GetCombSviluppo(aRet), m.GetCombSviluppate, ...

#include <vector>

#include "stats/SviluppoIntegrale.h"
#include "vbscript/HostObject.h"

namespace lottolab::script {

class MotoreSviluppoIntegrale final : public vbs::HostObject<MotoreSviluppoIntegrale> {
 public:
  // The development of `elementi` (as the script gave them) in groups of `classe`, 1..their count.
  MotoreSviluppoIntegrale(const vbs::Locale& locale, std::vector<vbs::Variant> elementi, int classe);
  static std::span<const Member> Members();
  std::u16string ClassName() const override { return u"MotoreSviluppoIntegrale"; }

 private:
  vbs::Result<vbs::Variant> GetCombSviluppo(vbs::CallArgs& args);
  vbs::Result<vbs::Variant> GetCombSviluppate(vbs::CallArgs& args);
  vbs::Result<vbs::Variant> GetPercCombSviluppate(vbs::CallArgs& args);
  vbs::Result<vbs::Variant> GetNumPerSviluppo(vbs::CallArgs& args);
  vbs::Result<vbs::Variant> ForzaIncremento(vbs::CallArgs& args);
  vbs::Result<vbs::Variant> QuantitaCombinazioni(vbs::CallArgs& args);
  vbs::Result<vbs::Variant> Riavvia(vbs::CallArgs& args);

  std::vector<vbs::Variant> m_elementi;
  int m_classe;
  stats::SviluppoIntegrale m_sviluppo;
};

// A count as a Long while it fits, a Double beyond: what the development's counts give scripts.
vbs::Variant ConteggioSviluppo(double conteggio);

// Argument i as the Livello of a skip in a development of `classe`: 1..classe, error 5 otherwise.
vbs::Result<int> LivelloArgomento(const vbs::CallArgs& args, size_t i, int classe);

}  // namespace lottolab::script
