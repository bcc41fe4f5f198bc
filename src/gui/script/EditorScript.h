#pragma once

// The code editor of the script window: VBScript colouring by the Scintilla VBScript lexer, line
// numbers, folding by indentation, completion of the language's and the library's names and the
// call tip of a function as its arguments are typed.

#include <Qsci/qsciscintilla.h>

namespace lottolab::gui {

class EditorScript : public QsciScintilla {
  Q_OBJECT

 public:
  explicit EditorScript(QWidget* parent = nullptr);

  // A script read or made anew: its line ends are kept for what the user types, and it counts as
  // unmodified.
  void ImpostaTesto(const QString& testo);
  // Puts the caret on a script error and marks the code from there to the end of its line: line and
  // column counted from 1, as the engine gives them.
  void VaiA(int riga, int colonna);
  void TogliErrore();
  // The name the caret is on (or right after), for F1: empty between names.
  QString ParolaAlCursore();

 private:
  void ImpostaStili();
  void CarattereAggiunto(int carattere);
  // The word that ends right before `posizione`.
  QString ParolaPrima(long posizione);
};

}  // namespace lottolab::gui
