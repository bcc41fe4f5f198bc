#include "RegolePremi.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <string>

#include "archive/DateEstrazione.h"

namespace lottolab::stats {

namespace {

// A value that holds from `dal` until the next row of its table.
template <typename T>
struct Datato {
  GruppoData dal;
  T valore;
};

// The row in force on `data`, from tables ordered by date; none before the first row.
template <typename T, size_t N>
std::optional<T> InVigore(const std::array<Datato<T>, N>& tabella, const GruppoData& data) {
  std::optional<T> trovato;
  for (const Datato<T>& riga : tabella)
    if (ConfrontaDate(riga.dal, data) <= 0) trovato = riga.valore;
  return trovato;
}

// The first rows hold since the first draw of the archive: the euro multipliers stand in for the
// lire-era tables, which are not known (see the README).
constexpr GruppoData kSempre = Data(1, 1, 1871);

struct RigaSorte {
  SorteLotto sorte;
  GruppoData dal;
  Centesimi moltiplicatore;
};

constexpr std::array kMoltiplicatoriLotto = {
    RigaSorte{SorteLotto::Estratto, kSempre, 1'123},
    RigaSorte{SorteLotto::Ambo, kSempre, 25'000},
    RigaSorte{SorteLotto::Terno, kSempre, 450'000},
    RigaSorte{SorteLotto::Quaterna, kSempre, 12'000'000},
    RigaSorte{SorteLotto::Cinquina, kSempre, 600'000'000},
    // Brought back in March 2005; the first draw after the reintroduction.
    RigaSorte{SorteLotto::EstrattoDeterminato, Data(16, 3, 2005), 5'500},
    // From draw 107 of 2013; divided by the combinations of the ambetto played.
    RigaSorte{SorteLotto::Ambetto, Data(5, 9, 2013), 26'000},
};

constexpr std::array kVincitaMassima = {Datato<Centesimi>{Data(1, 1, 2005), 6'000'000 * kCentesimiPerEuro}};

// 1% + 2% until 2004 (L. 311/2004 raised it), 8% from DL 50/2017.
constexpr std::array kRitenuteLotto = {
    Datato<int>{kSempre, 300},
    Datato<int>{Data(1, 1, 2005), 600},
    Datato<int>{Data(1, 10, 2017), 800},
};

constexpr std::array kRitenuteDieciELotto = {
    Datato<int>{kSempre, 600},
    Datato<int>{Data(1, 10, 2017), 800},
    Datato<int>{Data(1, 7, 2019), 1'100},
};

// The 6% row's date is uncertain (the 2011 budget law, applied from 2012); 12% from DL 50/2017,
// 20% from L. 160/2019.
constexpr std::array kRitenuteSuperEnalotto = {
    Datato<int>{kSempre, 0},
    Datato<int>{Data(1, 1, 2012), 600},
    Datato<int>{Data(1, 10, 2017), 1'200},
    Datato<int>{Data(1, 3, 2020), 2'000},
};

constexpr PosteLotto kPosteLotto{5, 100, 50, 200 * kCentesimiPerEuro, 10};

constexpr std::array<std::string_view, 7> kNomiSorti = {
    "estratto", "ambo", "terno", "quaterna", "cinquina", "estratto determinato", "ambetto"};

}  // namespace

int NumeriDellaSorte(SorteLotto sorte) {
  switch (sorte) {
    case SorteLotto::EstrattoDeterminato: return 1;
    case SorteLotto::Ambetto: return 2;
    default: return static_cast<int>(sorte);
  }
}

std::string_view NomeSorte(SorteLotto sorte) { return kNomiSorti[static_cast<size_t>(sorte) - 1]; }

std::optional<SorteLotto> SorteDaNome(std::string_view nome) {
  std::string minuscolo(nome);
  std::ranges::transform(minuscolo, minuscolo.begin(), [](unsigned char c) { return std::tolower(c); });
  if (minuscolo == "ambata") return SorteLotto::Estratto;
  if (minuscolo == "determinato") return SorteLotto::EstrattoDeterminato;
  if (minuscolo.size() == 1 && minuscolo[0] >= '1' && minuscolo[0] <= '5')
    return static_cast<SorteLotto>(minuscolo[0] - '0');
  for (size_t i = 0; i < kNomiSorti.size(); ++i)
    if (kNomiSorti[i] == minuscolo) return static_cast<SorteLotto>(i + 1);
  return std::nullopt;
}

std::optional<Centesimi> MoltiplicatoreLotto(SorteLotto sorte, const GruppoData& data) {
  std::optional<Centesimi> trovato;
  for (const RigaSorte& riga : kMoltiplicatoriLotto)
    if (riga.sorte == sorte && ConfrontaDate(riga.dal, data) <= 0) trovato = riga.moltiplicatore;
  return trovato;
}

std::optional<Centesimi> VincitaMassimaBiglietto(const GruppoData& data) { return InVigore(kVincitaMassima, data); }

int RitenutaLotto(const GruppoData& data) { return InVigore(kRitenuteLotto, data).value_or(0); }

const PosteLotto& LimitiPosteLotto() { return kPosteLotto; }

int RitenutaDieciELotto(const GruppoData& data) { return InVigore(kRitenuteDieciELotto, data).value_or(0); }

int RitenutaSuperEnalotto(const GruppoData& data) { return InVigore(kRitenuteSuperEnalotto, data).value_or(0); }

}  // namespace lottolab::stats
