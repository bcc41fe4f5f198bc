#include "CondizioneCompilatore.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>
#include <string>

#include "CondizioneLessico.h"
#include "text/AsciiCase.h"

namespace lottolab::figures {

namespace {

// How a function takes its arguments.
enum class Argomenti {
  Valori,   // each argument's value, then the function's instruction
  Sommati,  // the arguments added one by one, then the function's instruction
  Vertice,  // one vertex reference, read by the function's instruction itself
};

constexpr int kSenzaLimite = -1;

struct Funzione {
  std::string_view nome;
  int minimo;
  int massimo;
  Argomenti argomenti;
  Codice codice;
  int64_t argomento = 0;
};

constexpr int64_t Argomento(FunzioneNumero funzione) { return static_cast<int64_t>(funzione); }

constexpr std::array kFunzioni = {
    Funzione{"Cadenza", 1, 1, Argomenti::Valori, Codice::Numero, Argomento(FunzioneNumero::Cadenza)},
    Funzione{"Decina", 1, 1, Argomenti::Valori, Codice::Numero, Argomento(FunzioneNumero::Decina)},
    Funzione{"DecinaCabalistica", 1, 1, Argomenti::Valori, Codice::Numero,
             Argomento(FunzioneNumero::DecinaCabalistica)},
    Funzione{"Figura", 1, 1, Argomenti::Valori, Codice::Numero, Argomento(FunzioneNumero::Figura)},
    Funzione{"Diametrale", 1, 1, Argomenti::Valori, Codice::Numero, Argomento(FunzioneNumero::Diametrale)},
    Funzione{"DiffCiclometrica", 2, 2, Argomenti::Valori, Codice::DiffCiclometrica},
    Funzione{"SommaCiclometrica", 2, kSenzaLimite, Argomenti::Sommati, Codice::Numero,
             Argomento(FunzioneNumero::Fuori90)},
    Funzione{"SommaCiclometricaGlob", 0, 0, Argomenti::Valori, Codice::SommaCiclometricaGlob},
    Funzione{"Vertibili", 2, 2, Argomenti::Valori, Codice::Vertibili},
    Funzione{"PosizioneVertice", 1, 1, Argomenti::Vertice, Codice::PosizioneVertice},
    Funzione{"PuntiSu", 1, 1, Argomenti::Valori, Codice::PuntiSu},
    Funzione{"RuotaUnica", 0, 0, Argomenti::Valori, Codice::RuotaUnica},
    Funzione{"ContaPresenze", 1, 1, Argomenti::Valori, Codice::ContaPresenze},
    Funzione{"ContaChiusure", 1, 1, Argomenti::Valori, Codice::ContaChiusure},
    Funzione{"QuantitaCadenze", 0, 0, Argomenti::Valori, Codice::QuantitaCadenze},
    Funzione{"QuantitaFigure", 0, 0, Argomenti::Valori, Codice::QuantitaFigure},
};

// Parentheses, Not and unary minus nest the parser's calls; a limit keeps absurd texts from
// exhausting the thread's stack.
constexpr size_t kAnnidamentoMassimo = 100;

constexpr std::string_view kValoreAtteso = "un numero, un vertice o una funzione";

std::string_view Ripulito(std::string_view testo) {
  const auto inizio = testo.find_first_not_of(" \t");
  if (inizio == std::string_view::npos) return {};
  return testo.substr(inizio, testo.find_last_not_of(" \t") - inizio + 1);
}

// The value of a text of digits only; nullopt for anything else or a value beyond 64 bits.
std::optional<int64_t> Intero(std::string_view testo) {
  if (testo.empty() || !std::ranges::all_of(testo, [](char c) { return c >= '0' && c <= '9'; })) return std::nullopt;
  int64_t valore = 0;
  const auto esito = std::from_chars(testo.data(), testo.data() + testo.size(), valore);
  if (esito.ec != std::errc{}) return std::nullopt;
  return valore;
}

std::optional<Codice> CodiceConfronto(TipoSimbolo tipo) {
  switch (tipo) {
    case TipoSimbolo::Uguale: return Codice::Uguale;
    case TipoSimbolo::Diverso: return Codice::Diverso;
    case TipoSimbolo::Minore: return Codice::Minore;
    case TipoSimbolo::Maggiore: return Codice::Maggiore;
    case TipoSimbolo::MinoreUguale: return Codice::MinoreUguale;
    case TipoSimbolo::MaggioreUguale: return Codice::MaggioreUguale;
    default: return std::nullopt;
  }
}

// How many values an instruction leaves on the stack beyond those it takes.
int Effetto(Codice codice) {
  switch (codice) {
    case Codice::Costante:
    case Codice::NumeroVertice:
    case Codice::PosizioneVertice:
    case Codice::SommaCiclometricaGlob:
    case Codice::RuotaUnica:
    case Codice::QuantitaCadenze:
    case Codice::QuantitaFigure: return 1;
    case Codice::Opposto:
    case Codice::Non:
    case Codice::Numero:
    case Codice::PuntiSu:
    case Codice::ContaPresenze:
    case Codice::ContaChiusure: return 0;
    case Codice::Somma:
    case Codice::Differenza:
    case Codice::Prodotto:
    case Codice::Uguale:
    case Codice::Diverso:
    case Codice::Minore:
    case Codice::Maggiore:
    case Codice::MinoreUguale:
    case Codice::MaggioreUguale:
    case Codice::E:
    case Codice::O:
    case Codice::DiffCiclometrica:
    case Codice::Vertibili: return -1;
  }
  return 0;
}

bool ScorreIVertici(Codice codice) {
  switch (codice) {
    case Codice::SommaCiclometricaGlob:
    case Codice::RuotaUnica:
    case Codice::QuantitaCadenze:
    case Codice::QuantitaFigure:
    case Codice::PuntiSu:
    case Codice::ContaPresenze:
    case Codice::ContaChiusure: return true;
    default: return false;
  }
}

std::string ArgomentiSbagliati(const Funzione& funzione) {
  if (funzione.massimo == kSenzaLimite)
    return fmt::format("Errore di sintassi: {} vuole almeno {} argomenti", funzione.nome, funzione.minimo);
  if (funzione.massimo == 0) return fmt::format("Errore di sintassi: {} non vuole argomenti", funzione.nome);
  if (funzione.massimo == 1) return fmt::format("Errore di sintassi: {} vuole un argomento", funzione.nome);
  return fmt::format("Errore di sintassi: {} vuole {} argomenti", funzione.nome, funzione.massimo);
}

// The byte offset of the character numbered `carattere` from 0.
size_t PosizioneDelCarattere(std::string_view testo, size_t carattere) {
  size_t posizione = 0;
  for (size_t contati = 0; posizione < testo.size(); ++posizione)
    if ((static_cast<unsigned char>(testo[posizione]) & 0xC0) != 0x80 && contati++ == carattere) break;
  return posizione;
}

// Why the descent stops: the first thing in the text that makes no sense. Each step hands it up
// unchanged, so the text is refused where it first went wrong.
struct Rifiuto {
  std::string messaggio;
  size_t posizione;  // byte offset in the text
};

// A step of the descent: done, or the refusal that ends it.
using Passo = Esito<Fatto, Rifiuto>;

class Compilatore {
 public:
  Compilatore(std::string_view testo, std::span<const ClsVertice> vertici)
      : m_testo(testo), m_lessico(testo), m_vertici(vertici) {}

  Esito<ProgrammaCondizione, Rifiuto> Compila() && {
    const size_t caratteri = Colonna(m_testo, m_testo.size()) - 1;
    if (caratteri > kMassimiCaratteriCondizione)
      return Rifiuto{fmt::format("Errore di sintassi: la condizione è lunga {} caratteri, al massimo {}", caratteri,
                                 kMassimiCaratteriCondizione),
                     PosizioneDelCarattere(m_testo, kMassimiCaratteriCondizione)};
    Avanza();
    if (auto passo = Or(); !passo) return passo.Errore();
    if (m_simbolo.tipo != TipoSimbolo::Fine) return Atteso("un operatore o la fine del testo");
    const size_t vertici = static_cast<size_t>(
        std::ranges::count_if(m_vertici, [](const ClsVertice& vertice) { return vertice.Index != 0; }));
    size_t costo = 0;
    for (const Istruzione& istruzione : m_istruzioni) costo += ScorreIVertici(istruzione.codice) ? vertici : 1;
    return ProgrammaCondizione{std::string(m_testo), std::move(m_istruzioni), &TabelleNumeri::Uniche(), m_vertici_letti,
                               costo};
  }

 private:
  Passo Or() {
    const Annidamento annidamento(*this);
    if (annidamento.Eccessivo()) return TroppoAnnidato();
    if (auto passo = And(); !passo) return passo;
    while (ParolaChiave("Or")) {
      Avanza();
      if (auto passo = And(); !passo) return passo;
      if (auto passo = Emetti(Codice::O); !passo) return passo;
    }
    return Fatto{};
  }

  Passo And() {
    if (auto passo = Non(); !passo) return passo;
    while (ParolaChiave("And")) {
      Avanza();
      if (auto passo = Non(); !passo) return passo;
      if (auto passo = Emetti(Codice::E); !passo) return passo;
    }
    return Fatto{};
  }

  Passo Non() {
    if (!ParolaChiave("Not")) return Confronto();
    const Annidamento annidamento(*this);
    if (annidamento.Eccessivo()) return TroppoAnnidato();
    Avanza();
    if (auto passo = Non(); !passo) return passo;
    return Emetti(Codice::Non);
  }

  Passo Confronto() {
    if (auto passo = Somma(); !passo) return passo;
    const std::optional<Codice> codice = CodiceConfronto(m_simbolo.tipo);
    if (!codice) return Fatto{};
    Avanza();
    if (auto passo = Somma(); !passo) return passo;
    if (auto passo = Emetti(*codice); !passo) return passo;
    if (CodiceConfronto(m_simbolo.tipo)) return Atteso("And o Or tra due confronti");
    return Fatto{};
  }

  Passo Somma() {
    if (auto passo = Prodotto(); !passo) return passo;
    while (m_simbolo.tipo == TipoSimbolo::Piu || m_simbolo.tipo == TipoSimbolo::Meno) {
      const Codice codice = Avanza().tipo == TipoSimbolo::Piu ? Codice::Somma : Codice::Differenza;
      if (auto passo = Prodotto(); !passo) return passo;
      if (auto passo = Emetti(codice); !passo) return passo;
    }
    return Fatto{};
  }

  Passo Prodotto() {
    if (auto passo = Unario(); !passo) return passo;
    while (m_simbolo.tipo == TipoSimbolo::Per) {
      Avanza();
      if (auto passo = Unario(); !passo) return passo;
      if (auto passo = Emetti(Codice::Prodotto); !passo) return passo;
    }
    return Fatto{};
  }

  Passo Unario() {
    if (m_simbolo.tipo != TipoSimbolo::Meno) return Primario();
    const Annidamento annidamento(*this);
    if (annidamento.Eccessivo()) return TroppoAnnidato();
    Avanza();
    if (auto passo = Unario(); !passo) return passo;
    return Emetti(Codice::Opposto);
  }

  Passo Primario() {
    switch (m_simbolo.tipo) {
      case TipoSimbolo::Numero: {
        const std::optional<int64_t> valore = Intero(m_simbolo.testo);
        if (!valore) return Rifiuta(fmt::format("Errore di sintassi: il numero {} è troppo grande", m_simbolo.testo));
        Avanza();
        return Emetti(Codice::Costante, *valore);
      }
      case TipoSimbolo::Vertice:
      case TipoSimbolo::VerticeAperto: {
        const Esito<int64_t, Rifiuto> vertice = Vertice();
        if (!vertice) return vertice.Errore();
        return Emetti(Codice::NumeroVertice, *vertice);
      }
      case TipoSimbolo::ParentesiAperta:
        Avanza();
        if (auto passo = Or(); !passo) return passo;
        return Chiudi();
      case TipoSimbolo::Nome:
        if (ParolaChiave("Or") || ParolaChiave("And") || ParolaChiave("Not")) return Atteso(kValoreAtteso);
        return Chiamata();
      default: return Atteso(kValoreAtteso);
    }
  }

  Passo Chiamata() {
    const auto funzione = std::ranges::find_if(
        kFunzioni, [&](const Funzione& f) { return text::EqualsIgnoringAsciiCase(f.nome, m_simbolo.testo); });
    if (funzione == kFunzioni.end())
      return Rifiuta(fmt::format("Errore di sintassi: la funzione {} non esiste", m_simbolo.testo));
    Avanza();
    if (m_simbolo.tipo != TipoSimbolo::ParentesiAperta) {
      if (funzione->minimo > 0) return Atteso(fmt::format("'(' dopo {}", funzione->nome));
      return Emetti(funzione->codice, funzione->argomento);
    }
    Avanza();
    int argomenti = 0;
    if (m_simbolo.tipo != TipoSimbolo::ParentesiChiusa) {
      for (size_t inizio = m_simbolo.inizio;; inizio = Avanza().inizio) {
        if (argomenti == funzione->massimo) return Rifiuto{ArgomentiSbagliati(*funzione), inizio};
        if (auto passo = Argomento(*funzione, argomenti++); !passo) return passo;
        if (m_simbolo.tipo != TipoSimbolo::Virgola) break;
      }
    }
    if (m_simbolo.tipo != TipoSimbolo::ParentesiChiusa)
      return Atteso(argomenti == funzione->massimo ? "')'" : "',' o ')'");
    if (argomenti < funzione->minimo) return Rifiuta(ArgomentiSbagliati(*funzione));
    Avanza();
    if (funzione->argomenti == Argomenti::Vertice) return Fatto{};
    return Emetti(funzione->codice, funzione->argomento);
  }

  Passo Argomento(const Funzione& funzione, int indice) {
    switch (funzione.argomenti) {
      case Argomenti::Valori: return Or();
      case Argomenti::Sommati:
        if (auto passo = Or(); !passo) return passo;
        if (indice > 0) return Emetti(Codice::Somma);
        return Fatto{};
      case Argomenti::Vertice: {
        if (m_simbolo.tipo != TipoSimbolo::Vertice && m_simbolo.tipo != TipoSimbolo::VerticeAperto)
          return Atteso("un vertice tra parentesi quadre");
        const Esito<int64_t, Rifiuto> vertice = Vertice();
        if (!vertice) return vertice.Errore();
        return Emetti(funzione.codice, *vertice);
      }
    }
    return Fatto{};
  }

  Passo Chiudi() {
    if (m_simbolo.tipo != TipoSimbolo::ParentesiChiusa) return Atteso("')'");
    Avanza();
    return Fatto{};
  }

  // The place, among the vertices with an Index, of the vertex the current symbol names: the
  // first whose caption matches, else the one whose Index is the number written.
  Esito<int64_t, Rifiuto> Vertice() {
    if (m_simbolo.tipo == TipoSimbolo::VerticeAperto)
      return Rifiuto{"Errore di sintassi: atteso ']' ma il testo è finito", m_testo.size()};
    const std::string_view nome = Ripulito(m_simbolo.testo.substr(1, m_simbolo.testo.size() - 2));
    if (nome.empty()) return Rifiuta("Errore di sintassi: manca il nome del vertice tra [ e ]");
    const std::optional<int64_t> indice = Intero(nome);
    std::optional<size_t> per_indice;
    size_t posto = 0;
    for (const ClsVertice& vertice : m_vertici) {
      if (vertice.Index == 0) continue;
      if (text::EqualsIgnoringAsciiCase(Ripulito(vertice.Caption), nome)) return Letto(posto);
      if (!per_indice && indice == vertice.Index) per_indice = posto;
      ++posto;
    }
    if (!per_indice) return Rifiuta(fmt::format("Errore di sintassi: il vertice [{}] non esiste", nome));
    return Letto(*per_indice);
  }

  int64_t Letto(size_t posto) {
    Avanza();
    m_vertici_letti = std::max(m_vertici_letti, posto + 1);
    return static_cast<int64_t>(posto);
  }

  Passo Emetti(Codice codice, int64_t argomento = 0) {
    m_profondita += Effetto(codice);
    if (m_profondita > static_cast<int>(kProfonditaPila))
      return Rifiuto{"Errore di sintassi: espressione troppo complessa", m_ultimo};
    m_istruzioni.push_back({codice, argomento});
    return Fatto{};
  }

  // The symbol read so far, moving on to the next.
  Simbolo Avanza() {
    const Simbolo letto = m_simbolo;
    m_ultimo = letto.inizio;
    m_simbolo = m_lessico.Leggi();
    return letto;
  }

  bool ParolaChiave(std::string_view parola) const {
    return m_simbolo.tipo == TipoSimbolo::Nome && text::EqualsIgnoringAsciiCase(m_simbolo.testo, parola);
  }

  Rifiuto Atteso(std::string_view cosa) const {
    if (m_simbolo.tipo == TipoSimbolo::Fine)
      return Rifiuta(fmt::format("Errore di sintassi: atteso {} ma il testo è finito", cosa));
    return Rifiuta(fmt::format("Errore di sintassi: atteso {} ma trovato '{}'", cosa, m_simbolo.testo));
  }

  // The text refused where the current symbol starts.
  Rifiuto Rifiuta(std::string messaggio) const { return {std::move(messaggio), m_simbolo.inizio}; }

  Rifiuto TroppoAnnidato() const { return Rifiuta("Errore di sintassi: espressione troppo annidata"); }

  // One level of parentheses, Not or unary minus, counted for as long as the step that opened it
  // lasts.
  class Annidamento {
   public:
    explicit Annidamento(Compilatore& compilatore) : m_compilatore(compilatore) { ++m_compilatore.m_annidamento; }
    ~Annidamento() { --m_compilatore.m_annidamento; }
    Annidamento(const Annidamento&) = delete;
    Annidamento& operator=(const Annidamento&) = delete;

    bool Eccessivo() const { return m_compilatore.m_annidamento > kAnnidamentoMassimo; }

   private:
    Compilatore& m_compilatore;
  };

  std::string_view m_testo;
  Lessico m_lessico;
  std::span<const ClsVertice> m_vertici;
  Simbolo m_simbolo;
  size_t m_ultimo = 0;  // where the symbol before m_simbolo starts
  std::vector<Istruzione> m_istruzioni;
  int m_profondita = 0;  // values on the stack after the instructions emitted so far
  size_t m_annidamento = 0;
  size_t m_vertici_letti = 0;
};

}  // namespace

Esito<ProgrammaCondizione, ErroreSintassi> CompilaCondizione(std::string_view testo,
                                                             std::span<const ClsVertice> vertici) {
  auto compilata = Compilatore(testo, vertici).Compila();
  if (!compilata) return ErroreSintassi{compilata.Errore().messaggio, Colonna(testo, compilata.Errore().posizione)};
  return std::move(compilata).Valore();
}

}  // namespace lottolab::figures
