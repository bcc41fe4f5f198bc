#include "TabellaOutput.h"

#include <algorithm>
#include <array>
#include <fmt/format.h>

#include "Famiglia.h"
#include "OutputHtml.h"
#include "text/AsciiCase.h"
#include "text/Utf.h"

namespace lottolab::script {

namespace {

std::string_view AllineamentoCss(Allineamento allineamento) {
  switch (allineamento) {
    case Allineamento::Sinistra: return "left";
    case Allineamento::Centro: return "center";
    case Allineamento::Destra: return "right";
  }
  return "left";
}

std::string StileCss(const Colori& colori) {
  std::string stile;
  if (colori.sfondo) stile += fmt::format("background-color:{};", ColoreHtml(*colori.sfondo));
  if (colori.testo) stile += fmt::format("color:{};", ColoreHtml(*colori.testo));
  return stile;
}

std::string AttributoStile(std::string stile) {
  if (stile.empty()) return {};
  if (stile.back() == ';') stile.pop_back();
  return fmt::format(" style=\"{}\"", stile);
}

// `tag` is th or td; a title of a sortable table sorts the rows when clicked.
std::string RigaHtml(const RigaTabella& riga, std::string_view tag, bool ordinabile) {
  std::string html =
      "<tr" + AttributoStile(StileCss(riga.colori) + fmt::format("text-align:{}", AllineamentoCss(riga.allineamento))) +
      ">";
  const std::string_view clic = ordinabile ? " onclick=\"ordinaTabella(this)\"" : "";
  for (const Cella& cella : riga.celle)
    html +=
        fmt::format("<{0}{1}{2}>{3}</{0}>", tag, AttributoStile(StileCss(cella.colori)), clic, TestoHtml(cella.testo));
  return html + "</tr>\n";
}

// Appends to the last run when the style is the same.
void AggiungiTratto(std::vector<TrattoTesto>& tratti, std::string testo, int16_t colore, bool grassetto) {
  if (!tratti.empty() && tratti.back().colore == colore && tratti.back().grassetto == grassetto) {
    tratti.back().testo += testo;
    return;
  }
  tratti.push_back({std::move(testo), colore, grassetto});
}

// Empty cells at the end of a row and the padding of its last cell are left out, so that no line
// ends in blanks. What lies between the cells takes the row's style, so that a line of one colour is
// one run.
void RigaTesto(std::vector<TrattoTesto>& tratti, const RigaTabella& riga, const std::vector<size_t>& larghezze,
               bool grassetto) {
  const auto ultima_piena =
      std::find_if(riga.celle.rbegin(), riga.celle.rend(), [](const Cella& cella) { return !cella.testo.empty(); });
  const size_t piene = static_cast<size_t>(riga.celle.rend() - ultima_piena);
  const int16_t colore_riga = riga.colori.testo.value_or(kNero);
  for (size_t colonna = 0; colonna < piene; ++colonna) {
    const Cella& cella = riga.celle[colonna];
    std::string testo = Allinea(cella.testo, larghezze[colonna], riga.allineamento);
    if (colonna + 1 == piene) testo.erase(testo.find_last_not_of(' ') + 1);
    AggiungiTratto(tratti, std::move(testo), cella.colori.testo.value_or(colore_riga), grassetto);
    if (colonna + 1 < piene) AggiungiTratto(tratti, std::string(kSpazioColonne), colore_riga, grassetto);
  }
  AggiungiTratto(tratti, "\n", colore_riga, grassetto);
}

std::vector<std::string> TestiRiga(const RigaTabella& riga) {
  std::vector<std::string> testi;
  for (const Cella& cella : riga.celle) testi.push_back(cella.testo);
  return testi;
}

}  // namespace

TabellaOutput::TabellaOutput(RigaTabella titoli, int bordo) : m_titoli(std::move(titoli)), m_bordo(bordo) {}

void TabellaOutput::AggiungiRiga(RigaTabella riga) {
  riga.celle.resize(std::max(riga.celle.size(), Colonne()));
  m_righe.push_back(std::move(riga));
}

std::string TabellaOutput::Html(bool ordinabile) const {
  std::string html = fmt::format("<table{} border=\"{}\"", ordinabile ? " class=\"ordinabile\"" : "", m_bordo);
  if (!m_larghezza.empty()) html += fmt::format(" width=\"{}\"", m_larghezza);
  html += ">\n<thead>\n" + RigaHtml(m_titoli, "th", ordinabile) + "</thead>\n<tbody>\n";
  for (const RigaTabella& riga : m_righe) html += RigaHtml(riga, "td", false);
  return html + "</tbody>\n</table>\n";
}

std::vector<TrattoTesto> TabellaOutput::Testo() const {
  std::vector<std::vector<std::string>> testi{TestiRiga(m_titoli)};
  for (const RigaTabella& riga : m_righe) testi.push_back(TestiRiga(riga));
  const std::vector<size_t> larghezze = LarghezzeColonne(testi);

  std::vector<TrattoTesto> tratti;
  RigaTesto(tratti, m_titoli, larghezze, true);
  std::vector<std::string> trattini;
  for (size_t larghezza : larghezze) trattini.emplace_back(larghezza, '-');
  AggiungiTratto(tratti, fmt::format("{}\n", fmt::join(trattini, kSpazioColonne)), kNero, false);
  for (const RigaTabella& riga : m_righe) RigaTesto(tratti, riga, larghezze, false);
  return tratti;
}

std::string_view ScriptOrdinamento() {
  return R"(<script>
function chiaveOrdinamento(testo) {
  var t = testo.trim();
  if (/^[-+]?\d+([.,]\d+)?$/.test(t)) return [0, parseFloat(t.replace(',', '.'))];
  var data = /^(\d{1,2})\/(\d{1,2})\/(\d{4})$/.exec(t);
  if (data) return [1, Number(data[3]) * 10000 + Number(data[2]) * 100 + Number(data[1])];
  return [2, t.toLowerCase()];
}
function confrontaChiavi(a, b) {
  if (a[0] != b[0]) return a[0] - b[0];
  if (a[0] == 2) return a[1].localeCompare(b[1]);
  return a[1] - b[1];
}
function ordinaTabella(titolo) {
  var corpo = titolo.closest('table').tBodies[0];
  var colonna = titolo.cellIndex;
  var verso = titolo.getAttribute('data-verso') == 'su' ? -1 : 1;
  titolo.setAttribute('data-verso', verso == 1 ? 'su' : 'giu');
  var righe = Array.prototype.slice.call(corpo.rows);
  righe.sort(function (a, b) {
    return verso * confrontaChiavi(chiaveOrdinamento(a.cells[colonna].textContent),
                                   chiaveOrdinamento(b.cells[colonna].textContent));
  });
  righe.forEach(function (riga) { corpo.appendChild(riga); });
}
</script>
)";
}

size_t LarghezzaTesto(std::string_view testo) {
  return static_cast<size_t>(
      std::count_if(testo.begin(), testo.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
}

std::string Allinea(std::string_view testo, size_t larghezza, Allineamento allineamento) {
  const size_t mostrati = LarghezzaTesto(testo);
  if (mostrati >= larghezza) return std::string(testo);
  const size_t mancanti = larghezza - mostrati;
  const size_t prima = allineamento == Allineamento::Destra   ? mancanti
                       : allineamento == Allineamento::Centro ? mancanti / 2
                                                              : 0;
  return std::string(prima, ' ') + std::string(testo) + std::string(mancanti - prima, ' ');
}

std::vector<size_t> LarghezzeColonne(const std::vector<std::vector<std::string>>& righe) {
  std::vector<size_t> larghezze;
  for (const auto& riga : righe) {
    if (riga.size() > larghezze.size()) larghezze.resize(riga.size());
    for (size_t colonna = 0; colonna < riga.size(); ++colonna)
      larghezze[colonna] = std::max(larghezze[colonna], LarghezzaTesto(riga[colonna]));
  }
  return larghezze;
}

vbs::Result<int16_t> ColoreArgomento(const vbs::CallArgs& args, size_t i) {
  VBS_TRY_ASSIGN(auto colore, args.Integer(i));
  if (colore < kNero || colore > kMagenta)
    return ArgomentoNonValido(fmt::format("Colore non valido: {} (da 0, Nero_, a 7, Magenta_)", colore));
  return colore;
}

vbs::Result<std::optional<int16_t>> ColoreFacoltativo(const vbs::CallArgs& args, size_t i) {
  if (!args.Has(i)) return std::optional<int16_t>();
  VBS_TRY_ASSIGN(auto colore, ColoreArgomento(args, i));
  return std::optional<int16_t>(colore);
}

vbs::Result<Allineamento> AllineamentoArgomento(const vbs::CallArgs& args, size_t i, Allineamento se_omesso) {
  if (!args.Has(i)) return se_omesso;
  VBS_TRY_ASSIGN(auto testo, args.String(i));
  struct Nome {
    std::string_view nome;
    Allineamento allineamento;
  };
  static constexpr std::array<Nome, 6> kNomi{{{"sinistra", Allineamento::Sinistra},
                                              {"left", Allineamento::Sinistra},
                                              {"centro", Allineamento::Centro},
                                              {"center", Allineamento::Centro},
                                              {"destra", Allineamento::Destra},
                                              {"right", Allineamento::Destra}}};
  const std::string nome = text::LowerAscii(text::Utf16ToUtf8(testo));
  for (const Nome& noto : kNomi)
    if (noto.nome == nome) return noto.allineamento;
  return ArgomentoNonValido(
      fmt::format("Allineamento non valido: \"{}\" (sinistra, centro o destra)", text::Utf16ToUtf8(testo)));
}

}  // namespace lottolab::script
