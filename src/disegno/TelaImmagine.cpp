#include "TelaImmagine.h"

#include <QDir>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QSaveFile>
#include <algorithm>
#include <fmt/format.h>
#include <unistd.h>

namespace lottolab::disegno {

namespace {

QPen Penna(const script::Tratto& tratto) {
  QPen penna(ColoreQt(tratto.colore), std::max(0.0, tratto.spessore));
  if (tratto.tratteggiato) penna.setStyle(Qt::DashLine);
  return penna;
}

QFont Carattere(int dimensione) {
  QFont carattere;
  carattere.setPixelSize(std::clamp(dimensione, 1, 400));
  return carattere;
}

// Qt's PNG writer turns quality into zlib's level: 80 compresses a little less than the default
// and writes a picture of the circle several times faster, for files a few percent larger.
constexpr int kQualitaPng = 80;

QImage ImmagineVuota(int larghezza, int altezza, script::Rgb sfondo) {
  QImage immagine(larghezza, altezza, QImage::Format_RGB32);
  immagine.fill(ColoreQt(sfondo));
  return immagine;
}

}  // namespace

TelaImmagine::TelaImmagine() : m_immagine(ImmagineVuota(kLarghezzaIniziale, kAltezzaIniziale, 0xFFFFFF)) {}

void TelaImmagine::Ricomincia() {
  m_sfondo = 0xFFFFFF;
  m_disegnata = false;
  SetDimensioni(kLarghezzaIniziale, kAltezzaIniziale);
}

void TelaImmagine::SetDimensioni(int larghezza, int altezza) {
  m_immagine = ImmagineVuota(std::clamp(larghezza, 1, kLatoMassimo), std::clamp(altezza, 1, kLatoMassimo), m_sfondo);
  m_conteggio = {};
  Cambiata();
}

void TelaImmagine::Riempi(script::Rgb colore) {
  m_immagine.fill(ColoreQt(colore));
  m_disegnata = true;
  Cambiata();
}

void TelaImmagine::Clear() {
  m_immagine.fill(ColoreQt(m_sfondo));
  m_conteggio = {};
  Cambiata();
}

int TelaImmagine::TextWidth(const std::string& testo, int dimensione) {
  return QFontMetrics(Carattere(dimensione)).horizontalAdvance(QString::fromStdString(testo));
}

int TelaImmagine::TextHeight(const std::string& testo, int dimensione) {
  const QFontMetrics metriche(Carattere(dimensione));
  const auto righe = static_cast<int>(std::count(testo.begin(), testo.end(), '\n')) + 1;
  return metriche.height() * righe;
}

void TelaImmagine::StampaTesto(double x, double y, const std::string& testo, script::Rgb colore, int dimensione,
                               double angolo) {
  QPainter pittore(&m_immagine);
  pittore.setRenderHint(QPainter::TextAntialiasing);
  pittore.setFont(Carattere(dimensione));
  pittore.setPen(ColoreQt(colore));
  pittore.translate(x, y);
  pittore.rotate(angolo);
  pittore.drawText(QRectF(0, 0, kLatoMassimo, kLatoMassimo), Qt::AlignLeft | Qt::AlignTop,
                   QString::fromStdString(testo));
  ++m_conteggio.testi;
  m_disegnata = true;
  Cambiata();
}

void TelaImmagine::Punto(double x, double y, const script::Tratto& tratto) {
  QPainter pittore(&m_immagine);
  const double raggio = std::max(0.5, tratto.spessore / 2);
  if (raggio <= 0.5) {
    pittore.fillRect(QRectF(x, y, 1, 1), ColoreQt(tratto.colore));
  } else {
    pittore.setRenderHint(QPainter::Antialiasing);
    pittore.setPen(Qt::NoPen);
    pittore.setBrush(ColoreQt(tratto.colore));
    pittore.drawEllipse(QPointF(x, y), raggio, raggio);
  }
  ++m_conteggio.punti;
  m_disegnata = true;
  Cambiata();
}

void TelaImmagine::Linea(double x1, double y1, double x2, double y2, const script::Tratto& tratto) {
  QPainter pittore(&m_immagine);
  pittore.setRenderHint(QPainter::Antialiasing);
  pittore.setPen(Penna(tratto));
  pittore.drawLine(QPointF(x1, y1), QPointF(x2, y2));
  ++m_conteggio.linee;
  m_disegnata = true;
  Cambiata();
}

void TelaImmagine::Poligono(const std::vector<std::pair<double, double>>& punti, const script::Tratto& tratto,
                            std::optional<script::Rgb> riempimento) {
  QPolygonF poligono;
  for (const auto& [x, y] : punti) poligono << QPointF(x, y);
  QPainter pittore(&m_immagine);
  pittore.setRenderHint(QPainter::Antialiasing);
  pittore.setPen(Penna(tratto));
  pittore.setBrush(riempimento ? QBrush(ColoreQt(*riempimento)) : QBrush(Qt::NoBrush));
  pittore.drawPolygon(poligono);
  ++m_conteggio.poligoni;
  m_disegnata = true;
  Cambiata();
}

void TelaImmagine::Cerchio(double x, double y, double raggio, const script::Tratto& tratto,
                           std::optional<script::Rgb> riempimento) {
  QPainter pittore(&m_immagine);
  pittore.setRenderHint(QPainter::Antialiasing);
  pittore.setPen(Penna(tratto));
  pittore.setBrush(riempimento ? QBrush(ColoreQt(*riempimento)) : QBrush(Qt::NoBrush));
  pittore.drawEllipse(QPointF(x, y), raggio, raggio);
  ++m_conteggio.cerchi;
  m_disegnata = true;
  Cambiata();
}

void TelaImmagine::Spezzata(const std::vector<std::pair<double, double>>& punti, const script::Tratto& tratto) {
  QPolygonF linea;
  linea.reserve(static_cast<qsizetype>(punti.size()));
  for (const auto& [x, y] : punti) linea << QPointF(x, y);
  QPainter pittore(&m_immagine);
  pittore.setRenderHint(QPainter::Antialiasing);
  DisegnaSpezzata(pittore, linea, Penna(tratto));
  ++m_conteggio.spezzate;
  m_disegnata = true;
  Cambiata();
}

void TelaImmagine::DisegnaCerchio(const script::DisegnoCerchio& disegno, double x, double y, double lato) {
  if (lato <= 0) lato = std::min(m_immagine.width(), m_immagine.height());
  QPainter pittore(&m_immagine);
  const ConteggioCerchio fatto = disegno::DisegnaCerchio(pittore, QRectF(x, y, lato, lato), disegno);
  m_conteggio.cerchio.numeri += fatto.numeri;
  m_conteggio.cerchio.marcati += fatto.marcati;
  m_conteggio.cerchio.poligoni += fatto.poligoni;
  m_disegnata = true;
  Cambiata();
}

QImage ImmagineCerchio(const script::DisegnoCerchio& disegno, int lato, ConteggioCerchio* conteggio) {
  lato = std::clamp(lato, 1, kLatoMassimo);
  QImage immagine = ImmagineVuota(lato, lato, disegno.impostazioni.sfondo);
  QPainter pittore(&immagine);
  const ConteggioCerchio fatto = DisegnaCerchio(pittore, QRectF(0, 0, lato, lato), disegno);
  if (conteggio) *conteggio = fatto;
  return immagine;
}

Esito<Fatto> SalvaPng(const QImage& immagine, const std::filesystem::path& file) {
  QSaveFile uscita(QString::fromStdString(file.string()));
  if (!uscita.open(QIODevice::WriteOnly) || !immagine.save(&uscita, "PNG", kQualitaPng) || !uscita.commit())
    return AvvisoEsclamativo(
        fmt::format("Impossibile scrivere l'immagine {}: {}", file.string(), uscita.errorString().toStdString()));
  return Fatto{};
}

void AssicuraApplicazioneGrafica() {
  if (QCoreApplication::instance()) return;
  // Qt falls back to a folder of its own, but warns on stderr, which is the script's channel.
  if (qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR"))
    qputenv("XDG_RUNTIME_DIR", (QDir::tempPath() + "/runtime-lottolab-" + QString::number(getuid())).toUtf8());
  // QGuiApplication keeps references to these for its whole life.
  static int argc = 3;
  static char nome[] = "lottolab";
  static char opzione[] = "-platform";
  static char piattaforma[] = "offscreen";
  static char* argv[] = {nome, opzione, piattaforma, nullptr};
  // Never destroyed: destroying it at the exit of the process would race the font database's own
  // clean-up, and a second run must find it.
  static QGuiApplication* applicazione = new QGuiApplication(argc, argv);
  (void)applicazione;
}

Esito<Fatto> TelaPng::Esegui() {
  auto scritto = Salva();
  if (!scritto) return scritto.Errore();
  return Fatto{};
}

void TelaPng::Ricomincia() {
  TelaImmagine::Ricomincia();
  m_file.clear();
  m_cerchi = 0;
  m_grafici = 0;
  m_ultimo_grafico = {};
}

std::optional<std::filesystem::path> TelaPng::FileImmagine(const std::filesystem::path& pagina) {
  if (m_file.empty()) {
    m_file = pagina;
    m_file.replace_extension(".png");
  }
  return m_file;
}

Esito<std::optional<std::filesystem::path>> TelaPng::MostraCerchio(const script::DisegnoCerchio& disegno,
                                                                   const std::string&,
                                                                   const std::filesystem::path& pagina) {
  if (pagina.empty()) return std::optional<std::filesystem::path>();
  std::filesystem::path file = pagina;
  file.replace_filename(fmt::format("{}_cerchio{}.png", pagina.stem().string(), ++m_cerchi));
  auto scritto = SalvaPng(ImmagineCerchio(disegno, 600), file);
  if (!scritto) return scritto.Errore();
  return std::optional<std::filesystem::path>(file);
}

Esito<std::optional<std::filesystem::path>> TelaPng::MostraGrafico(const script::DisegnoGrafico& grafico,
                                                                   const std::filesystem::path& pagina) {
  if (pagina.empty()) return std::optional<std::filesystem::path>();
  std::filesystem::path file = pagina;
  // The number is taken once the file is written, so that it follows the library's count of charts.
  file.replace_filename(fmt::format("{}_grafico{}.png", pagina.stem().string(), m_grafici + 1));
  auto scritto = SalvaPng(ImmagineGrafico(grafico, &m_ultimo_grafico), file);
  if (!scritto) return scritto.Errore();
  ++m_grafici;
  return std::optional<std::filesystem::path>(file);
}

Esito<std::optional<std::filesystem::path>> TelaPng::Salva() {
  // Once the page links the picture it must exist, even blank; a run that never reached the
  // picture area writes nothing.
  if (m_file.empty()) return std::optional<std::filesystem::path>();
  auto scritto = SalvaPng(Immagine(), m_file);
  if (!scritto) return scritto.Errore();
  return std::optional<std::filesystem::path>(m_file);
}

}  // namespace lottolab::disegno
