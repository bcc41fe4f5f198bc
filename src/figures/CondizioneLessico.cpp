#include "CondizioneLessico.h"

namespace lottolab::figures {

namespace {

bool Spazio(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; }

bool Cifra(char c) { return c >= '0' && c <= '9'; }

bool Lettera(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_'; }

// The bytes after the first of a UTF-8 character.
bool ByteDiSeguito(char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; }

}  // namespace

Simbolo Lessico::Leggi() {
  while (m_posizione < m_testo.size() && Spazio(m_testo[m_posizione])) ++m_posizione;
  const size_t inizio = m_posizione;
  if (inizio == m_testo.size()) return {TipoSimbolo::Fine, {}, inizio};

  auto simbolo = [&](TipoSimbolo tipo, size_t lunghezza) {
    m_posizione = inizio + lunghezza;
    return Simbolo{tipo, m_testo.substr(inizio, lunghezza), inizio};
  };
  auto finche = [&](auto appartiene) {
    size_t fine = inizio + 1;
    while (fine < m_testo.size() && appartiene(m_testo[fine])) ++fine;
    return fine - inizio;
  };
  const char c = m_testo[inizio];
  const char dopo = inizio + 1 < m_testo.size() ? m_testo[inizio + 1] : '\0';
  if (Cifra(c)) return simbolo(TipoSimbolo::Numero, finche(Cifra));
  if (Lettera(c)) return simbolo(TipoSimbolo::Nome, finche([](char x) { return Lettera(x) || Cifra(x); }));
  switch (c) {
    case '[': {
      const size_t chiusa = m_testo.find(']', inizio);
      if (chiusa == std::string_view::npos) return simbolo(TipoSimbolo::VerticeAperto, m_testo.size() - inizio);
      return simbolo(TipoSimbolo::Vertice, chiusa + 1 - inizio);
    }
    case '+': return simbolo(TipoSimbolo::Piu, 1);
    case '-': return simbolo(TipoSimbolo::Meno, 1);
    case '*': return simbolo(TipoSimbolo::Per, 1);
    case '=': return simbolo(TipoSimbolo::Uguale, 1);
    case '(': return simbolo(TipoSimbolo::ParentesiAperta, 1);
    case ')': return simbolo(TipoSimbolo::ParentesiChiusa, 1);
    case ',': return simbolo(TipoSimbolo::Virgola, 1);
    case '<':
      if (dopo == '>') return simbolo(TipoSimbolo::Diverso, 2);
      if (dopo == '=') return simbolo(TipoSimbolo::MinoreUguale, 2);
      return simbolo(TipoSimbolo::Minore, 1);
    case '>':
      if (dopo == '=') return simbolo(TipoSimbolo::MaggioreUguale, 2);
      return simbolo(TipoSimbolo::Maggiore, 1);
    default: return simbolo(TipoSimbolo::Sconosciuto, finche(ByteDiSeguito));
  }
}

size_t Colonna(std::string_view testo, size_t posizione) {
  size_t colonna = 1;
  for (size_t i = 0; i < posizione && i < testo.size(); ++i)
    if (!ByteDiSeguito(testo[i])) ++colonna;
  return colonna;
}

}  // namespace lottolab::figures
