// Collections for scripts: a new one, adding, reading and sorting items. The library's functions
// that return groups of objects return these same collections.

#include <fmt/format.h>

#include <algorithm>

#include "Collezione.h"
#include "Famiglia.h"
#include "vbscript/value/Operators.h"

namespace lottolab::script {

namespace {

using namespace famiglia;

Result<Collezione*> CollezioneArgomento(const CallArgs& args) {
  const Variant& valore = args[0];
  auto* collezione = valore.is_object() ? dynamic_cast<Collezione*>(valore.as_object()) : nullptr;
  if (!collezione)
    return ArgomentoNonValido("Il primo argomento deve essere una collezione creata con GetNewCollection");
  return collezione;
}

Result<Variant> GetNewCollection(Libreria& lib, CallArgs&) {
  return Variant::Object(vbs::MakeRef<Collezione>(lib.locale()));
}

Result<Variant> AddItemColl(Libreria&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto collezione, CollezioneArgomento(args));
  VBS_TRY_ASSIGN(auto chiave, args.String(2, u""));
  if (auto aggiunta = (collezione)->Aggiungi(args[1], chiave); !aggiunta)
    return ArgomentoNonValido(fmt::format("La chiave \"{}\" è già nella collezione", text::Utf16ToUtf8(chiave)));
  return Variant::Long(static_cast<int32_t>((collezione)->size()));
}

Result<Variant> GetItemCollection(Libreria&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto collezione, CollezioneArgomento(args));
  auto posto = (collezione)->Posto(args[1]);
  if (!posto) return ArgomentoNonValido("Nessun elemento della collezione ha questo indice o questa chiave");
  return (*collezione)[*posto];
}

// What an item is sorted by: the item itself, or for an object the property named.
Result<Variant> ChiaveDOrdine(const Variant& elemento, const std::string& proprieta) {
  if (!elemento.is_object()) return elemento;
  if (proprieta.empty())
    return ArgomentoNonValido("La collezione contiene oggetti: indicare la proprietà secondo cui ordinarli");
  vbs::Object* oggetto = elemento.as_object();
  if (!oggetto) return ArgomentoNonValido("La collezione contiene Nothing, che non si può ordinare");
  const vbs::DispId membro = oggetto->FindMember(proprieta);
  if (membro == vbs::kUnknownMember)
    return ArgomentoNonValido(fmt::format("Gli elementi della collezione non hanno la proprietà {}", proprieta));
  return oggetto->Invoke(membro, vbs::InvokeKind::Get, {});
}

// Sorted stably with the script's own "<", so numbers come before texts as in a comparison.
Result<Variant> OrdinaItemCollection(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto collezione, CollezioneArgomento(args));
  VBS_TRY_ASSIGN(auto ordine, args.Long(1, 1));
  if (ordine != 1 && ordine != -1) return ArgomentoNonValido("Ordine deve essere 1 (crescente) o -1 (decrescente)");
  VBS_TRY_ASSIGN(auto proprieta, args.String(2, u""));
  const std::string nome = text::Utf16ToUtf8(proprieta);

  Collezione& c = *collezione;
  std::vector<Variant> chiavi;
  chiavi.reserve(c.size());
  for (size_t i = 0; i < c.size(); ++i) {
    VBS_TRY_ASSIGN(auto chiave, ChiaveDOrdine(c[i], nome));
    if (chiave.is_object() || chiave.is_array() || chiave.is_null())
      return ArgomentoNonValido(fmt::format("L'elemento {} della collezione non si può ordinare", i + 1));
    chiavi.push_back(std::move(chiave));
  }
  std::vector<size_t> ordinati(c.size());
  for (size_t i = 0; i < ordinati.size(); ++i) ordinati[i] = i;
  const bool crescente = ordine == 1;
  std::stable_sort(ordinati.begin(), ordinati.end(), [&](size_t a, size_t b) {
    auto minore = vbs::Compare(vbs::BinaryOperator::Less, chiavi[crescente ? a : b], chiavi[crescente ? b : a],
                               vbs::CompareMode::Binary, lib.locale());
    return minore && minore->is_boolean() && minore->as_boolean();
  });
  c.Riordina(ordinati);
  return Variant();
}

const Libreria::Funzione kCollezioni[] = {
    {"GetNewCollection", 0, 0, &GetNewCollection,
     "una nuova collezione vuota: Add Elemento, [Chiave]; Item(Indice o Chiave); Remove; Count; For Each",
     "Object: una collezione vuota", "Set c = GetNewCollection() : c.Add 12, \"a\" : Scrivi c.Count"},
    {"AddItemColl", 2, 3, &AddItemColl,
     "Coll, Elemento, [Chiave]: aggiunge l'elemento in fondo alla collezione, con la chiave se data; restituisce "
     "quanti elementi ha ora la collezione",
     "Long: quanti elementi ha la collezione; errore 5 per una chiave già usata",
     "Set c = GetNewCollection() : Scrivi AddItemColl(c, 34, \"ambo\")"},
    {"GetItemCollection", 2, 2, &GetItemCollection,
     "Coll, Indice: l'elemento al posto Indice (da 1) o con la chiave Indice",
     "l'elemento, del tipo che ha; errore 5 per un indice o una chiave che non c'è",
     "Set c = GetNewCollection() : n = AddItemColl(c, 34, \"ambo\") : Scrivi GetItemCollection(c, \"ambo\")"},
    {"OrdinaItemCollection", 1, 3, &OrdinaItemCollection,
     "Coll, [Ordine = 1], [Proprieta]: ordina sul posto gli elementi della collezione, per il loro valore o, per "
     "oggetti, per il valore della proprietà Proprieta; Ordine 1 crescente, -1 decrescente; i numeri prima dei "
     "testi, a pari valore resta l'ordine di prima; le chiavi restano ai loro elementi",
     "niente (Sub): la collezione ordinata sul posto",
     "Set c = GetNewCollection() : c.Add 45 : c.Add 12 : c.Add 90 : OrdinaItemCollection c, -1 : Scrivi c.Item(1)"},
};

}  // namespace

std::span<const Libreria::Funzione> FunzioniCollezioni() { return kCollezioni; }

}  // namespace lottolab::script
