#include "RigheDiTesto.h"

#include <charconv>
#include <fmt/format.h>

#include "DateEstrazione.h"

namespace lottolab {

namespace {

bool Spazio(char c) { return c == ' ' || c == '\t' || c == '\r'; }

// "hh:mm" as minutes after midnight.
bool LeggiOraRisultati(std::string_view testo, int& minuti) {
  int ore = 0, minuti_ora = 0;
  if (testo.size() != 5 || testo[2] != ':' || !LeggiIntero(testo.substr(0, 2), ore) ||
      !LeggiIntero(testo.substr(3), minuti_ora) || ore > 23 || minuti_ora > 59)
    return false;
  minuti = ore * 60 + minuti_ora;
  return true;
}

}  // namespace

std::string_view ProssimoCampo(std::string_view& resto) {
  size_t inizio = 0;
  while (inizio < resto.size() && Spazio(resto[inizio])) ++inizio;
  size_t fine = inizio;
  while (fine < resto.size() && !Spazio(resto[fine])) ++fine;
  std::string_view campo = resto.substr(inizio, fine - inizio);
  resto.remove_prefix(fine);
  return campo;
}

bool LeggiIntero(std::string_view testo, int& valore) {
  const char* fine = testo.data() + testo.size();
  auto [ptr, ec] = std::from_chars(testo.data(), fine, valore);
  return !testo.empty() && ec == std::errc() && ptr == fine && testo.front() != '-';
}

bool LeggiDataRisultati(std::string_view testo, GruppoData& data) {
  size_t barra1 = testo.find('/');
  size_t barra2 = barra1 == std::string_view::npos ? barra1 : testo.find('/', barra1 + 1);
  if (barra2 == std::string_view::npos || barra1 != 4) return false;
  int anno = 0, mese = 0, giorno = 0;
  if (!LeggiIntero(testo.substr(0, barra1), anno) ||
      !LeggiIntero(testo.substr(barra1 + 1, barra2 - barra1 - 1), mese) ||
      !LeggiIntero(testo.substr(barra2 + 1), giorno))
    return false;
  if (anno > 9999 || mese > 12 || giorno > 31) return false;
  data = GruppoData{0, static_cast<int16_t>(giorno), static_cast<int16_t>(mese), static_cast<int16_t>(anno)};
  return DataValida(data);
}

Avviso ErroreRiga(int riga, std::string motivo) { return AvvisoEsclamativo(fmt::format("Riga {}: {}", riga, motivo)); }

bool RigheRisultati::Prossima(std::string_view& primo, std::string_view& resto) {
  while (!m_testo.empty()) {
    const size_t a_capo = m_testo.find('\n');
    resto = m_testo.substr(0, a_capo);
    m_testo.remove_prefix(a_capo == std::string_view::npos ? m_testo.size() : a_capo + 1);
    ++m_riga;
    primo = ProssimoCampo(resto);
    if (!primo.empty() && primo.front() != '#') return true;
  }
  return false;
}

Esito<Fatto> PerOgniRigaDatata(std::string_view testo, const LettoreRiga& riga) {
  RigheRisultati righe(testo);
  std::string_view campo_data;
  std::string_view resto;
  while (righe.Prossima(campo_data, resto)) {
    EstrazioneGioco estrazione;
    if (!LeggiDataRisultati(campo_data, estrazione.data))
      return ErroreRiga(righe.riga(), fmt::format("\"{}\" non è una data AAAA/MM/GG", campo_data));
    if (auto rifiuto = riga(righe.riga(), estrazione, resto)) return *rifiuto;
  }
  return Fatto{};
}

std::optional<Avviso> LeggiCampoConcorso(int riga, std::string_view& resto, int massimo, int& concorso) {
  const std::string_view campo = ProssimoCampo(resto);
  if (LeggiIntero(campo, concorso) && concorso >= 1 && concorso <= massimo) return std::nullopt;
  return ErroreRiga(riga, fmt::format("\"{}\" non è un numero di concorso da 1 a {}", campo, massimo));
}

std::optional<Avviso> LeggiCampoOra(int riga, std::string_view& resto, int& minuti) {
  const std::string_view campo = ProssimoCampo(resto);
  if (LeggiOraRisultati(campo, minuti)) return std::nullopt;
  return ErroreRiga(riga, fmt::format("\"{}\" non è un'ora hh:mm", campo));
}

}  // namespace lottolab
