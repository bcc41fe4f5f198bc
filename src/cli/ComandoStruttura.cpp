#include <fmt/format.h>
#include <fmt/ostream.h>

#include "Comandi.h"
#include "figures/FileStrutture.h"

namespace lottolab::cli {

int ComandoStruttura(Contesto& contesto, const Parole& parole) {
  if (parole.size() != 1) return contesto.Fallisci(AvvisoEsclamativo("uso: lottolab struttura FILE"));
  auto struttura = figures::CaricaStruttura(parole[0]);
  if (!struttura) return contesto.Fallisci(struttura.Errore());

  fmt::print(contesto.out, "vertici: {}\n", struttura->vertici.size());
  for (const figures::ClsVertice& v : struttura->vertici) {
    fmt::print(contesto.out, "V {} {} {:d} {:d} {} {} {} {} {:d} {}\n", v.Index, v.IdEstrazione, v.FulcroOrizz,
               v.FulcroVert, v.Riga, v.Colonna, v.VersoVert, v.VersoOrizz, v.UsaPerChiusura, v.Caption);
  }
  fmt::print(contesto.out, "linee: {}\n", struttura->linee.size());
  for (const figures::ClsLinea& linea : struttura->linee)
    fmt::print(contesto.out, "L {} {} {}\n", linea.Numero, linea.Inizio, linea.Fine);
  fmt::print(contesto.out, "condizioni: {}\n", struttura->condizioni.size());
  for (const std::string& condizione : struttura->condizioni) fmt::print(contesto.out, "C {}\n", condizione);
  return kUscitaRiuscita;
}

}  // namespace lottolab::cli
