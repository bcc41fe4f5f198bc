#include "Agenda.h"

#include <fmt/format.h>

#include <algorithm>
#include <charconv>
#include <set>
#include <tuple>

#include "Schema.h"
#include "archive/DateEstrazione.h"
#include "archive/FileSicuri.h"

namespace lottolab::agenda {

namespace fs = std::filesystem;

namespace {

std::string TestoData(const GruppoData& data) {
  return fmt::format("{:04}-{:02}-{:02}", data.anno, data.mese, data.giorno);
}

// "AAAA-MM-GG" back into a date; anything else gives none, and the caller refuses the record.
std::optional<GruppoData> DataDaTesto(std::string_view testo) {
  int anno = 0, mese = 0, giorno = 0;
  if (testo.size() != 10 || testo[4] != '-' || testo[7] != '-') return std::nullopt;
  auto parte = [&](size_t da, size_t quanti, int& valore) {
    auto [fine, ec] = std::from_chars(testo.data() + da, testo.data() + da + quanti, valore);
    return ec == std::errc() && fine == testo.data() + da + quanti;
  };
  if (!parte(0, 4, anno) || !parte(5, 2, mese) || !parte(8, 2, giorno)) return std::nullopt;
  GruppoData data{0, static_cast<int16_t>(giorno), static_cast<int16_t>(mese), static_cast<int16_t>(anno)};
  if (!DataValida(data)) return std::nullopt;
  return data;
}

std::string TestoNumeri(const std::vector<int>& numeri) { return fmt::format("{}", fmt::join(numeri, " ")); }

std::optional<std::vector<int>> NumeriDaTesto(std::string_view testo) {
  std::vector<int> numeri;
  const char* p = testo.data();
  const char* fine = testo.data() + testo.size();
  while (p < fine) {
    int numero = 0;
    auto [dopo, ec] = std::from_chars(p, fine, numero);
    if (ec != std::errc() || (dopo < fine && *dopo != ' ')) return std::nullopt;
    numeri.push_back(numero);
    p = dopo + (dopo < fine ? 1 : 0);
  }
  return numeri;
}

// A win as the "seen" mark knows it: the same colpo, wheel, sorte and numbers are the same news.
using ChiaveVincita = std::tuple<int64_t, int64_t, std::string, std::string>;

// The clause of a bet being closed, over the bets' table named g.
constexpr std::string_view kChiusa =
    "((SELECT COUNT(*) FROM verifiche v WHERE v.giocata = g.id) >= g.colpi OR "
    "(g.ferma_alla_vincita = 1 AND EXISTS (SELECT 1 FROM vincite w WHERE w.giocata = g.id)))";

std::string CondizioneFiltro(const FiltroGiocate& filtro) {
  std::string condizione = "1";
  if (filtro.stato == StatoGiocate::Aperte) condizione += fmt::format(" AND NOT {}", kChiusa);
  if (filtro.stato == StatoGiocate::Chiuse) condizione += fmt::format(" AND {}", kChiusa);
  if (filtro.gioco) condizione += fmt::format(" AND g.gioco = '{}'", SiglaGioco(*filtro.gioco));
  return condizione;
}

// A draw won when it holds a win, priced or not.
constexpr std::string_view kSommeVerifiche =
    "COUNT(v.colpo), COALESCE(SUM(v.spesa), 0), COALESCE(SUM(v.lordo), 0), COALESCE(SUM(v.ritenuta), 0), "
    "COALESCE(SUM(v.netto), 0), "
    "COALESCE(SUM(EXISTS (SELECT 1 FROM vincite w WHERE w.giocata = v.giocata AND w.colpo = v.colpo)), 0), "
    "COALESCE(SUM((SELECT COUNT(*) FROM vincite w WHERE w.giocata = v.giocata AND w.colpo = v.colpo AND "
    "w.importo_noto = 0)), 0)";

Totali LeggiTotali(const Istruzione& riga, int prima) {
  return Totali{riga.Intero(prima + 1),
                riga.Intero(prima + 2),
                riga.Intero(prima + 3),
                riga.Intero(prima + 4),
                static_cast<int>(riga.Intero(prima)),
                static_cast<int>(riga.Intero(prima + 5)),
                static_cast<int>(riga.Intero(prima + 6))};
}

// A count or index read back from the file, kept within int; the checks that follow refuse it when
// it is out of the range it should have.
int Stretto(int64_t valore) { return static_cast<int>(std::clamp<int64_t>(valore, -1, 1'000'000'000)); }

Avviso GiocataAssente(int64_t id) { return AvvisoEsclamativo(fmt::format("la giocata {} non è nell'agenda", id)); }

}  // namespace

Esito<Agenda> Agenda::Apri(const fs::path& file) {
  // An absent file becomes a new agenda; a folder, a device or a pipe in its place is refused.
  if (auto ordinario = VerificaFileOrdinario(file);
      !ordinario && ordinario.Errore().genere != GuastoFile::Genere::Assente)
    return AvvisoEsclamativo(
        fmt::format("l'agenda delle giocate {} non si può aprire: {}", file.string(), ordinario.Errore().motivo));
  auto connessione = Connessione::Apri(file);
  if (!connessione) return connessione.Errore();
  if (auto schema = PreparaSchema(*connessione); !schema) return schema.Errore();
  return Agenda(std::move(connessione).Valore());
}

Esito<int64_t> Agenda::Aggiungi(const Giocata& giocata) {
  if (auto valida = ControllaGiocata(giocata); !valida) return valida.Errore();
  return m_connessione.InTransazione([&]() -> Esito<int64_t> {
    auto riga = m_connessione.Prepara(
        "INSERT INTO giocate (gioco, numero_speciale, dal, id_estr_dal, colpi, ferma_alla_vincita, nota, creata) "
        "VALUES (?, ?, ?, ?, ?, ?, ?, CAST(strftime('%s', 'now') AS INTEGER)) RETURNING id");
    if (!riga) return riga.Errore();
    riga->Lega(1, SiglaGioco(giocata.gioco)).Lega(2, giocata.numero_speciale);
    if (giocata.dal)
      riga->Lega(3, TestoData(*giocata.dal));
    else
      riga->LegaNullo(3);
    if (giocata.id_estr_dal)
      riga->Lega(4, *giocata.id_estr_dal);
    else
      riga->LegaNullo(4);
    riga->Lega(5, giocata.colpi).Lega(6, giocata.ferma_alla_vincita ? 1 : 0).Lega(7, giocata.nota);
    auto passo = riga->Passo();
    if (!passo) return passo.Errore();
    const int64_t id = riga->Intero(0);
    if (auto fine = riga->Esegui(); !fine) return fine.Errore();

    // Each part is a list of (position, value) rows of one table.
    auto scrivi = [&](std::string_view sql, auto&& lega, size_t quante) -> Esito<Fatto> {
      auto istruzione = m_connessione.Prepara(sql);
      if (!istruzione) return istruzione.Errore();
      for (size_t i = 0; i < quante; ++i) {
        istruzione->Lega(1, id);
        lega(istruzione.Valore(), i);
        if (auto fatto = istruzione->Esegui(); !fatto) return fatto;
        istruzione->Reimposta();
      }
      return Fatto{};
    };
    std::vector<std::tuple<int, int, int>> numeri;
    for (size_t c = 0; c < giocata.colonne.size(); ++c)
      for (size_t p = 0; p < giocata.colonne[c].size(); ++p)
        numeri.emplace_back(static_cast<int>(c) + 1, static_cast<int>(p) + 1, giocata.colonne[c][p]);
    if (auto fatto = scrivi(
            "INSERT INTO numeri VALUES (?, ?, ?, ?)",
            [&](Istruzione& i, size_t k) {
              i.Lega(2, std::get<0>(numeri[k])).Lega(3, std::get<1>(numeri[k])).Lega(4, std::get<2>(numeri[k]));
            },
            numeri.size());
        !fatto)
      return fatto.Errore();
    if (auto fatto = scrivi(
            "INSERT INTO ruote VALUES (?, ?, ?)",
            [&](Istruzione& i, size_t k) { i.Lega(2, static_cast<int64_t>(k) + 1).Lega(3, giocata.ruote[k]); },
            giocata.ruote.size());
        !fatto)
      return fatto.Errore();
    if (auto fatto = scrivi(
            "INSERT INTO poste VALUES (?, ?, ?, ?)",
            [&](Istruzione& i, size_t k) {
              i.Lega(2, static_cast<int64_t>(k) + 1)
                  .Lega(3, giocata.poste[k].sorte)
                  .Lega(4, giocata.poste[k].centesimi);
            },
            giocata.poste.size());
        !fatto)
      return fatto.Errore();
    if (auto fatto = scrivi(
            "INSERT INTO progressione VALUES (?, ?, ?)",
            [&](Istruzione& i, size_t k) { i.Lega(2, static_cast<int64_t>(k) + 1).Lega(3, giocata.progressione[k]); },
            giocata.progressione.size());
        !fatto)
      return fatto.Errore();
    return id;
  });
}

Esito<Giocata> Agenda::Carica(int64_t id) const {
  auto riga = m_connessione.Prepara(
      "SELECT gioco, numero_speciale, dal, id_estr_dal, colpi, ferma_alla_vincita, nota, creata FROM giocate "
      "WHERE id = ?");
  if (!riga) return riga.Errore();
  riga->Lega(1, id);
  auto passo = riga->Passo();
  if (!passo) return passo.Errore();
  if (!*passo) return GiocataAssente(id);
  const auto guasta = AvvisoEsclamativo(
      fmt::format("la giocata {} dell'agenda {} non è valida: il file è stato alterato", id, File().string()));
  Giocata giocata;
  giocata.id = id;
  auto gioco = GiocoDaSigla(riga->Testo(0));
  if (!gioco) return guasta;
  giocata.gioco = *gioco;
  const int64_t speciale = riga->Intero(1);
  const int64_t colpi = riga->Intero(4);
  if (speciale < 0 || speciale > 90 || colpi < 1 || colpi > 100000) return guasta;
  giocata.numero_speciale = static_cast<int>(speciale);
  giocata.colpi = static_cast<int>(colpi);
  if (riga->InteroONullo(2)) {
    giocata.dal = DataDaTesto(riga->Testo(2));
    if (!giocata.dal) return guasta;
  }
  if (auto id_estr = riga->InteroONullo(3)) {
    if (*id_estr < 1 || *id_estr > 10'000'000) return guasta;
    giocata.id_estr_dal = static_cast<int>(*id_estr);
  }
  giocata.ferma_alla_vincita = riga->Intero(5) != 0;
  giocata.nota = riga->Testo(6);
  giocata.creata = riga->Intero(7);
  if (auto parti = CaricaParti(giocata); !parti) return parti.Errore();
  if (auto valida = ControllaGiocata(giocata); !valida)
    return AvvisoEsclamativo(
        fmt::format("la giocata {} dell'agenda {} non è valida: {}", id, File().string(), valida.Errore().testo));
  return giocata;
}

Esito<Fatto> Agenda::CaricaParti(Giocata& giocata) const {
  auto leggi = [&](std::string_view sql, auto&& riga_letta) -> Esito<Fatto> {
    auto istruzione = m_connessione.Prepara(sql);
    if (!istruzione) return istruzione.Errore();
    istruzione->Lega(1, giocata.id);
    for (;;) {
      auto passo = istruzione->Passo();
      if (!passo) return passo.Errore();
      if (!*passo) return Fatto{};
      riga_letta(*istruzione);
    }
  };
  int64_t colonna_corrente = -1;
  if (auto fatto = leggi("SELECT colonna, numero FROM numeri WHERE giocata = ? ORDER BY colonna, posizione",
                         [&](const Istruzione& r) {
                           if (r.Intero(0) != colonna_corrente) {
                             colonna_corrente = r.Intero(0);
                             giocata.colonne.emplace_back();
                           }
                           giocata.colonne.back().push_back(Stretto(r.Intero(1)));
                         });
      !fatto)
    return fatto;
  if (auto fatto = leggi("SELECT ruota FROM ruote WHERE giocata = ? ORDER BY ordine",
                         [&](const Istruzione& r) { giocata.ruote.push_back(Stretto(r.Intero(0))); });
      !fatto)
    return fatto;
  if (auto fatto = leggi("SELECT sorte, centesimi FROM poste WHERE giocata = ? ORDER BY ordine",
                         [&](const Istruzione& r) {
                           giocata.poste.push_back(Posta{r.Testo(0), r.Intero(1)});
                         });
      !fatto)
    return fatto;
  return leggi("SELECT fattore FROM progressione WHERE giocata = ? ORDER BY colpo",
               [&](const Istruzione& r) { giocata.progressione.push_back(Stretto(r.Intero(0))); });
}

Esito<std::vector<VoceAgenda>> Agenda::Elenco(const FiltroGiocate& filtro) const {
  return m_connessione.InLettura([&] { return LeggiElenco(filtro); });
}

Esito<std::vector<VoceAgenda>> Agenda::LeggiElenco(const FiltroGiocate& filtro) const {
  auto righe = m_connessione.Prepara(
      fmt::format("SELECT g.id, {}, {} FROM giocate g LEFT JOIN verifiche v ON v.giocata = g.id WHERE {} GROUP BY g.id "
                  "ORDER BY g.id",
                  kChiusa, kSommeVerifiche, CondizioneFiltro(filtro)));
  if (!righe) return righe.Errore();
  std::vector<VoceAgenda> voci;
  for (;;) {
    auto passo = righe->Passo();
    if (!passo) return passo.Errore();
    if (!*passo) break;
    voci.push_back(VoceAgenda{{}, LeggiTotali(*righe, 2), righe->Intero(1) != 0});
    voci.back().giocata.id = righe->Intero(0);
  }
  for (VoceAgenda& voce : voci) {
    auto giocata = Carica(voce.giocata.id);
    if (!giocata) return giocata.Errore();
    voce.giocata = std::move(giocata).Valore();
  }
  return voci;
}

Esito<Fatto> Agenda::Rimuovi(int64_t id) {
  return m_connessione.InTransazione([&]() -> Esito<Fatto> {
    auto elimina = m_connessione.Prepara("DELETE FROM giocate WHERE id = ?");
    if (!elimina) return elimina.Errore();
    elimina->Lega(1, id);
    if (auto fatto = elimina->Esegui(); !fatto) return fatto;
    auto tolte = m_connessione.Intero("SELECT changes()");
    if (!tolte) return tolte.Errore();
    if (*tolte == 0) return GiocataAssente(id);
    return Fatto{};
  });
}

Esito<Fatto> Agenda::SalvaVerifiche(int64_t id, const std::vector<VerificaColpo>& verifiche) {
  return m_connessione.InTransazione([&]() -> Esito<Fatto> {
    auto giocata = Carica(id);
    if (!giocata) return giocata.Errore();
    if (auto valide = ControllaVerifiche(*giocata, verifiche); !valide) return valide;
    return ScriviVerifiche(*giocata, verifiche);
  });
}

Esito<Fatto> Agenda::ScriviVerifiche(const Giocata& giocata, const std::vector<VerificaColpo>& verifiche) {
  std::set<ChiaveVincita> viste;
  {
    auto righe =
        m_connessione.Prepara("SELECT colpo, ruota, sorte, numeri FROM vincite WHERE giocata = ? AND vista = 1");
    if (!righe) return righe.Errore();
    righe->Lega(1, giocata.id);
    for (;;) {
      auto passo = righe->Passo();
      if (!passo) return passo.Errore();
      if (!*passo) break;
      viste.emplace(righe->Intero(0), righe->Intero(1), righe->Testo(2), righe->Testo(3));
    }
  }
  auto elimina = m_connessione.Prepara("DELETE FROM verifiche WHERE giocata = ?");
  if (!elimina) return elimina.Errore();
  if (auto fatto = elimina->Lega(1, giocata.id).Esegui(); !fatto) return fatto;

  auto colpo_scritto = m_connessione.Prepara("INSERT INTO verifiche VALUES (?, ?, ?, ?, ?, ?, ?, ?)");
  auto vincita_scritta = m_connessione.Prepara(
      "INSERT INTO vincite (giocata, colpo, ordine, ruota, sorte, numeri, combinazioni, lordo, vista, importo_noto) "
      "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?)");
  if (!colpo_scritto) return colpo_scritto.Errore();
  if (!vincita_scritta) return vincita_scritta.Errore();
  for (size_t k = 0; k < verifiche.size(); ++k) {
    const VerificaColpo& v = verifiche[k];
    const auto colpo = static_cast<int64_t>(k) + 1;
    colpo_scritto->Reimposta();
    colpo_scritto->Lega(1, giocata.id).Lega(2, colpo).Lega(3, v.id_estr).Lega(4, TestoData(v.data));
    colpo_scritto->Lega(5, v.spesa).Lega(6, v.lordo).Lega(7, v.ritenuta).Lega(8, v.netto);
    if (auto fatto = colpo_scritto->Esegui(); !fatto) return fatto;
    for (size_t w = 0; w < v.vincite.size(); ++w) {
      const VincitaColpo& vincita = v.vincite[w];
      const std::string numeri = TestoNumeri(vincita.numeri);
      const bool vista = viste.contains({colpo, vincita.ruota, vincita.sorte, numeri});
      vincita_scritta->Reimposta();
      vincita_scritta->Lega(1, giocata.id).Lega(2, colpo).Lega(3, static_cast<int64_t>(w) + 1).Lega(4, vincita.ruota);
      vincita_scritta->Lega(5, vincita.sorte).Lega(6, numeri).Lega(7, vincita.combinazioni).Lega(8, vincita.lordo);
      vincita_scritta->Lega(9, vista ? 1 : 0).Lega(10, vincita.importo_noto ? 1 : 0);
      if (auto fatto = vincita_scritta->Esegui(); !fatto) return fatto;
    }
  }
  return Fatto{};
}

Esito<std::vector<VerificaColpo>> Agenda::Verifiche(int64_t id) const {
  return m_connessione.InLettura([&] { return LeggiVerifiche(id); });
}

Esito<std::vector<VerificaColpo>> Agenda::LeggiVerifiche(int64_t id) const {
  auto esiste = Carica(id);
  if (!esiste) return esiste.Errore();
  const auto guasta = AvvisoEsclamativo(fmt::format(
      "la verifica della giocata {} nell'agenda {} non è valida: il file è stato alterato", id, File().string()));
  std::vector<VerificaColpo> verifiche;
  auto colpi = m_connessione.Prepara(
      "SELECT colpo, id_estr, data, spesa, lordo, ritenuta, netto FROM verifiche WHERE giocata = ? ORDER BY colpo");
  if (!colpi) return colpi.Errore();
  colpi->Lega(1, id);
  for (;;) {
    auto passo = colpi->Passo();
    if (!passo) return passo.Errore();
    if (!*passo) break;
    auto data = DataDaTesto(colpi->Testo(2));
    if (colpi->Intero(0) != static_cast<int64_t>(verifiche.size()) + 1 || !data) return guasta;
    verifiche.push_back(VerificaColpo{
        Stretto(colpi->Intero(1)), *data, colpi->Intero(3), colpi->Intero(4), colpi->Intero(5), colpi->Intero(6), {}});
  }
  auto vincite = m_connessione.Prepara(
      "SELECT colpo, ruota, sorte, numeri, combinazioni, lordo, importo_noto FROM vincite WHERE giocata = ? "
      "ORDER BY colpo, ordine");
  if (!vincite) return vincite.Errore();
  vincite->Lega(1, id);
  for (;;) {
    auto passo = vincite->Passo();
    if (!passo) return passo.Errore();
    if (!*passo) break;
    const int64_t colpo = vincite->Intero(0);
    auto numeri = NumeriDaTesto(vincite->Testo(3));
    if (colpo < 1 || colpo > static_cast<int64_t>(verifiche.size()) || !numeri) return guasta;
    verifiche[static_cast<size_t>(colpo) - 1].vincite.push_back(
        VincitaColpo{Stretto(vincite->Intero(1)), vincite->Testo(2), std::move(*numeri), Stretto(vincite->Intero(4)),
                     vincite->Intero(5), vincite->Intero(6) != 0});
  }
  if (auto valide = ControllaVerifiche(*esiste, verifiche); !valide) return guasta;
  return verifiche;
}

Esito<Totali> Agenda::TotaliGiocata(int64_t id) const {
  auto riga = m_connessione.Prepara(fmt::format(
      "SELECT g.id, {} FROM giocate g LEFT JOIN verifiche v ON v.giocata = g.id WHERE g.id = ? GROUP BY g.id",
      kSommeVerifiche));
  if (!riga) return riga.Errore();
  riga->Lega(1, id);
  auto passo = riga->Passo();
  if (!passo) return passo.Errore();
  if (!*passo) return GiocataAssente(id);
  return LeggiTotali(*riga, 1);
}

Esito<Totali> Agenda::TotaliComplessivi(const FiltroGiocate& filtro) const {
  auto riga =
      m_connessione.Prepara(fmt::format("SELECT {} FROM giocate g JOIN verifiche v ON v.giocata = g.id WHERE {}",
                                        kSommeVerifiche, CondizioneFiltro(filtro)));
  if (!riga) return riga.Errore();
  auto passo = riga->Passo();
  if (!passo) return passo.Errore();
  return LeggiTotali(*riga, 0);
}

Esito<Fatto> Agenda::SegnaVisione() {
  return m_connessione.InTransazione([&]() {
    return m_connessione.Esegui(
        "UPDATE vincite SET vista = 1 WHERE vista = 0;"
        "INSERT OR REPLACE INTO stato VALUES ('ultima_visione', CAST(strftime('%s', 'now') AS INTEGER));");
  });
}

Esito<std::optional<int64_t>> Agenda::UltimaVisione() const {
  auto riga = m_connessione.Prepara("SELECT valore FROM stato WHERE chiave = 'ultima_visione'");
  if (!riga) return riga.Errore();
  auto passo = riga->Passo();
  if (!passo) return passo.Errore();
  if (!*passo) return std::optional<int64_t>();
  return std::optional<int64_t>(riga->Intero(0));
}

Esito<std::vector<VincitaNonVista>> Agenda::VinciteNonViste() const {
  auto righe = m_connessione.Prepara(
      "SELECT w.giocata, w.colpo, v.id_estr, v.data, w.ruota, w.sorte, w.numeri, w.combinazioni, w.lordo, "
      "w.importo_noto "
      "FROM vincite w JOIN verifiche v ON v.giocata = w.giocata AND v.colpo = w.colpo WHERE w.vista = 0 "
      "ORDER BY w.giocata, w.colpo, w.ordine");
  if (!righe) return righe.Errore();
  std::vector<VincitaNonVista> non_viste;
  for (;;) {
    auto passo = righe->Passo();
    if (!passo) return passo.Errore();
    if (!*passo) return non_viste;
    auto data = DataDaTesto(righe->Testo(3));
    auto numeri = NumeriDaTesto(righe->Testo(6));
    if (!data || !numeri)
      return AvvisoEsclamativo(
          fmt::format("una vincita della giocata {} nell'agenda {} non è valida: il file è stato alterato",
                      righe->Intero(0), File().string()));
    non_viste.push_back(
        VincitaNonVista{righe->Intero(0), Stretto(righe->Intero(1)), Stretto(righe->Intero(2)), *data,
                        VincitaColpo{Stretto(righe->Intero(4)), righe->Testo(5), std::move(*numeri),
                                     Stretto(righe->Intero(7)), righe->Intero(8), righe->Intero(9) != 0}});
  }
}

Esito<Fatto> Agenda::SalvaQuota(const QuotaPubblicata& quota) {
  if (quota.gioco != GiocoGiocata::SuperEnalotto && quota.gioco != GiocoGiocata::WinForLife)
    return AvvisoEsclamativo(
        fmt::format("il gioco {} non paga quote: i suoi premi sono fissi", SiglaGioco(quota.gioco)));
  if (quota.sorte.empty() || quota.id_estr < 1 || !DataValida(quota.data))
    return AvvisoEsclamativo("quota non valida: servono l'estrazione, la sua data e la categoria");
  if (quota.centesimi <= 0) return AvvisoEsclamativo("la quota deve essere maggiore di zero");
  return m_connessione.InTransazione([&]() -> Esito<Fatto> {
    auto riga = m_connessione.Prepara("INSERT OR REPLACE INTO quote VALUES (?, ?, ?, ?, ?)");
    if (!riga) return riga.Errore();
    riga->Lega(1, SiglaGioco(quota.gioco)).Lega(2, quota.id_estr).Lega(3, TestoData(quota.data));
    riga->Lega(4, quota.sorte).Lega(5, quota.centesimi);
    return riga->Esegui();
  });
}

Esito<std::vector<QuotaPubblicata>> Agenda::Quote(GiocoGiocata gioco) const {
  auto righe =
      m_connessione.Prepara("SELECT id_estr, data, sorte, centesimi FROM quote WHERE gioco = ? ORDER BY id_estr");
  if (!righe) return righe.Errore();
  righe->Lega(1, SiglaGioco(gioco));
  std::vector<QuotaPubblicata> quote;
  for (;;) {
    auto passo = righe->Passo();
    if (!passo) return passo.Errore();
    if (!*passo) return quote;
    auto data = DataDaTesto(righe->Testo(1));
    if (!data || righe->Intero(3) <= 0)
      return AvvisoEsclamativo(
          fmt::format("una quota dell'agenda {} non è valida: il file è stato alterato", File().string()));
    quote.push_back({gioco, Stretto(righe->Intero(0)), *data, righe->Testo(2), righe->Intero(3)});
  }
}

Esito<int> VerificaGiocate(Agenda& agenda, const Verificatore& verifica, std::optional<int64_t> id) {
  std::vector<int64_t> da_verificare;
  if (id) {
    da_verificare.push_back(*id);
  } else {
    auto aperte = agenda.Elenco({StatoGiocate::Aperte, std::nullopt});
    if (!aperte) return aperte.Errore();
    for (const VoceAgenda& voce : *aperte) da_verificare.push_back(voce.giocata.id);
  }
  int verificate = 0;
  for (int64_t giocata_id : da_verificare) {
    auto giocata = agenda.Carica(giocata_id);
    if (!giocata) return giocata.Errore();
    auto risultati = verifica(*giocata);
    if (!risultati) return risultati.Errore();
    if (auto salvate = agenda.SalvaVerifiche(giocata_id, *risultati); !salvate) return salvate.Errore();
    ++verificate;
  }
  return verificate;
}

}  // namespace lottolab::agenda
