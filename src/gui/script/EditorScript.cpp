#include "gui/script/EditorScript.h"

#include <QFontDatabase>

#include "gui/script/ParoleEditor.h"

namespace lottolab::gui {

namespace {

// The styles of Scintilla's VB lexer, which QScintilla does not name.
enum StileVb {
  kPredefinito = 0,
  kCommento = 1,
  kNumero = 2,
  kParolaChiave = 3,
  kStringa = 4,
  kPreprocessore = 5,
  kOperatore = 6,
  kIdentificatore = 7,
  kData = 8,
  kStringaAperta = 9,
  kFunzioneVbscript = 10,
  kFunzioneLibreria = 11,
};

// The word lists of the lexer: reserved words, then two groups of names coloured apart.
enum ElencoParole { kElencoParoleChiave = 0, kElencoVbscript = 1, kElencoLibreria = 2 };

constexpr int kMinimoPerCompletare = 3;
constexpr int kIndicatoreErrore = 8;

bool CarattereDiNome(int carattere) {
  return (carattere >= 'a' && carattere <= 'z') || (carattere >= 'A' && carattere <= 'Z') ||
         (carattere >= '0' && carattere <= '9') || carattere == '_' || carattere > 127;
}

}  // namespace

EditorScript::EditorScript(QWidget* parent) : QsciScintilla(parent) {
  setUtf8(true);
  setAutoCompletionSource(AcsNone);
  setCallTipsStyle(CallTipsNone);
  setAutoIndent(true);
  setIndentationsUseTabs(false);
  setIndentationWidth(4);
  setTabWidth(4);
  setBraceMatching(SloppyBraceMatch);
  setCaretLineVisible(true);
  setCaretLineBackgroundColor(QColor(0xEE, 0xF3, 0xFB));
  // The error's line must stay marked while the error's message box has the focus.
  SendScintilla(SCI_SETCARETLINEVISIBLEALWAYS, 1L);
  indicatorDefine(StraightBoxIndicator, kIndicatoreErrore);
  setIndicatorForegroundColor(QColor(0xFF, 0x00, 0x00, 0x40), kIndicatoreErrore);
  setIndicatorOutlineColor(QColor(0xFF, 0x00, 0x00, 0xC0), kIndicatoreErrore);

  ImpostaStili();

  setMarginType(0, NumberMargin);
  setMarginLineNumbers(0, true);
  setMarginWidth(0, QStringLiteral("000000"));
  setMarginsForegroundColor(QColor(0x80, 0x80, 0x80));
  setMarginsBackgroundColor(QColor(0xF4, 0xF4, 0xF4));
  setFolding(BoxedTreeFoldStyle, 2);

  SendScintilla(SCI_AUTOCSETIGNORECASE, 1L);
  SendScintilla(SCI_AUTOCSETAUTOHIDE, 1L);
  connect(this, &QsciScintillaBase::SCN_CHARADDED, this, &EditorScript::CarattereAggiunto);
}

void EditorScript::ImpostaStili() {
  const QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  SendScintilla(SCI_STYLESETFONT, STYLE_DEFAULT, font.family().toUtf8().constData());
  SendScintilla(SCI_STYLESETSIZE, STYLE_DEFAULT, 10L);
  SendScintilla(SCI_STYLECLEARALL);

  SendScintilla(SCI_SETLEXER, SCLEX_VBSCRIPT);
  const ParoleEditor& parole = ParoleEditor::Tutte();
  SendScintilla(SCI_SETKEYWORDS, kElencoParoleChiave, ElencoPerLexer(parole.ParoleChiave()).c_str());
  SendScintilla(SCI_SETKEYWORDS, kElencoVbscript, ElencoPerLexer(parole.FunzioniVbscript()).c_str());
  SendScintilla(SCI_SETKEYWORDS, kElencoLibreria, ElencoPerLexer(parole.FunzioniLibreria()).c_str());
  SendScintilla(SCI_SETPROPERTY, "fold", "1");

  auto stile = [this](int numero, QColor colore, bool grassetto = false, bool corsivo = false) {
    SendScintilla(SCI_STYLESETFORE, numero, colore);
    SendScintilla(SCI_STYLESETBOLD, numero, static_cast<long>(grassetto));
    SendScintilla(SCI_STYLESETITALIC, numero, static_cast<long>(corsivo));
  };
  stile(kPredefinito, Qt::black);
  stile(kCommento, QColor(0x00, 0x80, 0x00), false, true);
  stile(kNumero, QColor(0x09, 0x86, 0x58));
  stile(kParolaChiave, QColor(0x00, 0x00, 0xC0), true);
  stile(kStringa, QColor(0xA3, 0x15, 0x15));
  stile(kPreprocessore, QColor(0x80, 0x80, 0x80));
  stile(kOperatore, QColor(0x40, 0x40, 0x40));
  stile(kIdentificatore, Qt::black);
  stile(kData, QColor(0x80, 0x00, 0x80));
  stile(kStringaAperta, QColor(0xA3, 0x15, 0x15));
  SendScintilla(SCI_STYLESETBACK, kStringaAperta, QColor(0xFF, 0xE0, 0xE0));
  stile(kFunzioneVbscript, QColor(0x26, 0x7F, 0x99));
  stile(kFunzioneLibreria, QColor(0x8B, 0x00, 0x8B), true);
}

QString EditorScript::ParolaAlCursore() {
  const long posizione = SendScintilla(SCI_GETCURRENTPOS);
  const long inizio = SendScintilla(SCI_WORDSTARTPOSITION, posizione, 1L);
  const long fine = SendScintilla(SCI_WORDENDPOSITION, posizione, 1L);
  return text(static_cast<int>(inizio), static_cast<int>(fine));
}

QString EditorScript::ParolaPrima(long posizione) {
  const long inizio = SendScintilla(SCI_WORDSTARTPOSITION, posizione, 1L);
  return text(static_cast<int>(inizio), static_cast<int>(posizione));
}

void EditorScript::CarattereAggiunto(int carattere) {
  const long posizione = SendScintilla(SCI_GETCURRENTPOS);
  if (carattere == '(' || carattere == ' ') {
    const QString suggerimento =
        QString::fromStdString(ParoleEditor::Tutte().Suggerimento(ParolaPrima(posizione - 1).toStdString()));
    if (!suggerimento.isEmpty()) SendScintilla(SCI_CALLTIPSHOW, posizione, suggerimento.toUtf8().constData());
    return;
  }
  if (carattere == '\n' || carattere == ')') {
    SendScintilla(SCI_CALLTIPCANCEL);
    return;
  }
  if (!CarattereDiNome(carattere)) return;
  const QByteArray prefisso = ParolaPrima(posizione).toUtf8();
  if (prefisso.size() < kMinimoPerCompletare) return;
  const auto nomi = ParoleEditor::Tutte().Completamenti(prefisso.toStdString());
  if (nomi.empty()) return;
  QByteArray elenco;
  for (const std::string& nome : nomi) {
    if (!elenco.isEmpty()) elenco += ' ';
    elenco += QByteArray::fromStdString(nome);
  }
  SendScintilla(SCI_AUTOCSHOW, static_cast<unsigned long>(prefisso.size()), elenco.constData());
}

void EditorScript::ImpostaTesto(const QString& testo) {
  setEolMode(testo.contains(QStringLiteral("\r\n")) ? EolWindows : EolUnix);
  setText(testo);
  setModified(false);
}

void EditorScript::TogliErrore() { clearIndicatorRange(0, 0, lines(), 0, kIndicatoreErrore); }

void EditorScript::VaiA(int riga, int colonna) {
  const int linea = std::max(riga - 1, 0);
  const int indice = std::max(colonna - 1, 0);
  TogliErrore();
  // From the error to the end of its line, line end excluded.
  const QString testo = text(linea);
  const int fine = static_cast<int>(testo.size() - (testo.endsWith(QStringLiteral("\r\n")) ? 2
                                                    : testo.endsWith('\n')                 ? 1
                                                                                           : 0));
  fillIndicatorRange(linea, indice, linea, std::max(fine, indice + 1), kIndicatoreErrore);
  setCursorPosition(linea, indice);
  ensureLineVisible(linea);
  setFocus();
}

}  // namespace lottolab::gui
