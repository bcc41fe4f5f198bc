#pragma once

// The script window as scripts see it, under the name F_Script with its members as global names:
// its title, its progress bar, its text output and its picture area. Every host adds it, so a
// script that sets the window's caption runs unchanged from the command line, where the members
// reach the host's defaults.

#include "InterfacciaScript.h"
#include "vbscript/HostObject.h"

namespace lottolab::script {

class OggettoFinestra final : public vbs::HostObject<OggettoFinestra> {
 public:
  OggettoFinestra(const vbs::Locale& locale, InterfacciaScript& ospite) : HostObject(locale), m_ospite(ospite) {}
  static std::span<const Member> Members();
  std::u16string ClassName() const override { return u"F_Script"; }

 private:
  vbs::Result<vbs::Variant> Caption(vbs::CallArgs& args);
  vbs::Result<vbs::Variant> ImpostaCaption(vbs::CallArgs& args, vbs::Variant valore);
  vbs::Result<vbs::Variant> Avanzamento(vbs::CallArgs& args);
  vbs::Result<vbs::Variant> ImpostaAvanzamento(vbs::CallArgs& args, vbs::Variant valore);
  vbs::Result<vbs::Variant> PulisciOutput(vbs::CallArgs& args);
  vbs::Result<vbs::Variant> PulisciDisegno(vbs::CallArgs& args);

  InterfacciaScript& m_ospite;
  std::u16string m_caption;
  double m_avanzamento = 0;
};

}  // namespace lottolab::script
