#include "DateEstrazione.h"

#include <array>
#include <charconv>
#include <ctime>
#include <fmt/format.h>
#include <vector>

namespace lottolab {

namespace {

bool LeggiIntero16(std::string_view parte, int16_t& uscita) {
  while (!parte.empty() && parte.front() == ' ') parte.remove_prefix(1);
  while (!parte.empty() && parte.back() == ' ') parte.remove_suffix(1);
  if (!parte.empty() && parte.front() == '+') parte.remove_prefix(1);
  const char* fine = parte.data() + parte.size();
  auto [ptr, ec] = std::from_chars(parte.data(), fine, uscita);
  return ec == std::errc() && ptr == fine && !parte.empty();
}

}  // namespace

std::string FormattaData(const GruppoData& data, bool anno_breve) {
  if (anno_breve) return fmt::format("{:02}/{:02}/{:02}", data.giorno, data.mese, data.anno % 100);
  return fmt::format("{:02}/{:02}/{:04}", data.giorno, data.mese, data.anno);
}

Esito<GruppoData> LeggiData(std::string_view testo, GruppoData base) {
  std::vector<std::string_view> parti;
  size_t inizio = 0;
  for (;;) {
    size_t barra = testo.find('/', inizio);
    parti.push_back(testo.substr(inizio, barra == std::string_view::npos ? barra : barra - inizio));
    if (barra == std::string_view::npos) break;
    inizio = barra + 1;
  }
  GruppoData data = base;
  if (parti.size() != 3 || !LeggiIntero16(parti[0], data.giorno) || !LeggiIntero16(parti[1], data.mese) ||
      !LeggiIntero16(parti[2], data.anno)) {
    return AvvisoEsclamativo(fmt::format("Data non corretta scrivere la data in formato GG/MM/AAAA {}", testo));
  }
  return data;
}

int ConfrontaDate(const GruppoData& a, const GruppoData& b) {
  if (a.anno != b.anno) return a.anno < b.anno ? -1 : 1;
  if (a.mese != b.mese) return a.mese < b.mese ? -1 : 1;
  if (a.giorno != b.giorno) return a.giorno < b.giorno ? -1 : 1;
  return 0;
}

int GiornoAssoluto(const GruppoData& data) {
  // Days from civil, shifted so that March starts the year and leap days fall last.
  int y = data.anno - (data.mese <= 2 ? 1 : 0);
  int era = (y >= 0 ? y : y - 399) / 400;
  int yoe = y - era * 400;
  int mp = (data.mese + 9) % 12;
  int doy = (153 * mp + 2) / 5 + data.giorno - 1;
  int doe = yoe * 365 + yoe / 4 - yoe / 100 + doy;
  return era * 146097 + doe - 693901;
}

int GiornoDellaSettimana(const GruppoData& data) {
  constexpr int kGiorni = 7;
  // Day 0, 1 January 1900, was a Monday.
  const int da_domenica = (GiornoAssoluto(data) + 1) % kGiorni;
  return (da_domenica + kGiorni) % kGiorni + 1;
}

bool DataValida(const GruppoData& data) {
  constexpr std::array<int, 12> kGiorni = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  if (data.anno < 1 || data.mese < 1 || data.mese > 12 || data.giorno < 1) return false;
  const bool bisestile = (data.anno % 4 == 0 && data.anno % 100 != 0) || data.anno % 400 == 0;
  return data.giorno <= (data.mese == 2 && bisestile ? 29 : kGiorni[data.mese - 1]);
}

GruppoData DataOdierna() {
  const std::time_t adesso = std::time(nullptr);
  std::tm locale{};
  localtime_r(&adesso, &locale);
  return GruppoData{0, static_cast<int16_t>(locale.tm_mday), static_cast<int16_t>(locale.tm_mon + 1),
                    static_cast<int16_t>(locale.tm_year + 1900)};
}

bool DataPossibile(const GruppoData& data, const GruppoData& oggi) {
  return DataValida(data) && data.anno >= kPrimoAnnoLotto && GiornoAssoluto(data) <= GiornoAssoluto(oggi) + 1;
}

}  // namespace lottolab
