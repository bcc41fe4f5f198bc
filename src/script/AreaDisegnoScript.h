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

// Argument i as a coordinate in pixels, `se_omessa` when omitted (required when none). Coordinates
// far outside any picture are a script's error, and NaN or infinity would reach the painter: both
// are refused.
vbs::Result<double> CoordinataDisegno(const vbs::CallArgs& args, size_t i, std::optional<double> se_omessa = {});
inline constexpr double kCoordinataMassima = 1e6;

// Argument i as the height of a text in pixels, 1..kDimensioneTestoMassima, `se_omessa` when omitted.
inline constexpr int kDimensioneTesto = 12;
inline constexpr int kDimensioneTestoMassima = 400;
vbs::Result<int> DimensioneTestoDisegno(const vbs::CallArgs& args, size_t i, int se_omessa = kDimensioneTesto);

}  // namespace lottolab::script
