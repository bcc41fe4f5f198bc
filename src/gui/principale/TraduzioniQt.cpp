#include "gui/principale/TraduzioniQt.h"

#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <string_view>

namespace lottolab::gui {

namespace {

struct Traduzione {
  std::string_view contesto;
  std::string_view testo;
  const char* italiano;
};

// The kinds of file in the chooser's "Tipo" column, which the translation of Qt 6.4 leaves in English.
constexpr Traduzione kMancanti[] = {
    {"QAbstractFileIconProvider", "Folder", "Cartella"},
    {"QAbstractFileIconProvider", "Drive", "Unità"},
    {"QAbstractFileIconProvider", "Unknown", "Sconosciuto"},
};

class TraduzioniMancanti : public QTranslator {
 public:
  using QTranslator::QTranslator;

  bool isEmpty() const override { return false; }

  QString translate(const char* contesto, const char* testo, const char*, int) const override {
    if (contesto == nullptr || testo == nullptr) return {};
    for (const Traduzione& traduzione : kMancanti)
      if (traduzione.contesto == contesto && traduzione.testo == testo) return QString::fromUtf8(traduzione.italiano);
    return {};
  }
};

}  // namespace

bool TraduciTestiQt(QCoreApplication& applicazione) {
  // The locale, not the translation, names the months of the calendar and the types of file.
  QLocale::setDefault(QLocale(QLocale::Italian, QLocale::Italy));
  applicazione.installTranslator(new TraduzioniMancanti(&applicazione));
  auto* qt = new QTranslator(&applicazione);
  const bool trovata = qt->load(QLocale(QLocale::Italian), QStringLiteral("qtbase"), QStringLiteral("_"),
                                QLibraryInfo::path(QLibraryInfo::TranslationsPath));
  if (trovata) applicazione.installTranslator(qt);
  return trovata;
}

}  // namespace lottolab::gui
