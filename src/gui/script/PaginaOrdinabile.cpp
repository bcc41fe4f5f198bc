#include "gui/script/PaginaOrdinabile.h"

#include <QRegularExpression>

#include <algorithm>
#include <numeric>
#include <vector>

namespace lottolab::gui {

namespace {

constexpr QStringView kSchemaOrdina = u"ordina";

struct Tratto {
  qsizetype inizio = 0;
  qsizetype fine = 0;  // one past the end
};

struct Tabella {
  Tratto testo;  // from "<table" to past "</table>"
  std::vector<Tratto> righe;
};

// `nome` opens a tag at `posizione` when a blank, '>' or '/' follows it: "<tr" is not "<track".
bool ApreTag(const QString& pagina, qsizetype posizione, QStringView nome) {
  const qsizetype dopo = posizione + nome.size();
  if (dopo >= pagina.size() || QStringView(pagina).mid(posizione, nome.size()).compare(nome, Qt::CaseInsensitive) != 0)
    return false;
  const QChar segno = pagina[dopo];
  return segno.isSpace() || segno == u'>' || segno == u'/';
}

// The first tag `nome` ("<tr", "</tr") from `da`, before `fino`; -1 when there is none. The search
// never looks past `fino`: a page of many rows is scanned once, not once per row.
qsizetype Cerca(const QString& pagina, QStringView nome, qsizetype da, qsizetype fino) {
  const QStringView dentro = QStringView(pagina).first(fino);
  for (qsizetype trovato = dentro.indexOf(nome, da, Qt::CaseInsensitive); trovato >= 0;
       trovato = dentro.indexOf(nome, trovato + 1, Qt::CaseInsensitive))
    if (ApreTag(pagina, trovato, nome)) return trovato;
  return -1;
}

// Past the '>' that closes the tag opened at `posizione`; -1 when it does not close before `fino`.
qsizetype FineTag(const QString& pagina, qsizetype posizione, qsizetype fino) {
  const qsizetype chiusura = QStringView(pagina).first(fino).indexOf(u'>', posizione);
  return chiusura < 0 ? -1 : chiusura + 1;
}

bool Ordinabile(QStringView apertura, QStringView contenuto) {
  return apertura.contains(u"ordinabile", Qt::CaseInsensitive) || apertura.contains(u"sortable", Qt::CaseInsensitive) ||
         contenuto.contains(u"ordinaTabella(", Qt::CaseInsensitive);
}

// The rows of the table between `inizio` and `fine`; nothing when one of them is left open.
std::vector<Tratto> Righe(const QString& pagina, qsizetype inizio, qsizetype fine) {
  std::vector<Tratto> righe;
  for (qsizetype riga = Cerca(pagina, u"<tr", inizio, fine); riga >= 0; riga = Cerca(pagina, u"<tr", riga, fine)) {
    const qsizetype chiusa = Cerca(pagina, u"</tr", riga, fine);
    const qsizetype prossima = Cerca(pagina, u"<tr", riga + 3, fine);
    if (chiusa < 0 || (prossima >= 0 && prossima < chiusa)) return {};
    const qsizetype dopo = FineTag(pagina, chiusa, fine);
    if (dopo < 0) return {};
    righe.push_back({riga, dopo});
    riga = dopo;
  }
  return righe;
}

std::vector<Tabella> TabelleOrdinabili(const QString& pagina) {
  std::vector<Tabella> tabelle;
  qsizetype da = 0;
  for (qsizetype inizio = Cerca(pagina, u"<table", da, pagina.size()); inizio >= 0;
       inizio = Cerca(pagina, u"<table", da, pagina.size())) {
    const qsizetype chiusa = Cerca(pagina, u"</table", inizio, pagina.size());
    const qsizetype corpo = FineTag(pagina, inizio, pagina.size());
    if (chiusa < 0 || corpo < 0 || corpo > chiusa) break;
    const qsizetype fine = FineTag(pagina, chiusa, pagina.size());
    if (fine < 0) break;
    da = fine;
    // A table inside another is where the scan cannot tell whose rows are whose.
    if (Cerca(pagina, u"<table", corpo, chiusa) >= 0) continue;
    const QStringView apertura = QStringView(pagina).mid(inizio, corpo - inizio);
    if (!Ordinabile(apertura, QStringView(pagina).mid(corpo, chiusa - corpo))) continue;
    std::vector<Tratto> righe = Righe(pagina, corpo, chiusa);
    if (righe.size() < 2) continue;
    tabelle.push_back({{inizio, fine}, std::move(righe)});
  }
  return tabelle;
}

// The cells of a row: where each one's content lies.
std::vector<Tratto> Celle(const QString& pagina, const Tratto& riga) {
  std::vector<Tratto> celle;
  auto prossima = [&](qsizetype da) {
    const qsizetype td = Cerca(pagina, u"<td", da, riga.fine);
    const qsizetype th = Cerca(pagina, u"<th", da, riga.fine);
    return td < 0 ? th : th < 0 ? td : std::min(td, th);
  };
  for (qsizetype cella = prossima(riga.inizio); cella >= 0;) {
    const qsizetype contenuto = FineTag(pagina, cella, riga.fine);
    if (contenuto < 0) break;
    const qsizetype seguente = prossima(contenuto);
    qsizetype fine = seguente >= 0 ? seguente : riga.fine;
    for (QStringView chiusura : {u"</td", u"</th", u"</tr"}) {
      const qsizetype trovata = Cerca(pagina, chiusura, contenuto, fine);
      if (trovata >= 0) fine = trovata;
    }
    celle.push_back({contenuto, fine});
    cella = seguente;
  }
  return celle;
}

QString TestoSemplice(QStringView html) {
  static const QRegularExpression kTag(QStringLiteral("<[^>]*>"));
  QString testo = html.toString();
  testo.remove(kTag);
  testo.replace(QStringLiteral("&nbsp;"), QStringLiteral(" "), Qt::CaseInsensitive);
  testo.replace(QStringLiteral("&lt;"), QStringLiteral("<"), Qt::CaseInsensitive);
  testo.replace(QStringLiteral("&gt;"), QStringLiteral(">"), Qt::CaseInsensitive);
  testo.replace(QStringLiteral("&quot;"), QStringLiteral("\""), Qt::CaseInsensitive);
  testo.replace(QStringLiteral("&#39;"), QStringLiteral("'"));
  testo.replace(QStringLiteral("&amp;"), QStringLiteral("&"), Qt::CaseInsensitive);
  return testo.trimmed();
}

// Numbers first, by value; then dates, by day; then texts.
struct Chiave {
  int tipo = 2;
  double valore = 0;
  QString testo;
};

Chiave ChiaveDi(const QString& testo) {
  static const QRegularExpression kNumero(QStringLiteral(R"(^[-+]?\d+([.,]\d+)?$)"));
  static const QRegularExpression kData(QStringLiteral(R"(^(\d{1,2})/(\d{1,2})/(\d{4})$)"));
  if (kNumero.match(testo).hasMatch()) return {0, QString(testo).replace(u',', u'.').toDouble(), {}};
  if (const auto data = kData.match(testo); data.hasMatch())
    return {
        1, data.captured(3).toDouble() * 10000 + data.captured(2).toDouble() * 100 + data.captured(1).toDouble(), {}};
  return {2, 0, testo.toLower()};
}

int Confronta(const Chiave& a, const Chiave& b) {
  if (a.tipo != b.tipo) return a.tipo < b.tipo ? -1 : 1;
  if (a.tipo == 2) return QString::localeAwareCompare(a.testo, b.testo);
  return a.valore < b.valore ? -1 : a.valore > b.valore ? 1 : 0;
}

QString TitoliComeCollegamenti(const QString& pagina, const Tratto& riga, int tabella,
                               const std::optional<OrdineColonna>& ordine) {
  QString testo;
  qsizetype da = riga.inizio;
  int colonna = 0;
  for (const Tratto& cella : Celle(pagina, riga)) {
    QString freccia;
    if (ordine && ordine->colonna == colonna)
      freccia = ordine->discendente ? QStringLiteral(" ▼") : QStringLiteral(" ▲");
    testo += QStringView(pagina).mid(da, cella.inizio - da);
    testo += QStringLiteral("<a href=\"%1:%2-%3\">").arg(kSchemaOrdina).arg(tabella).arg(colonna);
    testo += QStringView(pagina).mid(cella.inizio, cella.fine - cella.inizio);
    testo += freccia + QStringLiteral("</a>");
    da = cella.fine;
    ++colonna;
  }
  testo += QStringView(pagina).mid(da, riga.fine - da);
  return testo;
}

std::vector<size_t> OrdineRighe(const QString& pagina, const std::vector<Tratto>& righe, const OrdineColonna& ordine) {
  std::vector<Chiave> chiavi;
  for (const Tratto& riga : righe) {
    const std::vector<Tratto> celle = Celle(pagina, riga);
    const auto colonna = static_cast<size_t>(ordine.colonna);
    chiavi.push_back(ChiaveDi(
        colonna < celle.size()
            ? TestoSemplice(QStringView(pagina).mid(celle[colonna].inizio, celle[colonna].fine - celle[colonna].inizio))
            : QString()));
  }
  std::vector<size_t> ordinate(righe.size());
  std::iota(ordinate.begin(), ordinate.end(), size_t{0});
  std::stable_sort(ordinate.begin(), ordinate.end(), [&](size_t a, size_t b) {
    const int confronto = Confronta(chiavi[a], chiavi[b]);
    return ordine.discendente ? confronto > 0 : confronto < 0;
  });
  return ordinate;
}

QString TabellaOrdinata(const QString& pagina, const Tabella& tabella, int indice,
                        const std::optional<OrdineColonna>& ordine) {
  const Tratto& titoli = tabella.righe.front();
  const std::vector<Tratto> corpo(tabella.righe.begin() + 1, tabella.righe.end());
  std::vector<size_t> ordinate(corpo.size());
  std::iota(ordinate.begin(), ordinate.end(), size_t{0});
  if (ordine) ordinate = OrdineRighe(pagina, corpo, *ordine);

  QString testo = QStringView(pagina).mid(tabella.testo.inizio, titoli.inizio - tabella.testo.inizio).toString();
  testo += TitoliComeCollegamenti(pagina, titoli, indice, ordine);
  qsizetype da = titoli.fine;
  // Each row goes where the row of its rank was, so that what lies between rows stays in place.
  for (size_t posto = 0; posto < corpo.size(); ++posto) {
    const Tratto& scelta = corpo[ordinate[posto]];
    testo += QStringView(pagina).mid(da, corpo[posto].inizio - da);
    testo += QStringView(pagina).mid(scelta.inizio, scelta.fine - scelta.inizio);
    da = corpo[posto].fine;
  }
  testo += QStringView(pagina).mid(da, tabella.testo.fine - da);
  return testo;
}

}  // namespace

bool HaTabelleOrdinabili(const QString& pagina) { return !TabelleOrdinabili(pagina).empty(); }

QString PaginaOrdinata(const QString& pagina, const OrdiniTabelle& ordini) {
  QString testo;
  qsizetype da = 0;
  int indice = 0;
  for (const Tabella& tabella : TabelleOrdinabili(pagina)) {
    testo += QStringView(pagina).mid(da, tabella.testo.inizio - da);
    const auto ordine = ordini.find(indice);
    testo +=
        TabellaOrdinata(pagina, tabella, indice, ordine == ordini.end() ? std::nullopt : std::optional(ordine->second));
    da = tabella.testo.fine;
    ++indice;
  }
  testo += QStringView(pagina).mid(da);
  return testo;
}

std::optional<std::pair<int, int>> RichiestaOrdinamento(const QUrl& collegamento) {
  if (collegamento.scheme() != kSchemaOrdina) return std::nullopt;
  const QStringList parti = collegamento.path().split(u'-');
  if (parti.size() != 2) return std::nullopt;
  bool tabella_valida = false;
  bool colonna_valida = false;
  const int tabella = parti[0].toInt(&tabella_valida);
  const int colonna = parti[1].toInt(&colonna_valida);
  if (!tabella_valida || !colonna_valida || tabella < 0 || colonna < 0) return std::nullopt;
  return std::pair{tabella, colonna};
}

void CambiaOrdine(OrdiniTabelle& ordini, int tabella, int colonna) {
  auto [posto, nuovo] = ordini.try_emplace(tabella, OrdineColonna{colonna, false});
  if (nuovo) return;
  if (posto->second.colonna == colonna)
    posto->second.discendente = !posto->second.discendente;
  else
    posto->second = {colonna, false};
}

}  // namespace lottolab::gui
