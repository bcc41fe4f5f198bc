#include "gui/grafici/EsportaImmagine.h"

#include <QBuffer>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QWidget>

#include <string_view>

#include "archive/FileSicuri.h"

namespace lottolab::gui {

namespace {

Esito<Fatto> Sostituisci(const QByteArray& byte, const std::filesystem::path& file) {
  return SostituisciFile(file, std::string_view(byte.constData(), static_cast<size_t>(byte.size())));
}

}  // namespace

QImage ImmagineDi(QWidget& widget) { return widget.grab().toImage(); }

Esito<Fatto> ScriviPng(const QImage& immagine, const std::filesystem::path& file) {
  QByteArray byte;
  QBuffer buffer(&byte);
  buffer.open(QIODevice::WriteOnly);
  if (immagine.isNull() || !immagine.save(&buffer, "PNG"))
    return AvvisoEsclamativo("Impossibile comporre l'immagine PNG del grafico");
  return Sostituisci(byte, file);
}

Esito<Fatto> ScriviPdfImmagine(const QImage& immagine, const QString& titolo, const std::filesystem::path& file) {
  if (immagine.isNull()) return AvvisoEsclamativo("Impossibile comporre il PDF: il grafico è vuoto");
  QByteArray byte;
  {
    QBuffer buffer(&byte);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter pdf(&buffer);
    pdf.setTitle(titolo);
    pdf.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Landscape, QMarginsF(12, 12, 12, 12)));
    pdf.setResolution(150);
    QPainter pittore(&pdf);
    const QRect pagina = pittore.viewport();
    QFont carattere = pittore.font();
    carattere.setPointSizeF(14);
    carattere.setBold(true);
    pittore.setFont(carattere);
    const int altezza_titolo = pittore.fontMetrics().height() * 2;
    pittore.drawText(QRect(pagina.left(), pagina.top(), pagina.width(), altezza_titolo), Qt::AlignLeft, titolo);
    const QRect spazio(pagina.left(), pagina.top() + altezza_titolo, pagina.width(), pagina.height() - altezza_titolo);
    const QSize misura = immagine.size().scaled(spazio.size(), Qt::KeepAspectRatio);
    pittore.drawImage(QRect(spazio.topLeft(), misura), immagine);
  }
  return Sostituisci(byte, file);
}

}  // namespace lottolab::gui
