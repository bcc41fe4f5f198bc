#include "Riferimento.h"

#include <unordered_map>

#include "ClsFunctionsGeodoScript.h"
#include "NomiPubblici.h"
#include "text/AsciiCase.h"

namespace lottolab::script {

namespace {

constexpr std::string_view kNonDisponibili = "Non ancora disponibili";

// A row's text is "arguments: meaning"; a text without arguments is all meaning.
void ArgomentiESignificato(std::string_view descrizione, SchedaFunzione& scheda) {
  const size_t due_punti = descrizione.find(": ");
  if (due_punti == std::string_view::npos) {
    scheda.significato = descrizione;
    return;
  }
  scheda.argomenti = descrizione.substr(0, due_punti);
  scheda.significato = descrizione.substr(due_punti + 2);
}

struct Indice {
  std::vector<SchedaFunzione> schede;
  std::unordered_map<std::string, size_t> per_nome;  // lower case
};

const Indice& IndiceCompleto() {
  static const Indice indice = [] {
    std::unordered_map<std::string, bool> pubblici;  // lower-case name -> bound
    std::vector<std::string_view> in_ordine;
    for (const FamigliaDiNomi& famiglia : NomiPubblici())
      for (std::string_view nome : famiglia.nomi) {
        pubblici.emplace(text::LowerAscii(nome), false);
        in_ordine.push_back(nome);
      }
    Indice i;
    for (const ClsFunctionsGeodoScript::Famiglia& famiglia : ClsFunctionsGeodoScript::Famiglie())
      for (const ClsFunctionsGeodoScript::Funzione& funzione : famiglia.funzioni) {
        auto pubblico = pubblici.find(text::LowerAscii(funzione.nome));
        if (pubblico == pubblici.end()) continue;
        pubblico->second = true;
        SchedaFunzione scheda{famiglia.titolo, funzione.nome, {}, {}, funzione.restituisce, funzione.esempio, true};
        ArgomentiESignificato(funzione.descrizione, scheda);
        i.schede.push_back(scheda);
      }
    for (std::string_view nome : in_ordine)
      if (!pubblici.at(text::LowerAscii(nome))) i.schede.push_back({kNonDisponibili, nome, {}, {}, {}, {}, false});
    for (size_t n = 0; n < i.schede.size(); ++n) i.per_nome.emplace(text::LowerAscii(i.schede[n].nome), n);
    return i;
  }();
  return indice;
}

}  // namespace

const std::vector<SchedaFunzione>& Riferimento() { return IndiceCompleto().schede; }

const SchedaFunzione* CercaScheda(std::string_view nome) {
  const Indice& indice = IndiceCompleto();
  auto it = indice.per_nome.find(text::LowerAscii(nome));
  return it == indice.per_nome.end() ? nullptr : &indice.schede[it->second];
}

std::string TestoSuggerimento(const SchedaFunzione& scheda) {
  std::string testo(scheda.nome);
  if (!scheda.argomenti.empty()) testo += "(" + std::string(scheda.argomenti) + ")";
  if (!scheda.restituisce.empty()) testo += "\n→ " + std::string(scheda.restituisce);
  if (!scheda.legata) return testo + "\nnon ancora disponibile";
  testo += "\n" + std::string(scheda.significato);
  if (!scheda.esempio.empty()) testo += "\nEsempio: " + std::string(scheda.esempio);
  return testo;
}

}  // namespace lottolab::script
