#include "gui/aiuto/ModelloFunzioni.h"

#include <QBrush>

#include <algorithm>
#include <string>
#include <tuple>
#include <unordered_map>

#include "script/ClsFunctionsGeodoScript.h"
#include "script/NomiPubblici.h"
#include "text/AsciiCase.h"

namespace lottolab::gui {

namespace {

using Funzione = script::ClsFunctionsGeodoScript::Funzione;

QString Testo(std::string_view testo) { return QString::fromUtf8(testo.data(), static_cast<qsizetype>(testo.size())); }

// A binding row's text is "arguments: meaning"; a text without arguments is all meaning.
std::pair<std::string_view, std::string_view> ArgomentiESignificato(std::string_view descrizione) {
  const size_t due_punti = descrizione.find(": ");
  if (due_punti == std::string_view::npos) return {{}, descrizione};
  return {descrizione.substr(0, due_punti), descrizione.substr(due_punti + 2)};
}

}  // namespace

ModelloFunzioni::ModelloFunzioni(QObject* parent) : QAbstractTableModel(parent) {
  // Scripts call names in any case: the library's rows are found by lower case.
  std::unordered_map<std::string, const Funzione*> legate;
  for (const Funzione& funzione : script::ClsFunctionsGeodoScript::Funzioni())
    legate.emplace(text::LowerAscii(funzione.nome), &funzione);
  for (const script::FamigliaDiNomi& famiglia : script::NomiPubblici())
    for (std::string_view nome : famiglia.nomi) {
      Voce voce{famiglia.famiglia, nome, {}, {}, false};
      if (auto it = legate.find(text::LowerAscii(nome)); it != legate.end()) {
        std::tie(voce.argomenti, voce.significato) = ArgomentiESignificato(it->second->descrizione);
        voce.disponibile = true;
      }
      m_voci.push_back(voce);
    }
}

int ModelloFunzioni::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(m_voci.size());
}

int ModelloFunzioni::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : kColonne; }

QVariant ModelloFunzioni::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= rowCount()) return {};
  const Voce& voce = m_voci[static_cast<size_t>(index.row())];
  if (role == Qt::ForegroundRole && !voce.disponibile) return QBrush(Qt::gray);
  if (role != Qt::DisplayRole && role != Qt::ToolTipRole) return {};
  switch (index.column()) {
    case kColonnaNome: return Testo(voce.nome);
    case kColonnaArgomenti: return Testo(voce.argomenti);
    case kColonnaSignificato:
      return voce.disponibile ? Testo(voce.significato) : QStringLiteral("non ancora disponibile");
    case kColonnaFamiglia: return Testo(voce.famiglia);
    default: return {};
  }
}

QVariant ModelloFunzioni::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
    return QAbstractTableModel::headerData(section, orientation, role);
  switch (section) {
    case kColonnaNome: return QStringLiteral("Nome");
    case kColonnaArgomenti: return QStringLiteral("Argomenti");
    case kColonnaSignificato: return QStringLiteral("Significato");
    case kColonnaFamiglia: return QStringLiteral("Famiglia");
    default: return {};
  }
}

int ModelloFunzioni::Disponibili() const {
  return static_cast<int>(
      std::count_if(m_voci.begin(), m_voci.end(), [](const Voce& voce) { return voce.disponibile; }));
}

}  // namespace lottolab::gui
