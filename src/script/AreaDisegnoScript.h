#pragma once

// What the drawing families (FunzioniPic, FunzioniPicCerchio) share: the host's picture area, with
// the picture linked from the run's page at its first use, and the reading of colours and widths.

#include <optional>

#include "AreaDisegno.h"
#include "ClsFunctionsGeodoScript.h"

namespace lottolab::script {

// The picture area, error 5 when the host has none. At the first call of a run the page gets an
// <img> of the file the host will write (when it writes one), checked against the run's file rules.
vbs::Result<AreaDisegno*> AreaDelloScript(ClsFunctionsGeodoScript& lib, std::string_view funzione);

// The page a picture beside it is named after: the open page, else the one the run would open.
std::filesystem::path PaginaDellEsecuzione(ClsFunctionsGeodoScript& lib);

// Argument i as a colour (RgbDiColoreScript), `se_omesso` when omitted; error 5 for any other value.
vbs::Result<Rgb> ColoreDisegno(const vbs::CallArgs& args, size_t i, Rgb se_omesso);
// The same, none when omitted.
vbs::Result<std::optional<Rgb>> ColoreDisegnoFacoltativo(const vbs::CallArgs& args, size_t i);
// Argument i as a line width in pixels, 0..kSpessoreMassimo, `se_omesso` when omitted.
vbs::Result<double> SpessoreDisegno(const vbs::CallArgs& args, size_t i, double se_omesso);
inline constexpr double kSpessoreMassimo = 100;

}  // namespace lottolab::script
