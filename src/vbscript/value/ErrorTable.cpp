#include "vbscript/value/ErrorTable.h"

#include <algorithm>
#include <array>

namespace vbs {
namespace {

struct ErrorRow {
  int32_t number;
  std::u16string_view english;
  std::u16string_view italian;
};

// Sorted by number.
constexpr std::array kErrors = {
    ErrorRow{5, u"Invalid procedure call or argument", u"Chiamata di routine o argomento non validi"},
    ErrorRow{6, u"Overflow", u"Overflow"},
    ErrorRow{7, u"Out of memory", u"Memoria esaurita"},
    ErrorRow{9, u"Subscript out of range", u"Indice non incluso nell'intervallo"},
    ErrorRow{10, u"This array is fixed or temporarily locked", u"Matrice fissa o temporaneamente bloccata"},
    ErrorRow{11, u"Division by zero", u"Divisione per zero"},
    ErrorRow{13, u"Type mismatch", u"Tipo non corrispondente"},
    ErrorRow{14, u"Out of string space", u"Spazio per le stringhe esaurito"},
    ErrorRow{17, u"Can't perform requested operation", u"Impossibile eseguire l'operazione richiesta"},
    ErrorRow{28, u"Out of stack space", u"Spazio dello stack esaurito"},
    ErrorRow{35, u"Sub or Function not defined", u"Sub o Function non definita"},
    ErrorRow{48, u"Error in loading DLL", u"Errore durante il caricamento della DLL"},
    ErrorRow{51, u"Internal error", u"Errore interno"},
    ErrorRow{52, u"Bad file name or number", u"Nome o numero di file non valido"},
    ErrorRow{53, u"File not found", u"Impossibile trovare il file"},
    ErrorRow{54, u"Bad file mode", u"Modalità del file non valida"},
    ErrorRow{55, u"File already open", u"File già aperto"},
    ErrorRow{57, u"Device I/O error", u"Errore di I/O della periferica"},
    ErrorRow{58, u"File already exists", u"File già esistente"},
    ErrorRow{61, u"Disk full", u"Disco pieno"},
    ErrorRow{62, u"Input past end of file", u"Input oltre la fine del file"},
    ErrorRow{67, u"Too many files", u"Troppi file"},
    ErrorRow{68, u"Device unavailable", u"Periferica non disponibile"},
    ErrorRow{70, u"Permission denied", u"Autorizzazione negata"},
    ErrorRow{71, u"Disk not ready", u"Disco non pronto"},
    ErrorRow{74, u"Can't rename with different drive", u"Impossibile rinominare con un'unità differente"},
    ErrorRow{75, u"Path/File access error", u"Errore di accesso al percorso o al file"},
    ErrorRow{76, u"Path not found", u"Impossibile trovare il percorso"},
    ErrorRow{91, u"Object variable not set", u"Variabile oggetto non impostata"},
    ErrorRow{92, u"For loop not initialized", u"Ciclo For non inizializzato"},
    ErrorRow{94, u"Invalid use of Null", u"Utilizzo non valido di Null"},
    ErrorRow{322, u"Can't create necessary temporary file", u"Impossibile creare il file temporaneo necessario"},
    ErrorRow{424, u"Object required", u"Necessario oggetto"},
    ErrorRow{429, u"ActiveX component can't create object", u"Il componente ActiveX non può creare l'oggetto"},
    ErrorRow{430, u"Class doesn't support Automation", u"La classe non supporta l'automazione"},
    ErrorRow{432, u"File name or class name not found during Automation operation",
             u"Impossibile trovare il nome del file o della classe durante l'operazione di automazione"},
    ErrorRow{438, u"Object doesn't support this property or method",
             u"Proprietà o metodo non supportati dall'oggetto"},
    ErrorRow{440, u"Automation error", u"Errore di automazione"},
    ErrorRow{445, u"Object doesn't support this action", u"Azione non supportata dall'oggetto"},
    ErrorRow{446, u"Object doesn't support named arguments", u"Argomenti denominati non supportati dall'oggetto"},
    ErrorRow{447, u"Object doesn't support current locale setting",
             u"Impostazione internazionale corrente non supportata dall'oggetto"},
    ErrorRow{448, u"Named argument not found", u"Impossibile trovare l'argomento denominato"},
    ErrorRow{449, u"Argument not optional", u"Argomento non facoltativo"},
    ErrorRow{450, u"Wrong number of arguments or invalid property assignment",
             u"Numero di argomenti errato o assegnazione di proprietà non valida"},
    ErrorRow{451, u"Object not a collection", u"L'oggetto non è un insieme"},
    ErrorRow{453, u"Specified DLL function not found", u"Impossibile trovare la funzione DLL specificata"},
    ErrorRow{455, u"Code resource lock error", u"Errore di blocco della risorsa di codice"},
    ErrorRow{457, u"This key is already associated with an element of this collection",
             u"Chiave già associata a un elemento dell'insieme"},
    ErrorRow{458, u"Variable uses an Automation type not supported in VBScript",
             u"La variabile utilizza un tipo di automazione non supportato in VBScript"},
    ErrorRow{462, u"The remote server machine does not exist or is unavailable",
             u"Il server remoto non esiste o non è disponibile"},
    ErrorRow{481, u"Invalid picture", u"Immagine non valida"},
    ErrorRow{500, u"Variable is undefined", u"Variabile non definita"},
    ErrorRow{501, u"Illegal assignment", u"Assegnazione non valida"},
    ErrorRow{502, u"Object not safe for scripting", u"Oggetto non sicuro per lo scripting"},
    ErrorRow{503, u"Object not safe for initializing", u"Oggetto non sicuro per l'inizializzazione"},
    ErrorRow{504, u"Object not safe for creating", u"Oggetto non sicuro per la creazione"},
    ErrorRow{505, u"Invalid or unqualified reference", u"Riferimento non valido o non qualificato"},
    ErrorRow{506, u"Class not defined", u"Classe non definita"},
    ErrorRow{507, u"An exception occurred", u"Si è verificata un'eccezione"},
    ErrorRow{1001, u"Out of memory", u"Memoria esaurita"},
    ErrorRow{1002, u"Syntax error", u"Errore di sintassi"},
    ErrorRow{1003, u"Expected ':'", u"Previsto ':'"},
    ErrorRow{1005, u"Expected '('", u"Previsto '('"},
    ErrorRow{1006, u"Expected ')'", u"Prevista ')'"},
    ErrorRow{1007, u"Expected ']'", u"Prevista ']'"},
    ErrorRow{1010, u"Expected identifier", u"Previsto identificatore"},
    ErrorRow{1011, u"Expected '='", u"Previsto '='"},
    ErrorRow{1012, u"Expected 'If'", u"Previsto 'If'"},
    ErrorRow{1013, u"Expected 'To'", u"Previsto 'To'"},
    ErrorRow{1014, u"Expected 'End'", u"Previsto 'End'"},
    ErrorRow{1015, u"Expected 'Function'", u"Previsto 'Function'"},
    ErrorRow{1016, u"Expected 'Sub'", u"Previsto 'Sub'"},
    ErrorRow{1017, u"Expected 'Then'", u"Previsto 'Then'"},
    ErrorRow{1018, u"Expected 'Wend'", u"Previsto 'Wend'"},
    ErrorRow{1019, u"Expected 'Loop'", u"Previsto 'Loop'"},
    ErrorRow{1020, u"Expected 'Next'", u"Previsto 'Next'"},
    ErrorRow{1021, u"Expected 'Case'", u"Previsto 'Case'"},
    ErrorRow{1022, u"Expected 'Select'", u"Previsto 'Select'"},
    ErrorRow{1023, u"Expected expression", u"Prevista espressione"},
    ErrorRow{1024, u"Expected statement", u"Prevista istruzione"},
    ErrorRow{1025, u"Expected end of statement", u"Prevista fine dell'istruzione"},
    ErrorRow{1026, u"Expected integer constant", u"Prevista costante intera"},
    ErrorRow{1027, u"Expected 'While' or 'Until'", u"Previsto 'While' o 'Until'"},
    ErrorRow{1028, u"Expected 'While', 'Until' or end of statement",
             u"Previsto 'While', 'Until' o fine dell'istruzione"},
    ErrorRow{1029, u"Expected 'With'", u"Previsto 'With'"},
    ErrorRow{1030, u"Identifier too long", u"Identificatore troppo lungo"},
    ErrorRow{1031, u"Invalid number", u"Numero non valido"},
    ErrorRow{1032, u"Invalid character", u"Carattere non valido"},
    ErrorRow{1033, u"Unterminated string constant", u"Costante stringa non terminata"},
    ErrorRow{1034, u"Unterminated comment", u"Commento non terminato"},
    ErrorRow{1037, u"Invalid use of 'Me' keyword", u"Utilizzo non valido della parola chiave 'Me'"},
    ErrorRow{1038, u"'loop' without 'do'", u"'loop' senza 'do'"},
    ErrorRow{1039, u"Invalid 'exit' statement", u"Istruzione 'exit' non valida"},
    ErrorRow{1040, u"Invalid 'for' loop control variable", u"Variabile di controllo del ciclo 'for' non valida"},
    ErrorRow{1041, u"Name redefined", u"Nome ridefinito"},
    ErrorRow{1042, u"Must be first statement on the line", u"Deve essere la prima istruzione della riga"},
    ErrorRow{1043, u"Cannot assign to non-ByVal argument", u"Impossibile assegnare a un argomento non ByVal"},
    ErrorRow{1044, u"Cannot use parentheses when calling a Sub",
             u"Impossibile utilizzare le parentesi quando si chiama una Sub"},
    ErrorRow{1045, u"Expected literal constant", u"Prevista costante letterale"},
    ErrorRow{1046, u"Expected 'In'", u"Previsto 'In'"},
    ErrorRow{1047, u"Expected 'Class'", u"Previsto 'Class'"},
    ErrorRow{1048, u"Must be defined inside a Class", u"Deve essere definito all'interno di una classe"},
    ErrorRow{1049, u"Expected Let or Set or Get in property declaration",
             u"Previsto Let, Set o Get nella dichiarazione della proprietà"},
    ErrorRow{1050, u"Expected 'Property'", u"Previsto 'Property'"},
    ErrorRow{1051, u"Number of arguments must be consistent across property declarations",
             u"Il numero di argomenti deve essere coerente in tutte le specifiche della proprietà"},
    ErrorRow{1052, u"Cannot have multiple default property/method in a Class",
             u"Impossibile avere più proprietà o metodi predefiniti in una classe"},
    ErrorRow{1053, u"Class initialize or terminate do not have arguments",
             u"Initialize o Terminate della classe non possono avere argomenti"},
    ErrorRow{1054, u"Property set or let must have at least one argument",
             u"Set o Let della proprietà devono avere almeno un argomento"},
    ErrorRow{1055, u"Unexpected 'Next'", u"'Next' imprevisto"},
    ErrorRow{1056, u"'Default' can be specified only on 'Property' or 'Function' or 'Sub'",
             u"'Default' può essere specificato solo in 'Property', 'Function' o 'Sub'"},
    ErrorRow{1057, u"'Default' declaration must also specify 'Public'",
             u"La specifica 'Default' deve specificare anche 'Public'"},
    ErrorRow{1058, u"'Default' declaration can only be on Property Get",
             u"La specifica 'Default' può essere solo in Property Get"},
    ErrorRow{5008, u"Illegal assignment", u"Assegnazione non valida"},
    ErrorRow{5017, u"Syntax error in regular expression", u"Errore di sintassi nell'espressione regolare"},
    ErrorRow{5018, u"Unexpected quantifier", u"Quantificatore imprevisto"},
    ErrorRow{5019, u"Expected ']' in regular expression", u"Prevista ']' nell'espressione regolare"},
    ErrorRow{5020, u"Expected ')' in regular expression", u"Prevista ')' nell'espressione regolare"},
    ErrorRow{5021, u"Invalid range in character set", u"Intervallo non valido nel set di caratteri"},
    ErrorRow{32766, u"True", u"Vero"},
    ErrorRow{32767, u"False", u"Falso"},
    ErrorRow{32811, u"Element not found", u"Elemento non trovato"},
    ErrorRow{32812, u"The specified date is not available in the current locale's calendar",
             u"La data specificata non è disponibile nel calendario delle impostazioni internazionali correnti"},
};

const ErrorRow* Find(int32_t number) {
  const auto* it = std::lower_bound(kErrors.begin(), kErrors.end(), number,
                                    [](const ErrorRow& row, int32_t n) { return row.number < n; });
  return it != kErrors.end() && it->number == number ? it : nullptr;
}

}  // namespace

std::u16string_view ErrorText(int32_t number, Language language) {
  if (const ErrorRow* row = Find(number)) return language == Language::Italian ? row->italian : row->english;
  return language == Language::Italian ? u"Errore di run-time sconosciuto" : u"Unknown runtime error";
}

bool IsKnownError(int32_t number) { return Find(number) != nullptr; }

bool IsCompileError(int32_t number) { return number >= 1001 && number <= 1058; }

}  // namespace vbs
